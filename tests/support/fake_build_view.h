#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/build/build_view.h"
#include "core/build/compile_view.h"
#include "core/ports/button_baker.h"

namespace qor::test {

// Records what the build showed, in order, as lines of text:
//   "discard dialog", "open dialog <target>|<name>|<author>|<icon>",
//   "notices on" / "notices off", "minimised" / "restored",
//   "watch <program> <argument>...", "bake".
// The watched player "ends" at once, or fails to start with watchError.
class FakeBuildView : public BuildView, public ButtonBaker {
public:
    std::vector<std::string> events;
    std::optional<Error> watchError;
    // Called while the player "runs" (to look at the compiled files then).
    std::function<void()> whilePlayerRuns;

    void discardCompileDialog() override { events.push_back("discard dialog"); }
    void openCompileDialog(const CompileRequest& f, const std::string& icon) override
    {
        events.push_back("open dialog " + f.target + "|" + f.projectName + "|" + f.author + "|" + icon);
    }
    void showNoticePanels(bool shown) override { events.push_back(shown ? "notices on" : "notices off"); }
    void setWorksheetMinimised(bool m) override { events.push_back(m ? "minimised" : "restored"); }
    Status watchPlayer(const std::string& program, const std::vector<std::string>& arguments) override
    {
        std::string line = "watch " + program;
        for (const auto& a : arguments)
            line += " " + a;
        events.push_back(line);
        if (watchError)
            return *watchError;
        if (whilePlayerRuns)
            whilePlayerRuns();
        return {};
    }
    void bakeAllButtons() override { events.push_back("bake"); }
    void bakeButton(int number) override { events.push_back("bake " + std::to_string(number)); }
};

// Records what a compilation showed on its dialog.
class FakeCompileView : public CompileView {
public:
    std::vector<std::string> steps;              // Label3, in order
    std::vector<std::string> statuses;           // Label2, in order
    std::vector<Colour> statusColours;
    std::vector<std::pair<std::uint64_t, std::uint64_t>> progress;
    std::string target;
    std::string instruction;
    std::vector<bool> enabled;                   // each setFieldsEnabled

    void setTarget(const std::string& t) override { target = t; }
    void setFieldsEnabled(bool e) override { enabled.push_back(e); }
    void setStatus(const std::string& text, Colour c) override
    {
        statuses.push_back(text);
        statusColours.push_back(c);
    }
    void setStep(const std::string& text) override { steps.push_back(text); }
    void setProgress(std::uint64_t done, std::uint64_t total) override { progress.emplace_back(done, total); }
    void setInstruction(const std::string& text) override { instruction = text; }
};

}  // namespace qor::test
