#include <QApplication>
#include <QIcon>

#include "core/app/user_settings.h"
#include "core/ports/qmb_converter.h"
#include "editor/app/editor_application.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_desktop.h"
#include "editor/platform/qt_dialog_language.h"
#include "editor/platform/qt_dialogs.h"
#include "editor/platform/qt_screen.h"
#include "editor/platform/qt_settings_store.h"
#include "editor/ui/live_window_hooks.h"

int main(int argc, char** argv)
{
    // Qt takes its own options (-style, -platform ...) out of argv here.
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("QOR"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/qor/qor.png")));
    // The shell ends the run itself, once the quit flow has agreed.
    QApplication::setQuitOnLastWindowClosed(false);

    qor::QtDialogs dialogs;
    qor::QtSettingsStore settings;
    // Qt's own dialogs and buttons speak the interface language: French
    // unless a language is chosen, and French again if its scripts fail.
    qor::QtDialogLanguage dialogLanguage;
    dialogLanguage.follow(settings.get("QOR", qor::settings::General, qor::settings::Language, ""));
    qor::QtDesktop desktop;
    qor::QtScreen screen;
    qor::DesktopFileTypeRegistry fileTypes;
    qor::MissingQmbConverter qmbConverter;
    qor::LiveWindowHooks hooks;
    hooks.languageDropped = [&dialogLanguage] { dialogLanguage.follow(""); };
    qor::EditorApplication editor({dialogs, settings, desktop, screen, fileTypes, qmbConverter}, hooks);
    // The windows load during start-up, once the run knows its language.
    hooks.attach(editor.core().state(), dialogs);

    const auto inputs = qor::startupInputs(argc, argv, QDateTime::currentDateTime());
    if (editor.start(inputs) == qor::StartOutcome::Quit)
        return 0;
    return app.exec();
}
