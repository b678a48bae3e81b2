#include "picture/worksheet_scene.h"

#include <QFont>
#include <QPainter>

#include "core/picture/bake_rules.h"
#include "picture/colours.h"
#include "picture/picture_file.h"

namespace qor {
namespace {

QImage readPicture(const std::string& path)
{
    if (path.empty())
        return {};
    return readPictureFile(QString::fromStdString(path));
}

QFont fontOf(const MenuText& text)
{
    QFont font(QString::fromStdString(text.fontName));
    font.setPointSizeF(text.fontSize > 0 ? text.fontSize : 8.25);
    font.setBold(text.fontBold);
    font.setItalic(text.fontItalic);
    font.setStrikeOut(text.fontStrikethru);
    font.setUnderline(text.fontUnderline);
    return font;
}

// A text box at its place on the picture, moved by offset.
void drawText(QPainter& painter, const MenuText& text, const ScreenMetrics& screen, const QPalette& palette,
              QPoint offset)
{
    const QRect box(toPixels(text.left, screen.twipsPerPixelX) - offset.x(),
                    toPixels(text.top, screen.twipsPerPixelY) - offset.y(),
                    toPixels(text.width, screen.twipsPerPixelX), toPixels(text.height, screen.twipsPerPixelY));
    painter.fillRect(box, toQColor(text.backColor, palette));
    painter.setPen(toQColor(text.foreColor, palette));
    painter.setFont(fontOf(text));
    QString content = QString::fromStdString(text.content);
    content.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    painter.drawText(box.adjusted(6, 6, -6, -6), Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, content);
}

}  // namespace

WorksheetScene::WorksheetScene(const MenuProject& project, const ScreenMetrics& screen, const QPalette& palette)
    : project_(project), screen_(screen), palette_(palette),
      background_(readPicture(project.resolve(project.backgroundImage)))
{
}

QImage WorksheetScene::buttonPicture(int number)
{
    if (const auto shown = shown_.find(number); shown != shown_.end())
        return shown->second;
    return shown_[number] = readPicture(project_.resolve(project_.button(number).normalImage));
}

QImage WorksheetScene::under(int number, const QRect& rect)
{
    QImage out(rect.size(), QImage::Format_RGB32);
    out.fill(toQColor(project_.backgroundColor, palette_));
    QPainter painter(&out);
    const PixelRect sheet = worksheetRect(project_, screen_);
    if (!background_.isNull())
        painter.drawImage(QRect(-rect.x(), -rect.y(), sheet.width, sheet.height), background_);
    for (int n = 1; n < project_.buttonElementCount() && n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project_.button(n);
        if (n == number || b.kind == button_kind::deleted)
            continue;
        const QImage picture = buttonPicture(n);
        const PixelRect at = buttonRect(b, picture.width(), picture.height(), screen_);
        if (!picture.isNull() && QRect(at.left, at.top, at.width, at.height).intersects(rect))
            painter.drawImage(QPoint(at.left - rect.x(), at.top - rect.y()), picture);
    }
    for (int t = 1; t <= project_.textCount(); ++t)
        if (project_.text(t).isLive())
            drawText(painter, project_.text(t), screen_, palette_, rect.topLeft());
    return out;
}

void WorksheetScene::showOnButton(int number, const QImage& picture)
{
    shown_[number] = picture;
}

}  // namespace qor
