#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/scripting/assistant_generators.h"
#include "core/scripting/assistant_menu.h"

namespace qor {
namespace {

// Every entry that can be chosen, by name, with the indexes it carries.
void collectLeaves(const std::vector<AssistantEntry>& entries, std::map<std::string, std::vector<int>>& leaves)
{
    for (const auto& e : entries) {
        if (e.children.empty()) {
            EXPECT_FALSE(e.name.empty()) << e.caption;
            leaves[e.name].push_back(e.index);
        } else {
            // Named for translations, never like an entry that writes a statement.
            const auto generators = assistantGeneratorNames();
            EXPECT_FALSE(e.name.empty()) << e.caption;
            EXPECT_EQ(std::find(generators.begin(), generators.end(), e.name), generators.end()) << e.caption;
            collectLeaves(e.children, leaves);
        }
    }
}

TEST(AssistantMenu, EveryEntryHasItsGeneratorAndEveryGeneratorItsEntry)
{
    std::map<std::string, std::vector<int>> leaves;
    collectLeaves(assistantMenu(), leaves);
    std::set<std::string> names;
    for (auto name : assistantGeneratorNames()) {
        EXPECT_TRUE(names.insert(std::string(name)).second) << name << " has two generators";
        EXPECT_TRUE(leaves.count(std::string(name))) << name << " is in no menu entry";
    }
    for (const auto& [name, indexes] : leaves) {
        if (name != kAssistantCancelName) {
            EXPECT_TRUE(names.count(name)) << name << " has no generator";
        }
    }
    EXPECT_EQ(leaves.size(), names.size() + 1);
}

TEST(AssistantMenu, IndexedFamiliesCarryTheirValues)
{
    std::map<std::string, std::vector<int>> leaves;
    collectLeaves(assistantMenu(), leaves);
    for (const auto& [name, indexes] : leaves) {
        const std::map<std::string, std::vector<int>> families{{"aligntxt_mnu", {0, 1, 2}},
                                                               {"forme_sousmenu", {0, 2, 4}}};
        const auto family = families.find(name);
        EXPECT_EQ(indexes, family == families.end() ? std::vector<int>{-1} : family->second) << name;
    }
    std::map<std::string, std::vector<int>> cursors;
    collectLeaves(cursorMenu(), cursors);
    EXPECT_EQ(cursors, (std::map<std::string, std::vector<int>>{{"ccu_mnu", {0, 1, 2, 3, 5, 10, 11, 12, 99}}}));
    EXPECT_EQ(cursorMenu().back().caption, "Personnalisé...");
    EXPECT_EQ(cursorMenu().back().index, kCustomCursor);
}

}  // namespace
}  // namespace qor
