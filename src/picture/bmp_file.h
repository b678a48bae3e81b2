#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace qor {

// Writes a picture as a 24-bit Windows bitmap. The file appears under its
// name only once it is whole: a failed write leaves what was there before.
// Returns the reason when it could not be written.
std::optional<QString> saveBmp(const QImage& picture, const QString& path);

}  // namespace qor
