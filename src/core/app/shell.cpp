#include "core/app/shell.h"

#include <filesystem>

#include "core/app/association.h"
#include "core/app/command_line.h"
#include "core/app/maintenance.h"
#include "core/app/options_file.h"
#include "core/app/screen_check.h"
#include "core/app/window_arrangement.h"
#include "core/ui/appearances_file.h"
#include "core/ui/languages.h"
#include "core/ui/menu_tree.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

bool isFile(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

bool exists(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::exists(path, ec);
}

}  // namespace

Shell::Shell(AppState& state, AppPorts ports, ShellView& view, UserSettings& settings,
             RecentFiles& recentFiles, Document& document)
    : state_(state),
      ports_(ports),
      view_(view),
      settings_(settings),
      recentFiles_(recentFiles),
      document_(document),
      options_(state_, view, ports.dialogs),
      plugins_(state_, view, ports.dialogs, ports.desktop),
      mainWindow_(state_, view, ports.dialogs, ports.desktop, settings_, options_, recentFiles_, plugins_)
{
}

StartOutcome Shell::start(const StartupInputs& inputs)
{
    state_.newline = "\r\n";
    state_.programFolder = withTrailingSeparator(folderOf(inputs.executablePath));
    state_.executableFile = fileNameOf(inputs.executablePath);

    const CommandLineRequest request = readCommandLine(inputs.arguments, isFile);
    if (request.maintenance) {
        runMaintenance(state_, ports_.dialogs, ports_.settings);
        return StartOutcome::Quit;
    }
    state_.startupProject = request.startupProject;
    state_.starting = true;

    view_.showSplash();
    const ScreenMetrics screen = ports_.screen.metrics();
    const auto menuSize = defaultMenuSizeFor(screen);
    if (!menuSize) {
        ports_.dialogs.message(screenTooSmallMessage());
        view_.hideSplash();
        return StartOutcome::Quit;
    }
    state_.defaultMenuSize = *menuSize;

    state_.interfaceLanguage = settings_.get(settings::General, settings::Language);

    for (WindowId w : kStartupLoadOrder) {
        view_.loadWindow(w);
        if (w == WindowId::Main)
            mainWindow_.load(inputs.facts);
    }
    // The options file read by the main window's load told the appearance.
    applyAppearance(state_.appearance);

    WindowSizes sizes;
    sizes.toolbox = view_.windowSize(WindowId::Toolbox);
    sizes.main = view_.windowSize(WindowId::Main);
    sizes.properties = view_.windowSize(WindowId::PropertiesPanel);
    sizes.mousePosition = view_.windowSize(WindowId::MousePosition);
    view_.arrangeWindows(arrangeWindows(sizes, screen, state_.defaultMenuSize));
    // The model holds the window size from here on; a reset keeps it.
    document_.setWindowSize(state_.defaultMenuSize.width, state_.defaultMenuSize.height);

    writeFirstRunFiles();

    // The mouse-position window is shown even with its option off: the
    // option's command hides it again.
    for (WindowId w : kStartupShowOrder)
        view_.showWindow(w);
    view_.hideSplash();
    return StartOutcome::Running;
}

void Shell::applyAppearance(const Appearance& appearance)
{
    for (WindowId w : kMainAppearanceOrder)
        view_.applyAppearance(w, appearance);
    // The titles take the appearance's font, so their widths change.
    mainWindow_.placeMenuTitles();
}

void Shell::writeFirstRunFiles()
{
    if (!exists(state_.programFile(kOptionsFileName))) {
        associateProjectFiles(state_, ports_.settings, ports_.fileTypes);
        (void)options_.write();
    }
    if (!exists(state_.programFile(kAppearancesFileName))) {
        if (Status s = writeDefaultAppearancesFile(state_.programFolder); !s)
            ports_.dialogs.message(appearancesNotSavedMessage(s.error()));
    }
}

void Shell::propertiesPanelActivated()
{
    if (startupProjectHandled_)
        return;
    startupProjectHandled_ = true;
    if (!state_.startupProject.empty())
        document_.openPath(state_.startupProject);
}

void Shell::run(CommandId command, int position)
{
    using C = CommandId;
    if (OptionCommands::isOption(command)) {
        options_.run(command);
        return;
    }
    switch (command) {
    case C::NewWizard:
        if (document_.newThroughWizard())
            view_.openCreationWizard();
        break;
    case C::NewBlank: document_.newBlank(); break;
    case C::Open: document_.open(); break;
    case C::Save: document_.save(); break;
    case C::SaveAs: document_.saveAs(); break;
    case C::FileProperties: document_.showFileInfo(); break;
    case C::OpenRecent:
        if (auto path = recentFiles_.pathAt(position))
            document_.openRecent(*path);
        break;
    case C::Quit: quit(); break;
    case C::EditSource: document_.editSource(); break;
    case C::ReloadProject: document_.reload(); break;
    case C::RunPlugin: plugins_.run(position); break;
    case C::AssociateFiles:
        associateProjectFiles(state_, ports_.settings, ports_.fileTypes);
        ports_.dialogs.message(filesAssociatedMessage());
        break;
    case C::ChooseLanguage: chooseLanguage(position); break;
    case C::Appearances: view_.openAppearancePanel(); break;
    case C::Manual: mainWindow_.openManual(); break;
    case C::Faq:
    case C::Examples:
    case C::Tips: mainWindow_.openWebPage(command); break;
    case C::Support: mainWindow_.showSupport(); break;
    case C::BugReport: mainWindow_.reportBug(); break;
    case C::VersionCheck: mainWindow_.checkVersion(); break;
    case C::TestProject:
    case C::CompileAutorun:
    case C::CompileExecutable:
    case C::CompileHtml: runBuild(command); break;
    // "En ecran de veille" never does anything.
    case C::CompileScreenSaver: break;
    case C::PrintToBmp: view_.openPrintPreview(0); break;
    case C::PrintToClipboard: view_.openPrintPreview(1); break;
    case C::PrintToPaper: view_.openPrintPreview(2); break;
    case C::About: view_.openAboutWindow(); break;
    default:
        break;
    }
}

void Shell::runBuild(CommandId command)
{
    if (!build_)
        return;
    switch (command) {
    case CommandId::TestProject: build_->testRun(); break;
    case CommandId::CompileAutorun: build_->openCompileDialog(); break;
    case CommandId::CompileExecutable: build_->exportExecutable(); break;
    case CommandId::CompileHtml: build_->exportHtml(); break;
    default: break;
    }
}

void Shell::chooseLanguage(int item)
{
    const auto language = languageOfItem(mainWindow_.languages(), item);
    if (!language)
        return;
    settings_.save(settings::General, settings::Language, *language);
    ports_.dialogs.message(languageChangedMessage(state_.phrases));
}

bool Shell::quit()
{
    if (state_.wizardOpen) {
        ports_.dialogs.message(closeWizardFirstMessage(state_.phrases));
        return false;
    }
    if (document_.askToSave(true) == SaveAnswer::Cancelled)
        return false;
    document_.clearForQuit();
    state_.newline.clear();
    state_.programFolder.clear();
    state_.startupProject.clear();
    state_.interfaceLanguage.clear();
    view_.hideAllWindows();
    view_.unloadAllWindows();
    return true;
}

Message appearancesNotSavedMessage(const Error& error)
{
    return Message{"Erreur pendant l'enregistrement des apparences ! (" + inFrench(error).description + ")", "Erreur",
                   MessageIcon::Critical};
}

Message closeWizardFirstMessage(const Phrases& phrases)
{
    const bool french = !phrases.languageActive();
    return Message{phrases.text(16, "Veuillez fermer l'assistant création avant de quitter."),
                   french ? "Quitter..." : commandCaption(CommandId::Quit), MessageIcon::Exclamation};
}

}  // namespace qor
