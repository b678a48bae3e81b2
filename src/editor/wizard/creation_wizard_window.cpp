#include "editor/wizard/creation_wizard_window.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/wizard/wizard_steps.h"
#include "editor/platform/colours.h"
#include "editor/ui/run_time_texts.h"
#include "editor/wizard/text_button_image.h"
#include "editor/wizard/wizard_controls.h"
#include "editor/wizard/wizard_widgets.h"

// Resources live in the editor library; a static library must register them
// by hand.
static void registerWizardResources()
{
    Q_INIT_RESOURCE(editor);
}

namespace qor {
namespace {

using namespace wizard_controls;

constexpr int kIllustrationWidth = 140;
constexpr int kIllustrationHeight = 280;

QString illustration(int step)
{
    return QStringLiteral(":/qor/wizard/step%1.png").arg(step + 1);
}

}  // namespace

CreationWizardWindow::CreationWizardWindow(WindowHooks& hooks, QWidget* parent) : QDialog(parent)
{
    hooks_ = &hooks;
    registerWizardResources();
    // Its internal name is the one its dialog errors name.
    named(this, WindowId::Wizard);
    setWindowTitle(toQt(kWizardCaption));
    setModal(false);

    header_ = text("", "Label1");
    QFont bold = header_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    header_->setFont(bold);
    illustration_ = named(new QLabel, "Image1");
    illustration_->setFixedSize(kIllustrationWidth, kIllustrationHeight);
    illustration_->setScaledContents(true);

    panels_ = new QStackedWidget;
    for (QWidget* panel : {buildNameStep(), buildStartStep(), buildButtonStep(), buildFunctionStep(),
                           buildFolderStep()})
        panels_->addWidget(panel);

    auto* middle = new QHBoxLayout;
    middle->addWidget(illustration_, 0, Qt::AlignTop);
    middle->addWidget(panels_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header_);
    layout->addLayout(middle, 1);
    layout->addLayout(buildNavigation());

    runLoadHooks(*this, hooks);
    // "Etape 4" repeats the note of "Etape 2", as translated.
    functionNote_->setText(startupNote_->text());
    setFixedSize(sizeHint());
}

void CreationWizardWindow::attach(CreationWizard& wizard)
{
    wizard_ = &wizard;
    refresh();
}

std::string CreationWizardWindow::caption()
{
    return fromQt(windowTitle());
}

QLayout* CreationWizardWindow::buildNavigation()
{
    previous_ = command("< &Précédent", "Command1");
    next_ = command("&Suivant >", "Command2");
    finish_ = command("&Terminer", "Command3");
    QPushButton* cancel = command("Annuler", "Command4");
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* b : {previous_, next_, finish_, cancel})
        row->addWidget(b);
    connect(previous_, &QPushButton::clicked, this, slot(&CreationWizard::previous));
    connect(next_, &QPushButton::clicked, this, slot(&CreationWizard::next));
    connect(finish_, &QPushButton::clicked, this, slot(&CreationWizard::finish));
    connect(cancel, &QPushButton::clicked, this, &CreationWizardWindow::reject);
    return row;
}

QWidget* CreationWizardWindow::buildNameStep()
{
    auto* grid = new QGridLayout;
    grid->addWidget(text("Cet assistant va vous aider à créer un menu très facilement, vous n'aurez qu'a suivre "
                         "les étapes.", "Label2"), 0, 0, 1, 4);
    grid->addWidget(text("Bien sûr il ne vous montre pas toutes les possibilités de QOR.", "Label3"), 1, 0, 1, 4);
    grid->addWidget(text("Nom de votre menu :", "Label4"), 2, 0);
    menuName_ = named(new QLineEdit, "Text1");
    grid->addWidget(menuName_, 2, 1, 1, 3);

    auto* bg = new QGridLayout;
    QGroupBox* background = frame("Arrière plan :", "Frame6", bg);
    colourChoice_ = named(new QRadioButton(QStringLiteral("Couleur :")), "Option1");
    imageChoice_ = named(new QRadioButton(QStringLiteral("Image :")), "Option2");
    backgroundSwatch_ = named(new ClickLabel, "Picture4");
    backgroundSwatch_->makeSwatch();
    imagePath_ = pathField("Text2");
    QPushButton* chooseImage = command("...", "Command5");
    bg->addWidget(colourChoice_, 0, 0);
    bg->addWidget(backgroundSwatch_, 0, 1);
    bg->addWidget(imageChoice_, 1, 0);
    bg->addWidget(imagePath_, 1, 1);
    bg->addWidget(chooseImage, 1, 2);
    grid->addWidget(background, 3, 0, 1, 4);

    border_ = named(new QCheckBox(QStringLiteral("Afficher des contours fins et noirs autour du menu")), "Check1");
    grid->addWidget(border_, 4, 0, 1, 4);
    music_ = named(new QCheckBox(QStringLiteral("Musique de fond :")), "Check2");
    musicPath_ = pathField("Text3");
    QPushButton* chooseMusic = command("...", "Command6");
    grid->addWidget(music_, 5, 0);
    grid->addWidget(musicPath_, 5, 1, 1, 2);
    grid->addWidget(chooseMusic, 5, 3);
    grid->setRowStretch(6, 1);

    connect(menuName_, &QLineEdit::textEdited, this, textSlot(&CreationWizard::setMenuName));
    // Clicking "Image :" takes the picture as the background.
    connect(imageChoice_, &QRadioButton::toggled, this, flagSlot(&CreationWizard::chooseBackgroundImage));
    connect(backgroundSwatch_, &ClickLabel::clicked, this, slot(&CreationWizard::pickBackgroundColor));
    connect(chooseImage, &QPushButton::clicked, this, slot(&CreationWizard::pickBackgroundImage));
    connect(border_, &QCheckBox::toggled, this, flagSlot(&CreationWizard::setBorder));
    connect(music_, &QCheckBox::toggled, this, flagSlot(&CreationWizard::setMusic));
    connect(chooseMusic, &QPushButton::clicked, this, slot(&CreationWizard::pickMusic));
    return stepFrame(0, grid);
}

QWidget* CreationWizardWindow::buildStartStep()
{
    auto* grid = new QGridLayout;
    grid->addWidget(text("Au démarrage du menu, que faire ?", "Label5"), 0, 0, 1, 3);
    startup_ = new QButtonGroup(this);
    const char* captions[] = {"Rien", "Démarrer un fichier multimédia :",
                              "Ouvrir un document, un programme, une page internet ...", "Afficher un message"};
    for (int i = 0; i < 4; ++i) {
        auto* option = named(new QRadioButton(QString::fromUtf8(captions[i])), "Option" + std::to_string(3 + i));
        startup_->addButton(option, i);
        grid->addWidget(option, 1 + 2 * i, 0, 1, 3);
    }
    startupMedia_ = named(new QLineEdit, "Text4");
    startupTarget_ = text("", "Label6");
    startupTarget_->setTextFormat(Qt::PlainText);
    startupPreview_ = command("Apercu", "Command7");
    grid->addWidget(startupMedia_, 4, 1, 1, 2);
    grid->addWidget(startupTarget_, 6, 1, 1, 2);
    grid->addWidget(startupPreview_, 8, 1);
    grid->setColumnMinimumWidth(0, 20);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(9, 1);
    startupNote_ = text("Note : En mode édition normal, vous pouvez avoir accès à plus de fonctions grace à "
                        "l'assistant VBS", "Label7");
    grid->addWidget(startupNote_, 10, 0, 1, 3);

    connect(startup_, &QButtonGroup::idClicked, this, [this](int id) {
        if (acting() && WizardStartup(id) != wizard_->form().startup.choice)
            wizard_->chooseStartup(WizardStartup(id));
    });
    connect(startupMedia_, &QLineEdit::textEdited, this, textSlot(&CreationWizard::setStartupMediaFile));
    connect(startupPreview_, &QPushButton::clicked, this, slot(&CreationWizard::previewStartupMessage));
    return stepFrame(1, grid);
}

QWidget* CreationWizardWindow::buildFolderStep()
{
    auto* column = new QVBoxLayout;
    QLabel* congratulations = text("Félicitations !", "Label20");
    QFont bold = congratulations->font();
    bold.setBold(true);
    congratulations->setFont(bold);
    column->addWidget(congratulations);
    column->addWidget(text("Votre menu est terminé, cliquez sur le bouton ci-dessous pour choisir le répertoire dans "
                           "lequel il sera enregistré puis sur Terminer pour finir.", "Label21"));
    QPushButton* choose = command("Enregistrer le menu dans...", "Command24");
    column->addWidget(choose, 0, Qt::AlignLeft);
    folder_ = text("", "Label22");
    folder_->setTextFormat(Qt::PlainText);
    column->addWidget(folder_);
    column->addWidget(text("Ensuite vous allez retourner sous QOR où vous pourrez modifier quelques détails comme la "
                           "position des boutons, la taille du menu, l'ajout ou non de boites de texte pour insérer "
                           "vos commentaires...", "Label23"));
    column->addWidget(text("Enfin, pour créer votre menu, vous devrez cliquer sur Créer > Compiler > en autorun.",
                           "Label24"));
    column->addStretch();
    connect(choose, &QPushButton::clicked, this, slot(&CreationWizard::pickFolder));
    return stepFrame(4, column);
}

void CreationWizardWindow::refresh()
{
    if (!wizard_)
        return;
    refreshing_ = true;
    const WizardForm& f = wizard_->form();
    panels_->setCurrentIndex(f.step);
    header_->setText(inInterfaceLanguage(*hooks_, toQt(stepHeader(f.step))));
    illustration_->setPixmap(QPixmap(illustration(f.step)));
    const WizardNavigation nav = navigationOf(f.step);
    previous_->setEnabled(nav.previous);
    next_->setEnabled(nav.next);
    finish_->setEnabled(nav.finish);
    refreshNameStep(f);
    refreshStartStep(f);
    refreshButtonStep(f);
    refreshFunctionStep(f);
    folder_->setText(toQt(f.folder));
    refreshing_ = false;
}

void CreationWizardWindow::refreshNameStep(const WizardForm& f)
{
    display(menuName_, f.menuName);
    colourChoice_->setChecked(!f.backgroundIsImage);
    imageChoice_->setChecked(f.backgroundIsImage);
    backgroundSwatch_->setSwatchColour(toQColor(f.backgroundColor, palette()));
    display(imagePath_, f.backgroundImage);
    border_->setChecked(f.border);
    music_->setChecked(f.music);
    display(musicPath_, f.musicFile);
}

void CreationWizardWindow::refreshStartStep(const WizardForm& f)
{
    startup_->button(int(f.startup.choice))->setChecked(true);
    const StartupControls c = startupControlsOf(f.startup.choice);
    startupMedia_->setEnabled(c.mediaFile);
    display(startupMedia_, f.startup.mediaFile);
    startupTarget_->setEnabled(c.openTarget);
    startupTarget_->setText(toQt(f.startup.open.target));
    startupPreview_->setEnabled(c.preview);
}

void CreationWizardWindow::hideWindow()
{
    hide();
}

void CreationWizardWindow::closeWindow()
{
    closedForGood_ = true;
    hide();
    emit closed();
}

void CreationWizardWindow::closeEvent(QCloseEvent* event)
{
    if (closedForGood_ || !wizard_) {
        event->accept();
        return;
    }
    // The flows ask, and close the window for good on Yes.
    event->ignore();
    wizard_->requestClose();
}

void CreationWizardWindow::reject()
{
    if (closedForGood_ || !wizard_)
        QDialog::reject();
    else
        wizard_->requestClose();
}

}  // namespace qor
