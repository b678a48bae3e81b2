#pragma once

#include "silent_dialogs.h"

namespace qor::bench {

// Silent dialogs that answer every message Yes: the flows measured on good
// input go their normal way, and anything asked is still counted.
struct CountingDialogs : SilentDialogs {
    Answer message(const Message&) override { ++asked; return Answer::Yes; }
};

}  // namespace qor::bench
