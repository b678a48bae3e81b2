#include "picture/picture_file.h"

#include <QImageReader>

namespace qor {

QImage readPictureFile(const QString& path, PictureFacts* facts)
{
    const auto examined = examinePictureFile(path.toStdString());
    if (facts)
        *facts = examined.value_or(PictureFacts{.fault = PictureFault::Truncated});
    if (!examined || !examined->readable())
        return {};
    // Qt refuses pictures past a quarter of a gigabyte unless told; the
    // rule's own limit is the one that counts.
    QImageReader::setAllocationLimit(int(kLargestPictureBytes >> 20) + 1);
    QImageReader reader(path);
    // The extension may lie (a GIF saved as ".bmp"): trust the content.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(false);
    return reader.read();
}

}  // namespace qor
