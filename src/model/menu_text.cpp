#include "model/menu_text.h"

namespace qor {

bool MenuText::isLive() const
{
    return visible && content != kDeletedTextContent;
}

bool MenuText::showsScrollBar() const
{
    return !settings.empty() && settings[0] == '1';
}

bool MenuText::isLocked() const
{
    return settings.size() >= 2 && settings[1] == '1';
}

}  // namespace qor
