#include "editor/ui/window_hooks.h"

namespace qor {

void WindowHooks::translate(QWidget&) {}

void WindowHooks::applyAppearance(QWidget&) {}

QString WindowHooks::phrase(int, const QString& french) const
{
    return french;
}

WindowHooks& WindowHooks::none()
{
    static WindowHooks hooks;
    return hooks;
}

void runLoadHooks(QWidget& window, WindowHooks& hooks)
{
    hooks.translate(window);
    hooks.applyAppearance(window);
}

}  // namespace qor
