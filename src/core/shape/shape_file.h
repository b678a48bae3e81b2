#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/shape_block.h"
#include "text/error.h"

namespace qor {

// The number the shape panel raises its own file errors with.
inline constexpr int kShapeFileError = 999;

// The two errors raised before the working list is touched.
Error shapeFileNotFound();   // 999 "Fichier introuvable !"
Error shapeFileInvalid();    // 999 "Fichier Invalide"

// What reading a shape file's bytes gave. When started is false the file
// was refused before any point was taken (error is then set) and the working
// list must stay as it was. When started is true, points replace the
// working list; an error then means the block stopped early (end of file
// before "[/FormeMenu]", a value beyond 32 bits) and points holds what was
// read up to there.
struct ShapeFileRead {
    bool started = false;
    ShapePoints points;
    std::optional<Error> error;
};

// Reads a shape file: its first line must be exactly "[FormeMenu]", then
// the block's point lines. Line ends may be CR LF, LF or CR.
ShapeFileRead readShapeFile(std::string_view bytes);

// Reads the shape file at path: a path that is not a file is "Fichier
// introuvable !", a file that cannot be read gives the system's error.
ShapeFileRead readShapeFileAt(const std::string& path);

// What "Sauver" writes: the working list when it has a point, else the
// project's shape when it has one, else nothing at all (an empty file).
std::string shapeFileBytes(const ShapePoints& working, const ShapePoints& project);

}  // namespace qor
