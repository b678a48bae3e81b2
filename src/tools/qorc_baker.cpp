#include "tools/qorc_baker.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include <cmath>

namespace qor {
namespace {

QColor colourOf(std::int32_t bgr)
{
    // A system colour has no screen to ask here: the usual window white.
    if (std::uint32_t(bgr) & 0x80000000u)
        return Qt::white;
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

QString qt(const std::string& s)
{
    return QString::fromStdString(s);
}

// The worksheet as the menu window shows it, before any element.
QImage backdrop(const MenuProject& project, double tpp)
{
    const int w = std::max(1, int(std::lround(project.width / tpp)));
    const int h = std::max(1, int(std::lround(project.height / tpp)));
    QImage sheet(w, h, QImage::Format_RGB32);
    sheet.fill(colourOf(project.backgroundColor));
    QImage background;
    if (!project.backgroundImage.empty() && background.load(qt(project.resolve(project.backgroundImage)))) {
        QPainter p(&sheet);
        p.drawImage(QRect(0, 0, w, h), background);
    }
    return sheet;
}

void bake(const QImage& sheet, const MenuButton& b, const std::string& imagePath, double tpp)
{
    QImage image;
    if (!image.load(qt(imagePath)))
        return;  // the compilation reports the missing baked file
    image = image.convertToFormat(QImage::Format_RGB32);
    const QPoint at(int(std::lround(b.left / tpp)), int(std::lround(b.top / tpp)));
    QImage out = sheet.copy(QRect(at, image.size()));
    const QRgb key = colourOf(b.transparentColor).rgb();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if ((image.pixel(x, y) & 0xFFFFFF) != (key & 0xFFFFFF))
                out.setPixel(x, y, image.pixel(x, y));
    out.convertToFormat(QImage::Format_RGB888).save(qt(imagePath + "_transp.bmp"), "BMP");
}

}  // namespace

void HeadlessBaker::bakeAllButtons()
{
    QImage sheet;
    for (int n = 1; n < project_.buttonElementCount() && n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project_.button(n);
        if (b.kind == button_kind::deleted || !b.transparent || b.normalImage.empty())
            continue;
        if (sheet.isNull())
            sheet = backdrop(project_, twipsPerPixel_);
        for (const std::string* image : {&b.pressedImage, &b.hoverImage, &b.normalImage})
            if (!image->empty())
                bake(sheet, b, project_.resolve(*image), twipsPerPixel_);
    }
}

}  // namespace qor
