#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The phrase list: the numbered texts of the current interface language.
// Every message that has a phrase number asks for it here with its built-in
// French text; with French (no language active) the French text comes back.
class Phrases {
public:
    // The text of phrase number, or french when no language is active or the
    // language's list has no such phrase.
    std::string text(int number, std::string_view french) const;

    // True while an interface language other than the built-in French is in use.
    bool languageActive() const { return active_; }

    // Switches to a language's phrase list (phrase n at index n).
    void useLanguage(std::vector<std::string> list);

    // Back to the built-in French texts (a translation script failed, say).
    void useFrench();

private:
    std::vector<std::string> list_;
    bool active_ = false;
};

}  // namespace qor
