#pragma once

#include <QString>

class QWidget;

namespace qor {

// What every window runs when it loads, after its controls exist: the
// translation script of the interface language, then the current colour
// appearance. The window passes itself; its object name ("Form1" ...) and
// its controls' names are what the scripts and the appearance rules address.
// The base class does nothing: the editor starts in French with the
// platform's own colours until languages and appearances are wired in.
class WindowHooks {
public:
    virtual ~WindowHooks() = default;

    virtual void translate(QWidget& window);
    virtual void applyAppearance(QWidget& window);

    // A text a window sets after it loaded (a placeholder, a step header, a
    // status line): phrase number of the interface language, or french.
    virtual QString phrase(int number, const QString& french) const;

    // Hooks that do nothing.
    static WindowHooks& none();
};

// The load step shared by all windows: translate, then colour.
void runLoadHooks(QWidget& window, WindowHooks& hooks);

}  // namespace qor
