#include "editor/wizard/qt_button_pictures.h"

#include <QFileInfo>
#include <QImageWriter>

#include "editor/platform/qt_text.h"
#include "editor/wizard/text_button_image.h"
#include "model/picture_rule.h"

namespace qor {

Result<PixelSize> QtButtonPictures::pictureSize(const std::string& path)
{
    const QString file = toQt(path);
    if (!QFileInfo(file).isFile())
        return makeError(err::FileNotFound);
    const auto facts = examinePictureFile(path);
    if (!facts || !facts->readable())
        return makeError(err::InvalidPicture);
    return PixelSize{int(facts->width), int(facts->height)};
}

Result<PixelSize> QtButtonPictures::saveTextButton(const WizardButton& entry, ButtonState state,
                                                   const std::string& path)
{
    const QImage image = drawTextButton(entry, state);
    if (image.isNull())
        return makeError(err::OutOfMemory);
    // Three bytes a pixel: the bitmap a Windows menu player reads at once.
    QImageWriter writer(toQt(path), "bmp");
    if (!writer.write(image.convertToFormat(QImage::Format_RGB888)))
        return makeError(err::PathFileAccess, fromQt(writer.errorString()));
    return PixelSize{image.width(), image.height()};
}

}  // namespace qor
