#include "model/shape_block.h"

#include <charconv>

#include "text/line_file.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

void appendInteger(std::string& out, std::int32_t value)
{
    char buf[16];
    auto res = std::to_chars(buf, buf + sizeof buf, value);
    out.append(buf, res.ptr);
}

bool isIgnoredInNumber(char c) { return c == ' ' || c == '\t' || c == '\n'; }

}  // namespace

void appendShapeBlock(std::string& out, const ShapePoints& points)
{
    out += kShapeBlockStart;
    out += kCrLf;
    for (const auto& p : points) {
        out += "X=";
        appendInteger(out, p.x);
        out += kCrLf;
        out += "Y=";
        appendInteger(out, p.y);
        out += kCrLf;
    }
    out += kShapeBlockEnd;
    out += kCrLf;
}

std::vector<std::string> shapeBlockLines(const ShapePoints& points)
{
    std::string text;
    appendShapeBlock(text, points);
    return splitLines(text);
}

namespace {

// The lines the editor writes ("X=-1200"): up to nine digits after an
// optional minus sign always fit and need none of the lenient reading,
// which a large shape would otherwise pay for on every line.
bool plainInteger(std::string_view text, std::int32_t& value)
{
    const std::size_t digits = text.size() - (text.starts_with('-') ? 1 : 0);
    if (digits == 0 || digits > 9)
        return false;
    auto res = std::from_chars(text.data(), text.data() + text.size(), value);
    return res.ec == std::errc() && res.ptr == text.data() + text.size();
}

}  // namespace

Result<std::int32_t> shapeCoordinate(std::string_view line)
{
    std::string_view rest = dropChars(line, 2);
    if (std::int32_t value = 0; plainInteger(rest, value))
        return value;
    // Blanks inside the number do not end it here ("X=1 200" is 1200), so
    // they go before the ordinary lenient reading.
    std::string packed;
    bool hasIgnored = false;
    for (char c : rest)
        hasIgnored = hasIgnored || isIgnoredInNumber(c);
    if (hasIgnored) {
        packed.reserve(rest.size());
        for (char c : rest)
            if (!isIgnoredInNumber(c))
                packed.push_back(c);
        rest = packed;
    }
    return readInt32(rest);
}

}  // namespace qor
