#include "core/project/document.h"

namespace qor {

std::string_view saveAnswerWord(SaveAnswer answer)
{
    switch (answer) {
    case SaveAnswer::Saved: return "enr";
    case SaveAnswer::NotSaved: return "non";
    case SaveAnswer::Cancelled: break;
    }
    return "annule";
}

}  // namespace qor
