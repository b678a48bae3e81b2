#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/project/project_file.h"
#include "core/project/project_hooks.h"

namespace qor::test {

// Project hooks and routes that record every call, in order, as one line of text:
//   "resetViews", "folder <f>", "background <path>", "image <n> <path>",
//   "button <n> <kind>", "text <n>", "loading on" / "loading off",
//   "choice Rien" / "choice Média" / "choice VBS", "recent <path>", "qmb <path>".
// Picture loads fail with the error given for their path in failingImages.
class FakeProjectHooks : public ProjectHooks, public ProjectRoutes {
public:
    std::vector<std::string> events;
    std::map<std::string, Error> failingImages;

    void resetViews() override { events.push_back("resetViews"); }
    void setCurrentFolder(const std::string& folder) override { events.push_back("folder " + folder); }
    Status loadBackgroundImage(const std::string& path) override
    {
        events.push_back("background " + path);
        return imageStatus(path);
    }
    Status loadButtonImage(int number, const std::string& path) override
    {
        events.push_back("image " + std::to_string(number) + " " + path);
        return imageStatus(path);
    }
    void buttonCreated(int number, const std::string& kind) override
    {
        events.push_back("button " + std::to_string(number) + " " + kind);
    }
    void textCreated(int number) override { events.push_back("text " + std::to_string(number)); }
    void setLoading(bool loading) override { events.push_back(loading ? "loading on" : "loading off"); }
    void showStartupChoice(StartupChoice choice) override
    {
        events.push_back(choice == StartupChoice::Nothing     ? "choice Rien"
                         : choice == StartupChoice::MediaFile ? "choice Média"
                                                              : "choice VBS");
    }
    void addRecentFile(const std::string& path) override { events.push_back("recent " + path); }
    void importQmb(const std::string& path) override { events.push_back("qmb " + path); }

    // The events that begin with prefix, in order.
    std::vector<std::string> eventsStartingWith(const std::string& prefix) const
    {
        std::vector<std::string> out;
        for (const auto& e : events)
            if (e.compare(0, prefix.size(), prefix) == 0)
                out.push_back(e);
        return out;
    }

private:
    Status imageStatus(const std::string& path) const
    {
        auto it = failingImages.find(path);
        if (it == failingImages.end())
            return {};
        return it->second;
    }
};

}  // namespace qor::test
