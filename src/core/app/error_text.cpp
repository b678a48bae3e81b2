#include "core/app/error_text.h"

namespace qor {

Error inFrench(const Error& error)
{
    return *errorDescription(error.number) ? makeError(error.number) : error;
}

}  // namespace qor
