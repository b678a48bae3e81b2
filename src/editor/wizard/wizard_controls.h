#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <string>
#include <vector>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"

namespace qor::wizard_controls {

// The wizard's controls, each made with its caption and control name.

// Enter in a field presses nothing: each command is pressed for itself.
inline QPushButton* command(const char* caption, const char* name)
{
    auto* b = named(new QPushButton(QString::fromUtf8(caption)), name);
    b->setAutoDefault(false);
    return b;
}

inline QLabel* text(const char* caption, const char* name)
{
    auto* l = named(new QLabel(QString::fromUtf8(caption)), name);
    l->setWordWrap(true);
    return l;
}

// A path chosen with "...": shown, not typed.
inline QLineEdit* pathField(const char* name)
{
    auto* f = named(new QLineEdit, name);
    f->setReadOnly(true);
    return f;
}

// A frame of controls with its title.
inline QGroupBox* frame(const char* title, const char* name, QLayout* layout = nullptr)
{
    auto* f = named(new QGroupBox(QString::fromUtf8(title)), name);
    if (layout)
        f->setLayout(layout);
    return f;
}

// A step's panel: a frame titled "Etape n:" (n from 1) holding its controls.
inline QGroupBox* stepFrame(int step, QLayout* layout)
{
    auto* f = named(new QGroupBox(QStringLiteral("Etape %1:").arg(step + 1)), "Frame" + std::to_string(step + 1));
    f->setLayout(layout);
    return f;
}

// Shows a value without disturbing a field the user is typing in.
inline void display(QLineEdit* field, const std::string& value)
{
    const QString v = toQt(value);
    if (field->text() != v)
        field->setText(v);
}

// A list's lines and its selected line (-1: none).
inline void display(QListWidget* list, const std::vector<std::string>& lines, int selected)
{
    bool same = list->count() == int(lines.size());
    for (int i = 0; same && i < list->count(); ++i)
        same = list->item(i)->text() == toQt(lines[std::size_t(i)]);
    if (!same) {
        list->clear();
        for (const auto& line : lines)
            list->addItem(toQt(line));
    }
    list->setCurrentRow(selected);
    if (selected < 0)
        list->clearSelection();
}

}  // namespace qor::wizard_controls
