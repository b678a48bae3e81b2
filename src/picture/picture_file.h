#pragma once

#include <QImage>
#include <QString>

#include "model/picture_rule.h"

namespace qor {

// A menu picture read by the picture rule: decoded whole when the rule
// accepts the file, a null image otherwise. facts, when given, says why.
QImage readPictureFile(const QString& path, PictureFacts* facts = nullptr);

}  // namespace qor
