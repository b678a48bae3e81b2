#include "core/shape/shape_file.h"

#include <algorithm>
#include <filesystem>

#include "text/line_file.h"

namespace qor {

Error shapeFileNotFound() { return makeError(kShapeFileError, "Fichier introuvable !"); }
Error shapeFileInvalid() { return makeError(kShapeFileError, "Fichier Invalide"); }

namespace {

// The lines of a text one at a time, as forEachLine cuts them (CR LF, LF or
// CR), so that a large file is never copied into a list of lines.
class LineCursor {
public:
    explicit LineCursor(std::string_view text) : text_(text) {}

    bool next(std::string_view& line)
    {
        if (pos_ >= text_.size())
            return false;
        std::size_t end = text_.find_first_of("\r\n", pos_);
        if (end == std::string_view::npos)
            end = text_.size();
        line = text_.substr(pos_, end - pos_);
        pos_ = end + (text_.substr(end, 2) == "\r\n" ? 2 : 1);
        ++taken_;
        return true;
    }
    std::size_t taken() const { return taken_; }

private:
    std::string_view text_;
    std::size_t pos_ = 0;
    std::size_t taken_ = 0;
};

// The shortest point pair the editor writes, "X=0" and "Y=0" with CR LF.
constexpr std::size_t kShortestPair = 10;

}  // namespace

ShapeFileRead readShapeFile(std::string_view bytes)
{
    LineCursor lines(bytes);
    ShapeFileRead read;
    std::string_view first;
    if (!lines.next(first)) {
        // Even the first line is missing: the read past the end comes
        // before anything is taken.
        read.error = makeError(err::InputPastEnd);
        return read;
    }
    if (first != kShapeBlockStart) {
        read.error = shapeFileInvalid();
        return read;
    }
    read.started = true;
    read.points.reserve(bytes.size() / kShortestPair);
    auto nextLine = [&lines](std::string_view& line) { return lines.next(line); };
    auto failed = [&read](const Error& error) {
        read.error = error;
        return false;
    };
    readShapeBlock(read.points, nextLine, failed);
    // The pair being read when the block stopped never became a point:
    // an overflow always stops inside a pair, the end of the file only when
    // it cuts a pair after its X line.
    const bool pairCut = read.error && (read.error->number == err::Overflow || lines.taken() % 2 == 0);
    if (pairCut && !read.points.empty())
        read.points.pop_back();
    return read;
}

ShapeFileRead readShapeFileAt(const std::string& path)
{
    std::error_code ec;
    if (path.empty() || !std::filesystem::is_regular_file(path, ec)) {
        ShapeFileRead read;
        read.error = shapeFileNotFound();
        return read;
    }
    auto bytes = readFileBytes(path);
    if (!bytes) {
        ShapeFileRead read;
        read.error = inFrench(bytes.error());
        return read;
    }
    return readShapeFile(*bytes);
}

std::string shapeFileBytes(const ShapePoints& working, const ShapePoints& project)
{
    std::string out;
    // About 24 bytes a point: no growing through a large shape.
    out.reserve(32 + 24 * std::max(working.size(), project.size()));
    if (!working.empty())
        appendShapeBlock(out, working);
    else if (!project.empty())
        appendShapeBlock(out, project);
    return out;
}

}  // namespace qor
