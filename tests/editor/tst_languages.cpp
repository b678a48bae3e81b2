#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>

#include "core/app/app_state.h"
#include "core/app/user_settings.h"
#include "core/designer/designer.h"
#include "core/scripting/script_slots.h"
#include "core/ui/menu_tree.h"
#include "core/build/compile_request.h"
#include "editor/shape/shape_panel.h"
#include "editor/shape/shape_surface.h"
#include "editor/app/editor_application.h"
#include "editor/app/editor_build_view.h"
#include "editor/app/editor_shape_view.h"
#include "editor/app/main_window.h"
#include "editor/wizard/editor_wizard.h"
#include "editor/build/compile_dialog.h"
#include "editor/build/test_run_watcher.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_dialog_language.h"
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

// Texts that read the same in English, and texts kept French on purpose
// (the list resources/program/langues/README gives the translator): project
// data the editor writes into files, and names the menus' scripts use.
bool keptAsIs(const QString& text)
{
    static const QStringList same = {
        "QOR", "Stop", "Source", "&Source", "Options", "&Options", "?", "&?", "Langue/Language", "Français", "English",
        "X=0000", "Y=0000", "&F.A.Q.", "Contact", "OK", "X", "Type", "Function", "Sub", "Private", "Public",
        "Assistant", "Rectangle", "Oval", "Y", "ms", "Visible", "Internet", "x", "Zoom", "Email", "E-mail", "Web",
        "Code", "Menu", "Box",
        // Kept French: the default sub-menu name (a file name), the project's
        // name, the appearances' names (keys of apparences.ini) and a font name.
        "SousMenu1", "menu", "Par défaut", "Bleu", "Rouge", "Orange", "Clair", "Sombre", "Sombre2", "MS Sans Serif"};
    bool letters = false;
    for (QChar c : text)
        letters = letters || c.isLetter();
    // Paths and file names the user chose.
    static const QRegularExpression fileName(QStringLiteral("^[^ ]+\\.[a-z]{3,4}$"));
    return !letters || same.contains(text) || text.startsWith("QOR v") || text.startsWith(QChar('/')) ||
           text.startsWith("<root>") || fileName.match(text).hasMatch();
}

// Every text a person can read on a window, keyed by where it shows: the
// title, and for each visible widget its caption, tooltip and list entries,
// and every command of its menus. Keys are the path of child positions, so
// the same window built twice gives the same keys whatever is named.
QMap<QString, QString> readableTexts(QWidget& window)
{
    QMap<QString, QString> out;
    const QString name = window.objectName();
    auto pathOf = [&window, &name](QObject* o) {
        QStringList steps;
        for (; o && o != &window; o = o->parent()) {
            QObject* parent = o->parent();
            const int at = parent ? int(parent->children().indexOf(o)) : 0;
            steps.prepend(QString::fromLatin1(o->metaObject()->className()) + QString::number(at));
        }
        return name + "/" + steps.join('/');
    };
    auto add = [&out](const QString& key, const QString& text) {
        if (!text.trimmed().isEmpty())
            out.insert(key, text);
    };
    add(name + " title", window.windowTitle());
    for (QObject* o : window.findChildren<QObject*>()) {
        const QString at = pathOf(o);
        if (auto* a = qobject_cast<QAction*>(o)) {
            // A submenu's command shows the submenu's title, read with it.
            if (a->isVisible() && !a->isSeparator() && !a->menu()) {
                add(at + " text", a->text());
                if (a->toolTip() != QString(a->text()).remove('&'))
                    add(at + " tooltip", a->toolTip());
            }
            continue;
        }
        auto* w = qobject_cast<QWidget*>(o);
        if (!w)
            continue;
        if (auto* m = qobject_cast<QMenu*>(w)) {
            // A pop-up shows no title; a menu of a bar or of another menu does.
            const auto shownIn = m->menuAction()->associatedObjects();
            const bool titled = std::any_of(shownIn.begin(), shownIn.end(), [m](QObject* in) { return in != m; });
            if (titled && m->menuAction()->isVisible())
                add(at + " title", m->title());
            continue;
        }
        if (!w->isVisibleTo(&window))
            continue;
        add(at + " tooltip", w->toolTip());
        add(at + " title", w->windowTitle() == window.windowTitle() ? QString() : w->windowTitle());
        if (auto* b = qobject_cast<QAbstractButton*>(w)) add(at + " text", b->text());
        else if (auto* l = qobject_cast<QLabel*>(w)) add(at + " text", l->text());
        else if (auto* g = qobject_cast<QGroupBox*>(w)) add(at + " text", g->title());
        else if (auto* e = qobject_cast<QLineEdit*>(w)) {
            add(at + " text", e->text());
            add(at + " placeholder", e->placeholderText());
        } else if (auto* c = qobject_cast<QComboBox*>(w)) {
            for (int i = 0; i < c->count(); ++i)
                add(at + " entry" + QString::number(i), c->itemText(i));
        } else if (auto* list = qobject_cast<QListWidget*>(w)) {
            for (int i = 0; i < list->count(); ++i)
                add(at + " entry" + QString::number(i), list->item(i)->text());
        } else if (auto* tabs = qobject_cast<QTabBar*>(w)) {
            for (int i = 0; i < tabs->count(); ++i)
                add(at + " entry" + QString::number(i), tabs->tabText(i));
        }
    }
    return out;
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

// A whole run of the editor in a language ("" for French), its program
// folder holding the shipped language packs and the files a compilation
// copies, with a project of each kind of element written beside it.
struct LanguageSession : test::Session {
    LiveWindowHooks hooks;
    std::string projectPath;

    explicit LanguageSession(const std::string& language)
    {
        std::filesystem::copy(shippedProgramFolder() + "langues", programFolder() + "langues",
                              std::filesystem::copy_options::recursive);
        settings.save("QOR", settings::General, settings::Language, language);
        write(programFile("compil.exe"), "MZ stand-in player");
        write(programFile("autorun.ico"), "ICON");
        write(programFile("install.bat"), "@echo off\r\n");
        editor.reset();
        editor = std::make_unique<EditorApplication>(EditorPorts{dialogs, settings, desktop, screen, fileTypes, qmb},
                                                     hooks);
        editor->shellView().endEventLoop = [this] { ended = true; };
        hooks.attach(core().state(), dialogs);
        start();
        projectPath = project(folder("projets") + "menu.qor", {"code", "vidéo", "quitter"}, 1);
    }

    void select(int entry)
    {
        QComboBox* box = windows().properties().elementSelector();
        box->setCurrentIndex(entry);
        emit box->activated(entry);
    }
};

// One road through the editor: it calls look() at every state worth
// reading, with the windows to read then.
using Look = std::function<void(const QString& state, QList<QWidget*> windows)>;
struct Road {
    const char* name;
    std::function<void(LanguageSession&, const Look&)> walk;
};

QWidget* child(QWidget* window, const char* name)
{
    return window ? window->findChild<QWidget*>(QString::fromUtf8(name)) : nullptr;
}

void click(QWidget* window, const char* name)
{
    if (auto* b = qobject_cast<QAbstractButton*>(child(window, name)))
        b->click();
}

// Every window and every state of one that shows other texts: the start-up
// windows, each panel of the properties window, the script editor on each
// slot, the compile dialog before and after compiling, the wizard on each
// step, the shape editor, the project information, the credits and the
// test-run window.
const std::vector<Road>& roads()
{
    static const std::vector<Road> all = {
        {"start", [](LanguageSession& s, const Look& look) {
             auto& w = s.windows();
             look("start", {&w.toolbox(), &w.main(), &w.worksheet(), &w.properties(), &w.mousePosition()});
         }},
        {"panels", [](LanguageSession& s, const Look& look) {
             s.core().document().openPath(s.projectPath);
             for (int entry = 0; entry < 5; ++entry) {
                 s.select(entry);
                 look("entry " + QString::number(entry), {&s.windows().properties(), &s.windows().worksheet()});
             }
         }},
        {"script editor", [](LanguageSession& s, const Look& look) {
             s.core().document().openPath(s.projectPath);
             s.select(1);
             QWidget* panel = &s.windows().properties();
             for (const char* command : {"Command_code", "Command_survol_bouton"}) {
                 click(panel, command);
                 look(command, {&s.windows().scriptEditor()});
             }
             s.select(0);
             for (const char* command : {"Command_minuteur", "Command_global", "Command_survol_fenetre"}) {
                 click(panel, command);
                 look(command, {&s.windows().scriptEditor()});
             }
             s.core().scriptEditor().open(ScriptSlot::Startup);
             look("startup", {&s.windows().scriptEditor()});
         }},
        {"compile", [](LanguageSession& s, const Look& look) {
             s.core().document().openPath(s.projectPath);
             s.core().project().button(2).action = "film.avi";
             s.trigger(CommandId::CompileAutorun);
             QWidget* dialog = s.editor->buildView().compileDialog();
             look("open", {dialog});
             const std::string target = s.folder("cd");
             if (auto* field = qobject_cast<QLineEdit*>(child(dialog, "Text1")))
                 field->setText(QString::fromStdString(target));
             click(dialog, "Command1");
             // The status lines of a compilation that went to its end.
             auto* bar = dialog ? dialog->findChild<QProgressBar*>() : nullptr;
             look("done", {bar && bar->value() == bar->maximum() ? dialog : nullptr});
         }},
        {"wizard", [](LanguageSession& s, const Look& look) {
             s.dialogs.messageAnswers = {Answer::No};
             s.trigger(CommandId::NewWizard);
             QWidget* w = s.editor->wizard().window();
             for (int step = 0; step < 5; ++step) {
                 look("step " + QString::number(step + 1), {w});
                 if (step == 2) {
                     click(w, "Command9");
                     look("new button", {w});
                     click(w, "Command22");
                 }
                 click(w, "Command2");
             }
         }},
        {"appearances", [](LanguageSession& s, const Look& look) {
             s.trigger(CommandId::Appearances);
             look("editor shown", {&s.windows().main()});
         }},
        {"other windows", [](LanguageSession& s, const Look& look) {
             s.trigger(CommandId::FileProperties);
             s.trigger(CommandId::About);
             TestRunWatcher watcher(s.hooks);
             look("open", {&s.windows().fileInfo(), s.editor->aboutWindow(), &watcher});
             QTest::mouseClick(s.windows().toolbox().command(int(ToolboxCommand::ShapeEditor)), Qt::LeftButton);
             look("shape editor", {s.editor->shapeView().surface(), s.editor->shapeView().panel()});
         }},
    };
    return all;
}

// What a road shows, by state, window and place.
QMap<QString, QString> textsAlong(const Road& road, const std::string& language, QStringList& problems)
{
    LanguageSession s(language);
    QMap<QString, QString> texts;
    road.walk(s, [&](const QString& state, const QList<QWidget*>& windows) {
        for (QWidget* w : windows) {
            if (!w) {
                problems << QString("%1, %2: a window did not open").arg(road.name, state);
                continue;
            }
            const auto read = readableTexts(*w);
            // The run's own folders differ from run to run; what is around them does not.
            for (auto it = read.begin(); it != read.end(); ++it)
                texts.insert(state + " " + it.key(), QString(it.value()).replace(s.root.path(), "<root>"));
        }
    });
    for (const Message& m : s.dialogs.messages)
        if (m.title.rfind("Langue/Language", 0) == 0)
            problems << QString("%1: %2").arg(road.name, QString::fromStdString(m.title + ": " + m.text));
    return texts;
}

}  // namespace

class TestLanguages : public QObject {
    Q_OBJECT
private slots:
    void nothingReadsFrenchInEnglish();
    void theMainWindowFillsThePhraseList();
    void aBrokenPackIsReportedAndTheRestStaysFrench_data();
    void aBrokenPackIsReportedAndTheRestStaysFrench();
    void qtDialogsFollowTheInterfaceLanguage();
    void appearancesColourTheWindowsThatTakeThemOnLoad();
    void aboutWindowScrollsPausesAndOpensLinks();
    void theAboutCommandOpensTheCredits();
};

void TestLanguages::nothingReadsFrenchInEnglish()
{
    // Each road is taken twice, in French and in English; a text shown at
    // the same place both times is still French, a text gone in English is
    // an empty caption.
    QStringList french;
    for (const Road& road : roads()) {
        const auto inFrench = textsAlong(road, "", french);
        const auto inEnglish = textsAlong(road, "English", french);
        for (auto it = inFrench.begin(); it != inFrench.end(); ++it) {
            const QString where = QString::fromUtf8(road.name) + ", " + it.key();
            if (!inEnglish.contains(it.key()))
                french << where + ": empty in English (French \"" + it.value() + "\")";
            else if (inEnglish[it.key()] == it.value() && !keptAsIs(it.value()))
                french << where + ": " + it.value();
        }
    }
    for (const QString& line : french)
        qWarning().noquote() << line;
    QVERIFY2(french.isEmpty(), qPrintable(QString::number(french.size()) + " French texts in English"));
}

void TestLanguages::theMainWindowFillsThePhraseList()
{
    LanguageRun english("English", shippedProgramFolder());
    MainWindow main(kScreen, english.hooks);
    QVERIFY(english.state.phrases.languageActive());
    QCOMPARE(english.state.phrases.text(43, "Langue modifiée, veuillez redémarrer QOR."),
             std::string("Language changed, please restart QOR."));
    QCOMPARE(english.state.phrases.text(0, "x"), std::string("You have reached the maximum number of buttons."));
    // Dialogs titled with a command's caption take the English one.
    QCOMPARE(commandCaption(CommandId::Open), std::string("&Open"));
    // Every numbered phrase is there, the run-time texts' too.
    QVERIFY(english.state.phrases.text(85, "beyond") == "beyond");
    QVERIFY(english.state.phrases.text(38, "x") != "x");
    QVERIFY(english.state.phrases.text(84, "x") != "x");
}

void TestLanguages::aBrokenPackIsReportedAndTheRestStaysFrench_data()
{
    QTest::addColumn<QString>("pack");
    QTest::addColumn<QString>("form1");     // the toolbox's script; "-" for none
    QTest::addColumn<int>("phrases");       // how many of the English phrases the pack has
    QTest::addColumn<QString>("failure");   // the title of the one message, "" for none
    QTest::addColumn<QString>("toolbox");   // the toolbox's title then
    QTest::addColumn<QString>("noRecent");  // the recent files' placeholder then
    const QString english = "Form1.Caption = \"Objects\"\r\n";
    QTest::newRow("missing script") << "Broken"
                                    << "-" << 200 << "Langue/Language 0"
                                    << "Objets"
                                    << "Aucun fichier récent";
    // Compiled whole before it runs: none of it took effect.
    QTest::newRow("script that does not compile")
        << "Broken" << english + "'\r\n'\r\n'\r\n'\r\n'\r\nCommand1.Caption = )\r\n"
        << 200 << "Langue/Language 7"
        << "Objets"
        << "Aucun fichier récent";
    // Stops at the control: the lines before it have taken effect.
    QTest::newRow("control that does not exist") << "Broken" << english + "Command99.Caption = \"None\"\r\n"
                                                 << 200 << "Langue/Language 2"
                                                 << "Objects"
                                                 << "Aucun fichier récent";
    QTest::newRow("phrase list too short") << "Short" << english << 44 << ""
                                           << "Objects"
                                           << "Aucun fichier récent";
    QTest::newRow("folder with accents and spaces") << "Anglais à moi" << english << 200 << ""
                                                    << "Objects"
                                                    << "No recent files";
}

// The main window loads first here, so the phrase list is filled (or the
// run gone back to French) before the toolbox loads.
void TestLanguages::aBrokenPackIsReportedAndTheRestStaysFrench()
{
    QFETCH(QString, pack);
    QFETCH(QString, form1);
    QFETCH(int, phrases);
    QFETCH(QString, failure);
    QFETCH(QString, toolbox);
    QFETCH(QString, noRecent);
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString() + "/";
    const std::string packFolder = folder + "langues/" + pack.toStdString() + "/";
    std::filesystem::create_directories(packFolder);
    const std::string shipped = shippedProgramFolder() + "langues/English/";
    std::filesystem::copy_file(shipped + "Form2.lge", packFolder + "Form2.lge");
    // The first `phrases` phrases of the English list.
    std::string list;
    for (const QString& line : QString::fromStdString(test::Session::read(shipped + "phrases.lge")).split('\n'))
        if (!line.startsWith("Liste.AddItem") || phrases-- > 0)
            list += line.toStdString() + "\r\n";
    test::Session::write(packFolder + "phrases.lge", list);
    if (form1 != "-")
        test::Session::write(packFolder + "Form1.lge", form1.toStdString());

    LanguageRun run(pack.toStdString(), folder);
    MainWindow main(kScreen, run.hooks);
    ToolboxWindow box(kScreen, run.hooks);
    // Texts set from here on follow what the run speaks now.
    main.setRecentFiles({});
    QStringList titles;
    for (const Message& m : run.dialogs.messages) {
        titles << QString::fromStdString(m.title);
        QCOMPARE(m.icon, MessageIcon::Critical);
    }
    QCOMPARE(titles, failure.isEmpty() ? QStringList() : QStringList{failure});
    QCOMPARE(box.windowTitle(), toolbox);
    QCOMPARE(run.state.interfaceLanguage.empty(), !failure.isEmpty());
    QStringList recent;
    for (QAction* a : main.findChildren<QAction*>(QStringLiteral("fichrecent_mnu")))
        if (!a->associatedObjects().isEmpty())
            recent << a->text();
    QCOMPARE(recent, QStringList{noRecent});
    // Every command keeps a caption.
    for (QAbstractButton* b : box.findChildren<QAbstractButton*>())
        QVERIFY2(!b->text().isEmpty() || !b->icon().isNull() || b->objectName().startsWith("Check"),
                 qPrintable(b->objectName()));
}

void TestLanguages::qtDialogsFollowTheInterfaceLanguage()
{
    auto buttons = [] {
        QMessageBox box;
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QStringList out;
        for (auto which : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
            out << box.button(which)->text().remove('&');
        return out;
    };
    QtDialogLanguage language;
    language.follow("English");
    QCOMPARE(buttons(), (QStringList{"Yes", "No", "Cancel"}));
    language.follow("");
    if (!language.french())
        QSKIP("Qt's French translations (qt6-translations-l10n) are not installed");
    QCOMPARE(buttons(), (QStringList{"Oui", "Non", "Annuler"}));
    // A pack that fails takes Qt's dialogs back to French with the rest.
    language.follow("English");
    QTemporaryDir empty;
    LanguageRun broken("Missing", empty.path().toStdString() + "/");
    broken.hooks.languageDropped = [&language] { language.follow(""); };
    ToolboxWindow toolbox(kScreen, broken.hooks);
    QCOMPARE(buttons(), (QStringList{"Oui", "Non", "Annuler"}));
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

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestLanguages>(argc, argv);
}

#include "tst_languages.moc"
