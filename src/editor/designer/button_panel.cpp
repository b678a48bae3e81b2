#include "editor/designer/button_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"

namespace qor {
namespace {

struct ImageRow {
    const char* caption;
    const char* name;
};
constexpr ImageRow kImageRows[] = {
    {"Image normale :", "Text_normale"}, {"Image au survol :", "Text_survol"}, {"Image clique :", "Text_clique"}};

// The media location menu's entries, in order, with what each chooses.
struct MediaEntry {
    const char* caption;
    MediaLocation where;
};
constexpr MediaEntry kMediaEntries[] = {
    {"Le fichier sera dans le répertoire racine du CD", MediaLocation::CdRoot},
    {"Le fichier sera dans un (ou des) répertoire(s) du CD", MediaLocation::CdFolders},
    {"Le fichier sera la où il est actuellement", MediaLocation::WhereItIs},
};

}  // namespace

ButtonPanel::ButtonPanel(QWidget* parent) : QWidget(parent)
{
    named(this, "Panneau_bouton");
    build();
}

void ButtonPanel::build()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setVerticalSpacing(2);
    int row = 0;
    for (std::size_t i = 0; i < 3; ++i, row += 2)
        images_[i] = addPathRow(*grid, row, QString::fromUtf8(kImageRows[i].caption),
                                QString::fromUtf8(kImageRows[i].name), false);
    clickSound_ = addPathRow(*grid, row, QStringLiteral("Son 'clique' :"), QStringLiteral("Text_son_clique"), true);
    row += 2;
    hoverSound_ = addPathRow(*grid, row, QStringLiteral("Son 'survol' :"), QStringLiteral("Text_son_survol"), true);
    row += 2;
    auto* hover = new QHBoxLayout;
    hover->addWidget(makeLabel(this, QStringLiteral("Actions au survol :"), QStringLiteral("Label_survol_bouton")));
    hover->addWidget(makeSmallCommand(this, QStringLiteral("Modif."), QStringLiteral("Command_survol_bouton")));
    hover->addStretch();
    grid->addLayout(hover, row++, 0, 1, 3);
    grid->addWidget(makeCommand(this, QStringLiteral("Modifier la position"), QStringLiteral("Command_position")), row++,
                    0, 1, 3);
    grid->addWidget(
        makeCommand(this, QStringLiteral("Modifier la position (px)"), QStringLiteral("Command_position_px")), row++, 0,
        1, 3);
    grid->addWidget(buildTransparencyFrame(), row++, 0, 1, 3);
    media_ = buildMediaPanel();
    grid->addWidget(media_, row++, 0, 1, 3);
    code_ = named(new QWidget(this), "Panneau_code");
    auto* codeLine = new QHBoxLayout(code_);
    codeLine->setContentsMargins(0, 0, 0, 0);
    codeLine->addWidget(makeCommand(code_, QStringLiteral("Modifier le code VBS"), QStringLiteral("Command_code")));
    grid->addWidget(code_, row++, 0, 1, 3);
    mediaMenu_ = named(new QMenu(this), "Menu_media");
    for (std::size_t i = 0; i < std::size(kMediaEntries); ++i)
        named(mediaMenu_->addAction(QString::fromUtf8(kMediaEntries[i].caption)), "media_mnu", int(i));
    mediaMenu_->addSeparator();
    named(mediaMenu_->addAction(QStringLiteral("Annuler")), "annuler_media_mnu");
}

QWidget* ButtonPanel::buildMediaPanel()
{
    auto* panel = named(new QWidget(this), "Panneau_media");
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(makeLabel(panel, QStringLiteral("Nom du fichier mutimédia :"), QStringLiteral("Label_media")), 0, 0,
                    1, 3);
    mediaField_ = named(new QLineEdit(panel), "Text_media");
    grid->addWidget(mediaField_, 1, 0);
    grid->addWidget(makeSmallCommand(panel, QStringLiteral("..."), QStringLiteral("Command_media")), 1, 1);
    grid->addWidget(makeSmallCommand(panel, QStringLiteral("[?]"), QStringLiteral("Command_aide_media")), 1, 2);
    return panel;
}

QWidget* ButtonPanel::buildTransparencyFrame()
{
    auto* frame = named(new QGroupBox(QStringLiteral("Transparence            "), this), "Frame_transparence");
    auto* grid = new QGridLayout(frame);
    transparent_ = named(new QCheckBox(QStringLiteral("Activée"), frame), "Check_transparence");
    grid->addWidget(transparent_, 0, 0, 1, 2);
    grid->addWidget(makeLabel(frame, QStringLiteral("Couleur :"), QStringLiteral("Label_transparence")), 1, 0);
    transparentColour_ = makeSwatch(frame, QStringLiteral("Picture_transparence"));
    grid->addWidget(transparentColour_, 1, 1);
    grid->addWidget(makeCommand(frame, QStringLiteral("Aperçu rapide"), QStringLiteral("Command_apercu")), 2, 0);
    grid->addWidget(makeSmallCommand(frame, QStringLiteral("[Infos]"), QStringLiteral("Command_infos_transparence")), 2,
                    1);
    return frame;
}

QPushButton* ButtonPanel::command(const QString& name) const
{
    return findChild<QPushButton*>(name);
}

void ButtonPanel::connectFlows(ElementPanelFlows& f)
{
    auto onClick = [this](QAbstractButton* b, auto action) { connect(b, &QAbstractButton::clicked, this, action); };
    for (int i = 0; i < 3; ++i)
        onClick(images_[std::size_t(i)].browse, [&f, i] { f.chooseImage(ButtonImage(i)); });
    onClick(clickSound_.browse, [&f] { f.chooseClickSound(); });
    onClick(clickSound_.clear, [&f] { f.clearClickSound(); });
    onClick(hoverSound_.browse, [&f] { f.chooseHoverSound(); });
    onClick(hoverSound_.clear, [&f] { f.clearHoverSound(); });
    onClick(command(QStringLiteral("Command_survol_bouton")), [&f] { f.editHoverScript(); });
    onClick(command(QStringLiteral("Command_position")), [&f] { f.movePosition(false, false); });
    onClick(command(QStringLiteral("Command_position_px")), [&f] { f.movePosition(false, true); });
    onClick(command(QStringLiteral("Command_infos_transparence")), [&f] { f.showTransparencyInfo(); });
    onClick(command(QStringLiteral("Command_apercu")), [&f] { f.quickPreview(); });
    onClick(transparentColour_, [&f] { f.chooseTransparentColour(); });
    connect(transparent_, &QCheckBox::clicked, this, [&f](bool ticked) { f.transparencyTicked(ticked); });
    onClick(command(QStringLiteral("Command_code")), [&f] { f.editButtonScript(); });
    onClick(command(QStringLiteral("Command_aide_media")), [&f] { f.showMediaHelp(); });
    onClick(command(QStringLiteral("Command_media")), [this, &f] { popUpMediaMenu(f); });
    connect(mediaField_, &QLineEdit::textEdited, this, [&f](const QString& text) { f.mediaTyped(fromQt(text)); });
}

void ButtonPanel::popUpMediaMenu(ElementPanelFlows& flows)
{
    QPushButton* at = command(QStringLiteral("Command_media"));
    const auto taken = connect(mediaMenu_, &QMenu::triggered, this, [&flows](QAction* a) {
        const int entry = a->objectName() == QStringLiteral("media_mnu") ? controlIndex(*a) : -1;
        if (entry >= 0 && entry < int(std::size(kMediaEntries)))
            flows.locateMedia(kMediaEntries[std::size_t(entry)].where);
    });
    mediaMenu_->exec(at->mapToGlobal(QPoint(0, at->height())));
    disconnect(taken);
}

void ButtonPanel::showFields(const ButtonFields& f)
{
    for (std::size_t i = 0; i < 3; ++i)
        images_[i].field->setText(toQt(f.images[i]));
    clickSound_.field->setText(toQt(f.clickSound));
    hoverSound_.field->setText(toQt(f.hoverSound));
    if (mediaField_->text() != toQt(f.media))
        mediaField_->setText(toQt(f.media));
    transparent_->setChecked(f.transparent);
    showSwatchColour(*transparentColour_, f.transparentColor);
}

void ButtonPanel::showSubPanels(bool media, bool code)
{
    media_->setVisible(media);
    code_->setVisible(code);
}

}  // namespace qor
