#include "core/designer/element_selector.h"

#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr std::string_view kButtonWord = "Bouton";
constexpr std::string_view kTextWord = "Texte";

// The digits at the start of text, as far as they go ("7 (" gives 7).
int leadingWholeNumber(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size() && text[end] >= '0' && text[end] <= '9')
        ++end;
    return end == 0 ? 0 : int(readNumber(text.substr(0, end)));
}

ButtonPanelKind subPanelOf(std::string_view entry)
{
    if (entry.ends_with("o)"))
        return ButtonPanelKind::Media;
    if (entry.ends_with("e)"))
        return ButtonPanelKind::Code;
    return ButtonPanelKind::None;
}

}  // namespace

std::string buttonEntry(int number, std::string_view kind)
{
    return "Bouton " + std::to_string(number) + " (" + std::string(kind) + ")";
}

std::string textEntry(int number)
{
    return "Texte " + std::to_string(number);
}

ParsedEntry parseEntry(std::string_view entry)
{
    if (entry == kWorksheetEntry)
        return {EntryKind::Worksheet, -1, ButtonPanelKind::None};
    if (startsWithNoCase(entry, kButtonWord)) {
        const std::string_view digits = entry.size() > 7 ? entry.substr(7, 3) : std::string_view();
        return {EntryKind::Button, leadingWholeNumber(digits), subPanelOf(entry)};
    }
    if (startsWithNoCase(entry, kTextWord)) {
        const std::string_view rest = entry.size() > 6 ? entry.substr(6) : std::string_view();
        return {EntryKind::Text, leadingWholeNumber(rest), ButtonPanelKind::None};
    }
    return {};
}

int entryToRemove(const std::vector<std::string>& entries, std::string_view prefix, int number)
{
    const std::string wanted = std::string(prefix) + std::to_string(number);
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].starts_with(prefix) && leftChars(entries[i], wanted.size()) == wanted)
            return int(i);
    return -1;
}

}  // namespace qor
