#pragma once

#include <QWidget>

#include "core/ports/screen.h"
#include "core/scripting/new_procedure.h"
#include "editor/ui/window_hooks.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QRadioButton;
class QTimer;

namespace qor {

class AssistantPopup;

// The script editor "Code VBS" ("Form5"): a strip of commands above the
// script text, the new procedure panel, the cursor prompt and the notice
// panel. Unlike the designer's tool windows it may be closed: every change
// is already in the project. It decides nothing: keys, commands, list and
// menu choices go out as signals, and the editor's rules come back through
// its show functions.
class ScriptEditorWindow : public QWidget {
    Q_OBJECT
public:
    explicit ScriptEditorWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    QPlainTextEdit* text() const { return text_; }
    QWidget* strip() const { return strip_; }
    QComboBox* procedures() const { return procedures_; }
    QListWidget* declarations() const { return declarations_; }
    QCheckBox* autoFormat() const { return autoFormat_; }
    QWidget* newProcedurePanel() const { return newProcedure_; }
    QLabel* cursorPrompt() const { return cursorPrompt_; }
    QLabel* waitNotice() const { return notice_; }
    AssistantPopup* assistantMenu() const { return assistant_; }
    AssistantPopup* cursorMenu() const { return cursors_; }
    // Timer1 (formatter), Timer2 (blink), Timer3 (procedure list).
    QTimer* formatTimer() const { return formatTimer_; }
    QTimer* blinkTimer() const { return blinkTimer_; }
    QTimer* procedureTimer() const { return procedureTimer_; }

    // The procedure list: its title, then the names; the hidden list holds
    // "RIEN", then the declaration lines, in the same places.
    void showProcedures(const QStringList& names, const QStringList& declarations);
    // The cursor prompt shown and blinking, or hidden and still.
    void showCursorPrompt(bool pending);
    void showWaitNotice(bool shown);
    // The name as it was added; the panel closes.
    void newProcedureAdded(const QString& name);

    // The procedure list stands this far from the strip's right edge.
    static constexpr double kProcedureListMargin = 150;

signals:
    void enterTyped();
    void testRunRequested();
    void procedureChosen(const QString& name);
    void newProcedureConfirmed(const QString& name, ProcedureKind kind, ProcedureScope scope);
    void assistantChosen(const QString& name, int index);
    void cursorChosen(int cursor);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

public:
    // The title for the script being edited ("Code VBS du minuteur" ...), in
    // the interface language.
    void setCaption(const QString& french);

private:
    void buildStrip();
    void buildText();
    void buildNewProcedurePanel();
    void buildOverlays();
    void buildTimers();
    void openNewProcedurePanel();
    void confirmNewProcedure();
    void placeOverlays();

    // The run's hooks: the texts set after loading come in its language.
    const WindowHooks* hooks_ = &WindowHooks::none();
    ScreenMetrics screen_;
    QWidget* strip_ = nullptr;
    QPlainTextEdit* text_ = nullptr;
    QComboBox* procedures_ = nullptr;
    QCheckBox* autoFormat_ = nullptr;
    QListWidget* declarations_ = nullptr;
    QWidget* newProcedure_ = nullptr;
    QLineEdit* procedureName_ = nullptr;
    QRadioButton* function_ = nullptr;
    QRadioButton* sub_ = nullptr;
    QRadioButton* private_ = nullptr;
    QRadioButton* public_ = nullptr;
    QLabel* cursorPrompt_ = nullptr;
    QLabel* notice_ = nullptr;
    AssistantPopup* assistant_ = nullptr;
    AssistantPopup* cursors_ = nullptr;
    QTimer* formatTimer_ = nullptr;
    QTimer* blinkTimer_ = nullptr;
    QTimer* procedureTimer_ = nullptr;
};

}  // namespace qor
