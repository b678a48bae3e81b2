// The module model (texts added one after the other, procedures run by
// name, expressions evaluated, reset) and the safety limits.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "fake_script_host.h"
#include "script/builtins.h"
#include "script/operations.h"

namespace qor::script::test {
namespace {

TEST(ModuleModel, LaterTextsSeeEarlierProceduresConstantsAndVariables)
{
    FakeScriptHost host;
    Module module(&host);
    ASSERT_TRUE(module.addCode("Const Titre = \"Menu\"\r\nDim compteur\r\ncompteur = 10\r\n"
                               "Sub Compter()\r\n  compteur = compteur + 1\r\nEnd Sub\r\n"
                               "Function Double(x)\r\n  Double = 2 * x\r\nEnd Function")
                    .ok());
    ASSERT_TRUE(module.addCode("Compter\r\nCompter").ok());
    ASSERT_TRUE(module.addCode("MsgBox Titre & \" \" & compteur & \" \" & Double(compteur)").ok());
    EXPECT_EQ(host.output(), "Menu 12 24");
    EXPECT_TRUE(module.hasProcedure("compter"));
    EXPECT_FALSE(module.hasProcedure("Titre"));
}

TEST(ModuleModel, RunCallsAProcedureByNameWithArguments)
{
    Module module;
    ASSERT_TRUE(module.addCode("Function Somme(a, b)\r\n  Somme = a + b\r\nEnd Function\r\nSub Rien()\r\nEnd Sub").ok());
    RunResult r = module.run("SOMME", {Value::integer(2), Value::string("3")});
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(toText(r.value), "5");
    EXPECT_TRUE(module.run("Rien").value.isEmpty());

    r = module.run("Somme", {Value::integer(1)});
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 450);
    r = module.run("Absente");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 35);
    EXPECT_EQ(module.lastError()->number, 35);
}

TEST(ModuleModel, EvalGivesTheValueOfAnExpression)
{
    Module module;
    ASSERT_TRUE(module.addCode("x = 20\r\nFunction Moitie(v)\r\n  Moitie = v / 2\r\nEnd Function").ok());
    RunResult r = module.eval("Moitie(x) + 1");
    ASSERT_TRUE(r.ok());
    EXPECT_EQ(r.value.type(), Type::Double);
    EXPECT_EQ(toText(r.value), "11");
    r = module.eval("x +");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 1023);
    r = module.eval("x / 0");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 11);
}

TEST(ModuleModel, ASyntaxErrorLeavesTheModuleAsItWas)
{
    FakeScriptHost host;
    Module module(&host);
    ASSERT_TRUE(module.addCode("Function F()\r\n  F = 1\r\nEnd Function").ok());
    RunResult r = module.addCode("Function F()\r\n  F = 2\r\nEnd Function\r\nMsgBox \"ran\"\r\nx = (");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->line, 5);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(toText(module.run("F").value), "1");
}

TEST(ModuleModel, ARunTimeErrorKeepsWhatRanBeforeIt)
{
    Module module;
    RunResult r = module.addCode("a = 1\r\nb = 2\r\nc = a / 0\r\nd = 4");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->line, 3);
    EXPECT_EQ(toText(module.eval("a & b & IsEmpty(c) & IsEmpty(d)").value), "12TrueTrue");
}

TEST(ModuleModel, RunCodeRunsATextAgainFromItsCompiledFormWithTheSameEffects)
{
    FakeScriptHost host;
    Module module(&host);
    const std::string tick = "n = n + 1\r\nSub Montrer()\r\n MsgBox n\r\nEnd Sub";
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(module.runCode(tick).ok());
    ASSERT_TRUE(module.runCode("Montrer").ok());
    // A procedure redefined by another text comes back when the first runs again.
    ASSERT_TRUE(module.addCode("Sub Montrer()\r\n MsgBox \"autre\"\r\nEnd Sub").ok());
    ASSERT_TRUE(module.runCode("Montrer").ok());
    ASSERT_TRUE(module.runCode(tick).ok());
    ASSERT_TRUE(module.runCode("Montrer").ok());
    EXPECT_EQ(host.output(), "3|autre|4");
    // A syntax error is reported each time, never cached as a text that runs.
    EXPECT_EQ(module.runCode("If").error->number, module.runCode("If").error->number);
    EXPECT_FALSE(module.runCode("If").ok());
    module.reset();
    ASSERT_TRUE(module.runCode(tick).ok());
    EXPECT_EQ(module.eval("n").value.asInt(), 1);
}

TEST(ModuleModel, ResetForgetsEverything)
{
    Module module;
    ASSERT_TRUE(module.addCode("x = 5\r\nSub P()\r\nEnd Sub").ok());
    module.reset();
    EXPECT_FALSE(module.hasProcedure("P"));
    EXPECT_TRUE(module.eval("x").value.isEmpty());
}

// ---- Safety ----

TEST(Safety, TheStepBudgetEndsARunawayLoopEvenUnderResumeNext)
{
    const char* loops[] = {
        "Do\r\nLoop",
        "On Error Resume Next\r\nWhile True\r\n  x = x + 1\r\nWend",
        "Sub A()\r\n  B\r\nEnd Sub\r\nSub B()\r\n  A\r\nEnd Sub\r\nOn Error Resume Next\r\nDo\r\n  A\r\nLoop",
        "For i = 1 To 2\r\n  i = 1\r\nNext",
    };
    for (const char* code : loops) {
        Module module;
        module.setStepBudget(100000);
        RunResult r = module.addCode(code);
        ASSERT_FALSE(r.ok()) << code;
        EXPECT_EQ(r.error->number, 18) << code;
        EXPECT_TRUE(r.error->fatal);
        // The budget is per run: the module goes on working.
        EXPECT_TRUE(module.addCode("y = 1").ok());
    }
}

TEST(Safety, ABudgetLeavesBoundedLoopsAlone)
{
    Module module;
    module.setStepBudget(1000);
    EXPECT_TRUE(module.addCode("For i = 1 To 500\r\nNext").ok());
    EXPECT_TRUE(module.addCode("For i = 1 To 500\r\nNext").ok());
}

class StoppingHost : public FakeScriptHost {
public:
    Module* module = nullptr;
    int msgBox(const MsgBoxRequest& r) override
    {
        module->requestStop();
        return FakeScriptHost::msgBox(r);
    }
};

TEST(Safety, AStopRequestEndsTheRunningScript)
{
    StoppingHost host;
    Module module(&host);
    host.module = &module;
    RunResult r = module.addCode("MsgBox \"stop me\"\r\nOn Error Resume Next\r\nDo\r\n  n = n + 1\r\nLoop");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 18);
    EXPECT_EQ(r.error->line, 4);
    // A stop request is for the run it interrupts only.
    EXPECT_TRUE(module.addCode("m = 1").ok());
}

TEST(Safety, AStopRequestFromAnotherThreadEndsAnEndlessLoop)
{
    Module module;
    std::atomic<bool> started{false};
    std::thread stopper([&] {
        while (!started.load())
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        module.requestStop();
    });
    started = true;
    RunResult r = module.addCode("Do\r\n  n = n + 1\r\nLoop");
    stopper.join();
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 18);
}

TEST(Safety, DeepRecursionFailsWithOutOfStackSpace)
{
    Module module;
    RunResult r = module.addCode("Function Down(n)\r\n  Down = Down(n + 1) + 1\r\nEnd Function\r\nx = Down(1)");
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 28);
    // Trapped, the error unwinds the whole chain and the script goes on.
    r = module.addCode("Function Down2(n)\r\n  On Error Resume Next\r\n  Down2 = 1\r\n  Down2 = Down2(n + 1) + 1\r\nEnd Function\r\nx = Down2(1)\r\nMsgBox x");
    EXPECT_TRUE(r.ok());
}

TEST(Safety, DeepNestingFailsBeforeRunning)
{
    std::vector<std::string> texts;
    texts.push_back("x = " + std::string(5000, '(') + "1" + std::string(5000, ')'));
    std::string ifs;
    for (int i = 0; i < 3000; ++i)
        ifs += "If True Then\r\n";
    texts.push_back(ifs);
    std::string sum = "x = 1";
    for (int i = 0; i < 20000; ++i)
        sum += " + 1";
    texts.push_back(sum);
    texts.push_back("x = " + std::string(20000, '-') + "1");
    texts.push_back("x = a" + std::string(20000, '.') );
    std::string calls = "x = ";
    for (int i = 0; i < 3000; ++i)
        calls += "Len(";
    texts.push_back(calls + "1" + std::string(3000, ')'));
    for (const auto& t : texts) {
        Module module;
        RunResult r = module.addCode(t);
        ASSERT_FALSE(r.ok()) << t.substr(0, 40);
        EXPECT_TRUE(r.error->number == 28 || r.error->number == 1010) << r.error->number << " " << t.substr(0, 40);
    }
}

TEST(Safety, ReasonableNestingStillRuns)
{
    Module module;
    std::string code = "x = " + std::string(100, '(') + "1" + std::string(100, ')') + "\r\n";
    for (int i = 0; i < 50; ++i)
        code += "If x = 1 Then\r\n";
    code += "y = 2\r\n";
    for (int i = 0; i < 50; ++i)
        code += "End If\r\n";
    ASSERT_TRUE(module.addCode(code).ok());
    EXPECT_EQ(toText(module.eval("y").value), "2");
}

// Lower limits for the duration of a test.
class SmallMemory {
public:
    SmallMemory() : saved_(memoryLimits())
    {
        memoryLimits().maxStringBytes = 8 << 20;
        memoryLimits().maxLiveStringBytes = 32 << 20;
    }
    ~SmallMemory() { memoryLimits() = saved_; }

private:
    MemoryLimits saved_;
};

TEST(Safety, HugeStringsFailInsteadOfExhaustingMemory)
{
    (void)findBuiltinConstant("vbCrLf");  // the constants' own strings live for the whole process
    std::size_t before = liveStringBytes();
    for (const char* t : {"s = String(2000000000, \"x\")", "s = Space(300000000)", "Dim a(100000, 100000)"}) {
        Module module;
        RunResult r = module.addCode(t);
        ASSERT_FALSE(r.ok()) << t;
        EXPECT_TRUE(r.error->number == 14 || r.error->number == 7) << t << " " << r.error->number;
    }
    SmallMemory limits;
    const char* texts[] = {
        "s = \"x\"\r\nDo\r\n  s = s & s\r\nLoop",
        "s = \"xx\"\r\nDo\r\n  s = Replace(s, \"x\", \"xx\")\r\nLoop",
        "Dim a(10000)\r\nFor i = 0 To 10000\r\n  a(i) = Space(1000000) & i\r\nNext",
    };
    for (const char* t : texts) {
        Module module;
        RunResult r = module.addCode(t);
        ASSERT_FALSE(r.ok()) << t;
        EXPECT_TRUE(r.error->number == 14 || r.error->number == 7) << t << " " << r.error->number;
    }
    EXPECT_EQ(liveStringBytes(), before);
}

TEST(Safety, StringsAndArraysAreFreedAfterRuns)
{
    (void)findBuiltinConstant("vbCrLf");  // the constants' own strings live for the whole process
    std::size_t before = liveStringBytes();
    {
        Module module;
        ASSERT_TRUE(module.addCode("Dim a(100)\r\nFor i = 0 To 100\r\n  a(i) = String(1000, \"x\") & i\r\nNext\r\nb = a\r\nb(0) = \"y\"").ok());
        EXPECT_GT(liveStringBytes(), before + 100000u);
    }
    EXPECT_EQ(liveStringBytes(), before);
}

}  // namespace
}  // namespace qor::script::test

namespace qor::script::test {
namespace {

// A host whose message box runs more script in the same module, as a menu
// player does when its timer fires while a message is shown.
class ReentrantHost : public FakeScriptHost {
public:
    Module* module = nullptr;
    std::vector<std::string> inner;
    int msgBox(const MsgBoxRequest& r) override
    {
        if (r.prompt == "outer") {
            RunResult a = module->addCode("ticks = ticks + 1\r\nMsgBox \"inner \" & ticks");
            RunResult b = module->eval("Twice(ticks)");
            inner.push_back(a.ok() && b.ok() ? toText(b.value) : "error");
        }
        return FakeScriptHost::msgBox(r);
    }
};

TEST(ModuleModel, ScriptsCanRunWhileAnotherWaitsOnAMessage)
{
    ReentrantHost host;
    Module module(&host);
    host.module = &module;
    ASSERT_TRUE(module.addCode("Function Twice(v)\r\n  Twice = 2 * v\r\nEnd Function\r\nticks = 10").ok());
    RunResult r = module.addCode("Sub Show(n)\r\n  Dim local\r\n  local = n\r\n  MsgBox \"outer\"\r\n  MsgBox \"after \" & local & \" \" & ticks\r\nEnd Sub\r\nShow 7");
    ASSERT_TRUE(r.ok()) << r.error->description;
    EXPECT_EQ(host.inner, (std::vector<std::string>{"22"}));
    EXPECT_EQ(host.output(), "inner 11|outer|after 7 11");
}

TEST(ModuleModel, ExecuteStatementRunsInTheModule)
{
    FakeScriptHost host;
    Module module(&host);
    ASSERT_TRUE(module.addCode("Dim total\r\nSub Add(n)\r\n  total = total + n\r\nEnd Sub").ok());
    ASSERT_TRUE(module.executeStatement("Add 2 : Add 3").ok());
    EXPECT_EQ(toText(module.eval("total").value), "5");
}

// Module variables: texts run one after the other in one module, each
// maybe giving a name another meaning, with what the message boxes show
// and the error the last text stops with. A message "RUN:text" runs that
// text while the script that showed it waits, as a host callback may.
struct ModuleCase {
    const char* name;
    std::vector<std::string> texts;
    const char* output;
    int error = 0;
    int line = 0;
};

void PrintTo(const ModuleCase& c, std::ostream* os) { *os << c.name; }

class RunningHost : public FakeScriptHost {
public:
    Module* module = nullptr;
    int msgBox(const MsgBoxRequest& r) override
    {
        if (r.prompt.rfind("RUN:", 0) == 0)
            module->addCode(r.prompt.substr(4));
        return FakeScriptHost::msgBox(r);
    }
};

// count assignments of distinct module variables, v0 = 0 to v<count-1> =
// count - 1, one a line, each declared first on its line when asked.
std::string manyAssignments(int count, bool declared = false)
{
    std::string text;
    for (int k = 0; k < count; ++k) {
        const std::string v = "v" + std::to_string(k);
        text += (declared ? "Dim " + v + ": " : "") + v + " = " + std::to_string(k) + "\n";
    }
    return text;
}

class ModuleVariables : public ::testing::TestWithParam<ModuleCase> {};

TEST_P(ModuleVariables, KeepTheirMeaningAcrossTexts)
{
    const ModuleCase& c = GetParam();
    RunningHost host;
    Module module(&host);
    host.module = &module;
    RunResult last;
    for (const std::string& text : c.texts)
        last = module.addCode(text);
    EXPECT_EQ(host.output(), c.output);
    EXPECT_EQ(last.ok() ? 0 : last.error->number, c.error) << (last.ok() ? "" : last.error->description);
    EXPECT_EQ(last.ok() ? 0 : last.error->line, c.line);
}

INSTANTIATE_TEST_SUITE_P(Cases, ModuleVariables, ::testing::Values(
    ModuleCase{"ThousandsOfVariables", {manyAssignments(3000) + "MsgBox v0 + v1500 + v2999\nMsgBox TypeName(v2999) & v3000 & TypeName(v3000)"}, "4499|IntegerEmpty"},
    ModuleCase{"ThousandsDeclaredUnderOptionExplicit", {"Option Explicit\n" + manyAssignments(3000, true) + "MsgBox v2999\nv3000 = 1"}, "2999", 500, 3003},
    ModuleCase{"ThousandsReadByAProcedure", {manyAssignments(2000) + "Function Total()\n Dim k\n For k = 0 To 1999\n  Total = Total + k\n Next\n Total = Total + v1999\nEnd Function\nMsgBox Total()"}, "2000999"},
    ModuleCase{"ProcedureAssignedInItsText", {"Sub P\nEnd Sub\nP = 1"}, "", 501, 3},
    ModuleCase{"ProcedureDeclaredInItsText", {"Sub P\nEnd Sub\nDim P"}, "", 1041, 3},
    ModuleCase{"ProcedureDeclaredByALaterText", {"Sub P\n MsgBox \"p\"\nEnd Sub", "Dim P\nP = 2\nMsgBox P"}, "", 501, 2},
    ModuleCase{"VariableMadeASub", {"x = 5\nMsgBox x", "Sub x\n MsgBox \"sub\"\nEnd Sub\nx\nx = 3"}, "5|sub", 501, 5},
    ModuleCase{"VariableMadeAFunctionInOperators", {"s = 0\nFor i = 1 To 3\n s = s + i\nNext\nMsgBox s", "Function s()\n s = 10\nEnd Function\nMsgBox s + 1\nMsgBox s - 1 & \" \" & (s > 5)"}, "6|11|9 True"},
    ModuleCase{"ConstantAssignedByALaterText", {"Const c = 4", "c = c + 1"}, "", 501, 1},
    ModuleCase{"CounterMadeASubWhileTheLoopRuns", {"For i = 1 To 3\n MsgBox \"RUN:Sub i\" & vbCrLf & \"End Sub\"\nNext\nMsgBox \"after\""}, "RUN:Sub i\r\nEnd Sub", 501, 1},
    ModuleCase{"SumMadeASubWhileTheLoopRuns", {"s = 0\nFor k = 1 To 3\n s = s + 1\n If k = 2 Then MsgBox \"RUN:Sub s\" & vbCrLf & \"End Sub\"\nNext"}, "RUN:Sub s\r\nEnd Sub", 501, 3},
    ModuleCase{"OperandMadeAFunctionWhileTheLoopRuns", {"t = 1\nFor k = 1 To 3\n u = t + k\n MsgBox u\n If k = 1 Then MsgBox \"RUN:Function t()\" & vbCrLf & \"t = 100\" & vbCrLf & \"End Function\"\nNext"}, "2|RUN:Function t()\r\nt = 100\r\nEnd Function|102|103"},
    ModuleCase{"VariableDeclaredAfterAProcedureReadsIt", {"Sub Show\n MsgBox TypeName(v) & v\nEnd Sub\nShow", "Dim v\nv = 1.5\nShow", "v = \"t\"\nShow"}, "Empty|Double1.5|Stringt"},
    ModuleCase{"ConstantDeclaredAfterAProcedureReadsIt", {"Function K()\n K = k1\nEnd Function\nMsgBox IsEmpty(K())", "Const k1 = 7\nMsgBox K() + 1"}, "True|8"},
    ModuleCase{"OptionExplicitInALaterText", {"a = 1", "Option Explicit\nMsgBox a\nb = 2"}, "1", 500, 3},
    ModuleCase{"OptionExplicitReachesEarlierProcedures", {"Sub R\n MsgBox zz\nEnd Sub\nR", "Option Explicit\nR"}, "", 500, 2},
    ModuleCase{"ProcedureMovesTheCounter", {"Sub Bump\n i = i + 10\nEnd Sub\nFor i = 1 To 30\n n = n + 1\n Bump\nNext\nMsgBox n & \" \" & i"}, "3 34"},
    ModuleCase{"CounterGivenAString", {"For i = 1 To 5\n If i = 2 Then i = \"4\"\n s = s & i\nNext\nMsgBox s & TypeName(i)"}, "145Double"},
    ModuleCase{"CounterGivenADouble", {"For i = 1 To 4\n s = s & i & \",\"\n If i = 2 Then i = 2.5\nNext\nMsgBox s & TypeName(i)"}, "1,2,3.5,Double"},
    ModuleCase{"CounterPromotesLikeAnAddition", {"For i = 32766 To 32768\n s = s & TypeName(i)\nNext\nMsgBox s & TypeName(i) & i"}, "IntegerIntegerLongLong32769"},
    ModuleCase{"DeepRecursion", {"Function F(n)\n depth = depth + 1\n F = F(n + 1)\nEnd Function\nx = F(1)"}, "", 28, 3},
    ModuleCase{"RecursionThroughAVariable", {"Dim total\nFunction Sum(n)\n If n = 0 Then\n  Sum = 0\n Else\n  total = total + n\n  Sum = n + Sum(n - 1)\n End If\nEnd Function\nMsgBox Sum(1000) & \" \" & total"}, "500500 500500"},
    ModuleCase{"UndefinedRead", {"MsgBox IsEmpty(q) & (q + 1) & (q & \"x\")\nq = q + 1\nMsgBox q"}, "True1x|1"},
    ModuleCase{"StringsAdded", {"a = \"1\"\nb = a + 2\nc = a & 2\nd = a + \"x\"\nMsgBox b & \" \" & TypeName(b) & \" \" & c & \" \" & d\ne = b + \"x\""}, "3 Double 12 1x", 13, 6},
    ModuleCase{"Overflow", {"d = 1E+308\nd = d + 1E+308"}, "", 6, 2},
    ModuleCase{"NullCompared", {"n = Null\nm = n + 1\nMsgBox IsNull(m) & (n > 1)\nIf n > 1 Then MsgBox \"no\" Else MsgBox \"else\""}, "True|else"},
    ModuleCase{"ByRefToAVariable", {"Sub Inc(v)\n v = v + 1\nEnd Sub\nn = 1\nInc n\nInc (n)\nMsgBox n\nFunction Twice(w)\n Twice = w + w\nEnd Function\nMsgBox Twice(n) & Twice(\"a\")"}, "2|4aa"},
    ModuleCase{"SetAndLet", {"Set a = Err\nSet a = Nothing\nMsgBox TypeName(a)\nb = a"}, "Nothing", 91, 4}
));

TEST(Safety, TheBudgetAlsoCountsProcedureCalls)
{
    Module module;
    module.setStepBudget(50);
    ASSERT_TRUE(module.addCode("Function F(n)\r\n  F = n\r\nEnd Function").ok());
    RunResult r = module.addCode("x = F(1) + F(2) + F(3)");
    EXPECT_TRUE(r.ok());
    std::string many;
    for (int i = 0; i < 60; ++i)
        many += "x = F(" + std::to_string(i) + ")\r\n";
    r = module.addCode(many);
    ASSERT_FALSE(r.ok());
    EXPECT_EQ(r.error->number, 18);
}

}  // namespace
}  // namespace qor::script::test
