#include "editor/platform/twips.h"

#include "core/picture/bake_rules.h"

namespace qor {

double twipsPerPixel(double logicalDpi)
{
    // A screen that reports no DPI is taken as an ordinary 96 DPI one.
    return logicalDpi > 0 ? kTwipsPerInch / logicalDpi : kTwipsPerInch / 96.0;
}

ScreenMetrics screenMetricsOf(QSize pixels, double logicalDpiX, double logicalDpiY)
{
    ScreenMetrics m;
    m.twipsPerPixelX = twipsPerPixel(logicalDpiX);
    m.twipsPerPixelY = twipsPerPixel(logicalDpiY);
    m.widthTwips = pixels.width() * m.twipsPerPixelX;
    m.heightTwips = pixels.height() * m.twipsPerPixelY;
    return m;
}

int twipsToPixels(double twips, double twipsPerPixel)
{
    // One rounding for the worksheet and for baking, so that a baked picture
    // lines up with what the worksheet shows.
    return toPixels(twips, twipsPerPixel);
}

QSize twipsToPixels(double widthTwips, double heightTwips, const ScreenMetrics& screen)
{
    return {twipsToPixels(widthTwips, screen.twipsPerPixelX),
            twipsToPixels(heightTwips, screen.twipsPerPixelY)};
}

double pixelsToTwips(double pixels, double twipsPerPixel)
{
    return pixels * twipsPerPixel;
}

}  // namespace qor

#include <QWidget>

namespace qor {

void setGeometryTwips(QWidget& widget, const TwipsRect& rect, const ScreenMetrics& screen)
{
    widget.move(twipsToPixels(rect.left, screen.twipsPerPixelX),
                twipsToPixels(rect.top, screen.twipsPerPixelY));
    resizeTwips(widget, rect.width, rect.height, screen);
}

TwipsRect geometryTwips(const QWidget& widget, const ScreenMetrics& screen)
{
    const QPoint p = widget.isWindow() ? widget.pos() : widget.geometry().topLeft();
    return {p.x() * screen.twipsPerPixelX, p.y() * screen.twipsPerPixelY,
            widget.width() * screen.twipsPerPixelX, widget.height() * screen.twipsPerPixelY};
}

void resizeTwips(QWidget& widget, double width, double height, const ScreenMetrics& screen)
{
    widget.resize(twipsToPixels(width, height, screen));
}

}  // namespace qor
