#include "editor/app/editor_script_editor_view.h"

#include <QPlainTextEdit>
#include <QTextCursor>

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

}  // namespace

ScriptEditorWindow& EditorScriptEditorView::window()
{
    ScriptEditorWindow& w = windows_.scriptEditor();
    if (!connected_) {
        connected_ = true;
        QPlainTextEdit* text = w.text();
        QObject::connect(text, &QPlainTextEdit::textChanged, text, [this, text] {
            const QString before = text->toPlainText();
            if (auto cleaned = flow_.textChanged(fromEditorText(before))) {
                // The caret stays where the user was typing, less what went.
                const int caret = text->textCursor().position();
                const QString after = toEditorText(*cleaned);
                text->setPlainText(after);
                QTextCursor cursor = text->textCursor();
                cursor.setPosition(std::clamp(caret - int(before.size() - after.size()), 0, int(after.size())));
                text->setTextCursor(cursor);
            }
        });
    }
    return w;
}

void EditorScriptEditorView::load(const ScriptEditorRequest& request)
{
    ScriptEditorWindow& w = window();
    w.setWindowTitle(toQt(request.title));
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

}  // namespace qor
