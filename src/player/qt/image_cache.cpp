#include "player/qt/image_cache.h"

#include <QImageReader>

namespace qor::player {

const QPixmap& ImageCache::pixmap(const std::string& path)
{
    const QString key = QString::fromStdString(path);
    auto it = pixmaps_.find(key);
    if (it != pixmaps_.end())
        return *it;
    QPixmap pixmap;
    if (!path.empty()) {
        QImageReader reader(key);
        reader.setAutoTransform(false);
        // A picture that claims a gigantic size is not one a menu can show.
        const QSize size = reader.size();
        if (!size.isValid() || qint64(size.width()) * size.height() <= qint64(16384) * 16384)
            pixmap = QPixmap::fromImageReader(&reader);
    }
    return *pixmaps_.insert(key, pixmap);
}

}  // namespace qor::player
