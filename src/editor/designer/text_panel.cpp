#include "editor/designer/text_panel.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"

namespace qor {

TextPanel::TextPanel(QWidget* parent) : QWidget(parent)
{
    named(this, "Panneau_texte");
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setVerticalSpacing(2);
    grid->addWidget(makeCaption(this, QStringLiteral("Couleur de fond :"), QStringLiteral("Label_fond_texte")), 0, 0);
    back_ = makeSwatch(this, QStringLiteral("Picture_fond_texte"));
    grid->addWidget(back_, 0, 1);
    grid->addWidget(makeCaption(this, QStringLiteral("Couleur du texte :"), QStringLiteral("Label_couleur_texte")), 1,
                    0);
    fore_ = makeSwatch(this, QStringLiteral("Picture_couleur_texte"));
    grid->addWidget(fore_, 1, 1);
    grid->addWidget(makeCaption(this, QStringLiteral("Police, style, taille : "), QStringLiteral("Label_police")), 2,
                    0);
    grid->addWidget(makeCommand(this, QStringLiteral("Modif."), QStringLiteral("Command_police")), 2, 1);
    auto* size = new QHBoxLayout;
    size->addWidget(makeLabel(this, QStringLiteral("Taille :"), QStringLiteral("Label_taille_texte")));
    width_ = named(new QLineEdit(this), "Text_largeur_texte");
    height_ = named(new QLineEdit(this), "Text_hauteur_texte");
    size->addWidget(width_);
    size->addWidget(makeLabel(this, QStringLiteral("x"), QStringLiteral("Label_fois_texte")));
    size->addWidget(height_);
    size->addWidget(makeSmallCommand(this, QStringLiteral("OK"), QStringLiteral("Command_taille_texte")));
    grid->addLayout(size, 3, 0, 1, 2);
    grid->addWidget(makeCommand(this, QStringLiteral("Modifier la position"), QStringLiteral("Command_position_texte")),
                    4, 0, 1, 2);
    grid->addWidget(
        makeCommand(this, QStringLiteral("Modifier la position (px)"), QStringLiteral("Command_position_texte_px")), 5,
        0, 1, 2);
    scrollBar_ = addWrappedBox(*grid, 6, QStringLiteral("Barre de défilement"), QStringLiteral("Check_barre"));
    lock_ = addWrappedBox(*grid, 7, QStringLiteral("Vérouiller l'édition (à l'exécution)"), QStringLiteral("Check_verrou"));
    grid->addWidget(makeCommand(this, QStringLiteral("Supprimer le Texte"), QStringLiteral("Command_supprimer_texte")),
                    8, 0, 1, 2);
}

QPushButton* TextPanel::command(const QString& name) const
{
    return findChild<QPushButton*>(name);
}

void TextPanel::connectFlows(ElementPanelFlows& f, Designer& designer)
{
    auto onClick = [this](QAbstractButton* b, auto action) { connect(b, &QAbstractButton::clicked, this, action); };
    onClick(back_, [&f] { f.chooseTextBackColour(); });
    onClick(fore_, [&f] { f.chooseTextForeColour(); });
    onClick(command(QStringLiteral("Command_police")), [&f] { f.chooseFont(); });
    onClick(command(QStringLiteral("Command_taille_texte")),
            [this, &f] { f.applyTextSize(fromQt(width_->text()), fromQt(height_->text())); });
    onClick(command(QStringLiteral("Command_position_texte")), [&f] { f.movePosition(true, false); });
    onClick(command(QStringLiteral("Command_position_texte_px")), [&f] { f.movePosition(true, true); });
    onClick(scrollBar_, [this, &f] { f.scrollBarClicked(scrollBar_->isChecked(), lock_->isChecked()); });
    onClick(lock_, [this, &f] { f.lockClicked(scrollBar_->isChecked(), lock_->isChecked()); });
    onClick(command(QStringLiteral("Command_supprimer_texte")), [&designer] { designer.deleteText(); });
}

void TextPanel::showFields(const TextFields& f)
{
    showSwatchColour(*back_, f.backColor);
    showSwatchColour(*fore_, f.foreColor);
    setSizeFields(toQt(f.width), toQt(f.height));
    scrollBar_->setChecked(f.scrollBar);
    lock_->setChecked(f.locked);
}

void TextPanel::setSizeFields(const QString& width, const QString& height)
{
    width_->setText(width);
    height_->setText(height);
}

}  // namespace qor
