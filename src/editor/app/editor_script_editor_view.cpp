#include "editor/app/editor_script_editor_view.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>

#include "editor/app/editor_windows.h"
#include "editor/platform/qt_text.h"
#include "editor/scripting/script_editor_window.h"

namespace qor {
namespace {

// Scripts keep CR LF line breaks; the text box speaks "\n".
QString toEditorText(const std::string& script)
{
    return toQt(script).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string fromEditorText(const QString& text)
{
    QString script = text;
    return fromQt(script.replace(QChar('\n'), QStringLiteral("\r\n")));
}

// What the box shows, character for character. toPlainText() would give
// every non-breaking space back as a plain one, and French punctuation in
// a message box needs them.
QString shownText(const QPlainTextEdit* box)
{
    QString text = box->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QChar('\n'));
    text.replace(QChar::LineSeparator, QChar('\n'));
    return text;
}

// A position of the text box (UTF-16, "\n" one) as the script counts it
// (characters, CR LF two).
std::size_t scriptPosition(const QString& text, int position)
{
    std::size_t at = 0;
    for (int i = 0; i < position && i < text.size(); ++i) {
        if (text[i] == QChar('\n'))
            at += 2;
        else if (!text[i].isLowSurrogate() || i == 0 || !text[i - 1].isHighSurrogate())
            at += 1;
    }
    return at;
}

// And back; a position inside a CR LF or a surrogate pair goes past it.
int editorPosition(const QString& text, std::size_t position)
{
    std::size_t at = 0;
    int i = 0;
    while (i < text.size() && at < position) {
        at += text[i] == QChar('\n') ? 2 : 1;
        i += text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2 : 1;
    }
    return i;
}

void placeCaret(QPlainTextEdit* box, int position)
{
    QTextCursor cursor = box->textCursor();
    cursor.setPosition(std::clamp(position, 0, int(box->document()->characterCount() - 1)));
    box->setTextCursor(cursor);
}

}  // namespace

ScriptEditorWindow& EditorScriptEditorView::window()
{
    ScriptEditorWindow& w = windows_.scriptEditor();
    if (!connected_) {
        connected_ = true;
        connectText(w);
        connectCommands(w);
        flow_.setControls(this);
        // As on every load: a first pass of the formatter.
        flow_.formatterTimer();
    }
    return w;
}

ScriptEditorWindow& EditorScriptEditorView::window() const
{
    return windows_.scriptEditor();
}

void EditorScriptEditorView::connectText(ScriptEditorWindow& w)
{
    QPlainTextEdit* text = w.text();
    QObject::connect(text, &QPlainTextEdit::textChanged, text, [this, text] {
        const QString before = shownText(text);
        if (auto cleaned = flow_.textChanged(fromEditorText(before))) {
            // The caret stays where the user was typing, less what went.
            const int caret = text->textCursor().position();
            const QString after = toEditorText(*cleaned);
            text->setPlainText(after);
            placeCaret(text, caret - int(before.size() - after.size()));
        }
    });
    QObject::connect(&w, &ScriptEditorWindow::enterTyped, text, [this] { flow_.enterTyped(); });
    QObject::connect(w.formatTimer(), &QTimer::timeout, text, [this] { flow_.formatterTimer(); });
    QObject::connect(w.procedureTimer(), &QTimer::timeout, text, [this] { flow_.procedureTimer(); });
    QObject::connect(&w, &ScriptEditorWindow::procedureChosen, text,
                     [this](const QString& name) { flow_.procedureChosen(fromQt(name)); });
}

void EditorScriptEditorView::connectCommands(ScriptEditorWindow& w)
{
    QObject::connect(&w, &ScriptEditorWindow::testRunRequested, &w, [this] { flow_.testRun(); });
    QObject::connect(&w, &ScriptEditorWindow::assistantChosen, &w,
                     [this](const QString& name, int index) { flow_.assistantChosen(fromQt(name), index); });
    QObject::connect(&w, &ScriptEditorWindow::cursorChosen, &w, [this](int cursor) { flow_.cursorChosen(cursor); });
    QObject::connect(&w, &ScriptEditorWindow::newProcedureConfirmed, &w,
                     [this, &w](const QString& name, ProcedureKind kind, ProcedureScope scope) {
                         if (auto added = flow_.addProcedure(fromQt(name), kind, scope))
                             w.newProcedureAdded(toQt(*added));
                     });
}

void EditorScriptEditorView::load(const ScriptEditorRequest& request)
{
    ScriptEditorWindow& w = window();
    w.setCaption(toQt(request.title));
    w.text()->setPlainText(toEditorText(request.text));
}

void EditorScriptEditorView::show()
{
    ScriptEditorWindow& w = window();
    w.show();
    w.raise();
    w.activateWindow();
}

void EditorScriptEditorView::hide()
{
    if (windows_.scriptEditorBuilt())
        windows_.scriptEditor().hide();
}

std::string EditorScriptEditorView::text() const
{
    return fromEditorText(shownText(window().text()));
}

TextSelection EditorScriptEditorView::selection() const
{
    const QPlainTextEdit* box = window().text();
    const QString text = shownText(box);
    const QTextCursor cursor = box->textCursor();
    const std::size_t start = scriptPosition(text, cursor.selectionStart());
    return {start, scriptPosition(text, cursor.selectionEnd()) - start};
}

void EditorScriptEditorView::setText(const std::string& text, std::size_t caret)
{
    QPlainTextEdit* box = window().text();
    const QString shown = toEditorText(text);
    box->setPlainText(shown);
    // The change may have been cleaned: place the caret in what is shown.
    placeCaret(box, editorPosition(shownText(box), caret));
    box->setFocus();
}

void EditorScriptEditorView::moveCaretTo(std::size_t caret)
{
    QPlainTextEdit* box = window().text();
    box->moveCursor(QTextCursor::End);
    box->ensureCursorVisible();
    placeCaret(box, editorPosition(shownText(box), caret));
    box->ensureCursorVisible();
    box->setFocus();
}

bool EditorScriptEditorView::autoFormat() const
{
    return window().autoFormat()->isChecked();
}

void EditorScriptEditorView::startFormatTimer()
{
    window().formatTimer()->start();
}

void EditorScriptEditorView::startProcedureTimer()
{
    window().procedureTimer()->start();
}

void EditorScriptEditorView::showProcedures(const std::vector<ProcedureEntry>& entries)
{
    QStringList names, declarations;
    for (const ProcedureEntry& e : entries) {
        names << toQt(e.name);
        declarations << toQt(e.declaration);
    }
    window().showProcedures(names, declarations);
}

void EditorScriptEditorView::showCursorChoice(bool pending)
{
    window().showCursorPrompt(pending);
}

void EditorScriptEditorView::showWaitNotice(bool shown)
{
    window().showWaitNotice(shown);
}

}  // namespace qor
