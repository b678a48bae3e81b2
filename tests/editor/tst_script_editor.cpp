#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "editor/platform/widget_names.h"
#include "editor/scripting/assistant_popup.h"
#include "editor/scripting/script_editor_window.h"
#include "editor_session.h"
#include "typing.h"

using namespace qor;
using qor::test::pressKey;
using qor::test::Session;
using qor::test::typeHere;
using qor::test::typeInto;

namespace {

QStringList items(const QComboBox* box)
{
    QStringList out;
    for (int i = 0; i < box->count(); ++i)
        out << box->itemText(i);
    return out;
}

QStringList items(const QListWidget* list)
{
    QStringList out;
    for (int i = 0; i < list->count(); ++i)
        out << list->item(i)->text();
    return out;
}

// The action of a pop-up menu with this control name (and index).
QAction* entry(QMenu* menu, const QString& name, int index = -1)
{
    for (QAction* a : menu->findChildren<QAction*>(name))
        if (controlIndex(*a) == index)
            return a;
    return nullptr;
}

// The editor opened on the timer script of a fresh run, its text cleared.
struct Opened {
    Session s;
    ScriptEditorWindow* editor = nullptr;
    QPlainTextEdit* text = nullptr;

    Opened()
    {
        s.start();
        s.core().scriptEditor().open(ScriptSlot::Timer);
        editor = &s.windows().scriptEditor();
        text = editor->text();
        text->clear();
    }
    std::string script() { return s.core().project().timerScript; }
};

}  // namespace

class TestScriptEditor : public QObject {
    Q_OBJECT

private slots:
    void enterFormatsTheLineJustTyped();
    void formatterStaysOffWhenUnticked_data();
    void formatterStaysOffWhenUnticked();
    void procedureListFollowsTheText();
    void procedurePositionsCountCharacters();
    void newProcedurePanel();
    void assistantWritesAMessage();
    void cursorIsChosenInTwoSteps();
    void f5AndTheTestButtonStartATestRun();
    void keysStayInTheText();
    void waitNotice();
};

void TestScriptEditor::enterFormatsTheLineJustTyped()
{
    Opened o;
    QVERIFY(typeInto(o.text, QStringLiteral("if a=b then msgbox fenetre.caption")));
    pressKey(Qt::Key_Return);
    QTRY_COMPARE(o.text->toPlainText(), QStringLiteral("if a = b then MsgBox fenetre.Caption\n"));
    QCOMPARE(o.script(), std::string("if a = b then MsgBox fenetre.Caption\r\n"));
    // The caret is back at the end, ready for the next line.
    QCOMPARE(o.text->textCursor().position(), o.text->toPlainText().size());
    typeHere(QStringLiteral("x=1"));
    QCOMPARE(o.script(), std::string("if a = b then MsgBox fenetre.Caption\r\nx=1"));
    QVERIFY(!o.editor->formatTimer()->isActive());
    QVERIFY(o.s.dialogs.unexpected.isEmpty());
}

void TestScriptEditor::formatterStaysOffWhenUnticked_data()
{
    QTest::addColumn<bool>("ticked");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("unticked") << false << int(Qt::NoModifier);
    QTest::newRow("shift") << true << int(Qt::ShiftModifier);
    QTest::newRow("ctrl") << true << int(Qt::ControlModifier);
}

void TestScriptEditor::formatterStaysOffWhenUnticked()
{
    QFETCH(bool, ticked);
    QFETCH(int, modifiers);
    Opened o;
    o.editor->autoFormat()->setChecked(ticked);
    QVERIFY(typeInto(o.text, QStringLiteral("a=b")));
    pressKey(Qt::Key_Return, Qt::KeyboardModifiers(modifiers));
    QTest::qWait(50);
    QVERIFY(o.text->toPlainText().startsWith(QStringLiteral("a=b")));
}

void TestScriptEditor::procedureListFollowsTheText()
{
    Opened o;
    o.text->setPlainText(QStringLiteral("Public Sub A()\nEnd Sub\nsub B"));
    QVERIFY(o.editor->procedureTimer()->isActive());
    QTRY_COMPARE(items(o.editor->procedures()), (QStringList{"Procédures", "A()", "B"}));
    QCOMPARE(items(o.editor->declarations()), (QStringList{"RIEN", "Public Sub A()", "sub B"}));

    o.text->moveCursor(QTextCursor::Start);
    emit o.editor->procedures()->activated(2);
    QCOMPARE(o.text->textCursor().position(), 23);
    QCOMPARE(o.editor->procedures()->currentIndex(), 0);

    o.text->setPlainText(QStringLiteral("x = 1"));
    QTRY_COMPARE(items(o.editor->procedures()), QStringList{"Procédures"});
}

void TestScriptEditor::procedurePositionsCountCharacters()
{
    // "é" is one character everywhere; "😀" is one in the script and two in
    // the text box; a line break is two in the script and one in the box.
    Opened o;
    o.text->setPlainText(QStringLiteral("é😀\nSub C"));
    QTRY_COMPARE(o.editor->procedures()->count(), 2);
    emit o.editor->procedures()->activated(1);
    QCOMPARE(o.text->textCursor().position(), 4);
}

void TestScriptEditor::newProcedurePanel()
{
    Opened o;
    o.text->setPlainText(QStringLiteral("x = 1"));
    QWidget* panel = o.editor->newProcedurePanel();
    auto* name = o.editor->findChild<QLineEdit*>("Text2");
    o.editor->findChild<QRadioButton*>("Option1")->setChecked(true);
    o.editor->findChild<QPushButton*>("Command3")->click();
    QVERIFY(panel->isVisible());
    QVERIFY(o.editor->findChild<QRadioButton*>("Option2")->isChecked());
    QVERIFY(o.editor->findChild<QRadioButton*>("Option4")->isChecked());

    // Nothing happens without a name.
    o.editor->findChild<QPushButton*>("Command4")->click();
    QVERIFY(panel->isVisible());
    QCOMPARE(o.script(), std::string("x = 1"));

    name->setText(QStringLiteral("Ma proc"));
    o.editor->findChild<QPushButton*>("Command4")->click();
    QVERIFY(!panel->isVisible());
    QCOMPARE(name->text(), QStringLiteral("Ma_proc"));
    QCOMPARE(o.script(), std::string("x = 1\r\nPublic Sub Ma_proc()\r\n\r\nEnd Sub"));

    o.editor->findChild<QPushButton*>("Command3")->click();
    o.editor->findChild<QPushButton*>("Command5")->click();
    QVERIFY(!panel->isVisible());
    QCOMPARE(o.script(), std::string("x = 1\r\nPublic Sub Ma_proc()\r\n\r\nEnd Sub"));
}

void TestScriptEditor::assistantWritesAMessage()
{
    Opened o;
    o.text->setPlainText(QStringLiteral("avant\napres"));
    QTextCursor cursor = o.text->textCursor();
    cursor.setPosition(6);
    o.text->setTextCursor(cursor);
    o.s.dialogs.inputAnswers = {"Info", "Bonjour[R]à tous", "information"};
    QAction* msg = entry(o.editor->assistantMenu(), "msg");
    QVERIFY(msg);
    QCOMPARE(msg->text(), QStringLiteral("Afficher un message"));
    msg->trigger();
    const std::string header = "'" + std::string(21, '#') + "Boite de dialogue" + std::string(21, '#');
    const std::string footer = "'" + std::string(19, '#') + "Fin boite de dialogue" + std::string(19, '#');
    QCOMPARE(o.script(), "avant\r\n\r\n" + header +
                             "\r\nMsgBox \"Bonjour\"+chr(10)+chr(13)+\"à tous\", vbinformation, \"Info\"\r\n" + footer +
                             "\r\napres");
    QCOMPARE(o.s.dialogs.inputPrompts.size(), std::size_t(3));
    QVERIFY(o.s.dialogs.unexpected.isEmpty());
}

void TestScriptEditor::cursorIsChosenInTwoSteps()
{
    Opened o;
    QLabel* prompt = o.editor->cursorPrompt();
    QCOMPARE(prompt->text(), QStringLiteral("[Choix du nouveau curseur : cliquez ICI]"));
    o.s.dialogs.inputAnswers = {"3"};
    entry(o.editor->assistantMenu(), "changer_curseur_bouton")->trigger();
    QVERIFY(prompt->isVisible());
    QVERIFY(o.editor->blinkTimer()->isActive());
    QCOMPARE(o.editor->blinkTimer()->interval(), 800);
    QTRY_VERIFY_WITH_TIMEOUT(!prompt->isVisible(), 2000);
    QTRY_VERIFY_WITH_TIMEOUT(prompt->isVisible(), 2000);

    QTest::mouseClick(prompt, Qt::LeftButton);
    QVERIFY(o.editor->cursorMenu()->isVisible());
    o.editor->cursorMenu()->hide();
    QCOMPARE(entry(o.editor->cursorMenu(), "ccu_mnu", 11)->text(), QStringLiteral("Sablier"));
    entry(o.editor->cursorMenu(), "ccu_mnu", 11)->trigger();
    QVERIFY(!prompt->isVisible());
    QVERIFY(!o.editor->blinkTimer()->isActive());
    QVERIFY(o.script().find("\r\nBouton3.MousePointer = 11\r\n") != std::string::npos);
    QVERIFY(o.s.dialogs.unexpected.isEmpty());
}

void TestScriptEditor::f5AndTheTestButtonStartATestRun()
{
    Opened o;
    int runs = 0;
    o.s.core().scriptEditor().setTestRun([&runs] { ++runs; });
    // On release, not on press.
    QTest::keyPress(o.text, Qt::Key_F5);
    QCOMPARE(runs, 0);
    QTest::keyRelease(o.text, Qt::Key_F5);
    QCOMPARE(runs, 1);
    QTest::keyRelease(o.editor->autoFormat(), Qt::Key_F5);
    QCOMPARE(runs, 2);
    o.editor->findChild<QPushButton*>("Command1")->click();
    QCOMPARE(runs, 3);
}

void TestScriptEditor::keysStayInTheText()
{
    Opened o;
    QVERIFY(typeInto(o.text, QStringLiteral("a")));
    pressKey(Qt::Key_Tab);
    typeHere(QStringLiteral("b"));
    QCOMPARE(o.script(), std::string("a\tb"));
    pressKey(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(o.text->textCursor().selectedText(), QStringLiteral("a\tb"));

    // What the slot holds comes back whole once the editor has shown it
    // and a key was typed: non-breaking spaces, tabs, any character.
    const std::string typed = "MsgBox \"Bonjour\u00A0!\"\r\n\tx = \"\u30A6 \u00AB\u00A0a\u00A0\u00BB\"";
    o.s.core().project().globalScript = typed;
    o.s.core().scriptEditor().open(ScriptSlot::Global);
    o.text->moveCursor(QTextCursor::End);
    QTest::keyClicks(o.text, QStringLiteral("y"));
    QCOMPARE(o.s.core().project().globalScript, typed + "y");
}

void TestScriptEditor::waitNotice()
{
    Opened o;
    QLabel* notice = o.editor->waitNotice();
    QCOMPARE(notice->text(), QStringLiteral("Veuillez patienter..."));
    o.s.core().scriptEditor().showWaitNotice(true);
    QVERIFY(notice->isVisible());
    o.s.core().scriptEditor().showWaitNotice(false);
    QVERIFY(!notice->isVisible());
}

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestScriptEditor>(argc, argv);
}

#include "tst_script_editor.moc"
