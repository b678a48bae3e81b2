#pragma once
// The dialogs a fuzz target reads a project with: each question answered Yes
// or No from a hash of the input, so that both roads are taken; any other
// dialog ends the run, since reading asks nothing else.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/ports/dialogs.h"

namespace qor {

class ScriptedDialogs : public Dialogs {
public:
    explicit ScriptedDialogs(std::uint64_t answers) : answers_(answers) {}
    int asked = 0;

    Answer message(const Message&) override
    {
        bool yes = (answers_ >> (asked++ % 64)) & 1u;
        return yes ? Answer::Yes : Answer::No;
    }
    std::string inputBox(const std::string&, const std::string&, const std::string&) override { std::abort(); }
    std::optional<std::string> openFile(const FileDialogRequest&) override { std::abort(); }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { std::abort(); }
    std::optional<std::string> pickFolder(const std::string&) override { std::abort(); }
    std::optional<Colour> pickColour(Colour) override { std::abort(); }
    std::optional<FontChoice> pickFont(const FontChoice&) override { std::abort(); }

private:
    std::uint64_t answers_;
};

inline std::uint64_t hashOf(std::string_view bytes)
{
    std::uint64_t h = 1469598103934665603ull;
    for (unsigned char c : bytes)
        h = (h ^ c) * 1099511628211ull;
    return h;
}

}  // namespace qor
