#pragma once

#include <optional>
#include <string>

namespace qor {

enum class WindowShow { Normal, Minimised, Maximised, Hidden };

using ProcessId = long long;

// What the core asks of the desktop: opening things with their default
// application and starting programs.
class Desktop {
public:
    virtual ~Desktop() = default;

    // Opens a document, folder or address with its default application.
    // False when nothing could be started.
    virtual bool open(const std::string& target, WindowShow show) = 0;

    // Starts a program from a command line, without waiting; its process id,
    // or nothing when it could not start.
    virtual std::optional<ProcessId> start(const std::string& commandLine, WindowShow show) = 0;

    // True while the process runs.
    virtual bool isRunning(ProcessId process) = 0;

    virtual void terminate(ProcessId process) = 0;

    // Opens a file in the desktop's plain text editor; false when none could start.
    virtual bool editText(const std::string& path) = 0;
};

}  // namespace qor
