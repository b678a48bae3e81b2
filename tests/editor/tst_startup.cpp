// Start-up as a user meets it: the real windows, views and core, in a
// temporary program folder with temporary settings.

#include <QApplication>
#include <QCursor>
#include <QLabel>
#include <QTest>

#include "core/app/association.h"
#include "core/app/options_file.h"
#include "core/app/recent_files.h"
#include "core/app/screen_check.h"
#include "core/app/user_settings.h"
#include "core/app/window_arrangement.h"
#include "core/ui/appearances_file.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/splash_window.h"
#include "editor_session.h"

using namespace qor;
using qor::test::Session;

namespace {

QStringList visibleWindows()
{
    QStringList names;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && !w->objectName().isEmpty())
            names << w->objectName();
    names.sort();
    return names;
}

// The outer size the editor gives a window before the window system has
// drawn its frame: the inner size, borders and a caption bar.
TwipsSize assumedOuter(const QWidget& w, double tpp)
{
    return {w.width() * tpp + 2 * EditorWindows::kAssumedBorder,
            w.height() * tpp + EditorWindows::kAssumedCaption + EditorWindows::kAssumedBorder};
}

}  // namespace

class TestStartup : public QObject {
    Q_OBJECT

private slots:
    void firstRunWritesTheSettingsFilesAndRegistersTheFileType();
    void windowsStandWhereTheArrangementPutsThem_data();
    void windowsStandWhereTheArrangementPutsThem();
    void screen640WideRefusesToStart();
    void startupProjectOpensOnTheFirstActivationOfThePanel();
    void commandLineThatNamesNoProjectIsIgnored_data();
    void commandLineThatNamesNoProjectIsIgnored();
    void maintenanceModeShowsNoWindow();
    void optionsFileOfAnyLength_data();
    void optionsFileOfAnyLength();
    void settingsStoreThatCannotBeWritten();
};

void TestStartup::firstRunWritesTheSettingsFilesAndRegistersTheFileType()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    QVERIFY2(s.dialogs.unexpected.isEmpty(), qPrintable(s.dialogs.unexpected.join('\n')));
    QVERIFY(s.dialogs.messages.empty());

    // The options file with its defaults, the six default appearances.
    QCOMPARE(s.programFileLines(kOptionsFileName),
             (std::vector<std::string>{"non", "oui", "oui", "-2147483633 ", "-2147483643 ", "-2147483630 ",
                                       "MS Sans Serif", "non", "oui"}));
    QVERIFY(readAppearancesFile(s.programFile(kAppearancesFileName)).records == defaultAppearanceRecords());

    // The association: the five values in the per-user store, then the
    // desktop's own registration and its refresh tools.
    for (const auto& e : associationEntries(s.programFolder(), "qor"))
        QCOMPARE(s.settings.get("QOR", e.section, kAssociationValueKey, "<unset>"), e.value);
    QVERIFY(QFile::exists(s.fileTypes.mimePackageFile()));
    QVERIFY(QFile::exists(s.fileTypes.desktopEntryFile()));
    QCOMPARE(s.toolsStarted.size(), 2);
    // The start bookkeeping.
    QCOMPARE(s.settings.get("QOR", "General", "Chemin", ""), s.programFolder());
    QCOMPARE(s.settings.get("QOR", "General", "NomExe", ""), std::string("qor"));

    // Shown: the main window, the tool windows and the worksheet; not the
    // splash, not the script editor, which is not even built yet.
    QCOMPARE(visibleWindows(), (QStringList{"Form1", "Form10", "Form2", "Form3", "Form4"}));
    QVERIFY(!s.windows().scriptEditorBuilt());
    QCOMPARE(s.main().windowTitle(), QStringLiteral("QOR v2.0 - créateur de menus"));
    QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("QOR - création"));
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
    QCOMPARE(s.windows().properties().elementSelector()->currentIndex(), 0);

    // A second start reads what the first one wrote and writes nothing new.
    Session::write(s.programFile(kOptionsFileName), "oui\r\noui\r\noui\r\n");
    s.toolsStarted.clear();
    Session later;
    QDir(later.root.filePath("program")).removeRecursively();
    QVERIFY(QDir().rename(s.root.filePath("program"), later.root.filePath("program")));
    QCOMPARE(later.start(), StartOutcome::Running);
    QVERIFY(later.toolsStarted.isEmpty());
    QCOMPARE(later.programFileLines(kOptionsFileName), (std::vector<std::string>{"oui", "oui", "oui"}));
}

void TestStartup::windowsStandWhereTheArrangementPutsThem_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<double>("menuWidth");
    QTest::addColumn<double>("menuHeight");
    QTest::newRow("1024 x 768") << 1024 << 768 << 12000.0 << 9000.0;
    QTest::newRow("800 x 600: a smaller menu") << 800 << 600 << 9600.0 << 7200.0;
    QTest::newRow("720 wide") << 720 << 576 << 12000.0 << 9000.0;
    QTest::newRow("1920 x 1080") << 1920 << 1080 << 12000.0 << 9000.0;
}

void TestStartup::windowsStandWhereTheArrangementPutsThem()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(double, menuWidth);
    QFETCH(double, menuHeight);
    Session s(width, height);
    QCOMPARE(s.start(), StartOutcome::Running);
    const double tpp = 15;
    EditorWindows& w = s.windows();
    // The properties panel's size plays no part in the arithmetic.
    const WindowSizes sizes{assumedOuter(w.toolbox(), tpp), assumedOuter(w.main(), tpp), {},
                            assumedOuter(w.mousePosition(), tpp)};
    const WindowArrangement a = arrangeWindows(sizes, s.screen.value, {menuWidth, menuHeight});
    auto at = [tpp](const WindowPosition& p) { return QPoint(qRound(p.left / tpp), qRound(p.top / tpp)); };
    QCOMPARE(w.worksheet().pos(), at(a.worksheet));
    QCOMPARE(w.toolbox().pos(), at(a.toolbox));
    QCOMPARE(w.main().pos(), at(a.main));
    QCOMPARE(w.properties().pos(), at(a.properties));
    QCOMPARE(w.mousePosition().pos(), at(a.mousePosition));
    // The worksheet's outer size is the menu size; the properties panel
    // reaches down to 500 twips above the screen's bottom.
    const QSize sheet = w.worksheet().size();
    QCOMPARE(sheet.width() + 8, qRound(menuWidth / tpp));
    QCOMPARE(sheet.height() + 24, qRound(menuHeight / tpp));
    const int panelBottom = w.properties().pos().y() + w.properties().height() + 24;
    QVERIFY2(qAbs(panelBottom - (height - qRound(500 / tpp))) <= 1, qPrintable(QString::number(panelBottom)));
    // The background area fills the worksheet's inner area.
    QCOMPARE(w.worksheet().background()->geometry(), QRect(QPoint(0, 0), sheet));
    // The project takes that size too.
    QCOMPARE(s.core().project().width, float(menuWidth));
    QCOMPARE(s.core().project().height, float(menuHeight));
}

void TestStartup::screen640WideRefusesToStart()
{
    Session s(640, 480);
    QCOMPARE(s.start(), StartOutcome::Quit);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QVERIFY(s.dialogs.messages[0] == screenTooSmallMessage());
    QCOMPARE(s.dialogs.messages[0].text,
             std::string("Votre résolution est insuffisante pour démarrer QOR, vous devez être en 800x600 minimum !"));
    QVERIFY(!s.windows().loaded());
    QVERIFY(!s.windows().splash().isVisible());
    QVERIFY(!QFile::exists(QString::fromStdString(s.programFile(kOptionsFileName))));
}

void TestStartup::startupProjectOpensOnTheFirstActivationOfThePanel()
{
    Session s;
    const std::string folder = s.folder("mes projets");
    const std::string path = Session::project(folder + "menu.qor", {"code", "vidéo", "quitter"}, 2, 0x000000FF);
    QCOMPARE(s.start("\"" + path + "\""), StartOutcome::Running);
    // Loaded once the panel has been active, not before.
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
    QCOMPARE(s.core().project().filePath, std::string());
    QTRY_COMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (code)", "Bouton 2 (vidéo)",
                                                   "Bouton 3 (quitter)", "Texte 1", "Texte 2"}));
    QCOMPARE(s.core().project().filePath, path);
    QVERIFY(s.dialogs.messages.empty());

    // The worksheet takes the project's size and colour, the current folder
    // is the project's, the buttons have their pictures, the recent files
    // list has the project.
    QCOMPARE(s.windows().outerSize(s.windows().worksheet()), (TwipsSize{9000, 6000}));
    QCOMPARE(s.windows().worksheet().backgroundColour(), QColor(255, 0, 0));
    QCOMPARE(QDir::currentPath() + "/", QString::fromStdString(folder));
    QCOMPARE(s.editor->projectViews().buttonPicture(2).size(), QSize(42, 20));
    QCOMPARE(s.main().recentFileActions().size(), 1);
    QCOMPARE(s.main().recentFileActions()[0]->text(), QString::fromStdString(RecentFiles::caption(path)));

    // Activating the panel again opens nothing again.
    s.windows().properties().elementSelector()->setCurrentIndex(3);
    QApplication::setActiveWindow(&s.main());
    QApplication::setActiveWindow(&s.windows().properties());
    QTRY_VERIFY(s.windows().properties().isActiveWindow());
    QCOMPARE(s.windows().properties().elementSelector()->currentIndex(), 3);
}

void TestStartup::commandLineThatNamesNoProjectIsIgnored_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("create");
    QTest::newRow("upper-case extension") << "menu.QOR" << true;
    QTest::newRow("missing file") << "absent.qor" << false;
    QTest::newRow("another extension") << "menu.txt" << true;
}

void TestStartup::commandLineThatNamesNoProjectIsIgnored()
{
    QFETCH(QString, name);
    QFETCH(bool, create);
    Session s;
    const std::string path = s.folder("p") + name.toStdString();
    if (create)
        Session::project(path, {"code"}, 0);
    QCOMPARE(s.start("\"" + path + "\""), StartOutcome::Running);
    // Every window shown has been active once, the panel included.
    QTRY_COMPARE(QApplication::activeWindow(), &s.windows().mousePosition());
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
    QCOMPARE(s.core().project().filePath, std::string());
    QVERIFY(s.dialogs.messages.empty());
}

void TestStartup::maintenanceModeShowsNoWindow()
{
    Session s;
    Session::write(s.programFile("plugins.ini"), "[DEBUT]\r\nCalc\r\ns1:calc\r\n");
    s.dialogs.inputAnswers = {"2"};
    QCOMPARE(s.start("\"maintien\""), StartOutcome::Quit);
    QCOMPARE(s.dialogs.inputPrompts, (std::vector<std::string>{"Code débogage ?\r\n\r\n#"}));
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Fichier plugins.ini vidé"));
    QCOMPARE(s.dialogs.lastMessage().title, std::string("QOR - Mode débogage"));
    QCOMPARE(QFileInfo(QString::fromStdString(s.programFile("plugins.ini"))).size(), 0);
    QVERIFY(!s.windows().loaded());
    QVERIFY(!s.windows().splash().isVisible());
    QVERIFY(visibleWindows().isEmpty());
}

void TestStartup::optionsFileOfAnyLength_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("pointer");
    QTest::addColumn<bool>("mouse");
    QTest::addColumn<bool>("handles");
    QTest::addColumn<bool>("wizard");
    QTest::addColumn<bool>("media");
    QTest::newRow("empty file") << "" << false << false << false << false << true;
    QTest::newRow("three lines") << "non\r\nnon\r\noui\r\n" << false << false << true << false << true;
    QTest::newRow("garbage") << "peut-être\r\n#!\r\nOUI\r\nrouge\r\n\r\n-\r\n\r\nxyz\r\nnon\r\n"
                             << false << false << false << false << false;
    QTest::newRow("twenty lines") << QString("oui\r\n").repeated(20) << true << true << true << true << true;
    QTest::newRow("LF ends, huge colours") << "oui\nnon\nnon\n99999999999999\n-99999999999999\n1e300\nArial\noui\nnon"
                                           << true << false << false << true << false;
}

void TestStartup::optionsFileOfAnyLength()
{
    QFETCH(QString, text);
    QFETCH(bool, pointer);
    QFETCH(bool, mouse);
    QFETCH(bool, handles);
    QFETCH(bool, wizard);
    QFETCH(bool, media);
    Session s;
    Session::write(s.programFile(kOptionsFileName), text.toStdString());
    Session::write(s.programFile(kAppearancesFileName), "");
    QCOMPARE(s.start(), StartOutcome::Running);
    QVERIFY(s.dialogs.messages.empty());
    QVERIFY(s.dialogs.unexpected.isEmpty());
    QCOMPARE(s.main().isChecked(CommandId::PrecisePointer), pointer);
    QCOMPARE(s.main().isChecked(CommandId::MousePosition), mouse);
    QCOMPARE(s.main().isChecked(CommandId::ShowHandles), handles);
    QCOMPARE(s.main().isChecked(CommandId::WizardAtStart), wizard);
    QCOMPARE(s.main().isChecked(CommandId::RequireMediaFile), media);
    // Applied: the pointer over the whole editor, the worksheet's handles.
    QCOMPARE(QApplication::overrideCursor() != nullptr, pointer);
    if (pointer)
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
    QCOMPARE(s.windows().worksheet().selectionHandlesVisible(), handles);
    // Shown at start whatever its option says; its command hides it.
    QVERIFY(s.windows().mousePosition().isVisible());
    // Reading does not write the file back.
    QCOMPARE(QString::fromStdString(Session::read(s.programFile(kOptionsFileName))), text);
}

void TestStartup::settingsStoreThatCannotBeWritten()
{
    Session s(1024, 768, false);
    QCOMPARE(s.start(), StartOutcome::Running);
    // Nothing the user asked for was lost yet: no message.
    QVERIFY(s.dialogs.messages.empty());
    const std::string folder = s.folder("p");
    const std::string first = Session::project(folder + "un.qor", {"code"}, 0);
    const std::string second = Session::project(folder + "deux.qor", {}, 1);
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {first};
    s.trigger(CommandId::Open);
    // The recent files cannot be kept: told once, and the project is open.
    QCOMPARE(s.dialogs.messages.size(), std::size_t(2));
    QVERIFY(s.dialogs.messages[1] == settingsNotSavedMessage());
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (code)"}));
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {second};
    s.trigger(CommandId::Open);
    QCOMPARE(s.dialogs.messages.size(), std::size_t(3));
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Texte 1"}));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestStartup>(argc, argv);
}

#include "tst_startup.moc"
