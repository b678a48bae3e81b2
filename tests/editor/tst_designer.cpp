// The designer as a user drives it: the toolbox, the worksheet under the
// mouse and the keyboard, the properties panel's controls, then Save and
// reopen. The dialogs are scripted; the windows are the real ones.

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "core/scripting/script_slots.h"
#include "editor/designer/button_panel.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/text_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/window_panel.h"
#include "editor/designer/worksheet_window.h"
#include "editor/ui/mouse_position_window.h"
#include "editor_session.h"

#include "typing.h"

using namespace qor;
using qor::test::Session;

namespace {

std::string colourPicture(const std::string& path, int width, int height, const QColor& colour)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    image.save(QString::fromStdString(path), "PNG");
    return path;
}

// A mouse event as the window system delivers it: position in the widget,
// the button that changed and the buttons held.
void sendMouse(QWidget* w, QEvent::Type type, QPoint pos, Qt::MouseButton button, Qt::MouseButtons held,
               Qt::KeyboardModifiers modifiers = {})
{
    QMouseEvent e(type, QPointF(pos), QPointF(w->mapToGlobal(pos)), button, held, modifiers);
    QApplication::sendEvent(w, &e);
}

// A point of the worksheet in the coordinates of one of its elements.
QPoint in(QWidget& element, WorksheetWindow& sheet, QPoint sheetPoint)
{
    return element.mapFrom(&sheet, sheetPoint);
}

}  // namespace

class TestDesigner : public QObject {
    Q_OBJECT
private slots:
    void aMenuBuiltWithTheMouseSurvivesSaveAndReopen();
    void worksheetPixelsShowColoursAndPlaces();
    void hoverAndPressedPreviewsFollowThePointer();
    void windowPanelControlsWriteTheProject();
    void badPicturesNeitherCrashNorHang();
    void worksheetCaptionFromTheStart();
};

// Started without a project, the worksheet already names its size.
void TestDesigner::worksheetCaptionFromTheStart()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    WorksheetWindow& sheet = s.windows().worksheet();
    QVERIFY(sheet.windowTitle().startsWith(QStringLiteral("Feuille de travail - ")));
    QVERIFY(sheet.windowTitle().endsWith(QStringLiteral("px")));
}

void TestDesigner::aMenuBuiltWithTheMouseSurvivesSaveAndReopen()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = s.folder("menu");
    const std::string n = colourPicture(folder + "n.png", 40, 20, Qt::red);
    const std::string h = colourPicture(folder + "s.png", 40, 20, Qt::green);
    const std::string c = colourPicture(folder + "c.png", 40, 20, Qt::blue);
    ToolboxWindow& toolbox = s.windows().toolbox();
    WorksheetWindow& sheet = s.windows().worksheet();
    PropertiesPanel& panel = s.windows().properties();

    // "Code VBS", "Multimédia", "Quitter", then "Créer".
    for (int command : {2, 0, 1}) {
        s.dialogs.openAnswers = {n, h, c};
        QTest::mouseClick(toolbox.command(command), Qt::LeftButton);
    }
    panel.elementSelector()->setCurrentIndex(2);
    emit panel.elementSelector()->activated(2);
    QVERIFY(panel.buttonPanel().mediaPanel()->isVisibleTo(&panel));
    QVERIFY(test::typeInto(panel.buttonPanel().mediaField(), QStringLiteral("clip.avi")));
    QCOMPARE(s.core().project().button(2).action, std::string("clip.avi"));
    QTest::mouseClick(toolbox.command(3), Qt::LeftButton);
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (code)", "Bouton 2 (vidéo)",
                                               "Bouton 3 (quitter)", "Texte 1"}));
    QCOMPARE(s.core().project().button(1).action, buttonTemplate(1));
    QCOMPARE(sheet.button(1).size(), QSize(40, 20));

    // Typing into the text box: the forbidden character goes with one message.
    // The box is drawn until a plain press makes its field, caret under the pointer.
    TextElement& text = sheet.text(1);
    QVERIFY(!text.editing());
    const QPoint corner(text.width() - 20, text.height() - 5);
    sendMouse(&text, QEvent::MouseButtonPress, corner, Qt::LeftButton, Qt::LeftButton);
    sendMouse(&text, QEvent::MouseButtonRelease, corner, Qt::LeftButton, Qt::NoButton);
    QVERIFY(text.editing());
    QPlainTextEdit& edit = text.edit();
    QCOMPARE(edit.geometry(), text.rect());
    QCOMPARE(edit.toPlainText(), QStringLiteral("Tapez ici le contenu du Texte 1"));
    QCOMPARE(edit.textCursor().position(), int(edit.toPlainText().size()));
    QCOMPARE(test::clickInto(&edit), &edit);
    test::pressKey(Qt::Key_A, Qt::ControlModifier);
    test::typeHere(QStringLiteral("Bonjour¤ici"));
    QCOMPARE(s.core().project().text(1).content, std::string("Bonjourici"));
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Caratère interdit !"));

    // Shift + drag of button 1 to (300, 100): the grab offset stays under the pointer.
    ButtonElement& b1 = sheet.button(1);
    sendMouse(&b1, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    sendMouse(&b1, QEvent::MouseMove, in(b1, sheet, {200, 90}), Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
    sendMouse(&b1, QEvent::MouseButtonRelease, in(b1, sheet, {300, 100}), Qt::LeftButton, Qt::NoButton,
              Qt::ShiftModifier);
    QCOMPARE(s.core().project().button(1).left, 4425.0f);
    QCOMPARE(s.core().project().button(1).top, 1425.0f);
    QCOMPARE(b1.pos(), QPoint(295, 95));
    QVERIFY(b1.isVisible());
    QVERIFY(sheet.handle(0)->isVisible());
    QCOMPARE(sheet.handle(3)->pos(), QPoint(295 + 40, 95 + 20));

    // Right-button resize of the text box, released over the background.
    QWidget* port = edit.viewport();
    sendMouse(port, QEvent::MouseButtonPress, {10, 10}, Qt::RightButton, Qt::RightButton);
    sendMouse(port, QEvent::MouseMove, in(*port, sheet, {253, 163}), Qt::NoButton, Qt::RightButton);
    QCOMPARE(s.core().project().text(1).width, float(253 * 15 - 200));
    QCOMPARE(edit.width(), text.width());
    QCOMPARE(panel.textPanel().widthField()->text(), QString::number(253 * 15 - 200));
    sendMouse(port, QEvent::MouseButtonRelease, in(*port, sheet, {253, 163}), Qt::RightButton, Qt::NoButton);
    QVERIFY(!text.resizing());
    QCOMPARE(s.windows().mousePosition().readout(0), QStringLiteral("X=3795"));

    // Save as, then reopen the file: the same worksheet, the same bytes.
    const std::string path = folder + "menu.qor";
    s.dialogs.saveAnswers = {path};
    s.trigger(CommandId::SaveAs);
    const std::string saved = Session::read(path);
    QVERIFY(saved.find("clip.avi") != std::string::npos);
    s.dialogs.messageAnswers = {Answer::No, Answer::No};
    s.trigger(CommandId::NewBlank);
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
    QVERIFY(!sheet.hasButton(1));
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (code)", "Bouton 2 (vidéo)",
                                               "Bouton 3 (quitter)", "Texte 1"}));
    QCOMPARE(sheet.button(1).pos(), QPoint(295, 95));
    QCOMPARE(sheet.text(1).content(), std::string("Bonjourici"));
    QCOMPARE(sheet.text(1).width(), 253 - 13);
    s.trigger(CommandId::Save);
    QCOMPARE(Session::read(path), saved);
    QVERIFY2(s.dialogs.unexpected.isEmpty(), qPrintable(s.dialogs.unexpected.join(", ")));
}

void TestDesigner::worksheetPixelsShowColoursAndPlaces()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = s.folder("pixels");
    MenuProject p;
    p.width = 9000;
    p.height = 6000;
    p.backgroundColor = 0x00FF0000;   // blue
    const int n = *p.addButton();
    MenuButton& b = p.button(n);
    b.kind = "quitter";
    b.left = 1500;
    b.top = 750;
    b.normalImage = colourPicture(folder + "rouge.png", 30, 20, Qt::red);
    b.hoverImage = b.pressedImage = b.normalImage;
    const int t = *p.addText();
    p.text(t).left = 3000;
    p.text(t).top = 1500;
    p.text(t).width = 1500;
    p.text(t).height = 750;
    p.text(t).backColor = 0x0000FF00;   // green
    p.text(t).content = "";
    p.text(t).settings = "1";   // with its scroll bar
    const std::string path = Session::write(folder + "pixels.qor", projectFileBytes(p, RelativePathRule(folder + "pixels.qor", "")));
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);

    const QImage shot = s.windows().worksheet().grab().toImage();
    QCOMPARE(shot.pixelColor(5, 5), QColor(0, 0, 255));
    QCOMPARE(shot.pixelColor(99, 49), QColor(0, 0, 255));
    QCOMPARE(shot.pixelColor(100, 50), QColor(255, 0, 0));
    QCOMPARE(shot.pixelColor(129, 69), QColor(255, 0, 0));
    QCOMPARE(shot.pixelColor(130, 70), QColor(0, 0, 255));
    QCOMPARE(shot.pixelColor(220, 125), QColor(0, 255, 0));
    QCOMPARE(shot.pixelColor(199, 125), QColor(0, 0, 255));
    // The scroll bar stands at the box's right edge, drawn or typed into.
    const auto barAtRight = [](const QImage& image) {
        return image.pixelColor(206, 125) == QColor(0, 255, 0) && image.pixelColor(293, 125) != QColor(0, 255, 0);
    };
    QVERIFY(barAtRight(shot));
    // The field typed into shows the box as it was drawn, border included.
    (void)s.windows().worksheet().text(t).edit();
    const QImage typing = s.windows().worksheet().grab().toImage();
    for (QPoint at : {QPoint(220, 125), QPoint(200, 100), QPoint(299, 149), QPoint(199, 125)})
        QCOMPARE(typing.pixelColor(at), shot.pixelColor(at));
    QVERIFY(barAtRight(typing));
    QCOMPARE(s.windows().worksheet().windowTitle(), QStringLiteral("Feuille de travail - 9000x6000 - 600x400px"));
}

void TestDesigner::hoverAndPressedPreviewsFollowThePointer()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = s.folder("survol");
    s.dialogs.openAnswers = {colourPicture(folder + "n.png", 20, 10, Qt::red),
                             colourPicture(folder + "s.png", 30, 10, Qt::green),
                             colourPicture(folder + "c.png", 20, 10, Qt::blue)};
    QTest::mouseClick(s.windows().toolbox().command(1), Qt::LeftButton);
    WorksheetWindow& sheet = s.windows().worksheet();
    ButtonElement& b = sheet.button(1);
    auto shows = [&] { return b.pixmap().toImage().pixelColor(0, 0); };
    sendMouse(&b, QEvent::MouseMove, {2, 2}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(shows(), QColor(0, 255, 0));
    QCOMPARE(b.width(), 30);
    sendMouse(&b, QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(shows(), QColor(0, 0, 255));
    sendMouse(&b, QEvent::MouseMove, {3, 3}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(shows(), QColor(0, 0, 255));
    QCOMPARE(s.core().project().button(1).left, 200.0f);
    sendMouse(&b, QEvent::MouseButtonRelease, {3, 3}, Qt::LeftButton, Qt::NoButton);
    sendMouse(&b, QEvent::MouseMove, {4, 4}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(shows(), QColor(0, 255, 0));
    // Over the background every button shows its normal image, and the main
    // window's title highlight ends.
    s.core().shell().mainWindow().pointerOverTitle(2);
    QCOMPARE(s.windows().main().highlightedMenuTitle(), 2);
    sendMouse(&sheet, QEvent::MouseMove, {400, 300}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(shows(), QColor(255, 0, 0));
    QCOMPARE(s.windows().main().highlightedMenuTitle(), -1);
    QCOMPARE(s.windows().mousePosition().readout(3), QStringLiteral("Y=300px"));
    // A press let go off the button ends there: the hover preview comes back at once.
    sendMouse(&b, QEvent::MouseButtonPress, {2, 2}, Qt::LeftButton, Qt::LeftButton);
    sendMouse(&b, QEvent::MouseButtonRelease, in(b, sheet, {400, 300}), Qt::LeftButton, Qt::NoButton);
    QCOMPARE(shows(), QColor(0, 0, 255));
    sendMouse(&b, QEvent::MouseMove, {4, 4}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(shows(), QColor(0, 255, 0));
    // The Delete key asks, and Yes deletes the selected button.
    s.dialogs.messageAnswers = {Answer::Yes};
    QTest::keyClick(&sheet, Qt::Key_Delete);
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Supprimer le bouton 1 ?"));
    QVERIFY(!b.isVisible());
    QCOMPARE(s.selectorEntries(), QStringList{"Feuille de travail"});
}

void TestDesigner::windowPanelControlsWriteTheProject()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    WindowPanel& w = s.windows().properties().windowPanel();
    WorksheetWindow& sheet = s.windows().worksheet();
    MenuProject& p = s.core().project();
    w.widthField()->setText(QStringLiteral("9000"));
    w.heightField()->setText(QStringLiteral("6000"));
    QTest::mouseClick(w.command(QStringLiteral("Command_taille")), Qt::LeftButton);
    QCOMPARE(s.windows().outerSize(sheet), (TwipsSize{9000, 6000}));
    QCOMPARE(p.width, 9000.0f);
    for (const char* bad : {"", "abc", "1e400", "-0", "99999999999", "12,5"}) {
        w.widthField()->setText(QString::fromUtf8(bad));
        QTest::mouseClick(w.command(QStringLiteral("Command_taille")), Qt::LeftButton);
        QCOMPARE(s.dialogs.lastMessage().text, std::string("Vous devez entrer des nombres valides !"));
    }
    QCOMPARE(p.width, 9000.0f);

    // Fit to a 300 x 200 background: the inner area becomes the picture's size.
    const std::string fond = Session::picture(s.folder("fond") + "fond.png", 300, 200);
    s.dialogs.openAnswers = {fond};
    QTest::mouseClick(w.backgroundRow().browse, Qt::LeftButton);
    QCOMPARE(p.backgroundImage, fond);
    QTest::mouseClick(w.command(QStringLiteral("Command_ajuster")), Qt::LeftButton);
    QCOMPARE(sheet.size(), QSize(300, 200));
    QCOMPARE(sheet.background()->geometry(), QRect(0, 0, 300, 200));

    QTest::mouseClick(w.box(QStringLiteral("Check_plein")), Qt::LeftButton);
    QVERIFY(p.fullScreen);
    QCOMPARE(sheet.windowTitle(), QStringLiteral("Feuille de travail - (sera affiché en plein écran)"));
    QVERIFY(!w.widthField()->isEnabled());

    QTest::mouseClick(w.box(QStringLiteral("Check_minuteur")), Qt::LeftButton);
    w.intervalField()->setText(QStringLiteral("0"));
    emit w.intervalField()->editingFinished();
    QCOMPARE(p.timerInterval, std::string("1000"));
    QCOMPARE(s.dialogs.lastMessage().title, std::string("Minuteur"));

    s.dialogs.colourAnswers = {0x000080FF};
    QTest::mouseClick(w.colourSwatch(), Qt::LeftButton);
    QCOMPARE(sheet.backgroundColour(), QColor(255, 128, 0));
    QTest::mouseClick(w.iconRow().clear, Qt::LeftButton);
    QCOMPARE(p.icon, std::string("(Icone par défaut)"));

    s.dialogs.inputAnswers = {"intro.avi"};
    emit w.startupList()->activated(1);
    QCOMPARE(p.startupAction, std::string("intro.avi"));
    QCOMPARE(w.startupCaption()->text(), QStringLiteral("intro.avi"));
    emit w.startupList()->activated(2);
    QCOMPARE(p.startupAction, "VBS:" + startupTemplate());
    QVERIFY2(s.dialogs.unexpected.isEmpty(), qPrintable(s.dialogs.unexpected.join(", ")));
}

void TestDesigner::badPicturesNeitherCrashNorHang()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = s.folder("mauvaises");
    const std::string text = Session::write(folder + "texte.bmp", "pas une image");
    const std::string empty = Session::write(folder + "vide.gif", "");
    const std::string huge = std::string(QOR_TEST_DATA_DIR) + "/images/huge_20000.png";
    s.dialogs.openAnswers = {text, empty, huge};
    QTest::mouseClick(s.windows().toolbox().command(0), Qt::LeftButton);
    const MenuButton& b = s.core().project().button(1);
    // The files exist: the paths stay, and nothing is shown.
    QCOMPARE(b.normalImage, text);
    QCOMPARE(b.pressedImage, huge);
    QVERIFY(s.windows().worksheet().button(1).pixmap().isNull());
    // Larger than Qt reads by default (a quarter of a gigabyte decoded),
    // well inside the pictures' rule: shown, not dropped.
    const std::string large = folder + "grande.png";
    QImage picture(9000, 8000, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(QString::fromStdString(large)));
    s.dialogs.openAnswers = {large};
    QTest::mouseClick(s.windows().properties().buttonPanel().command(QStringLiteral("Text_normale_parcourir")),
                      Qt::LeftButton);
    QCOMPARE(s.windows().worksheet().button(1).pixmap().size(), QSize(9000, 8000));
    for (const std::string& bad : {empty, huge}) {
        s.dialogs.openAnswers = {bad};
        QTest::mouseClick(s.windows().properties().buttonPanel().command(QStringLiteral("Text_normale_parcourir")),
                          Qt::LeftButton);
        QCOMPARE(b.normalImage, bad);
        QVERIFY(s.windows().worksheet().button(1).pixmap().isNull());
    }
    // Hovering and pressing with pictures that cannot be read changes nothing.
    ButtonElement& e = s.windows().worksheet().button(1);
    sendMouse(&e, QEvent::MouseMove, {0, 0}, Qt::NoButton, Qt::NoButton);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestDesigner>(argc, argv);
}

#include "tst_designer.moc"
