#include "core/scripting/statement_block.h"

#include <algorithm>

#include "text/line_file.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr std::size_t kBlockWidth = 60;

std::string hashes(std::ptrdiff_t count)
{
    return std::string(static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)), '#');
}

}  // namespace

std::string statementBlock(std::string_view title, std::string_view statement)
{
    std::string t(title);
    if (utf8Length(t) % 2 == 0)
        t += ' ';
    const auto k = (static_cast<std::ptrdiff_t>(kBlockWidth) - static_cast<std::ptrdiff_t>(utf8Length(t))) / 2;
    std::string block(kCrLf);
    block += "'" + hashes(k) + t + hashes(k) + std::string(kCrLf);
    block += std::string(statement) + std::string(kCrLf);
    block += "'" + hashes(k - 2) + "Fin " + toLowerText(t) + hashes(k - 2) + std::string(kCrLf);
    return block;
}

EditedScript insertStatementBlock(std::string_view text, TextSelection selection, std::string_view title,
                                  std::string_view statement)
{
    const std::size_t from = byteOffsetOfChar(text, selection.start);
    const std::size_t to = byteOffsetOfChar(text, selection.start + selection.length);
    const std::string block = statementBlock(title, statement);
    std::string out(text.substr(0, from));
    out += block;
    const std::size_t caret = utf8Length(out);
    out += text.substr(to);
    return {std::move(out), caret};
}

}  // namespace qor
