#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/ports/qmb_converter.h"
#include "editor/app/editor_application.h"
#include "editor/platform/desktop_file_type_registry.h"
#include "editor/platform/qt_desktop.h"
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

    // The interface is French: so are Qt's own dialogs and buttons.
    QTranslator qtFrench;
    if (qtFrench.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtFrench);

    qor::QtDialogs dialogs;
    qor::QtSettingsStore settings;
    qor::QtDesktop desktop;
    qor::QtScreen screen;
    qor::DesktopFileTypeRegistry fileTypes;
    qor::MissingQmbConverter qmbConverter;
    qor::LiveWindowHooks hooks;
    qor::EditorApplication editor({dialogs, settings, desktop, screen, fileTypes, qmbConverter}, hooks);
    // The windows load during start-up, once the run knows its language.
    hooks.attach(editor.core().state(), dialogs);

    const auto inputs = qor::startupInputs(argc, argv, QDateTime::currentDateTime());
    if (editor.start(inputs) == qor::StartOutcome::Quit)
        return 0;
    return app.exec();
}
