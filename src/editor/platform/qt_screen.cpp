#include "editor/platform/qt_screen.h"

#include <QGuiApplication>
#include <QScreen>

#include "editor/platform/twips.h"

namespace qor {

ScreenMetrics QtScreen::metrics()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return screenMetricsOf(QSize(800, 600), 96, 96);
    return screenMetricsOf(screen->geometry().size(), screen->logicalDotsPerInchX(),
                           screen->logicalDotsPerInchY());
}

}  // namespace qor
