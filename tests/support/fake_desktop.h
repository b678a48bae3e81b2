#pragma once

#include <set>
#include <string>
#include <vector>

#include "core/ports/desktop.h"

namespace qor::test {

// Records what the core asked the desktop to do.
class FakeDesktop : public Desktop {
public:
    struct Opened {
        std::string target;
        WindowShow show;
        friend bool operator==(const Opened&, const Opened&) = default;
    };
    struct Started {
        std::string commandLine;
        WindowShow show;
        friend bool operator==(const Started&, const Started&) = default;
    };

    std::vector<Opened> opened;
    std::vector<Started> started;
    std::vector<std::string> edited;
    std::vector<ProcessId> terminated;
    std::set<ProcessId> running;

    bool openSucceeds = true;
    bool startSucceeds = true;
    bool editSucceeds = true;
    ProcessId nextProcess = 1000;

    bool open(const std::string& target, WindowShow show) override
    {
        opened.push_back({target, show});
        return openSucceeds;
    }

    std::optional<ProcessId> start(const std::string& commandLine, WindowShow show) override
    {
        started.push_back({commandLine, show});
        if (!startSucceeds)
            return std::nullopt;
        running.insert(nextProcess);
        return nextProcess++;
    }

    bool isRunning(ProcessId p) override { return running.count(p) > 0; }

    void terminate(ProcessId p) override
    {
        terminated.push_back(p);
        running.erase(p);
    }

    bool editText(const std::string& path) override
    {
        edited.push_back(path);
        return editSucceeds;
    }
};

}  // namespace qor::test
