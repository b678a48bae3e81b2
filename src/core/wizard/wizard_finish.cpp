#include "core/wizard/wizard_finish.h"

#include <filesystem>

#include "core/wizard/creation_wizard.h"
#include "core/wizard/menu_folder_name.h"
#include "core/wizard/wizard_messages.h"
#include "text/line_file.h"
#include "text/text_helpers.h"

namespace qor {
namespace fs = std::filesystem;
namespace {

using wizard_message::Refusal;

bool isFolder(const std::string& path)
{
    std::error_code ec;
    return fs::is_directory(path, ec);
}

bool exists(const std::string& path)
{
    std::error_code ec;
    return fs::exists(path, ec);
}

Error errorOf(const std::error_code& ec)
{
    return ec.category() == std::generic_category() || ec.category() == std::system_category()
               ? fileSystemError(ec.value())
               : makeError(err::PathFileAccess, ec.message());
}

// Copies a file into the folder under its own name; the name. A file of
// that name there already is replaced: only two of the wizard's own
// choices can collide, and the later one wins.
Result<std::string> copyInto(const std::string& source, const std::string& folder)
{
    std::error_code ec;
    if (!fs::is_regular_file(source, ec))
        return makeError(err::FileNotFound, std::string(errorDescription(err::FileNotFound)) + " : " + source);
    const std::string name = fileNameOf(source);
    fs::copy_file(source, folder + name, fs::copy_options::overwrite_existing, ec);
    if (ec)
        return errorOf(ec);
    return name;
}

Status createMenuFolder(const MenuTarget& target, std::string_view menuName)
{
    if (Status s = checkMenuFolderName(menuName); !s)
        return s;
    std::error_code ec;
    if (!fs::create_directory(target.menuFolder, ec))
        return ec ? errorOf(ec) : makeError(err::PathFileAccess);
    return {};
}

bool hasBackgroundImage(const WizardForm& form)
{
    return form.backgroundIsImage && !form.backgroundImage.empty();
}

bool hasMusic(const WizardForm& form)
{
    return form.music && !form.musicFile.empty();
}

// The three pictures of a text button drawn into the folder; the normal
// picture's height in pixels.
Result<int> drawTextButton(const WizardButton& entry, int k, const std::string& folder, ButtonPictures& pictures)
{
    int height = 0;
    for (ButtonState state : kButtonStates) {
        auto size = pictures.saveTextButton(entry, state, folder + buttonImageFileName(k, state));
        if (!size)
            return size.error();
        if (state == ButtonState::Normal)
            height = size->height;
    }
    return height;
}

// The three pictures of a graphic button copied into the folder; the
// normal picture's height in pixels.
Result<int> copyGraphicButton(const WizardButton& entry, const std::string& folder, ButtonPictures& pictures)
{
    for (const std::string* image : {&entry.normalImage, &entry.hoverImage, &entry.pressedImage})
        if (auto copied = copyInto(*image, folder); !copied)
            return copied.error();
    auto size = pictures.pictureSize(folder + fileNameOf(entry.normalImage));
    if (!size)
        return size.error();
    return size->height;
}

Status writeButtons(WizardProject& project, const std::vector<WizardButton>& buttons, const std::string& folder,
                    MenuWriting writing)
{
    std::size_t written = 0;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const WizardButton& entry = buttons[i];
        if (entry.deleted())
            continue;
        auto height = entry.isText ? drawTextButton(entry, int(i) + 1, folder, writing.pictures)
                                   : copyGraphicButton(entry, folder, writing.pictures);
        if (!height)
            return height.error();
        project.buttons[written++].normalHeight = *height * writing.screen.twipsPerPixelY;
    }
    return {};
}

}  // namespace

std::variant<MenuTarget, Message> checkMenuTarget(std::string_view folder, std::string_view menuName,
                                                  std::string_view caption)
{
    if (folder.empty())
        return wizard_message::refusal(Refusal::NoFolderChosen, caption);
    const std::string chosen = withTrailingSeparator(folder);
    if (!isFolder(chosen))
        return wizard_message::refusal(Refusal::FolderMissing, caption);
    if (isBlankText(menuName))
        return wizard_message::refusal(Refusal::NoMenuName, caption);
    const std::string name(menuName);
    const std::string menuFolder = chosen + name + "/";
    if (exists(menuFolder))
        return wizard_message::refusal(Refusal::MenuNameTaken, caption);
    return MenuTarget{menuFolder, menuFolder + name + ".qor"};
}

WizardProject describeMenu(const WizardForm& form, const std::vector<WizardButton>& buttons)
{
    WizardProject p;
    if (hasBackgroundImage(form))
        p.backgroundImage = fileNameOf(form.backgroundImage);
    p.border = form.border;
    if (hasMusic(form))
        p.backgroundMusic = fileNameOf(form.musicFile);
    p.startupAction = startupActionText(form.startup);
    p.backgroundColor = form.backgroundColor;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const WizardButton& entry = buttons[i];
        if (entry.deleted())
            continue;
        WizardProjectButton b;
        const int k = int(i) + 1;
        b.normalImage = entry.isText ? buttonImageFileName(k, ButtonState::Normal) : fileNameOf(entry.normalImage);
        b.hoverImage = entry.isText ? buttonImageFileName(k, ButtonState::Hover) : fileNameOf(entry.hoverImage);
        b.pressedImage = entry.isText ? buttonImageFileName(k, ButtonState::Pressed) : fileNameOf(entry.pressedImage);
        b.behaviour = buttonBehaviour(entry);
        b.transparent = entry.transparentBackground;
        b.transparentColor = entry.isText ? entry.backColor : 0;
        p.buttons.push_back(std::move(b));
    }
    return p;
}

Status writeMenu(const MenuTarget& target, const WizardForm& form, const std::vector<WizardButton>& buttons,
                 MenuWriting writing)
{
    if (Status s = createMenuFolder(target, form.menuName); !s)
        return s;
    WizardProject project = describeMenu(form, buttons);
    const std::string& folder = target.menuFolder;
    if (hasBackgroundImage(form)) {
        auto copied = copyInto(form.backgroundImage, folder);
        if (!copied)
            return copied.error();
        auto size = writing.pictures.pictureSize(folder + *copied);
        if (!size)
            return size.error();
        project.imageSize = WizardProject::Size{size->width * writing.screen.twipsPerPixelX,
                                                size->height * writing.screen.twipsPerPixelY};
    }
    if (hasMusic(form))
        if (auto copied = copyInto(form.musicFile, folder); !copied)
            return copied.error();
    if (Status s = writeButtons(project, buttons, folder, writing); !s)
        return s;
    return writeFileAtomically(target.projectPath, wizardProjectBytes(project));
}

// ---- "&Terminer" ----

void CreationWizard::finish()
{
    const std::string caption = view_.caption();
    const auto checked = checkMenuTarget(form_.folder, form_.menuName, caption);
    if (const Message* refusal = std::get_if<Message>(&checked)) {
        say(*refusal);
        return;
    }
    const MenuTarget& target = std::get<MenuTarget>(checked);
    form_.folder = withTrailingSeparator(form_.folder);
    if (Status s = writeMenu(target, form_, buttons_, {ports_.pictures, setup_.screen}); !s) {
        say(wizard_message::finishFailed(s.error(), caption));
        return;
    }
    view_.hideWindow();
    // Loading makes the menu folder the current folder.
    ports_.document.openPath(target.projectPath);
    say(wizard_message::finished(caption));
    finished_ = true;
    close();
}

}  // namespace qor
