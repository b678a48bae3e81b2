// Typing into the script editor as a person types: each key is a key event
// delivered to the widget that holds the focus (the text area, once a click
// put it there), the script goes back to the project on every change, and
// the formatter runs on its timer, here due at once so that the time ends
// with the formatted text. The target: one character under 2 ms.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTimer>

#include <cstdlib>

#include "bench_editor.h"
#include "core/scripting/script_slots.h"
#include "editor/scripting/script_editor_window.h"
#include "qt_benchmarks.h"

namespace {

using namespace qor;

struct Typing {
    bench::BenchEditor<bench::FixedScreen> run;
    ScriptEditorWindow* window = nullptr;
    QPlainTextEdit* text = nullptr;

    Typing()
    {
        run.editor.core().scriptEditor().open(ScriptSlot::Timer);
        window = &run.editor.windows().scriptEditor();
        text = window->text();
        window->formatTimer()->setInterval(0);
        window->activateWindow();
        text->setFocus(Qt::MouseFocusReason);
        QCoreApplication::processEvents();
        clear();
    }

    bool ready() const { return run.running && QApplication::focusWidget() == text; }

    void clear()
    {
        text->clear();
        QCoreApplication::processEvents();
    }

    // One key, pressed and released where the focus is, then the timers due.
    void key(int key, const QString& typed)
    {
        QWidget* target = QApplication::focusWidget();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, typed);
        QApplication::sendEvent(target, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, typed);
        QApplication::sendEvent(target, &release);
        while (window->formatTimer()->isActive())
            QCoreApplication::processEvents();
    }
};

void BM_TypeOneCharacter(benchmark::State& state)
{
    Typing t;
    t.key(Qt::Key_A, QStringLiteral("a"));
    if (!t.ready() || t.text->toPlainText() != QStringLiteral("a")) {
        state.SkipWithError("the keys did not reach the script editor's text area");
        return;
    }
    t.clear();
    int onLine = 0;
    for (auto _ : state) {
        t.key(Qt::Key_A, QStringLiteral("a"));
        if (++onLine == 60) {
            // A script of 60-character lines, cleared now and then so that
            // each key meets a text of the same size.
            state.PauseTiming();
            t.clear();
            onLine = 0;
            state.ResumeTiming();
        }
    }
}
BENCHMARK(BM_TypeOneCharacter)->Unit(benchmark::kMicrosecond);

void BM_ReturnFormatsTheLine(benchmark::State& state)
{
    Typing t;
    if (!t.ready()) {
        state.SkipWithError("the script editor's text area did not take the focus");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        t.clear();
        t.text->insertPlainText(QStringLiteral("if a=b then msgbox fenetre.caption"));
        state.ResumeTiming();
        t.key(Qt::Key_Return, QStringLiteral("\r"));
    }
    if (!t.text->toPlainText().startsWith(QStringLiteral("if a = b then MsgBox")))
        state.SkipWithError("Return did not format the line");
}
BENCHMARK(BM_ReturnFormatsTheLine)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    return qor::bench::runQtBenchmarks(argc, argv);
}
