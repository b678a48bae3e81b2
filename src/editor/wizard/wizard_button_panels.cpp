// "Etape 3" (making the buttons, their preview) and "Etape 4" (their
// functions) of the wizard's window.

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "editor/platform/colours.h"
#include "editor/wizard/creation_wizard_window.h"
#include "editor/wizard/text_button_image.h"
#include "editor/wizard/wizard_controls.h"
#include "editor/wizard/wizard_widgets.h"

namespace qor {
namespace {

using namespace wizard_controls;

constexpr int kListHeight = 110;
constexpr int kListWidth = 210;

// The picture of a graphic button for one state.
const std::string& graphicImage(const WizardButton& files, ButtonState state)
{
    switch (state) {
    case ButtonState::Hover: return files.hoverImage;
    case ButtonState::Pressed: return files.pressedImage;
    case ButtonState::Normal: break;
    }
    return files.normalImage;
}

}  // namespace

QWidget* CreationWizardWindow::buildButtonStep()
{
    auto* left = new QVBoxLayout;
    left->addWidget(text("Les boutons présents", "Label9"));
    buttonList_ = named(new QListWidget, "List1");
    buttonList_->setFixedHeight(kListHeight);
    left->addWidget(buttonList_);
    auto* listCommands = new QHBoxLayout;
    QPushButton* add = command("Ajouter", "Command9");
    QPushButton* remove = command("Supprimer", "Command10");
    listCommands->addWidget(add);
    listCommands->addWidget(remove);
    left->addLayout(listCommands);
    left->addWidget(buildPreviewFrame());
    left->addStretch();

    auto* addLayout = new QVBoxLayout;
    addFrame_ = frame("Ajouter... ", "Frame7", addLayout);
    auto* types = new QHBoxLayout;
    types->addWidget(text("Type :", "Label10"));
    textType_ = named(new QRadioButton(QStringLiteral("Texte")), "Option7");
    graphicType_ = named(new QRadioButton(QStringLiteral("Graphique")), "Option8");
    types->addWidget(textType_);
    types->addWidget(graphicType_);
    types->addStretch();
    addLayout->addLayout(types);
    addLayout->addWidget(buildTextPanel());
    addLayout->addWidget(buildGraphicPanel());
    addLayout->addStretch();

    // The list keeps its width whether the frame "Ajouter... " shows or not.
    auto* listColumn = new QWidget;
    listColumn->setLayout(left);
    listColumn->setFixedWidth(kListWidth);
    left->setContentsMargins(0, 0, 0, 0);
    QSizePolicy keepPlace = addFrame_->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    addFrame_->setSizePolicy(keepPlace);
    auto* columns = new QHBoxLayout;
    columns->addWidget(listColumn);
    columns->addWidget(addFrame_, 1);
    auto* step = new QVBoxLayout;
    step->addWidget(text("Nous allons maintenant créer les boutons (style, texte etc...).", "Label8"));
    step->addLayout(columns, 1);

    connect(add, &QPushButton::clicked, this, slot(&CreationWizard::addButton));
    connect(remove, &QPushButton::clicked, this, slot(&CreationWizard::deleteSelectedButton));
    connect(buttonList_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (acting())
            wizard_->selectButtonLine(row);
    });
    connect(buttonList_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        if (acting())
            wizard_->previewButtonLine(buttonList_->row(item));
    });
    connect(textType_, &QRadioButton::clicked, this, [this] {
        if (acting())
            wizard_->chooseButtonType(ButtonType::Text);
    });
    connect(graphicType_, &QRadioButton::clicked, this, [this] {
        if (acting())
            wizard_->chooseButtonType(ButtonType::Graphic);
    });
    return stepFrame(2, step);
}

QWidget* CreationWizardWindow::buildTextPanel()
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(text("Texte :", "Label11"), 0, 0);
    caption_ = named(new QLineEdit, "Text5");
    grid->addWidget(caption_, 0, 1, 1, 3);
    grid->addWidget(text("Couleur du texte :", "Label12"), 1, 0);
    textSwatch_ = named(new ClickLabel, "Picture7");
    grid->addWidget(textSwatch_, 1, 1);
    grid->addWidget(text("Couleur de fond :", "Label13"), 1, 2);
    backSwatch_ = named(new ClickLabel, "Picture8");
    grid->addWidget(backSwatch_, 1, 3);
    for (ClickLabel* swatch : {textSwatch_, backSwatch_})
        swatch->makeSwatch();
    QPushButton* font = command("Police", "Command8");
    transparent_ = named(new QCheckBox(QStringLiteral("Fond transparent")), "Check3");
    grid->addWidget(font, 2, 0);
    grid->addWidget(transparent_, 2, 1, 1, 3);
    QPushButton* preview = command("Aperçu", "Command11");
    QPushButton* validate = command("Valider", "Command16");
    QPushButton* cancel = command("Annuler", "Command17");
    QPushButton* back = command("<---", "Command18");
    auto* row = new QHBoxLayout;
    for (QPushButton* b : {back, preview, validate, cancel})
        row->addWidget(b);
    grid->addLayout(row, 3, 0, 1, 4);
    textPanel_ = named(new QWidget, "Frame8");
    textPanel_->setLayout(grid);

    connect(caption_, &QLineEdit::textEdited, this, textSlot(&CreationWizard::setCaption));
    connect(textSwatch_, &ClickLabel::clicked, this, slot(&CreationWizard::pickTextColor));
    connect(backSwatch_, &ClickLabel::clicked, this, slot(&CreationWizard::pickBackColor));
    connect(font, &QPushButton::clicked, this, slot(&CreationWizard::pickFont));
    connect(transparent_, &QCheckBox::toggled, this, flagSlot(&CreationWizard::setTransparentBackground));
    connect(preview, &QPushButton::clicked, this, slot(&CreationWizard::showTextPreview));
    connect(validate, &QPushButton::clicked, this, slot(&CreationWizard::validateTextButton));
    connect(cancel, &QPushButton::clicked, this, slot(&CreationWizard::cancelAdd));
    connect(back, &QPushButton::clicked, this, slot(&CreationWizard::backToTypeChoice));
    return textPanel_;
}

QWidget* CreationWizardWindow::buildGraphicPanel()
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(text("Les boutons graphiques sont composés de trois images :", "Label14"), 0, 0, 1, 3);
    const char* rows[] = {"Quand bouton normal :", "Quand survolé  :", "Quand cliqué :"};
    const char* commands[] = {"Command12", "Command13", "Command15"};
    for (int i = 0; i < 3; ++i) {
        grid->addWidget(text(rows[i], ("Label" + std::to_string(15 + i)).c_str()), 1 + i, 0);
        graphicPaths_[std::size_t(i)] = pathField(("Text" + std::to_string(6 + i)).c_str());
        grid->addWidget(graphicPaths_[std::size_t(i)], 1 + i, 1);
        QPushButton* choose = command("...", commands[i]);
        grid->addWidget(choose, 1 + i, 2);
        connect(choose, &QPushButton::clicked, this, [this, i] {
            if (acting())
                wizard_->pickGraphicImage(GraphicImage(i));
        });
    }
    grid->addWidget(text("Vous pouvez créer ces images avec un éditeur d'images ou avec  l'assistant bouton.",
                         "Label18"), 4, 0, 1, 2);
    auto* assistant = named(new ClickLabel, "Picture9");
    assistant->setPixmap(QPixmap(QStringLiteral(":/qor/qor.png")).scaled(32, 32, Qt::KeepAspectRatio,
                                                                           Qt::SmoothTransformation));
    assistant->setToolTip(QStringLiteral("Assistant bouton"));
    grid->addWidget(assistant, 4, 2);
    QPushButton* back = command("<---", "Command21");
    QPushButton* preview = command("Apercu", "Command19");
    QPushButton* validate = command("Valider", "Command20");
    auto* row = new QHBoxLayout;
    for (QPushButton* b : {back, preview, validate})
        row->addWidget(b);
    grid->addLayout(row, 5, 0, 1, 3);
    graphicPanel_ = named(new QWidget, "Frame9");
    graphicPanel_->setLayout(grid);

    connect(assistant, &ClickLabel::clicked, this, slot(&CreationWizard::startButtonAssistant));
    connect(back, &QPushButton::clicked, this, slot(&CreationWizard::backToTypeChoice));
    connect(preview, &QPushButton::clicked, this, slot(&CreationWizard::showGraphicPreview));
    connect(validate, &QPushButton::clicked, this, slot(&CreationWizard::validateGraphicButton));
    return graphicPanel_;
}

QWidget* CreationWizardWindow::buildPreviewFrame()
{
    auto* layout = new QHBoxLayout;
    previewFrame_ = frame("Apercu", "Frame10", layout);
    previewFrame_->setMouseTracking(true);
    previewPicture_ = named(new PreviewPicture, "Picture10");
    layout->addWidget(previewPicture_, 1);
    QPushButton* hide = command("X", "Command22");
    hide->setFixedWidth(hide->sizeHint().height());
    layout->addWidget(hide, 0, Qt::AlignTop);
    connect(hide, &QPushButton::clicked, this, slot(&CreationWizard::hidePreview));
    connect(previewPicture_, &PreviewPicture::pointer, this, &CreationWizardWindow::onPreviewPointer);
    return previewFrame_;
}

QWidget* CreationWizardWindow::buildFunctionStep()
{
    auto* grid = new QGridLayout;
    grid->addWidget(text("Il faut maintenant attribuer une fonction à chaque boutons :", "Label25"), 0, 0, 1, 2);
    grid->addWidget(text("Les boutons :", "Label26"), 1, 0);
    functionList_ = named(new QListWidget, "List2");
    grid->addWidget(functionList_, 2, 0, 2, 1);

    auto* choices = new QGridLayout;
    QGroupBox* possible = frame("Fonctions possibles :", "Frame11", choices);
    functions_ = new QButtonGroup(this);
    const char* captions[] = {"Jouer un fichier multimédia :", "Quitter le menu", "Afficher un message",
                              "Ouvrir un document, un programme, une page web..."};
    for (int i = 0; i < 4; ++i) {
        auto* option = named(new QRadioButton(QString::fromUtf8(captions[i])), "Option" + std::to_string(9 + i));
        functions_->addButton(option, i);
        choices->addWidget(option, i == 0 ? 0 : i + 1, 0, 1, 2);
    }
    functionMedia_ = named(new QLineEdit, "Text9");
    choices->addWidget(functionMedia_, 1, 1);
    functionPreview_ = command("Aperçu", "Command23");
    choices->addWidget(functionPreview_, 5, 1, Qt::AlignRight);
    choices->setColumnMinimumWidth(0, 20);
    grid->addWidget(possible, 1, 1, 3, 1);
    grid->setRowStretch(3, 1);
    functionNote_ = text("", "Label27");
    grid->addWidget(functionNote_, 4, 0, 1, 2);

    connect(functionList_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (acting())
            wizard_->selectFunctionLine(row);
    });
    connect(functions_, &QButtonGroup::idClicked, this, [this](int id) {
        if (acting() && id != wizard_->functionControls().chosen)
            wizard_->chooseFunction(id);
    });
    connect(functionMedia_, &QLineEdit::textEdited, this, textSlot(&CreationWizard::setFunctionMediaFile));
    connect(functionPreview_, &QPushButton::clicked, this, slot(&CreationWizard::previewFunctionMessage));
    return stepFrame(3, grid);
}

void CreationWizardWindow::refreshButtonStep(const WizardForm& f)
{
    display(buttonList_, f.buttonLines, f.selectedButtonLine);
    addFrame_->setVisible(f.addFrameVisible);
    textType_->setAutoExclusive(false);
    graphicType_->setAutoExclusive(false);
    textType_->setChecked(f.addType == ButtonType::Text);
    graphicType_->setChecked(f.addType == ButtonType::Graphic);
    textType_->setAutoExclusive(true);
    graphicType_->setAutoExclusive(true);
    textPanel_->setVisible(f.addType == ButtonType::Text);
    graphicPanel_->setVisible(f.addType == ButtonType::Graphic);
    display(caption_, f.captionField);
    textSwatch_->setSwatchColour(toQColor(f.current.textColor, palette()));
    backSwatch_->setSwatchColour(toQColor(f.current.backColor, palette()));
    transparent_->setChecked(f.current.transparentBackground);
    for (std::size_t i = 0; i < graphicPaths_.size(); ++i)
        display(graphicPaths_[i], f.graphicImages[i]);
    refreshPreview(f);
}

void CreationWizardWindow::refreshPreview(const WizardForm& f)
{
    const WizardPreview& p = f.preview;
    previewFrame_->setVisible(p.kind != WizardPreview::Kind::None);
    if (p.kind == WizardPreview::Kind::Text) {
        const WizardButton& entry = p.ofCurrent ? f.current : p.entry;
        previewPicture_->setPixmap(QPixmap::fromImage(drawTextButton(entry, p.state)));
    } else if (p.kind == WizardPreview::Kind::Graphic) {
        previewPicture_->setPixmap(QPixmap(toQt(graphicImage(p.entry, p.state))));
    } else {
        previewPicture_->clear();
    }
}

QImage CreationWizardWindow::previewImage() const
{
    if (previewFrame_->isHidden())
        return {};
    return previewPicture_->pixmap().toImage();
}

void CreationWizardWindow::onPreviewPointer(PreviewEvent event, bool held)
{
    if (acting() && wizard_->previewPointer(event, held))
        refreshPreview(wizard_->form());
}

void CreationWizardWindow::refreshFunctionStep(const WizardForm& f)
{
    display(functionList_, f.functionLines, f.selectedFunctionLine);
    const FunctionControls c = wizard_->functionControls();
    functions_->setExclusive(false);
    for (QAbstractButton* option : functions_->buttons()) {
        option->setEnabled(c.choices);
        option->setChecked(functions_->id(option) == c.chosen);
    }
    functions_->setExclusive(true);
    functionMedia_->setEnabled(c.mediaFile);
    display(functionMedia_, f.functionMediaField);
    functionPreview_->setVisible(c.preview);
}

}  // namespace qor
