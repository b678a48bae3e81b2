#include "picture/bmp_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QTemporaryFile>

#include <filesystem>
#include <system_error>

namespace qor {

std::optional<QString> saveBmp(const QImage& picture, const QString& path)
{
    // Written beside the target, then renamed over it in one step: a
    // failure leaves no half-written picture under the final name.
    QTemporaryFile part(QFileInfo(path).absoluteDir().filePath(QStringLiteral(".qor-XXXXXX.part")));
    if (!part.open())
        return part.errorString();
    // 24 bits a pixel: what other programs expect of a plain bitmap.
    QImageWriter writer(&part, "bmp");
    if (!writer.write(picture.convertToFormat(QImage::Format_RGB888)))
        return writer.errorString();
    part.close();
    // A temporary file is private to its owner; a picture is not.
    part.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                        QFileDevice::ReadOther);
    if (part.error() != QFileDevice::NoError)
        return part.errorString();
    std::error_code failure;
    std::filesystem::rename(QFile::encodeName(part.fileName()).toStdString(), QFile::encodeName(path).toStdString(),
                            failure);
    if (failure)
        return QString::fromStdString(failure.message());
    part.setAutoRemove(false);
    return std::nullopt;
}

}  // namespace qor
