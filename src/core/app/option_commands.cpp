#include "core/app/option_commands.h"

#include <filesystem>

#include "core/app/options_file.h"
#include "text/line_file.h"

namespace qor {
namespace {

// Clears the reading flag however the reading ends.
struct ReadingGuard {
    bool& flag;
    explicit ReadingGuard(bool& f) : flag(f) { flag = true; }
    ~ReadingGuard() { flag = false; }
};

}  // namespace

bool OptionCommands::isOption(CommandId id)
{
    switch (id) {
    case CommandId::PrecisePointer:
    case CommandId::MousePosition:
    case CommandId::ShowHandles:
    case CommandId::WizardAtStart:
    case CommandId::RequireMediaFile:
        return true;
    default:
        return false;
    }
}

bool& OptionCommands::markRef(CommandId option)
{
    switch (option) {
    case CommandId::PrecisePointer: return state_.options.precisePointer;
    case CommandId::MousePosition: return state_.options.mousePosition;
    case CommandId::ShowHandles: return state_.options.showHandles;
    case CommandId::WizardAtStart: return state_.options.wizardAtStart;
    default: return state_.options.requireMediaFile;
    }
}

bool OptionCommands::mark(CommandId option) const
{
    return const_cast<OptionCommands*>(this)->markRef(option);
}

void OptionCommands::apply(CommandId option)
{
    const bool on = markRef(option);
    switch (option) {
    case CommandId::PrecisePointer: view_.setPrecisePointer(on); break;
    case CommandId::MousePosition: view_.setMousePositionWindowVisible(on); break;
    case CommandId::ShowHandles: view_.setSelectionHandlesVisible(on); break;
    default: break;
    }
}

void OptionCommands::run(CommandId option)
{
    if (!isOption(option))
        return;
    bool& m = markRef(option);
    m = !m;
    view_.setOptionMark(option, m);
    apply(option);
    (void)write();
}

Status OptionCommands::read()
{
    // The menu starts from the marks the window has before any options
    // file: without one, they are what the user sees.
    for (CommandId id : {CommandId::PrecisePointer, CommandId::MousePosition, CommandId::ShowHandles,
                         CommandId::WizardAtStart, CommandId::RequireMediaFile})
        view_.setOptionMark(id, markRef(id));

    const std::filesystem::path path = state_.programFile(kOptionsFileName);
    std::error_code ec;
    if (!std::filesystem::exists(path, ec))
        return {};
    auto lines = readLineFile(path);
    if (!lines)
        return lines.error();

    ReadingGuard guard(state_.readingOptions);
    const OptionsFileContent c = readOptionsLines(*lines, state_.appearance);

    const std::pair<CommandId, bool> firstThree[] = {
        {CommandId::PrecisePointer, c.precisePointer},
        {CommandId::MousePosition, c.mousePosition},
        {CommandId::ShowHandles, c.showHandles},
    };
    for (const auto& [id, wanted] : firstThree) {
        markRef(id) = !wanted;
        view_.setOptionMark(id, !wanted);
        run(id);
    }
    if (c.appearance)
        state_.appearance = *c.appearance;

    // With a project on the command line the wizard is not opened, and the
    // option shows unticked (so the next write stores "non").
    const bool wizard = c.wizardAtStart && state_.startupProject.empty();
    state_.options.wizardAtStart = wizard;
    view_.setOptionMark(CommandId::WizardAtStart, wizard);
    if (wizard)
        view_.openCreationWizard();

    state_.options.requireMediaFile = c.requireMediaFile;
    view_.setOptionMark(CommandId::RequireMediaFile, c.requireMediaFile);
    return {};
}

Status OptionCommands::write()
{
    if (state_.readingOptions)
        return {};
    Status s = writeLineFile(state_.programFile(kOptionsFileName),
                             optionsFileLines(state_.options, state_.appearance));
    if (!s)
        dialogs_.message(optionsNotSavedMessage(s.error()));
    return s;
}

Message optionsNotSavedMessage(const Error& error)
{
    return Message{"Erreur pendant l'enregistrement des options ! (" + inFrench(error).description + ")", "Erreur",
                   MessageIcon::Critical};
}

}  // namespace qor
