#include "editor/wizard/text_button_image.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

#include "editor/platform/colours.h"
#include "editor/platform/qt_dialogs.h"
#include "editor/platform/qt_text.h"

namespace qor {
namespace {

// The device the caption is measured on: a picture like the one drawn.
const QImage& measuringDevice()
{
    static const QImage device(1, 1, QImage::Format_RGB32);
    return device;
}

}  // namespace

QImage drawTextButton(const WizardButton& entry, ButtonState state)
{
    QFont font = toQFont(buttonFont(entry, state));
    font.setStyleStrategy(QFont::NoAntialias);
    const QString caption = toQt(entry.caption);
    const QFontMetricsF metrics(font, &measuringDevice());
    const TextButtonLayout layout = textButtonLayout(metrics.horizontalAdvance(caption), metrics.height(), state);

    const QPalette palette = QGuiApplication::palette();
    QImage image(std::max(1, int(std::lround(layout.width))), std::max(1, int(std::lround(layout.height))),
                 QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(toQColor(entry.backColor, palette));
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(toQColor(entry.textColor, palette));
    painter.drawText(QPointF(layout.textLeft, layout.textTop + metrics.ascent()), caption);
    return image;
}

}  // namespace qor
