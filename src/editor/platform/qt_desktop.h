#pragma once

#include "core/ports/desktop.h"
#include "editor/platform/text_editor_choice.h"

class QUrl;

namespace qor {

// The Desktop port: documents, folders, web and e-mail addresses go to the
// desktop's default applications; programs start detached from the editor,
// so that they outlive it, and are followed by their process id.
//
// The desktop decides how the windows it opens are shown: the requested
// window state is honoured only where a program can be asked for it.
class QtDesktop : public Desktop {
public:
    QtDesktop();

    bool open(const std::string& target, WindowShow show) override;
    std::optional<ProcessId> start(const std::string& commandLine, WindowShow show) override;
    bool isRunning(ProcessId process) override;
    void terminate(ProcessId process) override;
    bool editText(const std::string& path) override;

    // The machine as the text editor choice sees it; tests replace it.
    TextEditorEnvironment& textEditorEnvironment() { return environment_; }

private:
    TextEditorEnvironment environment_;
};

// The address to open for a target: a URL with a scheme as it stands
// ("http://...", "mailto:..."), anything else as a file path taken from the
// current folder ("index.htm" opens the current folder's index.htm).
QUrl urlOfTarget(const std::string& target);

// The Exec line of the desktop's default application for plain text, as the
// desktop's association files name it, or "".
QString defaultTextEditorExec();

}  // namespace qor
