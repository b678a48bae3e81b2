#include "player/qt/image_cache.h"

#include <QImageReader>

#include "model/picture_rule.h"

namespace qor::player {

const QPixmap& ImageCache::pixmap(const std::string& path)
{
    const QString key = QString::fromStdString(path);
    auto it = pixmaps_.find(key);
    if (it != pixmaps_.end())
        return *it;
    QPixmap pixmap;
    if (!path.empty()) {
        // The pictures' rule decides, as in the editor and on Windows; Qt's
        // own allocation limit (a quarter of a gigabyte) would drop a large
        // picture the rule accepts.
        const auto facts = examinePictureFile(path);
        if (facts && facts->readable()) {
            QImageReader::setAllocationLimit(int(kLargestPictureBytes >> 20) + 1);
            QImageReader reader(key);
            reader.setDecideFormatFromContent(true);
            reader.setAutoTransform(false);
            pixmap = QPixmap::fromImageReader(&reader);
        }
    }
    return *pixmaps_.insert(key, pixmap);
}

}  // namespace qor::player
