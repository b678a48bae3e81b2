#pragma once

#include <QWidget>

#include "core/ports/screen.h"
#include "editor/ui/window_hooks.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace qor {

// The script editor "Code VBS" ("Form5"): a strip of commands above the
// script text. Unlike the designer's tool windows it may be closed: every
// change is already in the project. Formatting, the procedure list, the new
// procedure panel and the test run arrive with the scripting part; until
// then its commands are disabled.
class ScriptEditorWindow : public QWidget {
    Q_OBJECT
public:
    explicit ScriptEditorWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    QPlainTextEdit* text() const { return text_; }
    QWidget* strip() const { return strip_; }
    QComboBox* procedures() const { return procedures_; }
    QCheckBox* autoFormat() const { return autoFormat_; }
    QWidget* newProcedurePanel() const { return newProcedure_; }

    // The procedure list stands this far from the strip's right edge.
    static constexpr double kProcedureListMargin = 150;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ScreenMetrics screen_;
    QWidget* strip_ = nullptr;
    QPlainTextEdit* text_ = nullptr;
    QComboBox* procedures_ = nullptr;
    QCheckBox* autoFormat_ = nullptr;
    QListWidget* declarations_ = nullptr;
    QWidget* newProcedure_ = nullptr;
};

}  // namespace qor
