#include "core/wizard/button_list.h"

namespace qor {
namespace {

constexpr std::string_view kPrefix = "Bouton ";

}  // namespace

std::string buttonListLine(int k, bool isText)
{
    return std::string(kPrefix) + std::to_string(k) + (isText ? " (Texte)" : " (Graphique)");
}

std::optional<int> buttonNumberOfLine(std::string_view line)
{
    if (!line.starts_with(kPrefix))
        return std::nullopt;
    line.remove_prefix(kPrefix.size());
    const std::size_t end = line.find(' ');
    const std::string_view digits = line.substr(0, end);
    if (digits.empty() || digits.size() > 9)
        return std::nullopt;
    int k = 0;
    for (char c : digits) {
        if (c < '0' || c > '9')
            return std::nullopt;
        k = k * 10 + (c - '0');
    }
    return k;
}

}  // namespace qor
