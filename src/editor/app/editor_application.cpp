#include "editor/app/editor_application.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPushButton>

#include "core/app/command_line.h"
#include "core/picture/print_preview_rules.h"
#include "core/project/file_info.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_text.h"
#include "editor/ui/splash_window.h"
#include "text/error.h"

namespace qor {

EditorApplication::EditorApplication(EditorPorts ports, WindowHooks& hooks)
    : dialogs_(ports.dialogs),
      hooks_(hooks),
      windows_(ports.screen.metrics(), hooks),
      shellView_(windows_),
      projectViews_(windows_),
      documentView_(windows_),
      buildView_(windows_, hooks),
      baker_(windows_, ports.dialogs),
      core_(Platform{ports.dialogs, ports.settings, ports.desktop, ports.screen, ports.fileTypes,
                     ports.qmbConverter, shellView_, projectViews_, documentView_, &buildView_, nullptr, &baker_}),
      scriptEditorView_(windows_, core_.scriptEditor()),
      wizard_({core_.state().wizardOpen, ports.dialogs, ports.desktop, core_.document(), ports.screen.metrics(),
               core_.state().programFolder, hooks}),
      designerView_(windows_, core_.project()),
      shapeView_(windows_, core_.shapeEditor(), hooks)
{
    core_.scriptEditor().setView(&scriptEditorView_);
    buildView_.setBuild(core_.build());
    core_.designer().setView(&designerView_);
    baker_.attach(core_.designer());
    core_.designer().context().baker = &baker_;
    core_.shapeEditor().setView(&shapeView_);
    documentView_.afterProjectReplaced = [this] { core_.designer().projectReplaced(); };
    // The wizard opens over the main window, and takes over from the splash.
    shellView_.creationWizardRequested = [this] {
        wizard_.open(windows_.isLoaded(WindowId::Main) ? &windows_.main() : nullptr);
    };
    QObject::connect(&windows_.splash(), &SplashWindow::closed, [this] { wizard_.handOverAsModal(); });
    shellView_.windowLoaded = [this](WindowId w) { connectWindow(w); };
    shellView_.printPreviewRequested = [this](int entry) { openPrintPreview(entry); };
    shellView_.appearancePanelRequested = [this] { core_.appearanceEditor().open(); };
    // The about window is built anew each time, so it translates and starts
    // its credits from the bottom again.
    shellView_.aboutRequested = [this, &hooks, &desktop = ports.desktop, screen = ports.screen.metrics()] {
        about_ = std::make_unique<AboutWindow>(screen, hooks);
        QObject::connect(about_.get(), &AboutWindow::linkActivated, about_.get(),
                         [&desktop](const QString& target) { desktop.open(fromQt(target), WindowShow::Normal); });
        about_->show();
    };
    documentView_.authorFieldsAccepted = [this](const AuthorFields& fields) {
        applyAuthorFields(core_.project(), fields);
    };
}

EditorApplication::~EditorApplication()
{
    delete printPreview_.data();
}

StartOutcome EditorApplication::start(const StartupInputs& inputs)
{
    return core_.shell().start(inputs);
}

void EditorApplication::connectWindow(WindowId window)
{
    Shell& shell = core_.shell();
    switch (window) {
    case WindowId::Main: {
        MainWindow& main = windows_.main();
        // Every command, the close box included ("&Quitter"), goes to the
        // shell; the window decides nothing.
        main.setCommandHandler([&shell](CommandId id, int position) { shell.run(id, position); });
        // The titles' highlight and pop-up follow the main window's flows.
        main.setLocalTitleHandling(false);
        QObject::connect(&main, &MainWindow::menuTitleHovered, &main,
                         [&shell](int i) { shell.mainWindow().pointerOverTitle(i); });
        QObject::connect(&main, &MainWindow::menuTitlePressed, &main,
                         [&shell](int i) { shell.mainWindow().pressTitle(i); });
        QObject::connect(&main, &MainWindow::menuTitlesResetRequested, &main,
                         [&shell] { shell.mainWindow().resetTitles(); });
        appearancePanel_ = std::make_unique<AppearanceEditorPanel>(main, core_.appearanceEditor());
        core_.appearanceEditor().setView(appearancePanel_.get());
        break;
    }
    case WindowId::Toolbox: connectToolbox(); break;
    case WindowId::Worksheet: connectWorksheet(); break;
    case WindowId::PropertiesPanel:
        QObject::connect(&windows_.properties(), &PropertiesPanel::firstActivated, &windows_.properties(),
                         [&shell] { shell.propertiesPanelActivated(); });
        windows_.properties().connectDesigner(core_.designer());
        break;
    default:
        break;
    }
}

void EditorApplication::connectToolbox()
{
    ToolboxWindow& toolbox = windows_.toolbox();
    core_.designer().outline().setView(&toolbox);
    for (int i = 0; i < ToolboxWindow::kCommandCount; ++i) {
        QPushButton* command = toolbox.command(i);
        command->setEnabled(true);
        // The commands stand in the order of the toolbox's dispatch.
        QObject::connect(command, &QPushButton::clicked, command,
                         [this, i] { core_.designer().runToolbox(ToolboxCommand(i)); });
    }
}

void EditorApplication::connectWorksheet()
{
    WorksheetWindow& sheet = windows_.worksheet();
    sheet.setFlows(&core_.designer().worksheet());
    // Files dropped from the desktop: the last one opens, after the question.
    QObject::connect(&sheet, &WorksheetWindow::filesDropped, &sheet, [this](const QStringList& files) {
        std::vector<std::string> paths;
        for (const QString& f : files)
            paths.push_back(fromQt(f));
        core_.document().openDropped(paths);
    });
    QObject::connect(&sheet, &WorksheetWindow::resized, &sheet,
                     [this, &sheet](bool byUser) { core_.designer().worksheet().resized(windows_.outerSize(sheet), byUser); });
    // The worksheet took its first size before it was connected: its caption
    // and the panel's size fields follow that size from the start.
    core_.designer().worksheet().resized(windows_.outerSize(sheet), false);
    // The main window's title highlight ends when the pointer goes on over
    // the worksheet's background.
    QObject::connect(&sheet, &WorksheetWindow::pointerOverBackground, &sheet,
                     [this] { core_.shell().mainWindow().resetTitles(); });
    QObject::connect(&sheet, &WorksheetWindow::keyCommand, &sheet, [this](int key) {
        switch (key) {
        case Qt::Key_Delete: core_.designer().deleteButton(); break;
        case Qt::Key_F5: core_.shell().run(CommandId::TestProject); break;
        case Qt::Key_F1: core_.shell().run(CommandId::Manual); break;
        default: break;
        }
    });
}

void EditorApplication::openPrintPreview(int entry)
{
    if (printPreview_)
        delete printPreview_.data();
    if (!windows_.isLoaded(WindowId::Worksheet))
        return;
    baker_.bakeAllButtons();
    QCoreApplication::processEvents();
    WorksheetWindow& sheet = windows_.worksheet();
    // The worksheet's inner area, drawn off screen: what another window
    // covers is captured all the same.
    const QImage capture = sheet.grab().toImage();
    const QString file = toQt(core_.state().programFolder) + toQt(print_preview::kCaptureFileName);
    printPreview_ = new PrintPreviewWindow(dialogs_, windows_.screen(), file, &sheet, hooks_);
    if (!printPreview_->showCapture(capture, entry)) {
        dialogs_.message(print_preview::saveFailedMessage(err::PathFileAccess, fromQt(file)));
        delete printPreview_.data();
    }
}

StartupInputs startupInputs(int argc, const char* const* argv, const QDateTime& now)
{
    StartupInputs in;
    in.executablePath = fromQt(QCoreApplication::applicationFilePath());
    in.arguments = joinArguments(argc, argv);
    const QLocale locale = QLocale::system();
    // The system's long time format names the time zone in some languages;
    // the bookkeeping keeps the clock time only.
    QString timeFormat = locale.timeFormat(QLocale::LongFormat);
    timeFormat.remove(QChar('t'));
    in.facts.timeText = fromQt(locale.toString(now.time(), timeFormat.trimmed()));
    in.facts.dateText = fromQt(locale.toString(now.date(), QLocale::ShortFormat));
    return in;
}

}  // namespace qor
