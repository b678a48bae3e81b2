#include "core/scripting/script_lines.h"

#include "text/line_file.h"

namespace qor {

std::vector<std::string_view> scriptLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find(kCrLf); end != std::string_view::npos; end = text.find(kCrLf, start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + kCrLf.size();
    }
    lines.push_back(text.substr(start));
    return lines;
}

}  // namespace qor
