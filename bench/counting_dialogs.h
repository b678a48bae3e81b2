#pragma once

#include "core/ports/dialogs.h"

namespace qor::bench {

// Answers every message Yes, cancels every other dialog, and counts the
// messages: a flow measured on good input asks nothing it should not.
class CountingDialogs : public Dialogs {
public:
    int asked = 0;
    Answer message(const Message&) override { ++asked; return Answer::Yes; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> pickFolder(const std::string&) override { return {}; }
    std::optional<Colour> pickColour(Colour) override { return {}; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { return {}; }
};

}  // namespace qor::bench
