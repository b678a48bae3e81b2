#pragma once

#include <optional>
#include <string>
#include <utility>

#include "core/ports/dialogs.h"

namespace qor::test {

// What the assistant is given for every path and name it asks.
inline constexpr const char* kAnyPath = "[LECT]:\\mon dossier\\fichier 1.txt";

// Answers every question of the assistant the way a user would, picked by
// what the prompt asks for.
class AnsweringDialogs : public Dialogs {
public:
    explicit AnsweringDialogs(std::string messageType = "information") : type_(std::move(messageType)) {}

    std::string inputBox(const std::string& prompt, const std::string&, const std::string&) override
    {
        const std::pair<const char*, std::string> answers[] = {
            {"Numéro", "2"},
            {"Type  (", type_},
            {"Boîte de texte dans laquelle", "Texte1"},
            {"Lettre du lecteur", "e"},
            {"Nouveau X", "10"},
            {"Nouveau Y", "-20"},
            {"Nouvelle largeur", "300"},
            {"Nouvelle hauteur", "1.5"},
            {"épaisseur", "3"},
            {"intervalle", "1000"},
            {"Nouveau texte", "Ligne 1[R]Ligne 2"},
            {"Message", "Il dit \"oui\"[R]à tous"},
        };
        for (const auto& [fragment, answer] : answers)
            if (prompt.find(fragment) != std::string::npos)
                return answer;
        return kAnyPath;
    }
    Answer message(const Message&) override { return Answer::Ok; }
    std::optional<std::string> openFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFile(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> pickFolder(const std::string&) override { return std::nullopt; }
    std::optional<Colour> pickColour(Colour) override { return 0x00FF8040; }
    std::optional<FontChoice> pickFont(const FontChoice&) override
    {
        return FontChoice{"Comic Sans MS", 9.75, true, false, true, false};
    }

private:
    std::string type_;
};

}  // namespace qor::test
