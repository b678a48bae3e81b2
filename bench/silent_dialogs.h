#pragma once

#include "core/ports/dialogs.h"

namespace qor {

// Dialogs for benchmarks: every message is answered Ok, every question is
// cancelled. A benchmark that must not ask anything overrides message().
class SilentDialogs : public Dialogs {
public:
    Answer message(const Message&) override { return Answer::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return {}; }
    std::optional<std::string> pickFolder(const std::string&) override { return {}; }
    std::optional<Colour> pickColour(Colour) override { return {}; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { return {}; }
};

}  // namespace qor
