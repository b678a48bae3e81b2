#include "core/wizard/creation_wizard.h"

#include "core/wizard/wizard_dialogues.h"
#include "core/wizard/wizard_messages.h"
#include "core/wizard/wizard_steps.h"
#include "model/relative_path_rule.h"
#include "text/text_helpers.h"

namespace qor {

CreationWizard::CreationWizard(bool& wizardOpen, WizardPorts ports, WizardView& view, WizardSetup setup)
    : wizardOpen_(wizardOpen), ports_(ports), view_(view), setup_(std::move(setup))
{
}

void CreationWizard::open()
{
    wizardOpen_ = true;
    form_.step = 0;
    showStep();
}

void CreationWizard::say(const Message& message)
{
    ports_.dialogs.message(message);
}

void CreationWizard::refuse(wizard_message::Refusal which)
{
    say(wizard_message::refusal(which, view_.caption()));
}

void CreationWizard::showStep()
{
    if (form_.step == 3) {
        // "Les boutons :" lists what "Les boutons présents" lists now.
        form_.functionLines = form_.buttonLines;
        form_.selectedFunctionLine = -1;
        form_.functionMediaField.clear();
    }
    if (form_.step == 4 && form_.folder.empty())
        form_.folder = setup_.documentsFolder;
    view_.refresh();
}

void CreationWizard::next()
{
    if (!navigationOf(form_.step).next)
        return;
    ++form_.step;
    showStep();
}

void CreationWizard::previous()
{
    if (!navigationOf(form_.step).previous)
        return;
    --form_.step;
    showStep();
}

bool CreationWizard::requestClose()
{
    if (!finished_ && ports_.dialogs.message(wizard_message::closeQuestion(view_.caption())) == Answer::No)
        return false;
    close();
    return true;
}

void CreationWizard::close()
{
    buttons_.clear();
    wizardOpen_ = false;
    view_.closeWindow();
}

// ---- "Etape 1" ----

void CreationWizard::setMenuName(const std::string& name)
{
    form_.menuName = name;
}

void CreationWizard::chooseBackgroundImage(bool image)
{
    form_.backgroundIsImage = image;
    view_.refresh();
}

void CreationWizard::pickColour(Colour& colour)
{
    // Cancelling keeps the colour; the dialog opens on it.
    if (auto chosen = ports_.dialogs.pickColour(colour))
        colour = *chosen;
    view_.refresh();
}

void CreationWizard::pickBackgroundColor()
{
    pickColour(form_.backgroundColor);
}

std::optional<std::string> CreationWizard::pickImage(const std::string& title, const std::string& current,
                                                     std::string_view handler)
{
    const auto chosen =
        ports_.dialogs.openFile({title, std::string(kImageFilter), folderOf(current), fileNameOf(current)});
    if (!chosen || chosen->empty() || *chosen == current)
        return std::nullopt;
    // A file that is no picture is refused at once, not when the menu is written.
    if (auto size = ports_.pictures.pictureSize(*chosen); !size) {
        say(wizard_message::dialogError(size.error(), handler));
        return std::nullopt;
    }
    return chosen;
}

void CreationWizard::pickBackgroundImage()
{
    if (auto path = pickImage("Ouvir une image...", form_.backgroundImage, "Command5_Click")) {
        form_.backgroundImage = *path;
        form_.backgroundIsImage = true;
    }
    view_.refresh();
}

void CreationWizard::setBorder(bool on)
{
    form_.border = on;
}

void CreationWizard::setMusic(bool on)
{
    form_.music = on;
    view_.refresh();
}

void CreationWizard::pickMusic()
{
    const auto chosen = ports_.dialogs.openFile({"Musique de fond...", std::string(kSoundFilter), "", ""});
    if (!chosen || chosen->empty())
        return;
    if (!fileExistsOnDisk(*chosen)) {
        say(wizard_message::musicDialogError(makeError(err::FileNotFound)));
        return;
    }
    form_.musicFile = *chosen;
    form_.music = true;
    view_.refresh();
}

// ---- "Etape 2" ----

void CreationWizard::chooseStartup(WizardStartup choice)
{
    StartupSettings& s = form_.startup;
    s.choice = choice;
    const std::string caption = view_.caption();
    if (choice == WizardStartup::Open) {
        if (auto open = askOpenTarget(ports_.dialogs, caption))
            s.open = *open;
        else
            s.choice = WizardStartup::Nothing;
    } else if (choice == WizardStartup::Message) {
        if (auto message = askMenuMessage(ports_.dialogs, caption, s.message))
            s.message = *message;
        else
            s.choice = WizardStartup::Nothing;
    }
    view_.refresh();
}

void CreationWizard::setStartupMediaFile(const std::string& name)
{
    form_.startup.mediaFile = name;
}

void CreationWizard::previewStartupMessage()
{
    say(wizard_message::preview(form_.startup.message.text, form_.startup.message.title));
}

// ---- "Etape 5" ----

void CreationWizard::pickFolder()
{
    if (auto folder =
            ports_.dialogs.pickFolder("Veuillez choisir le dossier dans lequel votre menu va être enregistré :"))
        form_.folder = *folder;
    view_.refresh();
}

void CreationWizard::startButtonAssistant()
{
    const std::string program = setup_.programFolder + std::string(kButtonAssistantProgram);
    if (!fileExistsOnDisk(program)) {
        refuse(wizard_message::Refusal::ButtonAssistantMissing);
        return;
    }
    ports_.desktop.start("\"" + program + "\"", WindowShow::Normal);
}

}  // namespace qor
