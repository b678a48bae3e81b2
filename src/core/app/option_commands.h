#pragma once

#include "core/app/app_state.h"
#include "core/app/shell_view.h"
#include "core/ports/dialogs.h"
#include "core/ui/commands.h"
#include "text/error.h"

namespace qor {

// The five check-mark options of the "&Options" menu and the options file
// that remembers them with the current appearance.
class OptionCommands {
public:
    OptionCommands(AppState& state, ShellView& view, Dialogs& dialogs)
        : state_(state), view_(view), dialogs_(dialogs) {}

    // True for the five check-mark commands.
    static bool isOption(CommandId id);

    // The option's command: flips its check mark, applies it (pointer,
    // mouse-position window, selection handles; the wizard and multimedia
    // options act later, when they are consulted) and writes the options.
    void run(CommandId option);

    // Shows the initial marks, then reads "qor_options.ini" if it exists
    // (the main window's load). Each of
    // the first three options is set to the opposite of the wanted state and
    // its command run, so that its effect is applied exactly as a click would.
    // A file that cannot be read is reported as the error returned.
    Status read();

    // Rewrites the nine lines from the marks and the current appearance,
    // unless the file is being read. A failure is shown and returned.
    Status write();

    bool mark(CommandId option) const;

private:
    bool& markRef(CommandId option);
    void apply(CommandId option);

    AppState& state_;
    ShellView& view_;
    Dialogs& dialogs_;
};

// The message shown when the options file cannot be written.
Message optionsNotSavedMessage(const Error& error);

}  // namespace qor
