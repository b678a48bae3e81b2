#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qor {

// Writes the value lines of a positional file, each ended by CR LF, in the
// encodings every such file of the editor shares.
class LineWriter {
public:
    // How a file path is written: the project file applies its relative path
    // rule, another format its own.
    using PathText = std::function<std::string(std::string_view path)>;

    LineWriter(std::string& out, PathText pathText) : out_(out), pathText_(std::move(pathText)) {}

    void line(std::string_view text);

    // A one-line value must not break the positional layout: a stray line
    // break becomes a blank.
    void oneLine(std::string_view text) { appendMapped(text, " "); }

    // Every line break becomes the mark "¤". CR LF is the model's line
    // break; a lone CR or LF is written the same way rather than splitting
    // the value over two lines of the file.
    void multiLine(std::string_view text);

    void number(float value);
    void integer(long long value);
    void flag(bool value) { line(value ? " 1 " : " 0 "); }
    void path(std::string_view p) { oneLine(pathText_(p)); }

    std::string& out() { return out_; }

private:
    void appendMapped(std::string_view text, std::string_view lineBreak);

    std::string& out_;
    PathText pathText_;
};

}  // namespace qor
