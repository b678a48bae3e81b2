#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>

#include <string>

namespace qor::player {

// Every picture of the menu, decoded once: a button's three images change
// on every pointer move, and each change must be quick.
class ImageCache {
public:
    // Null when the file is missing or not a picture.
    const QPixmap& pixmap(const std::string& path);
    // Decodes the file now, so its first use on screen waits for nothing.
    void warm(const std::string& path) { pixmap(path); }

private:
    QHash<QString, QPixmap> pixmaps_;
};

}  // namespace qor::player
