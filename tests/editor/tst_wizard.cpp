// The creation wizard on screen (offscreen): text buttons drawn and saved
// as Windows bitmaps, the window Form14 over its flows, and a menu made
// through the five steps and opened in the editor.

#include <QAbstractButton>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTest>

#include "editor/platform/qt_dialogs.h"
#include "editor/wizard/creation_wizard_window.h"
#include "editor/wizard/editor_wizard.h"
#include "editor/wizard/qt_button_pictures.h"
#include "editor/wizard/text_button_image.h"
#include "editor/ui/splash_window.h"
#include "editor_session.h"

#include "typing.h"

using namespace qor;
using qor::test::Session;

namespace {

// The box around the pixels of one colour; null when there is none.
QRect boxOf(const QImage& image, QRgb colour)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == colour)
                box |= QRect(x, y, 1, 1);
    return box;
}

int countOf(const QImage& image, QRgb colour)
{
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            n += image.pixel(x, y) == colour;
    return n;
}

bool onlyColours(const QImage& image, QRgb a, QRgb b)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != a && image.pixel(x, y) != b)
                return false;
    return true;
}

WizardButton textEntry(const QString& caption, const QString& font, int size, bool underline,
                       Colour back, Colour text)
{
    WizardButton b;
    b.caption = caption.toStdString();
    b.fontName = font.toStdString();
    b.fontSize = std::int16_t(size);
    b.underline = underline;
    b.backColor = back;
    b.textColor = text;
    return b;
}

template <class W>
W* control(QWidget* window, const char* name)
{
    W* w = window->findChild<W*>(QString::fromUtf8(name));
    if (!w)
        qWarning("no control %s", name);
    return w;
}

// Clicks a command, or an option on its circle (a click beside its
// caption does nothing, as on screen).
void click(QWidget* window, const char* name)
{
    auto* button = control<QAbstractButton>(window, name);
    const bool option = qobject_cast<QRadioButton*>(button) != nullptr;
    QTest::mouseClick(button, Qt::LeftButton, {}, option ? QPoint(6, button->height() / 2) : QPoint());
}

void type(QWidget* window, const char* name, const QString& text)
{
    auto* field = control<QLineEdit>(window, name);
    QCOMPARE(test::clickInto(field), field);
    test::pressKey(Qt::Key_A, Qt::ControlModifier);
    test::typeHere(text);
}

// A session with the wizard opened from its menu command.
struct WizardSession {
    Session s;

    WizardSession()
    {
        s.start();
        s.dialogs.messageAnswers = {Answer::No};
        s.trigger(CommandId::NewWizard);
        s.dialogs.messages.clear();
    }
    CreationWizardWindow* window() { return s.editor->wizard().window(); }
    bool open() { return s.core().state().wizardOpen; }
};

}  // namespace

class TestWizard : public QObject {
    Q_OBJECT

private slots:
    void textButtonPicturesFollowTheirRules_data();
    void textButtonPicturesFollowTheirRules();
    void savedPicturesAreWindowsBitmaps();
    void pictureSizesComeFromTheFiles();
    void windowTakesItsNameHooksAndNote();
    void openedFromTheMenuAndClosedWithItsQuestion();
    void navigationPerStep();
    void previewFollowsThePointer();
    void aMenuThroughTheFiveSteps();
    void splashHandsTheWizardOverAsModal();
};

void TestWizard::textButtonPicturesFollowTheirRules_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("font");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("underline");
    QTest::newRow("8 points, the default font") << "Jouer le film" << "MS Sans Serif" << 8 << false;
    QTest::newRow("underlined") << "Quitter" << "DejaVu Sans" << 14 << true;
    QTest::newRow("200 points") << "Go" << "DejaVu Serif" << 200 << false;
    QTest::newRow("accents and symbols") << "Été – 2€" << "DejaVu Sans" << 12 << false;
}

void TestWizard::textButtonPicturesFollowTheirRules()
{
    QFETCH(QString, caption);
    QFETCH(QString, font);
    QFETCH(int, size);
    QFETCH(bool, underline);
    const Colour back = 0x00336699, text = 0x0000FFFF;
    const QRgb backRgb = qRgb(0x99, 0x66, 0x33), textRgb = qRgb(0xFF, 0xFF, 0x00);
    const WizardButton entry = textEntry(caption, font, size, underline, back, text);

    // The caption's size on one line, in the button's font: the picture is
    // 0.12 of its height wider and 1.12 of it high.
    QFont f = toQFont(buttonFont(entry, ButtonState::Normal));
    const QImage device(1, 1, QImage::Format_RGB32);
    const QFontMetricsF m(f, &device);
    const double h = m.height();
    const QImage n = drawTextButton(entry, ButtonState::Normal);
    const QImage s = drawTextButton(entry, ButtonState::Hover);
    const QImage c = drawTextButton(entry, ButtonState::Pressed);
    QCOMPARE(n.width(), int(std::lround(m.horizontalAdvance(caption) + 0.12 * h)));
    QCOMPARE(n.height(), int(std::lround(1.12 * h)));
    QCOMPARE(s.size(), n.size());
    QCOMPARE(c.size(), n.size());

    for (const QImage* image : {&n, &s, &c}) {
        // No mixed colours: a transparent background leaves no fringe.
        QVERIFY(onlyColours(*image, backRgb, textRgb));
        QCOMPARE(image->pixel(image->width() - 1, image->height() - 1), backRgb);
    }
    // The margin below the text: 0.12 h normally, 0.06 h pressed.
    const QRect textN = boxOf(n, textRgb), textS = boxOf(s, textRgb), textC = boxOf(c, textRgb);
    QVERIFY(!textN.isNull());
    QVERIFY(textN.bottom() < int(std::ceil(h)));
    QVERIFY(textS.bottom() < int(std::ceil(h)));
    // Pressed, the hover picture's text moves right and down by 0.06 h.
    const int shift = int(std::lround(0.06 * h));
    QVERIFY2(std::abs(textC.left() - textS.left() - shift) <= 1, qPrintable(QString::number(textC.left())));
    QVERIFY(std::abs(textC.top() - textS.top() - shift) <= 1);
    // Hover and press invert the underline.
    QCOMPARE(countOf(s, textRgb) > countOf(n, textRgb), !underline);
    QCOMPARE(countOf(c, textRgb) > countOf(n, textRgb), !underline);
}

void TestWizard::savedPicturesAreWindowsBitmaps()
{
    QTemporaryDir dir;
    QtButtonPictures pictures;
    const WizardButton entry = textEntry("Bouton", "DejaVu Sans", 10, false, 0x00FFFFFF, 0x000000FF);
    for (ButtonState state : kButtonStates) {
        const std::string path = dir.filePath(QString::fromStdString(buttonImageFileName(1, state))).toStdString();
        auto size = pictures.saveTextButton(entry, state, path);
        QVERIFY(size.ok());
        const std::string bytes = Session::read(path);
        QCOMPARE(bytes.substr(0, 2), std::string("BM"));
        // Bits per pixel, in the bitmap's header.
        QCOMPARE(int(std::uint8_t(bytes[28])) | int(std::uint8_t(bytes[29])) << 8, 24);
        const QImage drawn = drawTextButton(entry, state);
        const QImage read(QString::fromStdString(path));
        QCOMPARE(read.size(), drawn.size());
        QCOMPARE((PixelSize{read.width(), read.height()}), *size);
        QCOMPARE(read.convertToFormat(QImage::Format_RGB32), drawn);
    }
    // A folder that is not there: the failure is reported, not thrown.
    auto failed = pictures.saveTextButton(entry, ButtonState::Normal, dir.filePath("absent/x.bmp").toStdString());
    QVERIFY(!failed.ok());
    QCOMPARE(failed.error().number, err::PathFileAccess);
}

void TestWizard::pictureSizesComeFromTheFiles()
{
    QTemporaryDir dir;
    const std::string folder = dir.path().toStdString() + "/";
    Session::picture(folder + "b.png", 40, 20);
    // A picture whose name lies about its kind.
    Session::picture(folder + "png_named.bmp", 7, 9);
    Session::write(folder + "texte.jpg", "pas une image");
    QtButtonPictures pictures;
    struct Row { std::string file; int error; PixelSize size; };
    const Row rows[] = {
        {"b.png", 0, {40, 20}},
        {"png_named.bmp", 0, {7, 9}},
        {"texte.jpg", err::InvalidPicture, {}},
        {"absent.png", err::FileNotFound, {}},
    };
    for (const Row& r : rows) {
        auto size = pictures.pictureSize(folder + r.file);
        QCOMPARE(size.ok() ? 0 : size.error().number, r.error);
        if (size.ok())
            QCOMPARE(*size, r.size);
    }
}

namespace {

// Sets the note of "Etape 2" as a translation script would.
class TranslatingHooks : public WindowHooks {
public:
    QStringList calls;
    void translate(QWidget& w) override
    {
        calls << "translate " + w.objectName();
        if (auto* note = w.findChild<QLabel*>(QStringLiteral("Label7")))
            note->setText(QStringLiteral("Note: more in the script assistant"));
    }
    void applyAppearance(QWidget& w) override { calls << "appearance " + w.objectName(); }
};

}  // namespace

void TestWizard::windowTakesItsNameHooksAndNote()
{
    TranslatingHooks hooks;
    CreationWizardWindow w(hooks);
    QCOMPARE(w.objectName(), QStringLiteral("Form14"));
    QCOMPARE(w.windowTitle(), QStringLiteral("Assistant création"));
    QCOMPARE(hooks.calls, (QStringList{"translate Form14", "appearance Form14"}));
    QCOMPARE(control<QLabel>(&w, "Label27")->text(), QStringLiteral("Note: more in the script assistant"));
    // A fixed window.
    QCOMPARE(w.minimumSize(), w.maximumSize());
    // Swatches keep their colours under every appearance.
    for (const char* swatch : {"Picture4", "Picture7", "Picture8"})
        QCOMPARE(control<QLabel>(&w, swatch)->property("Tag").toString(), QStringLiteral("N_DESIGN"));
}

void TestWizard::openedFromTheMenuAndClosedWithItsQuestion()
{
    WizardSession ws;
    Session& s = ws.s;
    QVERIFY(ws.window() && ws.window()->isVisible());
    QVERIFY(ws.open());
    QCOMPARE(ws.window()->parentWidget(), static_cast<QWidget*>(&s.main()));

    // Quitting waits for the wizard.
    s.trigger(CommandId::Quit);
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Veuillez fermer l'assistant création avant de quitter."));
    QVERIFY(!s.ended);

    s.dialogs.messageAnswers = {Answer::No};
    ws.window()->close();
    QCOMPARE(s.dialogs.lastMessage(), (Message{"Quitter l'assistant ?", "Assistant création", MessageIcon::Question,
                                               MessageButtons::YesNo, 1}));
    QVERIFY(ws.window()->isVisible());
    QVERIFY(ws.open());
    s.dialogs.messageAnswers = {Answer::Yes};
    click(ws.window(), "Command4");
    QVERIFY(!ws.window()->isVisible());
    QVERIFY(!ws.open());

    // A new wizard from the menu starts afresh.
    s.dialogs.messageAnswers = {Answer::No};
    s.trigger(CommandId::NewWizard);
    QVERIFY(ws.window()->isVisible());
    QCOMPARE(ws.s.editor->wizard().flows()->form().step, 0);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestWizard::navigationPerStep()
{
    WizardSession ws;
    QWidget* w = ws.window();
    // Enter in a field presses no command of the window.
    QTest::keyClick(control<QLineEdit>(w, "Text1"), Qt::Key_Return);
    QVERIFY(w->isVisible());
    QVERIFY(ws.s.dialogs.openRequests.empty() && ws.s.dialogs.messages.empty());
    const char* headers[] = {"Bienvenue dans l'assistant création de projet QOR !", "Au démarrage...",
                             "Création des boutons...", "A quoi servent ces boutons ?", "La fin approche..."};
    for (int step = 0; step < 5; ++step) {
        auto* panels = w->findChild<QStackedWidget*>();
        QCOMPARE(panels->currentIndex(), step);
        auto* panel = qobject_cast<QGroupBox*>(panels->currentWidget());
        QVERIFY(panel);
        QCOMPARE(panel->title(), QStringLiteral("Etape %1:").arg(step + 1));
        QCOMPARE(control<QLabel>(w, "Label1")->text(), QString::fromUtf8(headers[step]));
        QVERIFY(!control<QLabel>(w, "Image1")->pixmap().isNull());
        QCOMPARE(control<QAbstractButton>(w, "Command1")->isEnabled(), step > 0);
        QCOMPARE(control<QAbstractButton>(w, "Command2")->isEnabled(), step < 4);
        QCOMPARE(control<QAbstractButton>(w, "Command3")->isEnabled(), step == 4);
        if (step < 4)
            click(w, "Command2");
    }
    // The documents folder is offered on the last step.
    QVERIFY(!control<QLabel>(w, "Label22")->text().isEmpty());
    click(w, "Command1");
    QCOMPARE(w->findChild<QStackedWidget*>()->currentIndex(), 3);
}

void TestWizard::previewFollowsThePointer()
{
    WizardSession ws;
    QWidget* w = ws.window();
    click(w, "Command2");
    click(w, "Command2");
    click(w, "Command9");
    click(w, "Option7");
    type(w, "Text5", QStringLiteral("Apercu"));
    click(w, "Command11");
    const QImage normal = ws.window()->previewImage();
    QVERIFY(!normal.isNull());

    QWidget* picture = control<QWidget>(w, "Picture10");
    const QPointF at(2, 2);
    QMouseEvent move(QEvent::MouseMove, at, picture->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(picture, &move);
    const QImage hover = ws.window()->previewImage();
    QCOMPARE(hover.size(), normal.size());
    QVERIFY(hover != normal);
    QMouseEvent press(QEvent::MouseButtonPress, at, picture->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(picture, &press);
    const QImage pressed = ws.window()->previewImage();
    QVERIFY(pressed != hover);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(picture, &leave);
    QCOMPARE(ws.window()->previewImage(), normal);
    click(w, "Command22");
    QVERIFY(ws.window()->previewImage().isNull());
}

void TestWizard::aMenuThroughTheFiveSteps()
{
    WizardSession ws;
    Session& s = ws.s;
    QWidget* w = ws.window();
    const std::string images = s.folder("images");
    const std::string menus = s.folder("menus");

    type(w, "Text1", QStringLiteral("Mon CD"));
    click(w, "Command2");
    click(w, "Command2");
    for (const char* caption : {"Jouer", "Aide", "Quitter"}) {
        click(w, "Command9");
        click(w, "Option7");
        type(w, "Text5", QString::fromUtf8(caption));
        click(w, "Command16");
    }
    click(w, "Command9");
    click(w, "Option8");
    s.dialogs.openAnswers = {Session::picture(images + "n.png", 90, 30), Session::picture(images + "s.png", 90, 30),
                             Session::picture(images + "c.png", 90, 30)};
    for (const char* choose : {"Command12", "Command13", "Command15"})
        click(w, choose);
    click(w, "Command20");
    const QStringList lines = {"Bouton 1 (Texte)", "Bouton 2 (Texte)", "Bouton 3 (Texte)", "Bouton 4 (Graphique)"};
    auto* list = control<QListWidget>(w, "List1");
    QCOMPARE(list->count(), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(list->item(i)->text(), lines[i]);

    click(w, "Command2");
    auto* functions = control<QListWidget>(w, "List2");
    QCOMPARE(functions->count(), 4);
    functions->setCurrentRow(0);
    click(w, "Option9");
    type(w, "Text9", QStringLiteral("film.avi"));
    functions->setCurrentRow(2);
    click(w, "Option10");
    functions->setCurrentRow(3);
    s.dialogs.inputAnswers = {"Info", "Bonjour[R]toi"};
    click(w, "Option11");
    QVERIFY(control<QWidget>(w, "Command23")->isVisibleTo(w));

    click(w, "Command2");
    s.dialogs.folderAnswers = {menus};
    click(w, "Command24");
    QCOMPARE(control<QLabel>(w, "Label22")->text(), QString::fromStdString(menus));
    click(w, "Command3");

    // The menu is written, opened and the wizard gone.
    const std::string menuFolder = menus + "Mon CD/";
    QCOMPARE(s.dialogs.lastMessage().icon, MessageIcon::Information);
    QVERIFY(!w->isVisible());
    QVERIFY(!ws.open());
    QCOMPARE(s.core().project().filePath, menuFolder + "Mon CD.qor");
    QCOMPARE(s.selectorEntries(), (QStringList{"Feuille de travail", "Bouton 1 (vidéo)", "Bouton 2 (vidéo)",
                                               "Bouton 3 (quitter)", "Bouton 4 (code)"}));
    QCOMPARE(s.core().project().button(1).action, std::string("film.avi"));
    QCOMPARE(s.core().project().button(4).action,
             std::string("MsgBox \"Bonjour\"+chr(10)+chr(13)+\"toi\", vbInformation, \"Info\""));
    QCOMPARE(QDir::currentPath() + "/", QString::fromStdString(menuFolder));
    for (int k = 1; k <= 3; ++k) {
        for (ButtonState state : kButtonStates)
            QVERIFY(QFileInfo::exists(QString::fromStdString(menuFolder + buttonImageFileName(k, state))));
        // The worksheet shows each button's normal picture.
        QCOMPARE(s.editor->projectViews().buttonPicture(k).size(),
                 QImage(QString::fromStdString(menuFolder + buttonImageFileName(k, ButtonState::Normal))).size());
    }
    QCOMPARE(s.editor->projectViews().buttonPicture(4).size(), QSize(90, 30));
    // Stacked from the top, 150 twips apart.
    const MenuProject& p = s.core().project();
    QCOMPARE(p.button(1).top, 150.0f);
    QCOMPARE(p.button(2).top, p.button(1).top + float(s.editor->projectViews().buttonPicture(1).height() * 15) + 150);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestWizard::splashHandsTheWizardOverAsModal()
{
    Session s;
    Session::write(s.programFile("qor_options.ini"),
                   "non\r\noui\r\noui\r\n-2147483633\r\n-2147483643\r\n-2147483630\r\nMS Sans Serif\r\noui\r\noui\r\n");
    QCOMPARE(s.start(), StartOutcome::Running);
    CreationWizardWindow* w = s.editor->wizard().window();
    QVERIFY(w && w->isVisible());
    QCOMPARE(w->windowModality(), Qt::NonModal);
    QVERIFY(s.core().state().wizardOpen);
    s.windows().splash().close();
    QVERIFY(w->isVisible());
    QCOMPARE(w->windowModality(), Qt::ApplicationModal);
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

int main(int argc, char** argv)
{
    return qor::test::runSessionTest<TestWizard>(argc, argv);
}

#include "tst_wizard.moc"
