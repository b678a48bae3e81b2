#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <filesystem>
#include <functional>
#include <memory>

#include "core/app/app_state.h"
#include "core/build/compile_request.h"
#include "editor/shape/shape_panel.h"
#include "editor/shape/shape_surface.h"
#include "editor/app/main_window.h"
#include "editor/build/compile_dialog.h"
#include "editor/build/test_run_watcher.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "editor/project/file_info_window.h"
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include "editor/scripting/script_editor_window.h"
#include "editor/ui/about_window.h"
#include "editor/ui/live_window_hooks.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/wizard/creation_wizard_window.h"
#include "editor_session.h"

#include "typing.h"

using namespace qor;

namespace {

const ScreenMetrics kScreen = screenMetricsOf(QSize(1024, 768), 96, 96);

// The program folder the build stages the English pack from.
std::string shippedProgramFolder()
{
    return (std::filesystem::path(QOR_TEST_DATA_DIR) / ".." / ".." / "resources" / "program").lexically_normal().string() +
           "/";
}

using WindowMaker = std::function<std::unique_ptr<QWidget>(WindowHooks&, test::Session&)>;

// Every translated window there is, by internal name.
const std::vector<std::pair<QString, WindowMaker>>& translatedWindows()
{
    static const std::vector<std::pair<QString, WindowMaker>> windows = {
        {"Form1", [](WindowHooks& h, test::Session&) { return std::make_unique<ToolboxWindow>(kScreen, h); }},
        {"Form2", [](WindowHooks& h, test::Session&) { return std::make_unique<MainWindow>(kScreen, h); }},
        {"Form3", [](WindowHooks& h, test::Session&) { return std::make_unique<WorksheetWindow>(kScreen, h); }},
        {"Form4", [](WindowHooks& h, test::Session&) { return std::make_unique<PropertiesPanel>(kScreen, h); }},
        {"Form5", [](WindowHooks& h, test::Session&) { return std::make_unique<ScriptEditorWindow>(kScreen, h); }},
        {"Form6", [](WindowHooks& h, test::Session& s) {
             return std::make_unique<CompileDialog>(*s.core().build(), CompileRequest{}, QString(), h);
         }},
        {"Form7", [](WindowHooks& h, test::Session&) { return std::make_unique<AboutWindow>(kScreen, h); }},
        {"Form10", [](WindowHooks& h, test::Session&) { return std::make_unique<MousePositionWindow>(h); }},
        {"Form14", [](WindowHooks& h, test::Session&) { return std::make_unique<CreationWizardWindow>(h); }},
        {"Form15", [](WindowHooks& h, test::Session&) { return std::make_unique<TestRunWatcher>(h); }},
        {"Form16", [](WindowHooks& h, test::Session&) { return std::make_unique<ShapeSurface>(kScreen, h); }},
        {"Form17", [](WindowHooks& h, test::Session&) { return std::make_unique<ShapePanel>(h); }},
        {"Form19", [](WindowHooks& h, test::Session&) { return std::make_unique<FileInfoWindow>(h); }},
    };
    return windows;
}

// Every text a user reads on a window that its translation script can
// reach, by control: the title, then each named button, label, frame, menu
// and menu command, under "name(index)" (a menu and its command share one).
QMap<QString, QStringList> captions(QWidget& window)
{
    QMap<QString, QStringList> out;
    out[window.objectName()] << window.windowTitle();
    for (QObject* o : window.findChildren<QObject*>()) {
        if (o->objectName().isEmpty())
            continue;
        QStringList& texts = out[o->objectName() + "(" + QString::number(controlIndex(*o)) + ")"];
        if (auto* b = qobject_cast<QAbstractButton*>(o)) texts << b->text();
        else if (auto* l = qobject_cast<QLabel*>(o)) texts << l->text();
        else if (auto* g = qobject_cast<QGroupBox*>(o)) texts << g->title();
        else if (auto* m = qobject_cast<QMenu*>(o)) texts << m->title();
        else if (auto* a = qobject_cast<QAction*>(o); a && !a->isSeparator()) texts << a->text();
    }
    return out;
}

// Texts that read the same in English.
bool languageNeutral(const QString& text)
{
    static const QStringList same = {"QOR", "Stop", "Source", "&Source", "Options", "&Options", "?", "&?",
                                     "Langue/Language", "Français", "X=0000", "Y=0000", "&F.A.Q.", "Contact", "OK", "X", "Type",
                                     "Function", "Sub", "Private", "Public", "Assistant", "Rectangle", "Oval", "Y"};
    bool letters = false;
    for (QChar c : text)
        letters = letters || c.isLetter();
    return !letters || same.contains(text) || text.startsWith("QOR v");
}

// A run in a language: its state and the hooks attached to it.
struct LanguageRun {
    AppState state;
    LiveWindowHooks hooks;
    test::ScriptedDialogs dialogs;
    LanguageRun(const std::string& language, const std::string& folder)
    {
        state.interfaceLanguage = language;
        state.programFolder = folder;
        hooks.attach(state, dialogs);
    }
};

}  // namespace

class TestLanguages : public QObject {
    Q_OBJECT
private slots:
    void everyWindowIsTranslatedByTheShippedPack();
    void theMainWindowFillsThePhraseList();
    void aBrokenPackIsReportedAndTheRestStaysFrench();
    void appearancesColourTheWindowsThatTakeThemOnLoad();
    void aboutWindowScrollsPausesAndOpensLinks();
    void theAboutCommandOpensTheCredits();
};

void TestLanguages::everyWindowIsTranslatedByTheShippedPack()
{
    test::Session session;
    QStringList untranslated;
    for (const auto& [name, make] : translatedWindows()) {
        auto french = make(WindowHooks::none(), session);
        LanguageRun english("English", shippedProgramFolder());
        auto translated = make(english.hooks, session);
        QCOMPARE(translated->objectName(), name);
        for (const Message& m : english.dialogs.messages)
            untranslated << name + " failed: " + QString::fromStdString(m.title + " " + m.text);
        const auto before = captions(*french), after = captions(*translated);
        for (auto it = before.begin(); it != before.end(); ++it) {
            const QStringList& english = after.value(it.key());
            for (int i = 0; i < it.value().size() && i < english.size(); ++i) {
                const QString& text = it.value()[i];
                if (!text.isEmpty() && text == english[i] && !languageNeutral(text))
                    untranslated << name + " " + it.key() + ": " + text;
            }
        }
        if (!std::filesystem::exists(shippedProgramFolder() + "langues/English/" + name.toStdString() + ".lge"))
            untranslated << name + " has no script";
    }
    for (const QString& line : untranslated)
        qWarning().noquote() << line;
    QVERIFY2(untranslated.isEmpty(), qPrintable(QString::number(untranslated.size()) + " French captions left"));
}

void TestLanguages::theMainWindowFillsThePhraseList()
{
    LanguageRun english("English", shippedProgramFolder());
    MainWindow main(kScreen, english.hooks);
    QVERIFY(english.state.phrases.languageActive());
    QCOMPARE(english.state.phrases.text(43, "Langue modifiée, veuillez redémarrer QOR."),
             std::string("Language changed, please restart QOR."));
    QCOMPARE(english.state.phrases.text(0, "x"), std::string("Maximum number of buttons reached !!!"));
    // Every numbered phrase is there.
    QVERIFY(english.state.phrases.text(44, "beyond") == "beyond");
    QVERIFY(english.state.phrases.text(38, "x") != "x");
}

void TestLanguages::aBrokenPackIsReportedAndTheRestStaysFrench()
{
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString() + "/";
    std::filesystem::create_directories(folder + "langues/Broken");
    test::Session::write(folder + "langues/Broken/Form1.lge",
                         "Form1.Caption = \"Objects\"\r\n'\r\n'\r\n'\r\n'\r\n'\r\nCommand1.Caption = )\r\n");
    test::Session::write(folder + "langues/Broken/Form3.lge", "Form3.Caption = \"Worksheet\"\r\n");
    LanguageRun broken("Broken", folder);
    ToolboxWindow toolbox(kScreen, broken.hooks);
    QCOMPARE(int(broken.dialogs.messages.size()), 1);
    QCOMPARE(broken.dialogs.messages[0].title, std::string("Langue/Language 7"));
    QCOMPARE(broken.dialogs.messages[0].icon, MessageIcon::Critical);
    // A script is compiled whole before it runs: none of it took effect.
    QCOMPARE(toolbox.windowTitle(), QStringLiteral("Objets"));
    QVERIFY(broken.state.interfaceLanguage.empty());
    WorksheetWindow sheet(kScreen, broken.hooks);
    QCOMPARE(sheet.windowTitle(), QStringLiteral("Feuille de travail"));
    // A missing script is reported once, the same way.
    LanguageRun missing("Broken", folder);
    MousePositionWindow mouse(missing.hooks);
    QCOMPARE(int(missing.dialogs.messages.size()), 1);
    QCOMPARE(missing.dialogs.messages[0].title, std::string("Langue/Language 0"));
}

void TestLanguages::appearancesColourTheWindowsThatTakeThemOnLoad()
{
    LanguageRun run("", "");
    run.state.appearance = Appearance{0x0000FF, 0x00FF00, 0xFF0000, "Arial"};
    FileInfoWindow info(run.hooks);
    const QColor red(255, 0, 0), green(0, 255, 0), blue(0, 0, 255);
    QCOMPARE(info.palette().color(QPalette::Window), red);
    auto* notes = info.findChild<QWidget*>(QStringLiteral("Text4"));
    QVERIFY(notes);
    QCOMPARE(notes->palette().color(QPalette::Base), green);
    QCOMPARE(notes->palette().color(QPalette::Text), blue);
    QCOMPARE(notes->font().family(), QStringLiteral("Arial"));
    QVERIFY(!(notes->focusPolicy() & Qt::TabFocus));
    // What cannot be edited stands on the window's colour.
    for (const char* name : {"Text5", "Text6", "Text7"})
        QCOMPARE(info.field(name)->palette().color(QPalette::Base), red);
    // Out of the Tab order, but a click still gives the fields the caret.
    QVERIFY(test::typeInto(info.notesField(), QStringLiteral("vu")));
    QVERIFY(test::typeInto(info.field("Text1"), QStringLiteral("Marie")));
    QCOMPARE(info.values().notes, std::string("vu"));
    QCOMPARE(info.values().authorName, std::string("Marie"));
    // A command that cannot be used keeps the style's greyed text.
    auto* ok = info.findChild<QPushButton*>(QStringLiteral("Command1"));
    QCOMPARE(ok->palette().color(QPalette::Active, QPalette::ButtonText), blue);
    QVERIFY(ok->palette().color(QPalette::Disabled, QPalette::ButtonText) != blue);
    // The toolbox waits for the main windows' turn.
    ToolboxWindow toolbox(kScreen, run.hooks);
    QVERIFY(toolbox.palette().color(QPalette::Window) != red);
}

void TestLanguages::aboutWindowScrollsPausesAndOpensLinks()
{
    AboutWindow about(kScreen);
    QCOMPARE(about.size(), twipsToPixels(4650, 2550, kScreen));
    QSignalSpy links(&about, &AboutWindow::linkActivated);
    const double start = about.panelTop();
    about.step();
    QCOMPARE(about.panelTop(), start - 5);
    // The pointer on an entry stops the credits; off it they go on.
    QLabel* contact = about.entries().back();
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(contact, &enter);
    QVERIFY(about.paused());
    QVERIFY(contact->font().underline());
    about.step();
    QCOMPARE(about.panelTop(), start - 5);
    QApplication::sendEvent(about.panel(), &enter);
    QVERIFY(!about.paused());
    QVERIFY(!contact->font().underline());
    // Round and round: after leaving by the top the credits come in from below.
    for (int i = 0; i < 5000 && about.panelTop() < start; ++i)
        about.step();
    QCOMPARE(about.panelTop(), start);
    QTest::mouseClick(contact, Qt::LeftButton);
    QCOMPARE(links.size(), 1);
    QCOMPARE(links[0][0].toString(), QStringLiteral("mailto:contact@qor.example.org?Subject=QOR%20:%20Contact"));
    // The scrolling runs only while the window shows.
    about.show();
    QTest::qWait(50);
    QVERIFY(about.panelTop() != start);
    about.hide();
    const double hidden = about.panelTop();
    QTest::qWait(50);
    QCOMPARE(about.panelTop(), hidden);
}

void TestLanguages::theAboutCommandOpensTheCredits()
{
    test::Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    s.trigger(CommandId::About);
    AboutWindow* about = s.editor->aboutWindow();
    QVERIFY(about);
    QVERIFY(about->isVisible());
    QTest::mouseClick(about->entries()[5], Qt::LeftButton);  // "Accès au site"
    QCOMPARE(s.desktop.opened.size(), std::size_t(1));
    QTest::mouseClick(about, Qt::LeftButton);
    QVERIFY(!about->isVisible());
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
