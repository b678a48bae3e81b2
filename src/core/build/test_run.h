#pragma once

#include "core/build/build_context.h"

namespace qor {

// "&Tester le projet": the project compiled as a main menu into the
// program folder's tmp/ ("TEST" as name and author), then the menu player
// started on it while the editor waits, minimised.
class TestRun {
public:
    explicit TestRun(BuildContext& context) : c_(context) {}

    void run();

    // The folder the test compiles into and the player it starts.
    std::string folder() const;
    std::string player() const;
    std::string compiledMenu() const;

private:
    void clearFolder();

    BuildContext& c_;
};

}  // namespace qor
