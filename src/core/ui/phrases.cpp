#include "core/ui/phrases.h"

namespace qor {

std::string Phrases::text(int number, std::string_view french) const
{
    if (active_ && number >= 0 && std::size_t(number) < list_.size())
        return list_[std::size_t(number)];
    return std::string(french);
}

void Phrases::useLanguage(std::vector<std::string> list)
{
    list_ = std::move(list);
    active_ = true;
}

void Phrases::useFrench()
{
    list_.clear();
    active_ = false;
}

}  // namespace qor
