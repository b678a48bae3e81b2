#pragma once

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
PathRow addPathRow(QGridLayout& grid, int row, const QString& caption, const QString& name, bool withClear);

// A colour swatch: a flat command filled with the colour.
QPushButton* makeSwatch(QWidget* parent, const QString& name);
void showSwatchColour(QPushButton& swatch, Colour colour);

// A command with a caption and a control name.
QPushButton* makeCommand(QWidget* parent, const QString& caption, const QString& name);

}  // namespace qor
