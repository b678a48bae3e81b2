#include "editor/designer/window_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/run_time_texts.h"

namespace qor {
namespace {

// A row of controls side by side in one grid cell span.
QHBoxLayout* rowAt(QGridLayout& grid, int row)
{
    auto* line = new QHBoxLayout;
    line->setSpacing(3);
    grid.addLayout(line, row, 0, 1, 3);
    return line;
}

}  // namespace

WindowPanel::WindowPanel(QWidget* parent, const WindowHooks& hooks) : QWidget(parent), hooks_(hooks)
{
    named(this, "Panneau_fenetre");
    build();
}

void WindowPanel::build()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setVerticalSpacing(2);
    int row = 0;
    background_ = addPathRow(*grid, row, QStringLiteral("Image de fond :"), QStringLiteral("Text_fond"), true);
    row += 2;
    fullScreen_ = addWrappedBox(*grid, row++, QStringLiteral("Plein écran"), QStringLiteral("Check_plein"));
    auto* size = rowAt(*grid, row++);
    size->addWidget(makeLabel(this, QStringLiteral("Taille :"), QStringLiteral("Label_taille")));
    width_ = named(new QLineEdit(this), "Text_largeur");
    height_ = named(new QLineEdit(this), "Text_hauteur");
    sizeOk_ = makeSmallCommand(this, QStringLiteral("OK"), QStringLiteral("Command_taille"));
    size->addWidget(width_);
    size->addWidget(makeLabel(this, QStringLiteral("x"), QStringLiteral("Label_fois")));
    size->addWidget(height_);
    size->addWidget(sizeOk_);
    fit_ = makeCommand(this, QStringLiteral("Ajuster à l'image de fond"), QStringLiteral("Command_ajuster"));
    grid->addWidget(fit_, row++, 0, 1, 3);
    auto* zoom = rowAt(*grid, row++);
    zoom->addWidget(
        makeCaption(this, QStringLiteral("Zoom (en gardant les proportions) :"), QStringLiteral("Label_zoom")), 1);
    zoom->addWidget(makeSmallCommand(this, QStringLiteral("-"), QStringLiteral("Command_zoom_moins")));
    zoom->addWidget(makeSmallCommand(this, QStringLiteral("+"), QStringLiteral("Command_zoom_plus")));
    border_ = addWrappedBox(*grid, row++, QStringLiteral("Contours"), QStringLiteral("Check_contours"));
    auto* colour = rowAt(*grid, row++);
    colour->addWidget(makeLabel(this, QStringLiteral("Couleur de fond :"), QStringLiteral("Label_couleur")));
    colour_ = makeSwatch(this, QStringLiteral("Picture_couleur"));
    colour->addWidget(colour_);
    colour->addStretch();
    music_ = addPathRow(*grid, row, QStringLiteral("Musique de fond :"), QStringLiteral("Text_musique"), true);
    row += 2;
    icon_ = addPathRow(*grid, row, QStringLiteral("Icône du CD :"), QStringLiteral("Text_icone"), true);
    row += 2;
    handCursor_ = addWrappedBox(*grid, row++, QStringLiteral("Curseur \"main\" au survol   des boutons (à l'exécution)"),
                                QStringLiteral("Check_main"));
    timer_ = addWrappedBox(*grid, row++, QStringLiteral("Minuteur"), QStringLiteral("Check_minuteur"));
    timerGroup_ = named(new QGroupBox(this), "Frame_minuteur");
    auto* timerGrid = new QGridLayout(timerGroup_);
    auto* every = new QHBoxLayout;
    every->addWidget(makeLabel(timerGroup_, QStringLiteral("Toutes les"), QStringLiteral("Label_toutes_les")));
    interval_ = named(new QLineEdit(timerGroup_), "Text_intervalle");
    every->addWidget(interval_);
    every->addWidget(makeLabel(timerGroup_, QStringLiteral("ms"), QStringLiteral("Label_ms")));
    timerGrid->addLayout(every, 0, 0, 1, 2);
    // One line that fits the frame: a caption that wraps would let the frame
    // be laid out shorter than its commands need.
    timerGrid->addWidget(makeLabel(timerGroup_, QStringLiteral("exécuter ce code VBS :"), QStringLiteral("Label_code_minuteur")),
                         1, 0, 1, 2);
    timerGrid->addWidget(makeSmallCommand(timerGroup_, QStringLiteral("&Modif."), QStringLiteral("Command_minuteur")), 2,
                         1);
    grid->addWidget(timerGroup_, row++, 0, 1, 3);
    contextMenu_ = addWrappedBox(*grid, row++, QStringLiteral("Menu contextuel à l'exécution"), QStringLiteral("Check_menu"));
    auto* global = rowAt(*grid, row++);
    global->addWidget(makeCaption(this, QStringLiteral("Déclarations VBS globales :"), QStringLiteral("Label_global")),
                      1);
    global->addWidget(makeSmallCommand(this, QStringLiteral("&Modif."), QStringLiteral("Command_global")));
    global->addWidget(makeSmallCommand(this, QStringLiteral("[?]"), QStringLiteral("Command_aide_global")));
    auto* hover = rowAt(*grid, row++);
    hover->addWidget(makeLabel(this, QStringLiteral("Actions au survol :"), QStringLiteral("Label_survol_fenetre")));
    hover->addWidget(makeSmallCommand(this, QStringLiteral("Modif."), QStringLiteral("Command_survol_fenetre")));
    hover->addStretch();
    grid->addWidget(makeCaption(this, QStringLiteral("Action à effectuer au démarrage :"),
                                QStringLiteral("Label_action_demarrage")),
                    row++, 0, 1, 3);
    startup_ = named(new QComboBox(this), "Combo_demarrage");
    startup_->addItems({QStringLiteral("Rien"), QStringLiteral("Lancer un fichier multimédia"),
                        QStringLiteral("Exécuter du code VBS")});
    grid->addWidget(startup_, row++, 0, 1, 3);
    auto* line = rowAt(*grid, row++);
    startupCaption_ = named(new QLabel(this), "Label_demarrage");
    startupModify_ = makeCommand(this, QStringLiteral("&Modif."), QStringLiteral("Command_demarrage"));
    startupModify_->hide();
    line->addWidget(startupCaption_, 1);
    line->addWidget(startupModify_);
}

QPushButton* WindowPanel::command(const QString& name) const
{
    return findChild<QPushButton*>(name);
}

QCheckBox* WindowPanel::box(const QString& name) const
{
    return findChild<QCheckBox*>(name);
}

void WindowPanel::connectFlows(WindowPanelFlows& f)
{
    auto onClick = [this](QAbstractButton* b, auto action) { connect(b, &QAbstractButton::clicked, this, action); };
    onClick(background_.browse, [&f] { f.chooseBackground(); });
    onClick(background_.clear, [&f] { f.clearBackground(); });
    onClick(fullScreen_, [&f](bool on) { f.setFullScreen(on); });
    onClick(sizeOk_, [this, &f] { f.applySize(fromQt(width_->text()), fromQt(height_->text())); });
    onClick(fit_, [&f] { f.fitToBackground(); });
    onClick(command(QStringLiteral("Command_zoom_moins")), [&f] { f.zoom(false); });
    onClick(command(QStringLiteral("Command_zoom_plus")), [&f] { f.zoom(true); });
    onClick(border_, [&f](bool on) { f.setBorder(on); });
    onClick(colour_, [&f] { f.chooseBackgroundColour(); });
    onClick(music_.browse, [&f] { f.chooseMusic(); });
    onClick(music_.clear, [&f] { f.clearMusic(); });
    onClick(icon_.browse, [&f] { f.chooseIcon(); });
    onClick(icon_.clear, [&f] { f.clearIcon(); });
    onClick(handCursor_, [&f](bool on) { f.setHandCursor(on); });
    onClick(timer_, [&f](bool on) { f.setTimerEnabled(on); });
    connect(interval_, &QLineEdit::editingFinished, this, [this, &f] { f.timerIntervalLeft(fromQt(interval_->text())); });
    onClick(command(QStringLiteral("Command_minuteur")), [&f] { f.editTimerScript(); });
    onClick(contextMenu_, [&f](bool on) { f.setContextMenu(on); });
    onClick(command(QStringLiteral("Command_global")), [&f] { f.editGlobalScript(); });
    onClick(command(QStringLiteral("Command_aide_global")), [&f] { f.showGlobalHelp(); });
    onClick(command(QStringLiteral("Command_survol_fenetre")), [&f] { f.editWindowHoverScript(); });
    connect(startup_, &QComboBox::activated, this, [&f](int i) { f.chooseStartup(StartupChoice(i)); });
    onClick(startupModify_, [&f] { f.modifyStartup(); });
}

void WindowPanel::showProject(const MenuProject& p)
{
    background_.field->setText(toQt(p.backgroundImage));
    fullScreen_->setChecked(p.fullScreen);
    border_->setChecked(p.border);
    showSwatchColour(*colour_, p.backgroundColor);
    music_.field->setText(toQt(p.backgroundMusic));
    // The default icon marker reads in the interface language; any text in
    // parentheses is the marker, so the field means the same either way.
    icon_.field->setText(inInterfaceLanguage(hooks_, toQt(p.icon)));
    handCursor_->setChecked(p.handCursor);
    timer_->setChecked(p.timerEnabled);
    timerGroup_->setEnabled(p.timerEnabled);
    if (!interval_->hasFocus())
        interval_->setText(toQt(p.timerInterval));
    contextMenu_->setChecked(p.contextMenu);
}

void WindowPanel::setSizeFields(const QString& width, const QString& height, bool enabled)
{
    width_->setText(width);
    height_->setText(height);
    for (QWidget* w : {static_cast<QWidget*>(width_), static_cast<QWidget*>(height_), static_cast<QWidget*>(sizeOk_),
                       static_cast<QWidget*>(fit_)})
        w->setEnabled(enabled);
}

void WindowPanel::setTimerInterval(const QString& text)
{
    interval_->setText(text);
}

void WindowPanel::showStartupChoice(StartupChoice choice, const QString& captionLine, bool modifyShown)
{
    startup_->setCurrentIndex(int(choice));
    startupCaption_->setText(captionLine);
    startupModify_->setVisible(modifyShown);
}

}  // namespace qor
