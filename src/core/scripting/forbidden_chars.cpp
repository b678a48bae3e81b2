#include "core/scripting/forbidden_chars.h"

#include "text/text_helpers.h"

namespace qor {

std::optional<std::string> withoutForbiddenChars(std::string_view text)
{
    for (std::string_view mark : {kLineBreakMark, kLineSeparatorMark})
        if (text.find(mark) != std::string_view::npos)
            return replaceAll(text, mark, "");
    return std::nullopt;
}

Message forbiddenCharMessage()
{
    return {std::string(kForbiddenCharMessage), "Erreur !", MessageIcon::Critical};
}

}  // namespace qor
