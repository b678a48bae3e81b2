#pragma once

#include <QString>

namespace qor {

// Gives a new widget the control name that translation scripts and the
// appearance rules address it by, and hands it back.
template <class W>
W* named(W* widget, const char* name)
{
    widget->setObjectName(QString::fromUtf8(name));
    return widget;
}

}  // namespace qor
