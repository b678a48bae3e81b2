#include "editor/ui/appearance_frame.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "editor/platform/widget_names.h"

namespace qor {

AppearanceFrame::AppearanceFrame(QWidget* parent) : QGroupBox(QStringLiteral("Apparences"), parent)
{
    named(this, "Frame1");
    setMouseTracking(true);

    auto* grid = new QGridLayout(this);
    grid->setVerticalSpacing(4);
    int row = 0;
    grid->addWidget(named(new QLabel(QStringLiteral("Liste des apparences enregistrées :")), "Label1"), row++, 0, 1, 4);
    list_ = named(new QComboBox, "Combo1");
    grid->addWidget(list_, row, 0, 1, 3);
    grid->addWidget(named(new QPushButton(QStringLiteral("&Charger")), "Command1"), row++, 3);

    // The three colours side by side: caption above its swatch.
    const char* swatchCaptions[3] = {"Fond des fenêtres : ", "Fond des champs : ", "Texte : "};
    const char* swatchNames[3] = {"Picture1", "Picture2", "Picture3"};
    const char* captionNames[3] = {"Label3", "Label4", "Label5"};
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(named(new QLabel(QString::fromUtf8(swatchCaptions[i])), captionNames[i]), row, i);
        swatches_[i] = named(new QLabel, swatchNames[i]);
        swatches_[i]->setFrameShape(QFrame::Box);
        swatches_[i]->setAutoFillBackground(true);
        swatches_[i]->setMinimumSize(48, 18);
        // Swatches show their own colour whatever the appearance.
        swatches_[i]->setProperty("Tag", QStringLiteral("N_DESIGN"));
        grid->addWidget(swatches_[i], row + 1, i);
    }
    row += 2;

    grid->addWidget(named(new QLabel(QStringLiteral("Police :")), "Label6"), row, 0);
    grid->addWidget(named(new QLineEdit, "Text3"), row, 1, 1, 2);
    grid->addWidget(named(new QPushButton(QStringLiteral("Modif.")), "Command5"), row++, 3);

    grid->addWidget(named(new QLabel(QStringLiteral("Nom :")), "Label2"), row, 0);
    grid->addWidget(named(new QLineEdit, "Text2"), row, 1, 1, 2);
    grid->addWidget(named(new QPushButton(QStringLiteral("&Sauver")), "Command2"), row++, 3);

    auto* sample = named(new QGroupBox(QStringLiteral("Exemple")), "Frame2");
    auto* sampleRow = new QHBoxLayout(sample);
    sampleRow->setContentsMargins(6, 2, 6, 2);
    sampleRow->addWidget(named(new QPushButton(QStringLiteral("Bouton")), "Command6"));
    sampleRow->addWidget(named(new QLineEdit(QStringLiteral("Champs")), "Text1"));
    sampleRow->addWidget(named(new QLabel(QStringLiteral("Texte")), "Label7"));
    grid->addWidget(sample, row++, 0, 1, 4);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(named(new QPushButton(QStringLiteral("&Tester")), "Command3"));
    buttons->addStretch();
    buttons->addWidget(named(new QPushButton(QStringLiteral("&Fermer")), "Command4"));
    grid->addLayout(buttons, row++, 0, 1, 4);
    grid->setRowStretch(row, 1);
}

}  // namespace qor
