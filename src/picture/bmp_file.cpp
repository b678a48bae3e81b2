#include "picture/bmp_file.h"

#include <QImageWriter>
#include <QSaveFile>

namespace qor {

std::optional<QString> saveBmp(const QImage& picture, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    // 24 bits a pixel: what other programs expect of a plain bitmap.
    QImageWriter writer(&file, "bmp");
    if (!writer.write(picture.convertToFormat(QImage::Format_RGB888))) {
        file.cancelWriting();
        return writer.errorString();
    }
    if (!file.commit())
        return file.errorString();
    return std::nullopt;
}

}  // namespace qor
