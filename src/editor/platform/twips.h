#pragma once

#include <QPoint>
#include <QSize>

#include "core/ports/screen.h"

namespace qor {

// Positions and sizes are kept in twips (1/1440 inch). A pixel is
// 1440 / logical DPI twips on each axis: 15 on an ordinary 96 DPI screen.
inline constexpr double kTwipsPerInch = 1440;

double twipsPerPixel(double logicalDpi);

// The metrics of a screen of pixels logical pixels at the given logical DPI.
ScreenMetrics screenMetricsOf(QSize pixels, double logicalDpiX, double logicalDpiY);

// Twips to whole pixels, rounded to the nearest pixel (halves away from zero).
int twipsToPixels(double twips, double twipsPerPixel);
QSize twipsToPixels(double widthTwips, double heightTwips, const ScreenMetrics& screen);

double pixelsToTwips(double pixels, double twipsPerPixel);

}  // namespace qor

class QWidget;

namespace qor {

// A window's place in twips: left and top of its frame, width and height of
// its inner area. The windowing system draws the frame, so sizes given to a
// window are the sizes of what it shows.
struct TwipsRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

void setGeometryTwips(QWidget& widget, const TwipsRect& rect, const ScreenMetrics& screen);
TwipsRect geometryTwips(const QWidget& widget, const ScreenMetrics& screen);
void resizeTwips(QWidget& widget, double width, double height, const ScreenMetrics& screen);

}  // namespace qor
