#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include "core/ports/dialogs.h"

class QGridLayout;

namespace qor {

// The small controls the panels are made of.

// A read-only path field with its "..." command and, when asked, "X".
struct PathRow {
    QLineEdit* field = nullptr;
    QPushButton* browse = nullptr;
    QPushButton* clear = nullptr;
};

// Adds at row of grid: the caption, the field, "..." and (withClear) "X".
// The caption is named like the field with "Label" for "Text".
PathRow addPathRow(QGridLayout& grid, int row, const QString& caption, const QString& name, bool withClear);

// A colour swatch: a flat command filled with the colour.
QPushButton* makeSwatch(QWidget* parent, const QString& name);
void showSwatchColour(QPushButton& swatch, Colour colour);

// A check box whose caption wraps onto more lines: the panel is narrow and
// some captions are long. Clicking the caption clicks the box. The caption
// is a label of its own, named like the box with "Label" for "Check"
// ("Check_plein" has "Label_plein"), so a translation sets it by name.
QCheckBox* addWrappedBox(QGridLayout& grid, int row, const QString& caption, const QString& name);

// A caption that wraps in the narrow panel, with its control name.
QLabel* makeCaption(QWidget* parent, const QString& caption, const QString& name);

// A label with its control name.
QLabel* makeLabel(QWidget* parent, const QString& caption, const QString& name);

// A command with a caption and a control name.
QPushButton* makeCommand(QWidget* parent, const QString& caption, const QString& name);
// The same, as narrow as its caption allows ("...", "X", "OK", "+").
QPushButton* makeSmallCommand(QWidget* parent, const QString& caption, const QString& name);

}  // namespace qor
