#pragma once

#include "core/error.h"

namespace qor {

// File errors carry the system's own text (in the system's language); the
// user reads our French description of the same number where we have one.
Error inFrench(const Error& error);

}  // namespace qor
