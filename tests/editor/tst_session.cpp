// A session with the editor, command by command through its menus: the real
// windows, views and core, temporary folders, scripted answers.

#include <QApplication>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "core/app/association.h"
#include "core/app/main_window_flows.h"
#include "core/app/options_file.h"
#include "core/app/recent_files.h"
#include "core/app/web_pages.h"
#include "core/project/document_lifecycle.h"
#include "core/project/project_file.h"
#include "core/project/qmb_import.h"
#include "editor/app/menu_title_label.h"
#include "editor/designer/button_panel.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/text_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/colours.h"
#include "editor/project/file_info_window.h"
#include "editor/ui/appearance_frame.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/wizard/creation_wizard_window.h"
#include "editor_session.h"
#include "editor/scripting/script_editor_window.h"
#include <QPlainTextEdit>
#include "model/product.h"
#include "model/project_reader.h"
#include "typing.h"

using namespace qor;
using qor::test::Session;

Q_DECLARE_METATYPE(qor::CommandId)
Q_DECLARE_METATYPE(qor::Answer)

namespace {

QStringList visibleTexts(const QList<QAction*>& actions)
{
    QStringList out;
    for (QAction* a : actions)
        if (a->isVisible())
            out << a->text();
    return out;
}

bool anyEditorWindowVisible(Session& s)
{
    for (WindowId w : kStartupShowOrder)
        if (s.windows().window(w)->isVisible())
            return true;
    return false;
}

// A started session with one project open from the "&Ouvrir" command.
struct OpenedSession {
    Session s;
    std::string path;

    explicit OpenedSession(const std::vector<std::string>& kinds = {"code"}, int texts = 0)
    {
        path = Session::project(s.folder("projets") + "menu.qor", kinds, texts);
        s.start();
        s.dialogs.messageAnswers = {Answer::No};
        s.dialogs.openAnswers = {path};
        s.trigger(CommandId::Open);
        s.dialogs.messages.clear();
    }
};

}  // namespace

class TestSession : public QObject {
    Q_OBJECT

private slots:
    void openAsksThenLoads();
    void quitAnswersTheSaveQuestion_data();
    void quitAnswersTheSaveQuestion();
    void closeBoxIsQuit_data();
    void closeBoxIsQuit();
    void newBlankProjectResetsTheViews();
    void optionCommandsRewriteTheOptionsFile_data();
    void optionCommandsRewriteTheOptionsFile();
    void recentFilesInTheFileMenu();
    void recentEntryAfterAGapOpensItsOwnFile();
    void pluginsInTheDiversMenu();
    void pluginsFileProblems_data();
    void pluginsFileProblems();
    void menuTitlesTakeTheCoresColoursAndPlaces();
    void controlsBuiltLaterTakeTheAppearance();
    void filePropertiesWindow();
    void unreadablePictures_data();
    void unreadablePictures();
    void savingWhereNothingCanBeWritten();
    void commandsReachTheirFlows();
    void languagesFromTheProgramFolder();
    void filesDroppedOnTheWorksheet();
    void scriptEditorWritesEveryChangeBack();
};

void TestSession::openAsksThenLoads()
{
    Session s;
    const std::string path = Session::project(s.folder("projets") + "menu.qor", {"code", "quitter"}, 1);
    QCOMPARE(s.start(), StartOutcome::Running);
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.openRequests.size(), std::size_t(1));
    QCOMPARE(s.selectorEntries(),
             (QStringList{"Feuille de travail", "Bouton 1 (code)", "Bouton 2 (quitter)", "Texte 1"}));
    QCOMPARE(s.core().project().filePath, path);
    QCOMPARE(QDir::currentPath() + "/", QString::fromStdString(folderOf(path)));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::quitAnswersTheSaveQuestion_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("ends");
    QTest::addColumn<bool>("saved");
    QTest::newRow("Cancel stays") << Answer::Cancel << false << false;
    QTest::newRow("No ends without saving") << Answer::No << true << false;
    QTest::newRow("Yes saves, then ends") << Answer::Yes << true << true;
}

void TestSession::quitAnswersTheSaveQuestion()
{
    QFETCH(Answer, answer);
    QFETCH(bool, ends);
    QFETCH(bool, saved);
    OpenedSession o;
    Session& s = o.s;
    const std::string before = Session::read(o.path);
    s.core().project().authorName = "Changé";
    s.dialogs.messageAnswers = {answer};
    s.trigger(CommandId::Quit);

    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    const Message& q = s.dialogs.messages[0];
    QCOMPARE(q.text, std::string("Voulez-vous enregistrer les modifications apportées au fichier 'menu.qor' ?"));
    QCOMPARE(q.title, std::string("Enregistrement"));
    QCOMPARE(q.icon, MessageIcon::Question);
    QCOMPARE(q.buttons, MessageButtons::YesNoCancel);
    QVERIFY(q.systemModal);

    QCOMPARE(s.ended, ends);
    QCOMPARE(anyEditorWindowVisible(s), !ends);
    QCOMPARE(Session::read(o.path) != before, saved);
    if (saved)
        QVERIFY(Session::read(o.path).find("Chang\xE9") != std::string::npos);
    // Staying open keeps the project as it was.
    if (!ends)
        QCOMPARE(s.core().project().authorName, std::string("Changé"));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::closeBoxIsQuit_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("ends");
    QTest::newRow("Cancel") << Answer::Cancel << false;
    QTest::newRow("No") << Answer::No << true;
    // A project never saved: Yes opens the save-as dialog; cancelling it
    // still counts as "enr", and the editor ends.
    QTest::newRow("Yes, save-as cancelled") << Answer::Yes << true;
}

void TestSession::closeBoxIsQuit()
{
    QFETCH(Answer, answer);
    QFETCH(bool, ends);
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    s.dialogs.messageAnswers = {answer};
    if (answer == Answer::Yes)
        s.dialogs.saveAnswers = {std::nullopt};
    QCOMPARE(s.main().close(), ends);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.messages[0].text, std::string("Voulez-vous enregistrer le fichier en cours ?"));
    QVERIFY(s.dialogs.messages[0].systemModal);
    QCOMPARE(s.ended, ends);
    QCOMPARE(s.main().isVisible(), !ends);
    QCOMPARE(s.windows().toolbox().isVisible(), !ends);
    QCOMPARE(s.dialogs.saveRequests.size(), std::size_t(answer == Answer::Yes ? 1 : 0));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::newBlankProjectResetsTheViews()
{
    Session s;
    const std::string folder = s.folder("p");
    MenuProject p;
    p.backgroundImage = Session::picture(folder + "fond.png", 30, 30);
    p.backgroundColor = 0x0000FF00;
    p.fullScreen = true;
    const std::string path = Session::write(folder + "plein.qor", projectFileBytes(p, RelativePathRule(folder + "plein.qor", "")));
    QCOMPARE(s.start(), StartOutcome::Running);
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);
    QVERIFY(!s.windows().worksheet().background()->pixmap().isNull());
    QCOMPARE(s.windows().worksheet().backgroundColour(), QColor(0, 255, 0));

    s.dialogs.messageAnswers = {Answer::No};
    s.trigger(CommandId::NewBlank);
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
    QVERIFY(s.windows().worksheet().background()->pixmap().isNull());
    QCOMPARE(s.windows().worksheet().backgroundColour(), QColor(255, 255, 255));
    QCOMPARE(s.core().selection().currentButton, 0);
    QCOMPARE(s.editor->projectViews().startupChoice(), StartupChoice::Nothing);
    // The full-screen flag goes; the window keeps its size, the one start-up gave it.
    QVERIFY(!s.core().project().fullScreen);
    QCOMPARE(s.windows().outerSize(s.windows().worksheet()), (TwipsSize{12000, 9000}));
}

void TestSession::optionCommandsRewriteTheOptionsFile_data()
{
    QTest::addColumn<CommandId>("command");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("value");
    QTest::newRow("precise pointer") << CommandId::PrecisePointer << 0 << "oui";
    QTest::newRow("mouse position") << CommandId::MousePosition << 1 << "non";
    QTest::newRow("handles") << CommandId::ShowHandles << 2 << "non";
    QTest::newRow("wizard at start") << CommandId::WizardAtStart << 7 << "oui";
    QTest::newRow("multimedia file") << CommandId::RequireMediaFile << 8 << "non";
}

void TestSession::optionCommandsRewriteTheOptionsFile()
{
    QFETCH(CommandId, command);
    QFETCH(int, line);
    QFETCH(QString, value);
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    std::vector<std::string> expected = s.programFileLines(kOptionsFileName);
    const bool was = s.main().isChecked(command);

    s.trigger(command);
    QCOMPARE(s.main().isChecked(command), !was);
    expected[std::size_t(line)] = value.toStdString();
    QCOMPARE(s.programFileLines(kOptionsFileName), expected);
    // The options that act at once.
    QCOMPARE(QApplication::overrideCursor() != nullptr, command == CommandId::PrecisePointer);
    QCOMPARE(s.windows().mousePosition().isVisible(), command != CommandId::MousePosition);
    QCOMPARE(s.windows().worksheet().selectionHandlesVisible(), command != CommandId::ShowHandles);

    s.trigger(command);
    QCOMPARE(s.main().isChecked(command), was);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QVERIFY(s.windows().mousePosition().isVisible());
    QVERIFY(s.dialogs.messages.empty());
}

void TestSession::recentFilesInTheFileMenu()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    QCOMPARE(visibleTexts(s.main().recentFileActions()), QStringList{"Aucun fichier récent"});
    QVERIFY(!s.main().recentFileActions()[0]->isEnabled());

    const std::string folder = s.folder("un dossier assez long");
    std::vector<std::string> paths;
    for (int n = 1; n <= 6; ++n) {
        paths.push_back(Session::project(folder + "projet" + std::to_string(n) + ".qor", {}, n));
        s.dialogs.messageAnswers = {Answer::No};
        s.dialogs.openAnswers = {paths.back()};
        s.trigger(CommandId::Open);
    }
    // The last five, oldest first, with ten characters, ".../" and the name.
    QStringList captions;
    for (int n = 2; n <= 6; ++n)
        captions << QString::fromStdString(paths[std::size_t(n - 1)].substr(0, 10)) + ".../projet" +
                        QString::number(n) + ".qor";
    QCOMPARE(visibleTexts(s.main().recentFileActions()), captions);
    QCOMPARE(s.settings.get("QOR", "FichiersRecents", "Fichier1", ""), paths[1]);

    // An entry whose file vanished: told, the project stays, the entry stays.
    QFile::remove(QString::fromStdString(paths[2]));
    s.dialogs.messages.clear();
    s.main().recentFileActions()[1]->trigger();
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.messages[0].text, "Le fichier '" + paths[2] + "' est introuvable !");
    QCOMPARE(s.dialogs.messages[0].title, std::string("Erreur de chargement"));
    QCOMPARE(s.dialogs.messages[0].icon, MessageIcon::Critical);
    QCOMPARE(s.core().project().filePath, paths[5]);
    QCOMPARE(s.main().recentFileActions().size(), 5);

    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::recentEntryAfterAGapOpensItsOwnFile()
{
    Session s;
    const std::string folder = s.folder("p");
    const std::string first = Session::project(folder + "un.qor", {}, 1);
    const std::string third = Session::project(folder + "trois.qor", {}, 3);
    // "Fichier2" emptied by hand: the list shows entries 1 and 3.
    s.settings.save("QOR", "FichiersRecents", "Fichier1", first);
    s.settings.save("QOR", "FichiersRecents", "Fichier3", third);
    QCOMPARE(s.start(), StartOutcome::Running);
    QCOMPARE(visibleTexts(s.main().recentFileActions()),
             (QStringList{QString::fromStdString(RecentFiles::caption(first)),
                          QString::fromStdString(RecentFiles::caption(third))}));
    s.dialogs.messageAnswers = {Answer::No};
    s.main().recentFileActions()[1]->trigger();
    QCOMPARE(s.core().project().filePath, third);
    QCOMPARE(s.selectorEntries().size(), 4);
}

void TestSession::pluginsInTheDiversMenu()
{
    Session s;
    Session::write(s.programFile("plugins.ini"),
                   encodeCp1252("Mes outils, ligne libre\r\n[DEBUT]\r\nBonjour\r\nMB:Bonjour\u00A4\u00E0 tous\r\n"
                                "Calculatrice\r\ns1:galculator --mode x\r\nSite\r\nse:http://qor.example.org/\r\n"
                                "Court\r\ns1\r\n"));
    QCOMPARE(s.start(), StartOutcome::Running);
    QVERIFY(s.dialogs.messages.empty());
    QCOMPARE(visibleTexts(s.main().pluginActions()), (QStringList{"Bonjour", "Calculatrice", "Site", "Court"}));

    s.main().pluginActions()[1]->trigger();
    QVERIFY(s.dialogs.lastMessage() ==
            (Message{"Bonjour\r\nà tous", "Information", MessageIcon::Information}));
    s.main().pluginActions()[4]->trigger();
    QVERIFY(s.dialogs.lastMessage() ==
            (Message{"Impossible de démarrer le plugin !", "Erreur", MessageIcon::Critical}));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::pluginsFileProblems_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<bool>("reported");
    QTest::newRow("no [DEBUT]") << "Calc\r\ns1:calc\r\n" << QStringList{"Aucun plugin installé"} << false;
    QTest::newRow("unpaired last line") << "[DEBUT]\r\nA\r\ns1:a\r\nB\r\n" << QStringList{"A"} << true;
}

void TestSession::pluginsFileProblems()
{
    QFETCH(QString, text);
    QFETCH(QStringList, shown);
    QFETCH(bool, reported);
    Session s;
    Session::write(s.programFile("plugins.ini"), text.toStdString());
    QCOMPARE(s.start(), StartOutcome::Running);
    QCOMPARE(visibleTexts(s.main().pluginActions()), shown);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(reported ? 1 : 0));
    if (reported) {
        QCOMPARE(s.dialogs.messages[0].title, std::string("Erreur"));
        QCOMPARE(s.dialogs.messages[0].icon, MessageIcon::Critical);
    }
    // The editor goes on: its windows are up.
    QVERIFY(s.main().isVisible());
    if (shown == QStringList{"Aucun plugin installé"}) {
        s.main().pluginActions()[0]->trigger();
        QVERIFY(s.dialogs.lastMessage() ==
                (Message{"Aucun plugin installé", "Aucun plugin installé", MessageIcon::Information}));
    }
}

void TestSession::menuTitlesTakeTheCoresColoursAndPlaces()
{
    Session s;
    // An appearance of its own: red windows, blue text.
    Session::write(s.programFile(kOptionsFileName),
                   "non\r\noui\r\noui\r\n 255 \r\n 16777215 \r\n 16711680 \r\nArial\r\nnon\r\noui\r\n");
    QCOMPARE(s.start(), StartOutcome::Running);
    MainWindow& main = s.main();
    QCOMPARE(main.menuTitleBoxes(), layOutMenuTitles(main.menuTitleTextWidths()));

    QTest::mouseMove(main.menuTitle(2));
    QTRY_COMPARE(main.highlightedMenuTitle(), 2);
    // Highlighted: the appearance's text colour behind its window colour.
    QCOMPARE(main.menuTitle(2)->palette().color(QPalette::Window), QColor(0, 0, 255));
    QCOMPARE(main.menuTitle(2)->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    QCOMPARE(main.menuTitle(1)->palette().color(QPalette::Window), QColor(255, 0, 0));

    // Where the whole menu fits on the screen.
    main.move(0, 0);
    QTest::mousePress(main.menuTitle(4), Qt::LeftButton);
    QTRY_VERIFY(main.menu(4)->isVisible());
    QCOMPARE(main.highlightedMenuTitle(), 4);
    const TitleBox& box = main.menuTitleBoxes()[4];
    QCOMPARE(main.menu(4)->pos(), main.mapToGlobal(QPoint(qRound(box.left / 15), qRound(box.bottom() / 15))));
    main.menu(4)->hide();
    // A click on the window's body resets the titles.
    QTest::mouseClick(&main, Qt::LeftButton, {}, QPoint(main.width() - 2, main.height() - 2));
    QCOMPARE(main.highlightedMenuTitle(), -1);
}

void TestSession::controlsBuiltLaterTakeTheAppearance()
{
    Session s;
    // Red windows, white fields, blue text, Arial.
    Session::write(s.programFile(kOptionsFileName),
                   "non\r\noui\r\noui\r\n 255 \r\n 16777215 \r\n 16711680 \r\nArial\r\nnon\r\noui\r\n");
    QCOMPARE(s.start(), StartOutcome::Running);
    MainWindow& main = s.main();
    QTest::mouseMove(main.menuTitle(2));
    QTRY_COMPARE(main.highlightedMenuTitle(), 2);
    // The button and text-box panels, and the appearance editor's frame, come
    // after the start coloured their windows.
    PropertiesPanel& panel = s.windows().properties();
    const std::pair<QLineEdit*, QPushButton*> built[] = {
        {panel.buttonPanel().findChild<QLineEdit*>(QStringLiteral("Text_normale")),
         panel.textPanel().findChild<QPushButton*>(QStringLiteral("Command_supprimer_texte"))},
        {main.appearanceFrame()->findChild<QLineEdit*>(QStringLiteral("Text2")),
         main.appearanceFrame()->findChild<QPushButton*>(QStringLiteral("Command1"))},
    };
    for (const auto& [field, command] : built) {
        QVERIFY(field && command);
        QCOMPARE(field->palette().color(QPalette::Base), QColor(255, 255, 255));
        QCOMPARE(field->palette().color(QPalette::Text), QColor(0, 0, 255));
        QCOMPARE(command->palette().color(QPalette::Button), QColor(255, 0, 0));
        QCOMPARE(command->palette().color(QPalette::ButtonText), QColor(0, 0, 255));
        QCOMPARE(command->font().family(), QStringLiteral("Arial"));
        QVERIFY(!(command->focusPolicy() & Qt::TabFocus));
    }
    // Building the frame leaves the rest of the window as it was: the title
    // under the pointer keeps its highlight.
    QCOMPARE(main.menuTitle(2)->palette().color(QPalette::Window), QColor(0, 0, 255));
}

void TestSession::filePropertiesWindow()
{
    OpenedSession o({"code"}, 0);
    Session& s = o.s;
    const std::string bytes = Session::read(o.path);
    s.trigger(CommandId::FileProperties);
    FileInfoWindow& w = s.windows().fileInfo();
    QVERIFY(w.isVisible());
    QVERIFY(w.isModal());
    const FileInfoView v = w.values();
    QCOMPARE(v.fileLine, "menu.qor (" + std::to_string(bytes.size()) + " octets )");
    QCOMPARE(v.editor, std::string("QOR"));
    QCOMPARE(v.version, product::fullVersionText());
    QCOMPARE(v.fileVersion, std::string("1.1"));

    w.field("Text1")->setText("Jeanne");
    QVERIFY(test::typeInto(w.notesField(), QStringLiteral("a¤b")));
    QCOMPARE(w.notesField()->toPlainText(), QStringLiteral("a*b"));
    w.findChild<QPushButton*>("Command1")->click();
    QVERIFY(!w.isVisible());
    QCOMPARE(s.core().project().authorName, std::string("Jeanne"));
    QCOMPARE(s.core().project().notes, std::string("a*b"));
    // Not saved: the file is as it was.
    QCOMPARE(Session::read(o.path), bytes);

    s.trigger(CommandId::FileProperties);
    QCOMPARE(w.values().authorName, std::string("Jeanne"));
    w.field("Text1")->setText("Autre");
    w.findChild<QPushButton*>("Command2")->click();
    QVERIFY(!w.isVisible());
    QCOMPARE(s.core().project().authorName, std::string("Jeanne"));
}

void TestSession::unreadablePictures_data()
{
    QTest::addColumn<bool>("background");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("error");
    QTest::newRow("background missing") << true << false << 53;
    QTest::newRow("background not a picture") << true << true << 481;
    QTest::newRow("button picture missing") << false << false << 53;
    QTest::newRow("button picture not a picture") << false << true << 481;
}

void TestSession::unreadablePictures()
{
    QFETCH(bool, background);
    QFETCH(bool, exists);
    QFETCH(int, error);
    Session s;
    const std::string folder = s.folder("p");
    const std::string bad = folder + "image.gif";
    MenuProject p;
    const std::string good = Session::picture(folder + "ok.png", 10, 10);
    const int n = *p.addButton();
    p.button(n).kind = "code";
    p.button(n).normalImage = background ? good : bad;
    p.button(n).hoverImage = p.button(n).pressedImage = good;
    if (background)
        p.backgroundImage = bad;
    const std::string path = folder + "menu.qor";
    // Written while the picture is there, so that its name is kept as it is.
    Session::write(bad, "GIF89a, ou presque");
    Session::write(path, projectFileBytes(p, RelativePathRule(path, "")));
    if (!exists)
        QFile::remove(QString::fromStdString(bad));

    QCOMPARE(s.start(), StartOutcome::Running);
    s.dialogs.messageAnswers = {Answer::No, Answer::Yes};
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(2));
    const Message& m = s.dialogs.messages[1];
    QCOMPARE(m.title, std::string("Erreur d'ouverture !"));
    QVERIFY2(m.text.rfind("Erreur : " + makeError(error).description + "\r\nNuméro d'erreur : " +
                              std::to_string(error) + "\r\n", 0) == 0,
             m.text.c_str());
    // Yes goes on: the project is open, its button listed.
    QCOMPARE(s.core().project().filePath, path);
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (code)"}));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestSession::savingWhereNothingCanBeWritten()
{
    OpenedSession o({}, 2);
    Session& s = o.s;
    // A folder that cannot be made: its place is taken by a file.
    const std::string blocked = Session::write(s.folder("p") + "fichier", "x") + "/menu.qor";
    s.dialogs.saveAnswers = {blocked};
    s.trigger(CommandId::SaveAs);
    QCOMPARE(s.dialogs.saveRequests[0].title, std::string("Enregistrer &Sous"));
    QCOMPARE(s.dialogs.saveRequests[0].filter, std::string("Fichier QOR v1.1 (*.qor) | *.qor"));
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.messages[0].title, std::string("Erreur !"));
    QVERIFY(s.dialogs.messages[0].text.rfind("Erreur pendant l'enregistrement ! (", 0) == 0);
    QCOMPARE(s.core().project().filePath, std::string());
    // Still usable: the elements are there.
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Texte 1", "Texte 2"}));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

// Each command from its menu reaches its flow; the flows themselves are
// checked by the core's tests, so each row looks at one trace of it.
void TestSession::commandsReachTheirFlows()
{
    struct Row {
        CommandId command;
        std::function<void(Session&)> prepare;
        std::function<bool(Session&)> happened;
    };
    const Phrases french;
    const std::vector<Row> rows = {
        {CommandId::EditSource, nullptr,
         [&](Session& s) { return s.dialogs.lastMessage() == projectNotSavedMessage(french); }},
        {CommandId::ReloadProject, nullptr,
         [&](Session& s) { return s.dialogs.lastMessage() == projectNotSavedMessage(french); }},
        {CommandId::Faq, nullptr,
         [](Session& s) { return s.desktop.opened.back().target == *webPageAddress(CommandId::Faq); }},
        {CommandId::BugReport, [](Session& s) { s.dialogs.inputAnswers = {"ne marche pas"}; },
         [](Session& s) { return s.desktop.opened.back().target == bugReportAddress("ne marche pas"); }},
        {CommandId::VersionCheck, nullptr,
         [](Session& s) { return s.desktop.opened.back().target == versionCheckAddress(""); }},
        {CommandId::Support, nullptr, [](Session& s) { return s.dialogs.lastMessage() == supportMessage("\r\n"); }},
        {CommandId::AssociateFiles, nullptr,
         [](Session& s) { return s.dialogs.lastMessage() == filesAssociatedMessage() && s.toolsStarted.size() == 4; }},
        {CommandId::Manual, [](Session& s) { s.dialogs.folderAnswers = {std::nullopt}; },
         [](Session& s) { return s.dialogs.folderPrompts.size() == 1; }},
        // A reset, then the wizard opens.
        {CommandId::NewWizard, [](Session& s) { s.dialogs.messageAnswers = {Answer::No}; },
         [](Session& s) {
             return s.dialogs.messages.size() == 1 && s.core().project().filePath.empty() &&
                    s.editor->wizard().window() && s.editor->wizard().window()->isVisible();
         }},
        {CommandId::Open,
         [&](Session& s) {
             s.dialogs.messageAnswers = {Answer::No};
             s.dialogs.openAnswers = {Session::write(s.folder("anciens") + "demo.QMB", "QMB")};
         },
         [](Session& s) { return s.dialogs.lastMessage() == qmbNotInstalledMessage(); }},
    };
    for (const Row& row : rows) {
        Session s;
        QCOMPARE(s.start(), StartOutcome::Running);
        if (row.prepare)
            row.prepare(s);
        s.trigger(row.command);
        QVERIFY2(row.happened(s), qPrintable(QString::number(int(row.command))));
        QVERIFY(s.dialogs.unexpected.isEmpty());
    }
    // Commands of later parts do nothing yet; "En ecran de veille" never does.
    // (The build's commands have their own tests.)
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    for (CommandId id : {CommandId::CompileScreenSaver, CommandId::PrintToBmp, CommandId::About,
                         CommandId::Appearances})
        s.trigger(id);
    QVERIFY(s.dialogs.messages.empty());
    QVERIFY(s.desktop.opened.empty() && s.desktop.started.empty());
}

void TestSession::languagesFromTheProgramFolder()
{
    Session s;
    QDir().mkpath(QString::fromStdString(s.programFile("langues/English")));
    QDir().mkpath(QString::fromStdString(s.programFile("langues/Deutsch")));
    QCOMPARE(s.start(), StartOutcome::Running);
    const QList<QAction*> languages = s.main().languageActions();
    QCOMPARE(visibleTexts(languages).first(), QStringLiteral("Français"));
    QCOMPARE(visibleTexts(languages).size(), 3);
    QVERIFY(languages[0]->isChecked());
    QAction* english = nullptr;
    for (QAction* a : languages)
        if (a->text() == "English")
            english = a;
    QVERIFY(english);
    english->trigger();
    QCOMPARE(s.settings.get("QOR", "General", "langue", ""), std::string("English"));
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Langue modifiée, veuillez redémarrer QOR."));
}

void TestSession::filesDroppedOnTheWorksheet()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = s.folder("p");
    const std::string first = Session::project(folder + "un.qor", {}, 1);
    const std::string last = Session::project(folder + "deux.qor", {}, 2);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(first)), QUrl::fromLocalFile(QString::fromStdString(last))});
    WorksheetWindow& sheet = s.windows().worksheet();
    const QPoint at(10, 10);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&sheet, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    s.dialogs.messageAnswers = {Answer::No};
    QApplication::sendEvent(&sheet, &drop);
    // The question first, then the last file of the drop.
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.core().project().filePath, last);
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Texte 1", "Texte 2"}));

    // Text without files is not taken.
    QMimeData text;
    text.setText("menu.qor");
    QDragEnterEvent refused(at, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    refused.setAccepted(false);
    QApplication::sendEvent(&sheet, &refused);
    QVERIFY(!refused.isAccepted());
}

void TestSession::scriptEditorWritesEveryChangeBack()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    s.core().scriptEditor().open(ScriptSlot::Timer);
    ScriptEditorWindow& editor = s.windows().scriptEditor();
    QVERIFY(editor.isVisible());
    QCOMPARE(editor.windowTitle(), QStringLiteral("Code VBS du minuteur"));
    QCOMPARE(s.core().project().timerScript, timerTemplate());
    // The text box speaks "\n"; the project keeps CR LF.
    QVERIFY(!editor.text()->toPlainText().contains(QChar('\r')));

    QVERIFY(test::clickInto(editor.text()) == editor.text());
    test::pressKey(Qt::Key_A, Qt::ControlModifier);
    test::typeHere(QStringLiteral("a¤b"));
    QCOMPARE(QString::fromStdString(s.core().project().timerScript), QStringLiteral("ab"));
    QCOMPARE(editor.text()->toPlainText(), QStringLiteral("ab"));
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Caratère interdit !"));

    editor.text()->setPlainText(QStringLiteral("x = 1\ny = 2"));
    QCOMPARE(s.core().project().timerScript, std::string("x = 1\r\ny = 2"));
    s.core().scriptEditor().hide();
    QVERIFY(!editor.isVisible());
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestSession>(argc, argv);
}

#include "tst_session.moc"
