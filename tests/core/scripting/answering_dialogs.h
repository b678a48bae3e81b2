#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/scripting/assistant_generators.h"
#include "core/scripting/assistant_menu.h"

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


// Every statement the assistant can write, answered as above: run(block,
// context) once per entry of the menu and once per cursor of each entry that
// asks for a cursor. A generator that writes nothing fails the test.
template <class Run>
void forEveryAssistantStatement(const std::vector<AssistantEntry>& entries, Run&& run)
{
    for (const AssistantEntry& e : entries) {
        if (!e.children.empty()) {
            forEveryAssistantStatement(e.children, run);
            continue;
        }
        if (e.name == kAssistantCancelName)
            continue;
        AnsweringDialogs dialogs;
        const AssistantResult result = runAssistantEntry(e.name, e.index, dialogs);
        const std::string context = e.name + " " + std::to_string(e.index);
        if (result.cursorObject) {
            for (const AssistantEntry& cursor : cursorMenu()) {
                const auto block = cursorStatement(*result.cursorObject, cursor.index, dialogs);
                ASSERT_TRUE(block) << context << " cursor " << cursor.index;
                run(*block, context + " cursor " + std::to_string(cursor.index));
            }
            continue;
        }
        ASSERT_TRUE(result.block) << context;
        run(*result.block, context);
    }
}

}  // namespace qor::test
