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
    hover->addWidget(new QLabel(QStringLiteral("Actions au survol :"), this));
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
}

QWidget* ButtonPanel::buildMediaPanel()
{
    auto* panel = named(new QWidget(this), "Panneau_media");
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Nom du fichier mutimédia :"), panel), 0, 0, 1, 3);
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
    grid->addWidget(new QLabel(QStringLiteral("Couleur :"), frame), 1, 0);
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
    QMenu menu(this);
    for (const auto& e : kMediaEntries) {
        const MediaLocation where = e.where;
        menu.addAction(QString::fromUtf8(e.caption), this, [&flows, where] { flows.locateMedia(where); });
    }
    menu.addSeparator();
    menu.addAction(QStringLiteral("Annuler"));
    menu.exec(at->mapToGlobal(QPoint(0, at->height())));
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
