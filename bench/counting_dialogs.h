#pragma once

#include "silent_dialogs.h"

namespace qor::bench {

// Answers every message Yes, cancels every other dialog, and counts the
// messages: a flow measured on good input asks nothing it should not.
class CountingDialogs : public SilentDialogs {
public:
    int asked = 0;
    Answer message(const Message&) override { ++asked; return Answer::Yes; }
};

}  // namespace qor::bench
