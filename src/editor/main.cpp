#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "core/app/commands.h"
#include "editor/app/editor_windows.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/ui/mouse_position_window.h"
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
    const qor::ScreenMetrics m = screen.metrics();
    qor::EditorWindows windows(m);
    windows.showSplash();
    windows.load();
    // Provisional: the shell's start-up routine takes this over, with its
    // own arithmetic and the default menu size, when it is wired in. Until
    // then the windows stand around the screen centre instead of on top of
    // one another.
    {
        const auto tool = windows.placeOf(windows.toolbox());
        const auto main = windows.placeOf(windows.main());
        const auto sheet = windows.placeOf(windows.worksheet());
        const double top = (m.heightTwips - sheet.height) / 2;
        const double left = (m.widthTwips - (sheet.width + 200 + tool.width)) / 2;
        windows.place(windows.worksheet(), {left, top, sheet.width, sheet.height});
        windows.place(windows.toolbox(), {left + sheet.width + 200, top, tool.width, tool.height});
        windows.place(windows.main(), {(m.widthTwips - main.width) / 2, top - main.height - 600, main.width, main.height});
        const double panelTop = top + tool.height + 600;
        windows.place(windows.properties(), {left + sheet.width + 200, panelTop, qor::PropertiesPanel::kWidth,
                                             m.heightTwips - panelTop - 500});
        const auto mouse = windows.placeOf(windows.mousePosition());
        windows.place(windows.mousePosition(), {(m.widthTwips + main.width) / 2 + 500, top - main.height - 600,
                                                mouse.width, mouse.height});
    }
    // Until the application shell takes the commands over there is no
    // project to save, so quitting has nothing to ask.
    windows.main().setCommandHandler([&windows](qor::CommandId id, int) {
        if (id == qor::CommandId::Quit)
            windows.closeAll();
    });
    windows.showAll();
    return app.exec();
}
