#include "core/scripting/script_formatter.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "core/scripting/script_lines.h"
#include "text/line_file.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr std::string_view kOperators = "+-*/=&\\><";

// Applied in this order to the whole text, strings and comments included.
// The first three undo what the padding makes of "<>", "<=" and ">=".
struct Rewrite {
    std::string_view from;
    std::string_view to;
};
constexpr std::array<Rewrite, 12> kRewrites{{
    {"<  >", "<>"},
    {"<  =", "<="},
    {">  =", ">="},
    {"[LECT]", "[LECT]"},
    {"[CHEMIN]", "[CHEMIN]"},
    {"[JOINDRE]", "[JOINDRE]"},
    {"MsgBox", "MsgBox"},
    {"InputBox", "InputBox"},
    {"CreateObject", "CreateObject"},
    {"Dim", "Dim"},
    {"InoutBox", "InputBox"},
    {"Endif", "End If"},
}};

// Every pattern is ASCII, so folding ASCII letters is all the matching
// needs, and bytes that are not UTF-8 never stop it.
char foldAscii(char c)
{
    return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c;
}

bool matchesAt(std::string_view text, std::size_t at, std::string_view pattern)
{
    for (std::size_t j = 0; j < pattern.size(); ++j)
        if (foldAscii(text[at + j]) != foldAscii(pattern[j]))
            return false;
    return true;
}

// The next place at or after from that holds c, or null.
const char* nextOf(std::string_view text, char c, std::size_t from, std::size_t last)
{
    return from < last ? static_cast<const char*>(std::memchr(text.data() + from, c, last - from)) : nullptr;
}

// Where the next match starts at or after from, or npos. The first
// character is looked for with memchr, in both cases when it is a letter;
// each case resumes after its own last find, so the walk stays linear.
std::size_t findFrom(std::string_view text, std::string_view pattern, std::size_t from)
{
    const char lower = foldAscii(pattern[0]);
    const char upper = lower >= 'a' && lower <= 'z' ? char(lower - 'a' + 'A') : lower;
    const std::size_t last = text.size() < pattern.size() ? 0 : text.size() - pattern.size() + 1;
    const char* a = nextOf(text, lower, from, last);
    const char* b = upper == lower ? nullptr : nextOf(text, upper, from, last);
    while (a || b) {
        const char* hit = !a ? b : !b ? a : std::min(a, b);
        const auto at = static_cast<std::size_t>(hit - text.data());
        if (matchesAt(text, at, pattern))
            return at;
        if (hit == a)
            a = nextOf(text, lower, at + 1, last);
        if (hit == b)
            b = nextOf(text, upper, at + 1, last);
    }
    return std::string_view::npos;
}

// Replaces every match left to right, a match never overlapping the last.
void applyRewrite(std::string& text, const Rewrite& r)
{
    std::size_t at = findFrom(text, r.from, 0);
    if (at == std::string_view::npos)
        return;
    if (r.from.size() == r.to.size()) {
        for (; at != std::string_view::npos; at = findFrom(text, r.from, at + r.from.size()))
            text.replace(at, r.to.size(), r.to);
        return;
    }
    std::string out;
    out.reserve(text.size() + text.size() / 8);
    std::size_t copied = 0;
    for (; at != std::string_view::npos; at = findFrom(text, r.from, at + r.from.size())) {
        out.append(text, copied, at - copied);
        out += r.to;
        copied = at + r.from.size();
    }
    out.append(text, copied);
    text = std::move(out);
}

constexpr std::array<bool, 256> kIsOperator = [] {
    std::array<bool, 256> table{};
    for (char c : kOperators)
        table[static_cast<unsigned char>(c)] = true;
    return table;
}();

bool isOperator(char c)
{
    return kIsOperator[static_cast<unsigned char>(c)];
}

// Appends the character at line[at] in upper case and says how many bytes it
// took; a byte that starts no valid character is copied as it is.
std::size_t appendUpper(std::string_view line, std::size_t at, std::string& out)
{
    char32_t cp = 0;
    const std::size_t length = decodeUtf8(line, at, cp);
    if (length == 0) {
        out += line[at];
        return 1;
    }
    appendUtf8(out, upperCodePoint(cp));
    return length;
}

void trimSpacesFrom(std::string& out, std::size_t begin)
{
    while (out.size() > begin && out.back() == ' ')
        out.pop_back();
    std::size_t first = begin;
    while (first < out.size() && out[first] == ' ')
        ++first;
    out.erase(begin, first - begin);
}

// One line, rebuilt at the end of out. Neighbours are looked up in the
// unchanged line, so "x=-1" pads both operators. An apostrophe starts a
// comment even inside a string: from there on the line is copied as typed.
void formatLine(std::string_view line, std::string& out)
{
    const std::size_t begin = out.size();
    bool inString = false;
    bool inComment = false;
    for (std::size_t i = 0; i < line.size();) {
        const char c = line[i];
        inString = inString != (c == '"');
        inComment = inComment || c == '\'';
        const bool inner = i != 0 && i + 1 != line.size();
        if (inString || inComment) {
            out += c;
            ++i;
        } else if (isOperator(c) && inner && (line[i - 1] != ' ' || line[i + 1] != ' ')) {
            out += ' ';
            out += c;
            out += ' ';
            ++i;
        } else if (i != 0 && line[i - 1] == '.') {
            i += appendUpper(line, i, out);
        } else {
            out += c;
            ++i;
        }
    }
    trimSpacesFrom(out, begin);
}

}  // namespace

std::string formattedScript(std::string_view text)
{
    std::string out;
    out.reserve(text.size() + text.size() / 4);
    bool first = true;
    for (std::string_view line : scriptLines(text)) {
        if (!first)
            out += kCrLf;
        first = false;
        formatLine(line, out);
    }
    for (const Rewrite& r : kRewrites)
        applyRewrite(out, r);
    return out;
}

std::optional<FormattedScript> formatScript(std::string_view text, std::size_t caret)
{
    const std::size_t oldLength = utf8Length(text);
    if (oldLength > kMaxFormattedLength)
        return std::nullopt;
    std::string out = formattedScript(text);
    if (out == text)
        return std::nullopt;
    // Formatting adds and drops ASCII only and swaps a letter for its
    // capital of the same size, so the text grows in characters as in bytes.
    const auto newLength = static_cast<long long>(oldLength + out.size()) - static_cast<long long>(text.size());
    const long long moved = static_cast<long long>(std::min(caret, oldLength)) + newLength -
                            static_cast<long long>(oldLength) + 2;
    const auto at = static_cast<std::size_t>(std::clamp(moved, 0LL, newLength));
    return FormattedScript{std::move(out), at};
}

}  // namespace qor
