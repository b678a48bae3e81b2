#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include "editor/app/editor_windows.h"
#include "editor/app/main_window.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/twips.h"
#include "editor/project/file_info_window.h"
#include "editor/scripting/script_editor_window.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/splash_window.h"

#include "typing.h"

using namespace qor;

namespace {

const ScreenMetrics kScreen = screenMetricsOf(QSize(1024, 768), 96, 96);

// Records which windows ran their load hooks, and in which order.
class RecordingHooks : public WindowHooks {
public:
    QStringList calls;
    void translate(QWidget& w) override { calls << "translate " + w.objectName(); }
    void applyAppearance(QWidget& w) override { calls << "appearance " + w.objectName(); }
};

std::unique_ptr<QWidget> makeWindow(const QString& name, WindowHooks& hooks)
{
    if (name == "Form1") return std::make_unique<ToolboxWindow>(kScreen, hooks);
    if (name == "Form2") return std::make_unique<MainWindow>(kScreen, hooks);
    if (name == "Form3") return std::make_unique<WorksheetWindow>(kScreen, hooks);
    if (name == "Form4") return std::make_unique<PropertiesPanel>(kScreen, hooks);
    if (name == "Form5") return std::make_unique<ScriptEditorWindow>(kScreen, hooks);
    if (name == "Form10") return std::make_unique<MousePositionWindow>(hooks);
    if (name == "Form19") return std::make_unique<FileInfoWindow>(hooks);
    if (name == "Splash") return std::make_unique<SplashWindow>(kScreen, hooks);
    return nullptr;
}

// A tiny stand-in for the core's notes rule, to see the hook at work.
std::string starForMark(std::string_view text)
{
    const std::string_view mark = "\u00A4";
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        if (text.substr(i, mark.size()) == mark) {
            out += '*';
            i += mark.size();
        } else {
            out += text[i++];
        }
    }
    return out;
}

}  // namespace

class TestWindows : public QObject {
    Q_OBJECT

private slots:
    void namesTitlesAndLoadHooks_data();
    void namesTitlesAndLoadHooks();
    void closeRules_data();
    void closeRules();

    void toolboxGroups();
    void mousePositionReadouts();
    void propertiesPanelWidthAndFirstActivation();
    void worksheetBackgroundFillsIt();
    void scriptEditorLayout();

    void splashSizeAndPicture();
    void splashCloses_data();
    void splashCloses();

    void fileInfoFillsAndReadsBack();
    void fileInfoButtons();
    void fileInfoNotesRule();

    void editorWindowsLoadAndShowOrder();
    void editorWindowsPlaceInTwips();
    void editorWindowsCloseAll();
};

void TestWindows::namesTitlesAndLoadHooks_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::newRow("toolbox") << "Form1" << "Objets";
    QTest::newRow("main") << "Form2" << "QOR v2.0 - créateur de menus";
    QTest::newRow("worksheet") << "Form3" << "Feuille de travail";
    QTest::newRow("properties") << "Form4" << "Paramètres";
    QTest::newRow("script editor") << "Form5" << "Code VBS";
    QTest::newRow("mouse position") << "Form10" << "Position de la souris";
    QTest::newRow("file information") << "Form19" << "Propriétés";
    QTest::newRow("splash") << "Splash" << "";
}

void TestWindows::namesTitlesAndLoadHooks()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    RecordingHooks hooks;
    auto w = makeWindow(name, hooks);
    QVERIFY(w);
    QCOMPARE(w->objectName(), name);
    QCOMPARE(w->windowTitle(), title);
    // Translated first, then coloured, once each.
    QCOMPARE(hooks.calls, (QStringList{"translate " + name, "appearance " + name}));
}

void TestWindows::closeRules_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("userCanClose");
    QTest::newRow("toolbox") << "Form1" << false;
    QTest::newRow("worksheet") << "Form3" << false;
    QTest::newRow("properties") << "Form4" << false;
    QTest::newRow("mouse position") << "Form10" << false;
    QTest::newRow("script editor") << "Form5" << true;
    QTest::newRow("file information") << "Form19" << true;
}

void TestWindows::closeRules()
{
    QFETCH(QString, name);
    QFETCH(bool, userCanClose);
    auto w = makeWindow(name, WindowHooks::none());
    w->show();
    QCOMPARE(w->close(), userCanClose);
    QCOMPARE(w->isVisible(), !userCanClose);
    if (auto* tool = qobject_cast<ToolWindow*>(w.get())) {
        // Quitting releases them.
        tool->releaseForQuit();
        QVERIFY(tool->close());
        QVERIFY(!tool->isVisible());
    }
}

void TestWindows::toolboxGroups()
{
    ToolboxWindow t(kScreen);
    const char* groups[] = {"Boutons", "Boîte de texte", "Forme du menu"};
    const char* commands[] = {"Multimédia", "Quitter", "Code VBS", "Créer", "Editeur", "Transparence"};
    int n = 0;
    for (int g = 0; g < 3; ++g) {
        auto* box = t.findChild<QWidget*>(QStringLiteral("Frame%1").arg(g + 1));
        QVERIFY(box);
        QCOMPARE(box->property("title").toString(), QString::fromUtf8(groups[g]));
    }
    for (; n < ToolboxWindow::kCommandCount; ++n) {
        QCOMPARE(t.command(n)->text(), QString::fromUtf8(commands[n]));
        QCOMPARE(t.command(n)->objectName(), QStringLiteral("Command%1").arg(n + 1));
    }
    // Every command fits in the column.
    t.show();
    for (n = 0; n < ToolboxWindow::kCommandCount; ++n)
        QVERIFY(t.command(n)->width() >= t.command(n)->sizeHint().width());
    t.releaseForQuit();
}

void TestWindows::mousePositionReadouts()
{
    MousePositionWindow m;
    for (int i = 0; i < 4; ++i)
        QCOMPARE(m.readout(i), QString(i % 2 ? "Y=0000" : "X=0000"));
    QCOMPARE(m.findChild<QLabel*>("Label3")->text(), QStringLiteral("X=0000"));
    const QSize resting = m.size();
    m.setReadouts({"X=1000", "Y=66.66666", "X=66.66666px", "Y=4.444444px"});
    QCOMPARE(m.readout(0), QStringLiteral("X=1000"));
    QCOMPARE(m.readout(3), QStringLiteral("Y=4.444444px"));
    // The window does not jump as numbers grow.
    QCOMPARE(m.size(), resting);
    QVERIFY(m.findChild<QLabel*>("Label3")->width() >=
            m.findChild<QLabel*>("Label3")->fontMetrics().horizontalAdvance("X=66.66666px"));
}

void TestWindows::propertiesPanelWidthAndFirstActivation()
{
    PropertiesPanel p(kScreen);
    QCOMPARE(p.width(), 199);   // 2985 twips at 15 per pixel
    p.show();
    p.resize(400, 500);
    QCOMPARE(p.width(), 199);
    QCOMPARE(p.elementSelector()->objectName(), QStringLiteral("Combo1"));
    QVERIFY(p.scrollBar()->geometry().right() <= p.width());
    QVERIFY(p.scrollBar()->geometry().top() > p.elementSelector()->geometry().bottom());

    // A tall panel scrolls just far enough to show its end.
    PanelSet tall;
    tall.add(PanelId::Button);
    tall.add(PanelId::Code);
    p.resize(199, 260);
    p.showPanels(tall);
    QVERIFY(p.scrollBar()->maximum() > 0);
    p.scrollBar()->setValue(p.scrollBar()->maximum());
    const QWidget* area = p.contentArea();
    const int shown = area->parentWidget()->height();
    QVERIFY(area->geometry().bottom() < shown);
    QVERIFY(area->geometry().bottom() >= shown - twipsToPixels(500.0, kScreen.twipsPerPixelY));
    // Another selection shows its panel from the top.
    PanelSet window;
    window.add(PanelId::Window);
    p.showPanels(window);
    QCOMPARE(p.scrollBar()->value(), 0);
    QCOMPARE(area->y(), 0);

    QSignalSpy first(&p, &PropertiesPanel::firstActivated);
    QWidget other;
    p.show();
    other.show();
    QApplication::setActiveWindow(&p);
    QTRY_COMPARE(first.size(), 1);
    QApplication::setActiveWindow(&other);
    QTRY_VERIFY(other.isActiveWindow());
    QApplication::setActiveWindow(&p);
    QTRY_VERIFY(p.isActiveWindow());
    QCOMPARE(first.size(), 1);
    p.releaseForQuit();
}

void TestWindows::worksheetBackgroundFillsIt()
{
    WorksheetWindow w(kScreen);
    QCOMPARE(w.size(), QSize(800, 600));
    QCOMPARE(w.background()->objectName(), QStringLiteral("Image1"));
    w.show();
    resizeTwips(w, 9600, 7200, kScreen);
    QCOMPARE(w.background()->geometry(), QRect(0, 0, 640, 480));
    w.releaseForQuit();
}

void TestWindows::scriptEditorLayout()
{
    ScriptEditorWindow e(kScreen);
    QCOMPARE(e.text()->objectName(), QStringLiteral("Text1"));
    QCOMPARE(e.text()->font().family(), QStringLiteral("Courier New"));
    QVERIFY(e.autoFormat()->isChecked());
    QCOMPARE(e.procedures()->itemText(0), QStringLiteral("Procédures"));
    QCOMPARE(e.findChild<QListWidget*>("List1") != nullptr, true);
    QVERIFY(!e.newProcedurePanel()->isVisibleTo(&e));
    e.show();
    for (QSize size : {QSize(600, 400), QSize(900, 300)}) {
        e.resize(size);
        // The text takes the whole width and everything below the strip.
        QCOMPARE(e.strip()->geometry(), QRect(0, 0, size.width(), e.strip()->height()));
        QCOMPARE(e.text()->geometry(), QRect(0, e.strip()->height(), size.width(), size.height() - e.strip()->height()));
        // The procedure list stands 150 twips (10 px) from the strip's right edge.
        QCOMPARE(e.procedures()->geometry().right() + 1, size.width() - 10);
    }
}

void TestWindows::splashSizeAndPicture()
{
    SplashWindow s(kScreen);
    QCOMPARE(s.size(), QSize(308, 146));
    QVERIFY(!s.picture().isNull());
    QCOMPARE(s.picture().size(), QSize(308, 146));
    // Its rows read in the right order, each in red, green, blue: a blue
    // ground, darker at the top than at the bottom.
    const QImage picture = s.picture().toImage();
    const QColor top = picture.pixelColor(10, 10);
    const QColor bottom = picture.pixelColor(10, 135);
    QVERIFY(top.blue() > top.red() + 60);
    QVERIFY(bottom.lightness() > top.lightness() + 30);
    QVERIFY(s.windowFlags().testFlag(Qt::FramelessWindowHint));
    // On a 120 DPI screen the same twips are fewer pixels.
    SplashWindow small(screenMetricsOf(QSize(1024, 768), 120, 120));
    QCOMPARE(small.size(), QSize(385, 183));
}

void TestWindows::splashCloses_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("click") << 0;
    QTest::newRow("key") << 1;
    QTest::newRow("timer") << 2;
}

void TestWindows::splashCloses()
{
    QFETCH(int, how);
    SplashWindow s(kScreen);
    QSignalSpy closed(&s, &SplashWindow::closed);
    s.show();
    QVERIFY(s.timer().isActive());
    if (how == 0)
        QTest::mouseClick(&s, Qt::LeftButton);
    else if (how == 1)
        QTest::keyClick(&s, Qt::Key_Escape);
    else
        QTRY_VERIFY_WITH_TIMEOUT(!s.isVisible(), 4000);
    QVERIFY(!s.isVisible());
    QCOMPARE(closed.size(), 1);
    QVERIFY(!s.timer().isActive());
}

void TestWindows::fileInfoFillsAndReadsBack()
{
    FileInfoWindow f;
    const FileInfoView view{"menu.qor (1234 octets )", "QOR", "2.0.450", "1.1",
                            "Jean", "jean@example.org", "http://example.org", "ligne 1\r\nligne 2"};
    f.fill(view);
    QCOMPARE(f.values(), view);
    QCOMPARE(f.findChild<QLabel*>("Label1")->text(), QStringLiteral("menu.qor (1234 octets )"));
    for (const char* readOnly : {"Text5", "Text6", "Text7"})
        QVERIFY(f.field(readOnly)->isReadOnly());
    for (const char* editable : {"Text1", "Text2", "Text3"})
        QVERIFY(!f.field(editable)->isReadOnly());
    // "<inconnu>" is text, not markup.
    f.fill({"<inconnu>", "<inconnu>", "<inconnu>", "<inconnu>", "", "", "", ""});
    QCOMPARE(f.findChild<QLabel*>("Label1")->text(), QStringLiteral("<inconnu>"));
    QCOMPARE(f.findChild<QLabel*>("Label1")->textFormat(), Qt::PlainText);
}

void TestWindows::fileInfoButtons()
{
    FileInfoWindow f;
    auto* ok = f.findChild<QPushButton*>("Command1");
    auto* cancel = f.findChild<QPushButton*>("Command2");
    QCOMPARE(ok->text(), QStringLiteral("&Valider"));
    QCOMPARE(cancel->text(), QStringLiteral("&Annuler"));
    f.show();
    QVERIFY(test::typeInto(f.field("Text1"), "Marie"));
    ok->click();
    QCOMPARE(f.result(), int(QDialog::Accepted));
    QCOMPARE(f.values().authorName, std::string("Marie"));
    f.show();
    cancel->click();
    QCOMPARE(f.result(), int(QDialog::Rejected));
}

void TestWindows::fileInfoNotesRule()
{
    FileInfoWindow f;
    f.show();
    QPlainTextEdit* notes = f.notesField();
    // Without a rule the notes are kept as typed.
    QVERIFY(test::typeInto(notes, QStringLiteral("x¤")));
    QCOMPARE(notes->toPlainText(), QStringLiteral("x¤"));
    notes->clear();
    f.setNotesRule(starForMark);
    QVERIFY(test::typeInto(notes, QStringLiteral("a¤b")));
    QCOMPARE(notes->toPlainText(), QStringLiteral("a*b"));
    // The caret stays where the user types.
    QCOMPARE(notes->textCursor().position(), 3);
    test::pressKey(Qt::Key_Home, Qt::ControlModifier);
    test::typeHere(QStringLiteral("¤"));
    QCOMPARE(notes->toPlainText(), QStringLiteral("*a*b"));
    QCOMPARE(notes->textCursor().position(), 1);
}

void TestWindows::editorWindowsLoadAndShowOrder()
{
    RecordingHooks hooks;
    EditorWindows windows(kScreen, hooks);
    windows.showSplash();
    QVERIFY(windows.splash().isVisible());
    // Painted before anything else loads.
    QVERIFY(windows.splash().painted());
    QVERIFY(windows.loadOrder().isEmpty());
    windows.load();
    QCOMPARE(windows.loadOrder(), (QStringList{"Form1", "Form2", "Form3", "Form4", "Form5", "Form10"}));
    // The hooks ran window by window in the same order, after the splash.
    QStringList translated;
    for (const QString& c : hooks.calls)
        if (c.startsWith("translate "))
            translated << c.mid(10);
    // The script editor is built, and runs its hooks, when it is first needed.
    QCOMPARE(translated, (QStringList{"Splash", "Form1", "Form2", "Form3", "Form4", "Form10"}));
    QVERIFY(windows.isLoaded(WindowId::ScriptEditor));
    QVERIFY(!windows.scriptEditorBuilt());

    windows.showAll();
    QVERIFY(!windows.splash().isVisible());
    for (QWidget* w : std::initializer_list<QWidget*>{&windows.main(), &windows.toolbox(), &windows.worksheet(),
                                                      &windows.properties(), &windows.mousePosition()})
        QVERIFY2(w->isVisible(), qPrintable(w->objectName()));
    // The script editor waits until a script is opened.
    QVERIFY(!windows.scriptEditor().isVisible());
    QCOMPARE(hooks.calls.mid(hooks.calls.size() - 2), (QStringList{"translate Form5", "appearance Form5"}));
    windows.closeAll();
}

void TestWindows::editorWindowsPlaceInTwips()
{
    EditorWindows windows(kScreen);
    windows.load();
    windows.place(windows.worksheet(), {1500, 3000, 9600, 7200});
    QCOMPARE(windows.worksheet().pos(), QPoint(100, 200));
    QCOMPARE(windows.worksheet().size(), QSize(640, 480));
    QCOMPARE(windows.placeOf(windows.worksheet()), (TwipsRect{1500, 3000, 9600, 7200}));
    windows.closeAll();
}

void TestWindows::editorWindowsCloseAll()
{
    EditorWindows windows(kScreen);
    windows.load();
    windows.showAll();
    windows.scriptEditor().show();
    QVector<QWidget*> all{&windows.main(), &windows.toolbox(), &windows.worksheet(), &windows.properties(),
                          &windows.mousePosition(), &windows.scriptEditor()};
    // The main window is the last to close.
    QStringList hiddenOrder;
    struct Watch : QObject {
        QStringList* out;
        bool eventFilter(QObject* o, QEvent* e) override
        {
            if (e->type() == QEvent::Close)
                *out << o->objectName();
            return false;
        }
    } watch;
    watch.out = &hiddenOrder;
    for (QWidget* w : all)
        w->installEventFilter(&watch);
    windows.closeAll();
    for (QWidget* w : all)
        QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
    QVERIFY(!hiddenOrder.isEmpty());
    QCOMPARE(hiddenOrder.last(), QStringLiteral("Form2"));
}

QTEST_MAIN(TestWindows)
#include "tst_windows.moc"
