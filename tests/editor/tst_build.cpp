// The build's windows in a whole editor run: the compile dialog, its
// progress and final text, and the test run's watcher over a stand-in player.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "editor/build/compile_dialog.h"
#include "editor/build/test_run_watcher.h"
#include "editor/designer/worksheet_window.h"
#include "editor_session.h"
#include "model/menu_data_reader.h"

namespace qor::test {

class TestBuild : public QObject {
    Q_OBJECT
private slots:
    void compileDialogCompilesTheOpenProject();
    void compileDialogFieldsFollowTheirRules();
    void aFailedCompilationGivesTheFieldsBack();
    void testRunWaitsForThePlayer();
    void stopEndsAPlayerThatRunsOn();
    void aPlayerThatCannotStartIsReported();
};

namespace {

// A started editor with a saved project open and the program folder's
// build files (a stand-in player for compil.exe).
struct BuildSession : Session {
    std::string projectPath;

    BuildSession()
    {
        write(programFile("compil.exe"), "MZ stand-in player");
        write(programFile("autorun.ico"), "ICON");
        write(programFile("install.bat"), "@echo off\r\n");
        start();
        projectPath = project(folder("projets") + "menu.qor", {"code", "quitter"}, 2);
        core().document().openPath(projectPath);
    }

    CompileDialog* dialog() { return editor->buildView().compileDialog(); }
    template <class W>
    W* control(const char* name) { return dialog()->findChild<W*>(QString::fromUtf8(name)); }

    // The stand-in Linux player: a shell script of the given body.
    void player(const std::string& body)
    {
        const std::string path = programFile("qorplayer");
        write(path, "#!/bin/sh\n" + body + "\n");
        QFile::setPermissions(QString::fromStdString(path), QFile::permissions(QString::fromStdString(path)) |
                                                               QFileDevice::ExeOwner);
    }
};

}  // namespace

void TestBuild::compileDialogCompilesTheOpenProject()
{
    BuildSession s;
    s.trigger(CommandId::CompileAutorun);
    QVERIFY(s.dialog());
    QCOMPARE(s.dialog()->windowTitle(), QStringLiteral("Création pour graver"));
    QCOMPARE(s.control<QLineEdit>("Text1")->text(), QDir::homePath() + "/");
    QCOMPARE(s.control<QLineEdit>("Text2")->text(), QStringLiteral("menu"));
    QCOMPARE(s.control<QLabel>("Label2")->text(), QStringLiteral("En attente de validation du répertoire..."));

    const std::string target = s.folder("cd");
    s.control<QLineEdit>("Text1")->setText(QString::fromStdString(target.substr(0, target.size() - 1)));
    QTest::mouseClick(s.control<QPushButton>("Command1"), Qt::LeftButton);

    QCOMPARE(s.control<QLineEdit>("Text1")->text().toStdString(), target);
    QCOMPARE(s.control<QLabel>("Label2")->text(), QStringLiteral("Terminé."));
    QVERIFY(s.control<QLabel>("Label1")->text().startsWith(QStringLiteral("Compilation terminée :\n\n")));
    QCOMPARE(s.control<QLabel>("Label3")->text(), QString());
    QCOMPARE(s.dialog()->progressBar()->value(), s.dialog()->progressBar()->maximum());
    QVERIFY(!s.control<QPushButton>("Command1")->isEnabled());
    const auto menu = readMenuData(Session::read(target + "qor/autorun.exe"));
    QVERIFY(std::holds_alternative<MenuData>(menu));
    QCOMPARE(std::get<MenuData>(menu).info.projectName, std::string("menu"));
    QVERIFY(QFile::exists(QString::fromStdString(target + "Autorun.inf")));
    QVERIFY(s.dialogs.unexpected.isEmpty());

    // A fresh dialog each time.
    QPointer<CompileDialog> first = s.dialog();
    s.trigger(CommandId::CompileAutorun);
    QVERIFY(first.isNull());
    QCOMPARE(s.control<QLabel>("Label2")->text(), QStringLiteral("En attente de validation du répertoire..."));
}

void TestBuild::compileDialogFieldsFollowTheirRules()
{
    BuildSession s;
    s.trigger(CommandId::CompileAutorun);
    auto* sub = s.control<QCheckBox>("Check2");
    QVERIFY(!s.control<QLineEdit>("Text4")->isEnabled());
    QCOMPARE(s.control<QLineEdit>("Text4")->text(), QStringLiteral("SousMenu1"));
    sub->setChecked(true);
    QVERIFY(s.control<QLineEdit>("Text4")->isEnabled());
    QVERIFY(!s.control<QCheckBox>("Check1")->isEnabled());

    QTest::mouseClick(s.control<QLabel>("Label6"), Qt::LeftButton);
    QCOMPARE(s.dialogs.lastMessage().title, std::string("Aide rapide"));

    s.dialogs.folderAnswers.push_back(std::string("/chosen/folder"));
    QTest::mouseClick(s.control<QPushButton>("Command2"), Qt::LeftButton);
    QCOMPARE(s.dialogs.folderPrompts.back(), std::string("Choisissez le dossier dans lequel votre menu sera compilé :"));
    QCOMPARE(s.control<QLineEdit>("Text1")->text(), QStringLiteral("/chosen/folder"));
}

void TestBuild::aFailedCompilationGivesTheFieldsBack()
{
    BuildSession s;
    QFile::remove(QString::fromStdString(s.programFile("compil.exe")));
    s.trigger(CommandId::CompileAutorun);
    s.control<QLineEdit>("Text1")->setText(QString::fromStdString(s.folder("cd")));
    QTest::mouseClick(s.control<QPushButton>("Command1"), Qt::LeftButton);
    QVERIFY(s.dialogs.lastMessage().text.rfind("Erreur durant la compilation ! (", 0) == 0);
    QVERIFY(s.control<QPushButton>("Command1")->isEnabled());
    QVERIFY(s.control<QLineEdit>("Text1")->isEnabled());
    QVERIFY(s.core().build()->state().compileFailed);
}

void TestBuild::testRunWaitsForThePlayer()
{
    BuildSession s;
    // The player keeps a copy of the menu it was given, then ends.
    s.player("cp \"$1\" \"$(dirname \"$0\")/seen.exe\"");
    s.trigger(CommandId::TestProject);
    const auto menu = readMenuData(Session::read(s.programFile("seen.exe")));
    QVERIFY(std::holds_alternative<MenuData>(menu));
    QCOMPARE(std::get<MenuData>(menu).info, (MenuDataInfo{"TEST", "TEST"}));
    QVERIFY(!s.windows().worksheet().isMinimized());
    QVERIFY(s.dialogs.messages.empty());
}

void TestBuild::stopEndsAPlayerThatRunsOn()
{
    BuildSession s;
    s.player("exec sleep 60");
    QElapsedTimer clock;
    clock.start();
    QTimer::singleShot(300, [] {
        auto* watcher = qobject_cast<TestRunWatcher*>(QApplication::activeModalWidget());
        QVERIFY(watcher);
        QCOMPARE(watcher->stopButton()->text(), QStringLiteral("Stop"));
        watcher->stopButton()->click();
    });
    s.trigger(CommandId::TestProject);
    QVERIFY(clock.elapsed() < 30000);
    QVERIFY(!s.windows().worksheet().isMinimized());
}

void TestBuild::aPlayerThatCannotStartIsReported()
{
    BuildSession s;
    s.trigger(CommandId::TestProject);
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Erreur lors du test !!!"));
    QVERIFY(s.dialogs.lastMessage().title.find("qorplayer") != std::string::npos);
}

}  // namespace qor::test

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<qor::test::TestBuild>(argc, argv);
}

#include "tst_build.moc"
