// The script editor on a 50 000-character script: the formatter that runs
// after Enter, the procedure list rebuilt after every change, and the path
// of one typed character (forbidden-character check, write back into the
// project, timer start).
#include <benchmark/benchmark.h>

#include <string>

#include "core/scripting/procedure_list.h"
#include "core/scripting/script_editor_flow.h"
#include "core/scripting/script_formatter.h"
#include "silent_dialogs.h"
#include "text/utf8.h"

namespace qor {
namespace {

// Only the timer matters on the typing path; it is counted.
class TimerControls : public ScriptEditorControls {
public:
    int started = 0;
    std::string text() const override { return {}; }
    TextSelection selection() const override { return {}; }
    void setText(const std::string&, std::size_t) override {}
    void moveCaretTo(std::size_t) override {}
    bool autoFormat() const override { return true; }
    void startFormatTimer() override {}
    void startProcedureTimer() override { ++started; }
    void showProcedures(const std::vector<ProcedureEntry>&) override {}
    void showCursorChoice(bool) override {}
    void showWaitNotice(bool) override {}
};

// A script as users write them, unformatted: procedures, assignments with
// operators, strings, comments, accented text; exactly 50 000 characters.
std::string script()
{
    const std::string part =
        "'Ouvre la page d'accueil quand l'utilisateur clique\r\n"
        "Public Sub Ouvrir(page)\r\n"
        "  Set exe_f = createobject(\"WScript.Shell\")\r\n"
        "  exe_f.run(chr(34) + \"[lect]:\\\" & page + chr(34))\r\n"
        "End Sub\r\n"
        "function Total(a,b)\r\n"
        "  if a<>b and a>=0 then Total=a*2+b/3-1 else Total=0 endif\r\n"
        "End Function\r\n"
        "x=inputbox(\"Votre nom ?\")\r\n"
        "fenetre.caption=\"Bonjour \"&x : texte1.text=\"élève\"\r\n"
        "msgbox \"Fin = \" & Total(1,2)\r\n";
    std::string text;
    while (utf8Length(text) + utf8Length(part) <= kMaxFormattedLength)
        text += part;
    text += std::string(kMaxFormattedLength - utf8Length(text), 'x');
    return text;
}

void BM_Formatter(benchmark::State& state)
{
    const std::string text = script();
    for (auto _ : state)
        benchmark::DoNotOptimize(formatScript(text, text.size() / 2));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_Formatter)->Unit(benchmark::kMillisecond);

void BM_ProcedureList(benchmark::State& state)
{
    const std::string text = script();
    for (auto _ : state)
        benchmark::DoNotOptimize(listProcedures(text));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(text.size()));
}
BENCHMARK(BM_ProcedureList)->Unit(benchmark::kMillisecond);

// One character typed at the end of the timer script.
void BM_TypedCharacter(benchmark::State& state)
{
    MenuProject project;
    Selection selection;
    bench::SilentDialogs dialogs;
    TimerControls controls;
    ScriptEditorFlow flow(project, selection, dialogs);
    flow.setControls(&controls);
    flow.load(ScriptSlot::Timer);
    std::string text = script();
    for (auto _ : state) {
        text.back() = text.back() == 'x' ? 'y' : 'x';
        benchmark::DoNotOptimize(flow.textChanged(text));
    }
    if (controls.started != int(state.iterations()) || project.timerScript != text)
        state.SkipWithError("the change was not written back");
}
BENCHMARK(BM_TypedCharacter)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qor

BENCHMARK_MAIN();
