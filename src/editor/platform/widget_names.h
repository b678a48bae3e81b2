#pragma once

#include <QObject>
#include <QString>

#include <string_view>

#include "core/app/windows.h"

namespace qor {

// Controls are found by name by the translation scripts and the appearance
// rules. A group of controls that share one name (the recent files, the
// plug-in commands, the six menu titles) tells its members apart by their
// "Index" property, numbered from 0.
inline constexpr const char* kIndexProperty = "Index";

// Gives a widget, window or action the control name it is addressed by
// (and its index in a group of one name) and hands it back.
template <class W>
W* named(W* control, const QString& name, int index = -1)
{
    control->setObjectName(name);
    if (index >= 0)
        control->setProperty(kIndexProperty, index);
    return control;
}

template <class W>
W* named(W* control, std::string_view name, int index = -1)
{
    return named(control, QString::fromUtf8(name.data(), qsizetype(name.size())), index);
}

template <class W>
W* named(W* control, const char* name, int index = -1)
{
    return named(control, std::string_view(name), index);
}

// A window takes its internal name ("Form2" ...) from the one list of them.
template <class W>
W* named(W* window, WindowId id)
{
    return named(window, windowName(id));
}

// The index of a control in its group, -1 for a control alone with its name.
inline int controlIndex(const QObject& control)
{
    const QVariant v = control.property(kIndexProperty);
    return v.isValid() ? v.toInt() : -1;
}

}  // namespace qor
