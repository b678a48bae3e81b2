// The script editor's text rules over arbitrary bytes: the formatter, the
// procedure list and the statement block. Two leading bytes give the caret.
// Besides not crashing, the formatter may only add or drop spaces, change
// letter case and spell "InoutBox" right: anything else it lost or made up
// stops the run.
#include <cstddef>
#include <cstdint>
#include <algorithm>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "core/scripting/procedure_list.h"
#include "core/scripting/script_formatter.h"
#include "core/scripting/statement_block.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

using namespace qor;

namespace {

void require(bool ok)
{
    if (!ok)
        std::abort();
}

// What the formatter must keep: the text without its spaces, in lower case,
// with the one misspelling it corrects taken as corrected.
std::string kept(std::string_view text)
{
    return replaceAll(toLowerText(replaceAll(text, " ", "")), "inoutbox", "inputbox");
}

void checkFormatter(std::string_view text, std::size_t caret)
{
    const std::string formatted = formattedScript(text);
    require(kept(formatted) == kept(text));
    const auto result = formatScript(text, caret);
    if (result) {
        require(result->text == formatted);
        const auto oldLength = static_cast<long long>(utf8Length(text));
        const auto newLength = static_cast<long long>(utf8Length(formatted));
        const long long moved = std::min<long long>(static_cast<long long>(caret), oldLength) + newLength - oldLength + 2;
        require(result->caret == static_cast<std::size_t>(std::clamp(moved, 0LL, newLength)));
    } else {
        require(formatted == text || utf8Length(text) > kMaxFormattedLength);
    }
}

void checkProcedures(std::string_view text)
{
    const auto entries = listProcedures(text);
    // A few entries say as much as all of them, and keep each run short.
    for (const auto& e : std::span(entries).first(std::min<std::size_t>(entries.size(), 8))) {
        require(e.name.size() < e.declaration.size());
        const auto caret = procedureCaret(text, entries, e.name);
        require(caret.has_value() && *caret < utf8Length(text));
    }
}

void checkBlock(std::string_view text, std::size_t caret)
{
    const std::string title(text.substr(0, caret % 80));
    const EditedScript edited = insertStatementBlock(text, {caret, caret % 7}, title, "x = 1");
    require(edited.caret <= utf8Length(edited.text));
    require(edited.text.size() > text.size() - std::min(text.size(), std::size_t(caret % 7) * 4));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::size_t caret = 0;
    if (size >= 2) {
        caret = std::size_t(data[0]) | std::size_t(data[1]) << 8;
        data += 2;
        size -= 2;
    }
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkFormatter(text, caret);
    checkProcedures(text);
    checkBlock(text, caret);
    return 0;
}
