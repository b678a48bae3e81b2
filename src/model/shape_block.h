#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/error.h"

namespace qor {

// One corner of the menu window's outline, in twips from the top-left corner
// of the window's client area.
struct ShapePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    friend bool operator==(const ShapePoint&, const ShapePoint&) = default;
};

using ShapePoints = std::vector<ShapePoint>;

// The text block that carries a shape in the shape file, the project file and
// the compiled menu data:
//   [FormeMenu]
//   X=300
//   Y=300
//   ...
//   [/FormeMenu]
inline constexpr std::string_view kShapeBlockStart = "[FormeMenu]";
inline constexpr std::string_view kShapeBlockEnd = "[/FormeMenu]";

// Appends the block's lines to out, each followed by CR LF.
void appendShapeBlock(std::string& out, const ShapePoints& points);

// The block's lines, without line ends.
std::vector<std::string> shapeBlockLines(const ShapePoints& points);

// The value of one point line: the first two characters ("X=", "Y=") are
// dropped unchecked, blanks, tabs and line feeds are ignored wherever they
// stand, the rest is read leniently and rounded half to even. Overflow when
// the value is beyond 32 bits.
Result<std::int32_t> shapeCoordinate(std::string_view line);

// Reads the point lines of a block whose "[FormeMenu]" line has just been
// read, appending to points. Lines are taken two by two until one is exactly
// "[/FormeMenu]"; the line after an X line is always its Y line, whatever it
// holds. A point is appended for every X line, so a value that cannot be
// read leaves that coordinate 0.
//
//   nextLine(std::string_view& line) -> bool: false when the input has ended.
//   failed(const Error& error) -> bool: called for a read past the end
//     (InputPastEnd) and for a value out of range (Overflow); true goes on
//     with the next line, false stops reading the block.
//
// The caller bounds the reading past the end through failed(): a block cut
// short never finds its end line.
template <class NextLine, class Failed>
void readShapeBlock(ShapePoints& points, NextLine&& nextLine, Failed&& failed)
{
    std::string_view line;
    for (;;) {
        if (!nextLine(line)) {
            if (!failed(makeError(err::InputPastEnd)))
                return;
            continue;
        }
        if (line == kShapeBlockEnd)
            return;
        points.push_back({});
        if (auto x = shapeCoordinate(line)) {
            points.back().x = *x;
        } else if (!failed(x.error())) {
            return;
        }
        if (!nextLine(line)) {
            if (!failed(makeError(err::InputPastEnd)))
                return;
            continue;
        }
        if (auto y = shapeCoordinate(line)) {
            points.back().y = *y;
        } else if (!failed(y.error())) {
            return;
        }
    }
}

}  // namespace qor
