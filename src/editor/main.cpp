#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/app/commands.h"
#include "editor/app/editor_windows.h"
#include "editor/app/main_window.h"
#include "editor/platform/qt_screen.h"
#include "editor/ui/splash_window.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("QOR"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/qor/qor.png")));

    // The interface is French: so are Qt's own dialogs and buttons.
    QTranslator qtFrench;
    if (qtFrench.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtFrench);

    qor::QtScreen screen;
    qor::EditorWindows windows(screen.metrics());
    windows.showSplash();
    windows.load();
    // Until the application shell takes the commands over there is no
    // project to save, so quitting has nothing to ask.
    windows.main().setCommandHandler([&windows](qor::CommandId id, int) {
        if (id == qor::CommandId::Quit)
            windows.closeAll();
    });
    windows.showAll();
    return app.exec();
}
