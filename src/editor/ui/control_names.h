#pragma once

#include <QObject>
#include <QString>

namespace qor {

// Controls are found by name by the translation scripts and the appearance
// rules. A group of controls that share one name (the recent files, the
// plug-in commands, the six menu titles) tells its members apart by their
// "Index" property, numbered from 0.
inline constexpr const char* kIndexProperty = "Index";

inline void nameControl(QObject& control, const QString& name, int index = -1)
{
    control.setObjectName(name);
    if (index >= 0)
        control.setProperty(kIndexProperty, index);
}

inline int controlIndex(const QObject& control)
{
    const QVariant v = control.property(kIndexProperty);
    return v.isValid() ? v.toInt() : -1;
}

}  // namespace qor
