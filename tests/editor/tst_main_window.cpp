#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <utility>
#include <vector>

#include "core/ui/menu_tree.h"
#include "editor/app/main_window.h"
#include "editor/app/menu_title_label.h"
#include "editor/platform/twips.h"
#include "editor/ui/appearance_frame.h"
#include "editor/platform/widget_names.h"

using namespace qor;

Q_DECLARE_METATYPE(qor::CommandId)

namespace {

const ScreenMetrics kScreen = screenMetricsOf(QSize(1024, 768), 96, 96);

using Dispatched = std::vector<std::pair<CommandId, int>>;

// The visible actions of a menu, without the list markers.
QList<QAction*> shownActions(const QMenu* menu)
{
    QList<QAction*> out;
    for (QAction* a : menu->actions())
        if (a->isVisible())
            out << a;
    return out;
}

QAction* findAction(const MainWindow& w, const QString& name)
{
    for (int i = 0; i < MainWindow::kTitleCount; ++i)
        for (QAction* a : w.menu(i)->findChildren<QAction*>(name))
            return a;
    return nullptr;
}

// Compares the rendered menu with its entries from the menu tree, in order.
void compareMenu(const QMenu* menu, const std::vector<MenuEntry>& entries, QStringList& problems)
{
    const QList<QAction*> actions = shownActions(menu);
    int k = 0;
    auto next = [&]() -> QAction* { return k < actions.size() ? actions[k++] : nullptr; };
    for (const auto& e : entries) {
        const QString name = QString::fromStdString(e.name);
        if (e.kind == MenuEntry::Kind::RecentFiles || e.kind == MenuEntry::Kind::Plugins ||
            e.kind == MenuEntry::Kind::Languages) {
            while (k < actions.size() && actions[k]->objectName() == name)
                ++k;
            continue;
        }
        QAction* a = next();
        if (!a) {
            problems << QStringLiteral("missing %1 in %2").arg(name, menu->objectName());
            return;
        }
        if (e.kind == MenuEntry::Kind::Separator) {
            if (!a->isSeparator())
                problems << QStringLiteral("%1 where a separator belongs").arg(a->text());
            continue;
        }
        if (a->text() != QString::fromStdString(e.caption) || a->objectName() != name)
            problems << QStringLiteral("%1/%2 where %3/%4 belongs")
                            .arg(a->text(), a->objectName(), QString::fromStdString(e.caption), name);
        if (e.kind == MenuEntry::Kind::Submenu) {
            if (!a->menu())
                problems << QStringLiteral("%1 opens nothing").arg(name);
            else
                compareMenu(a->menu(), e.children, problems);
        } else if (a->isCheckable() != e.checkable) {
            problems << QStringLiteral("%1 check mark").arg(name);
        }
    }
    if (k != actions.size())
        problems << QStringLiteral("%1 extra entries in %2").arg(actions.size() - k).arg(menu->objectName());
}

}  // namespace

class TestMainWindow : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void captionAndName();
    void menuTreeAsBuilt();
    void captionsAndAccessKeys_data();
    void captionsAndAccessKeys();
    void commandsReachTheDispatchPoint_data();
    void commandsReachTheDispatchPoint();
    void optionMarksChangeOnlyWhenTold();

    void titlesLaidOutSideBySide();
    void placedTitlesFollowTheGivenBoxes();
    void pointerOverTitleHighlightsItAlone();
    void bodyMoveAndClickResetTheTitles();
    void appearanceColoursAreSwappedOnHighlight();
    void titlePressPopsItsMenuUnderIt_data();
    void titlePressPopsItsMenuUnderIt();
    void controllerCanTakeOverTheTitles();
    void altKeyPopsTheMenu();

    void titleResetOnceAfterLoad();
    void closeBoxIsTheQuitCommand();

    void recentFiles();
    void plugins();
    void languages();
    void appearanceEditorMakesTheWindowTall();

private:
    MainWindow* w = nullptr;
    Dispatched dispatched;
};

void TestMainWindow::init()
{
    dispatched.clear();
    w = new MainWindow(kScreen);
    w->setCommandHandler([this](CommandId id, int p) { dispatched.emplace_back(id, p); });
    w->move(0, 0);
    w->show();
    QVERIFY(QTest::qWaitForWindowExposed(w));
}

void TestMainWindow::cleanup()
{
    for (int i = 0; i < MainWindow::kTitleCount; ++i)
        w->menu(i)->hide();
    w->releaseForQuit();
    delete w;
    w = nullptr;
}

void TestMainWindow::captionAndName()
{
    QCOMPARE(w->windowTitle(), QStringLiteral("QOR v2.0 - créateur de menus"));
    QCOMPARE(w->objectName(), QStringLiteral("Form2"));
    const char* titles[] = {"Fichier", "Source", "Créer", "Divers", "Options", "?"};
    for (int i = 0; i < MainWindow::kTitleCount; ++i) {
        QCOMPARE(w->menuTitle(i)->text(), QString::fromUtf8(titles[i]));
        QCOMPARE(controlIndex(*w->menuTitle(i)), i);
    }
}

void TestMainWindow::menuTreeAsBuilt()
{
    const auto& tree = mainMenus();
    QStringList problems;
    for (int i = 0; i < MainWindow::kTitleCount; ++i) {
        QCOMPARE(w->menu(i)->objectName(), QString::fromStdString(tree[std::size_t(i)].name));
        QCOMPARE(w->menu(i)->title(), QString::fromStdString(tree[std::size_t(i)].caption));
        compareMenu(w->menu(i), tree[std::size_t(i)].entries, problems);
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
}

void TestMainWindow::captionsAndAccessKeys_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QKeySequence>("accessKey");
    QTest::addColumn<bool>("checkable");
    QTest::newRow("open") << "ouvrir_fich" << "&Ouvrir" << QKeySequence(Qt::ALT | Qt::Key_O) << false;
    QTest::newRow("blank project") << "nouv_fich" << "Projet &vierge" << QKeySequence(Qt::ALT | Qt::Key_V) << false;
    QTest::newRow("save as") << "enrsous_fich" << "Enregistrer &Sous" << QKeySequence(Qt::ALT | Qt::Key_S) << false;
    QTest::newRow("properties, no key") << "proprietes_mnu" << "Propriétés" << QKeySequence() << false;
    QTest::newRow("edit source, as spelt") << "modif_source_mnu" << "&Modidifier la source"
                                           << QKeySequence(Qt::ALT | Qt::Key_M) << false;
    QTest::newRow("screen saver") << "ecranveille_mnu" << "En ecran de veille" << QKeySequence() << false;
    QTest::newRow("precise pointer") << "pointeur_mnu" << "&Pointeur précis" << QKeySequence(Qt::ALT | Qt::Key_P) << true;
    QTest::newRow("handles") << "points_mnu" << "Afficher les points &délimitant les objets"
                             << QKeySequence::mnemonic("&d") << true;
    QTest::newRow("associate") << "associer_mnu" << "Associer les fichiers .qor à &QOR"
                               << QKeySequence(Qt::ALT | Qt::Key_Q) << false;
    QTest::newRow("media file") << "oblig_multimedia_mnu" << "Obliger à configurer un fichier pour chaque bouton multimédia"
                                << QKeySequence() << true;
    QTest::newRow("tips") << "astuces_mnu" << "Tru&cs et astuces" << QKeySequence(Qt::ALT | Qt::Key_C) << false;
    QTest::newRow("version") << "version_mnu" << "Ai-je la dernière &version ?" << QKeySequence(Qt::ALT | Qt::Key_V) << false;
    QTest::newRow("about") << "apropos_mnu" << "A &propos..." << QKeySequence(Qt::ALT | Qt::Key_P) << false;
}

void TestMainWindow::captionsAndAccessKeys()
{
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QKeySequence, accessKey);
    QFETCH(bool, checkable);
    QAction* a = findAction(*w, name);
    QVERIFY2(a, qPrintable(name));
    QCOMPARE(a->text(), caption);
    QCOMPARE(QKeySequence::mnemonic(a->text()), accessKey);
    QCOMPARE(a->isCheckable(), checkable);
    QVERIFY(a->isEnabled());
}

void TestMainWindow::commandsReachTheDispatchPoint_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qor::CommandId>("id");
    QTest::newRow("wizard") << "assistant_mnu" << CommandId::NewWizard;
    QTest::newRow("open") << "ouvrir_fich" << CommandId::Open;
    QTest::newRow("print to clipboard") << "impr_pp_mnu" << CommandId::PrintToClipboard;
    QTest::newRow("quit") << "quitter_mnu" << CommandId::Quit;
    QTest::newRow("reload") << "actualiser_mnu" << CommandId::ReloadProject;
    QTest::newRow("screen saver") << "ecranveille_mnu" << CommandId::CompileScreenSaver;
    QTest::newRow("html") << "html_mnu" << CommandId::CompileHtml;
    QTest::newRow("mouse position") << "possouris_mnu" << CommandId::MousePosition;
    QTest::newRow("appearances") << "chg_coul_mnu" << CommandId::Appearances;
    QTest::newRow("bug") << "bug_mnu" << CommandId::BugReport;
    QTest::newRow("about") << "apropos_mnu" << CommandId::About;
}

void TestMainWindow::commandsReachTheDispatchPoint()
{
    QFETCH(QString, name);
    QFETCH(qor::CommandId, id);
    QAction* a = findAction(*w, name);
    QVERIFY(a);
    a->trigger();
    QCOMPARE(dispatched, (Dispatched{{id, 0}}));
    QCOMPARE(w->commandAction(id), a);
}

void TestMainWindow::optionMarksChangeOnlyWhenTold()
{
    QAction* precise = w->commandAction(CommandId::PrecisePointer);
    QVERIFY(precise && !precise->isChecked());
    precise->trigger();
    QCOMPARE(dispatched, (Dispatched{{CommandId::PrecisePointer, 0}}));
    QVERIFY(!precise->isChecked());
    w->setChecked(CommandId::PrecisePointer, true);
    QVERIFY(w->isChecked(CommandId::PrecisePointer));
    precise->trigger();
    QVERIFY(w->isChecked(CommandId::PrecisePointer));
    // A command without a check mark reads as unchecked.
    w->setChecked(CommandId::Open, true);
    QVERIFY(!w->isChecked(CommandId::Open));
}

void TestMainWindow::titlesLaidOutSideBySide()
{
    // At 15 twips per pixel: 120 twips = 8 px from the left, 15 = 1 px from
    // the top, 225 = 15 px high, each as wide as its text plus 16 px.
    int expectedLeft = 8;
    for (int i = 0; i < MainWindow::kTitleCount; ++i) {
        const QRect g = w->menuTitle(i)->geometry();
        const int text = w->menuTitle(i)->fontMetrics().horizontalAdvance(w->menuTitle(i)->text());
        QVERIFY2(std::abs(g.left() - expectedLeft) <= 1, qPrintable(QString::number(i)));
        QCOMPARE(g.top(), 1);
        QCOMPARE(g.height(), 15);
        QVERIFY2(std::abs(g.width() - (text + 16)) <= 1, qPrintable(QString::number(i)));
        if (i > 0)
            QCOMPARE(g.left(), w->menuTitle(i - 1)->geometry().right() + 1);
        expectedLeft = g.right() + 1;
    }
    QVERIFY(w->menuTitle(5)->geometry().right() < w->width());
}

void TestMainWindow::placedTitlesFollowTheGivenBoxes()
{
    std::vector<TitleBox> boxes;
    for (int i = 0; i < 6; ++i)
        boxes.push_back({150.0 + 900 * i, 30, 900, 300});
    w->placeMenuTitles(boxes);
    QCOMPARE(w->menuTitle(0)->geometry(), QRect(10, 2, 60, 20));
    QCOMPARE(w->menuTitle(5)->geometry(), QRect(310, 2, 60, 20));
    QCOMPARE(w->menuTitleBoxes(), boxes);
}

void TestMainWindow::pointerOverTitleHighlightsItAlone()
{
    const QColor back = w->titleBackground();
    const QColor text = w->titleText();
    QVERIFY(back != text);
    QTest::mouseMove(w->menuTitle(2));
    QCOMPARE(w->highlightedMenuTitle(), 2);
    QTest::mouseMove(w->menuTitle(4), QPoint(3, 3));
    QCOMPARE(w->highlightedMenuTitle(), 4);
    for (int i = 0; i < MainWindow::kTitleCount; ++i) {
        const QPalette p = w->menuTitle(i)->palette();
        const bool lit = i == 4;
        QCOMPARE(p.color(QPalette::Window), lit ? text : back);
        QCOMPARE(p.color(QPalette::WindowText), lit ? back : text);
    }
}

void TestMainWindow::bodyMoveAndClickResetTheTitles()
{
    w->highlightMenuTitle(1);
    QTest::mouseMove(w, QPoint(w->width() - 2, w->height() - 2));
    QCOMPARE(w->highlightedMenuTitle(), -1);
    w->highlightMenuTitle(3);
    QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(w->width() - 2, w->height() - 2));
    QCOMPARE(w->highlightedMenuTitle(), -1);
    QCOMPARE(w->menuTitle(3)->palette().color(QPalette::Window), w->titleBackground());
}

void TestMainWindow::appearanceColoursAreSwappedOnHighlight()
{
    w->highlightMenuTitle(0);
    const QColor back(0xAA, 0xAA, 0xFF), text(0, 0, 0);
    w->setTitleColours(back, text);
    // The highlight survives a change of appearance, in the new colours.
    QCOMPARE(w->highlightedMenuTitle(), 0);
    QCOMPARE(w->menuTitle(0)->palette().color(QPalette::Window), text);
    QCOMPARE(w->menuTitle(0)->palette().color(QPalette::WindowText), back);
    QCOMPARE(w->menuTitle(1)->palette().color(QPalette::Window), back);
    QCOMPARE(w->menuTitle(1)->palette().color(QPalette::WindowText), text);
}

void TestMainWindow::titlePressPopsItsMenuUnderIt_data()
{
    QTest::addColumn<int>("title");
    for (int i = 0; i < MainWindow::kTitleCount; ++i)
        QTest::newRow(qPrintable(QString::number(i))) << i;
}

void TestMainWindow::titlePressPopsItsMenuUnderIt()
{
    QFETCH(int, title);
    QTest::mousePress(w->menuTitle(title), Qt::LeftButton, {}, QPoint(4, 4));
    QMenu* menu = w->menu(title);
    QTRY_VERIFY(menu->isVisible());
    for (int i = 0; i < MainWindow::kTitleCount; ++i)
        QCOMPARE(w->menu(i)->isVisible(), i == title);
    QCOMPARE(w->highlightedMenuTitle(), title);
    const QLabel* t = w->menuTitle(title);
    QCOMPARE(menu->pos(), t->mapToGlobal(QPoint(0, t->height())));
    menu->hide();
}

void TestMainWindow::controllerCanTakeOverTheTitles()
{
    QSignalSpy hovered(w, &MainWindow::menuTitleHovered);
    QSignalSpy pressed(w, &MainWindow::menuTitlePressed);
    w->setLocalTitleHandling(false);
    QTest::mouseMove(w->menuTitle(1));
    QTest::mousePress(w->menuTitle(5), Qt::LeftButton);
    QVERIFY(!hovered.isEmpty());
    QCOMPARE(hovered.last().at(0).toInt(), 1);
    QCOMPARE(pressed.size(), 1);
    QCOMPARE(pressed.at(0).at(0).toInt(), 5);
    // The controller decides: nothing was highlighted or popped meanwhile.
    QCOMPARE(w->highlightedMenuTitle(), -1);
    QVERIFY(!w->menu(5)->isVisible());
    w->popUpMenuAt(2, 1500, 600);
    QTRY_VERIFY(w->menu(2)->isVisible());
    QCOMPARE(w->menu(2)->pos(), w->mapToGlobal(QPoint(100, 40)));
}

void TestMainWindow::altKeyPopsTheMenu()
{
    QApplication::setActiveWindow(w);
    QTRY_VERIFY(w->isActiveWindow());
    QTest::keyClick(w, Qt::Key_O, Qt::AltModifier);
    QTRY_VERIFY(w->menu(4)->isVisible());
    QCOMPARE(w->highlightedMenuTitle(), 4);
}

void TestMainWindow::titleResetOnceAfterLoad()
{
    MainWindow fresh(kScreen);
    fresh.show();
    fresh.highlightMenuTitle(2);
    QVERIFY(fresh.titleResetTimer().isActive());
    QTRY_COMPARE_WITH_TIMEOUT(fresh.highlightedMenuTitle(), -1, 2000);
    QVERIFY(!fresh.titleResetTimer().isActive());
    // One tick only: a later highlight stays.
    fresh.highlightMenuTitle(1);
    QTest::qWait(400);
    QCOMPARE(fresh.highlightedMenuTitle(), 1);
    fresh.releaseForQuit();
}

void TestMainWindow::closeBoxIsTheQuitCommand()
{
    QVERIFY(!w->close());
    QVERIFY(w->isVisible());
    QCOMPARE(dispatched, (Dispatched{{CommandId::Quit, 0}}));
    // Once the quit flow agrees the window closes without asking again.
    w->releaseForQuit();
    QVERIFY(w->close());
    QVERIFY(!w->isVisible());
    QCOMPARE(dispatched.size(), std::size_t(1));
}

void TestMainWindow::recentFiles()
{
    QList<QAction*> list = w->recentFileActions();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0]->text(), QStringLiteral("Aucun fichier récent"));
    QVERIFY(!list[0]->isEnabled());

    w->setRecentFiles({"/home/a.qor", "", "/home/user/.../R&D.qor"});
    list = w->recentFileActions();
    QCOMPARE(list.size(), 2);
    QCOMPARE(list[0]->text(), QStringLiteral("/home/a.qor"));
    QCOMPARE(list[1]->text(), QStringLiteral("/home/user/.../R&&D.qor"));
    QCOMPARE(controlIndex(*list[1]), 3);
    QVERIFY(list[1]->isEnabled());
    // The list stands between the two separators before "&Quitter".
    const QList<QAction*> shown = shownActions(w->menu(0));
    const int at = int(shown.indexOf(list[0]));
    QVERIFY(shown[at - 1]->isSeparator());
    QCOMPARE(shown[at + 1], list[1]);
    QVERIFY(shown[at + 2]->isSeparator());
    QCOMPARE(shown[at + 3]->objectName(), QStringLiteral("quitter_mnu"));

    list[1]->trigger();
    QCOMPARE(dispatched, (Dispatched{{CommandId::OpenRecent, 3}}));

    w->setRecentFiles({});
    QCOMPARE(w->recentFileActions().size(), 1);
    QVERIFY(!w->recentFileActions()[0]->isEnabled());
}

void TestMainWindow::plugins()
{
    QList<QAction*> list = w->pluginActions();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0]->text(), QStringLiteral("Aucun plugin installé"));
    QVERIFY(list[0]->isVisible());
    list[0]->trigger();

    w->setPlugins({"Calculatrice", "Site"}, false);
    list = w->pluginActions();
    QCOMPARE(list.size(), 3);
    QVERIFY(!list[0]->isVisible());
    QCOMPARE(list[2]->text(), QStringLiteral("Site"));
    QCOMPARE(controlIndex(*list[2]), 2);
    list[2]->trigger();
    QCOMPARE(dispatched, (Dispatched{{CommandId::RunPlugin, 0}, {CommandId::RunPlugin, 2}}));
    QCOMPARE(shownActions(w->menu(3)).size(), 2);

    // "[DEBUT]" without pairs: the menu is left with nothing.
    w->setPlugins({}, false);
    QCOMPARE(shownActions(w->menu(3)).size(), 0);
}

void TestMainWindow::languages()
{
    QList<QAction*> list = w->languageActions();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0]->text(), QStringLiteral("Français"));
    QVERIFY(list[0]->isChecked());

    w->setLanguages({"English", "Deutsch"}, 2);
    list = w->languageActions();
    QCOMPARE(list.size(), 3);
    QVERIFY(!list[0]->isChecked());
    QVERIFY(!list[1]->isChecked());
    QVERIFY(list[2]->isChecked());
    QCOMPARE(list[2]->objectName(), QStringLiteral("langue_selection"));
    list[1]->trigger();
    QCOMPARE(dispatched, (Dispatched{{CommandId::ChooseLanguage, 1}}));
    QVERIFY(!list[1]->isChecked());
    QVERIFY(list[2]->isChecked());
}

void TestMainWindow::appearanceEditorMakesTheWindowTall()
{
    QVERIFY(!w->appearanceEditorVisible());
    QCOMPARE(w->height(), 17);   // (615 - 360) / 15
    w->setAppearanceEditorVisible(true);
    QVERIFY(w->appearanceEditorVisible());
    // (5085 - 360) / 15, or taller when the fonts need it.
    QVERIFY(w->height() >= 315);
    QVERIFY(w->appearanceFrame()->geometry().bottom() < w->height());
    QVERIFY(w->appearanceFrame()->height() >= w->appearanceFrame()->minimumSizeHint().height());
    QVERIFY(w->appearanceFrame()->geometry().top() > w->menuTitle(0)->geometry().bottom());
    w->setAppearanceEditorVisible(false);
    QCOMPARE(w->height(), 17);
    QVERIFY(!w->appearanceEditorVisible());
}

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
