#pragma once

#include "core/ports/dialogs.h"

namespace qor::bench {

// A measured run that asks the user anything has gone wrong: each question
// is counted, answered with the plainest answer, and the measure is thrown away.
struct SilentDialogs : Dialogs {
    int asked = 0;
    Answer message(const Message&) override { ++asked; return Answer::Ok; }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { ++asked; return {}; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { ++asked; return {}; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { ++asked; return {}; }
    std::optional<std::string> pickFolder(const std::string&) override { ++asked; return {}; }
    std::optional<Colour> pickColour(Colour) override { ++asked; return {}; }
    std::optional<FontChoice> pickFont(const FontChoice&) override { ++asked; return {}; }
};

}  // namespace qor::bench
