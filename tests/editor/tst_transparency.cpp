// Transparent buttons and the menu picture as a user meets them: a button
// over a background picture and a text box baked by "Aperçu rapide" and
// compared with the worksheet pixel by pixel, bake all buttons and what it
// skips, the toolbox's outline image, and the print preview.

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "core/picture/print_preview_rules.h"
#include "core/picture/window_transparency.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/toolbox_window.h"
#include "editor/designer/worksheet_window.h"
#include "editor_session.h"

using namespace qor;
using qor::test::Session;

namespace {

const QColor kKey(255, 0, 255);

// A picture of the key colour crossed by a red bar on its top rows.
std::string keyedPicture(const std::string& path, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(kKey);
    for (int x = 0; x < width; ++x)
        image.setPixelColor(x, 0, Qt::red);
    image.save(QString::fromStdString(path), "PNG");
    return path;
}

// A background whose every pixel differs from its neighbours, so that a
// shifted copy shows.
std::string gradient(const std::string& path, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x * 7 + y * 3) % 256));
    image.save(QString::fromStdString(path), "PNG");
    return path;
}

// Opens a project of a 600x400 worksheet over a gradient, a green text box
// at (200, 100) and these buttons (1 is transparent over the text box).
std::string openMenu(Session& s, const std::function<void(MenuProject&, const std::string&)>& more = {})
{
    const std::string folder = s.folder("menu");
    MenuProject p;
    p.width = 9000;
    p.height = 6000;
    p.backgroundImage = gradient(folder + "fond.png", 600, 400);
    const int n = *p.addButton();
    MenuButton& b = p.button(n);
    b.kind = "code";
    b.left = 2850;   // 190 px: over the text box's left edge
    b.top = 1350;    // 90 px
    b.transparent = true;
    b.transparentColor = 0x00FF00FF;
    b.normalImage = keyedPicture(folder + "n.png", 60, 30);
    b.hoverImage = keyedPicture(folder + "h.png", 60, 30);
    b.pressedImage = keyedPicture(folder + "c.png", 60, 30);
    const int t = *p.addText();
    p.text(t).left = 3000;
    p.text(t).top = 1500;
    p.text(t).width = 1500;
    p.text(t).height = 750;
    p.text(t).backColor = 0x0000FF00;
    p.text(t).content = "";
    if (more)
        more(p, folder);
    const std::string path = Session::write(folder + "menu.qor", projectFileBytes(p, RelativePathRule(folder + "menu.qor", "")));
    s.dialogs.messageAnswers = {Answer::No};
    s.dialogs.openAnswers = {path};
    s.trigger(CommandId::Open);
    return folder;
}

void selectEntry(Session& s, int index)
{
    QComboBox* box = s.windows().properties().elementSelector();
    box->setCurrentIndex(index);
    emit box->activated(index);
}

}  // namespace

class TestTransparency : public QObject {
    Q_OBJECT
private slots:
    void quickPreviewEqualsTheWorksheetUnderTheButton();
    void bakeAllSkipsWhatIsNotTransparentAndToldOnceOfAnUnwritableFile();
    void theFrameStoresTheBoxAndTheSwatch();
    void toolboxShowsTheOutlineImageUntilClicked();
    void printPreviewCapturesZoomsSavesAndCopies();
};

void TestTransparency::quickPreviewEqualsTheWorksheetUnderTheButton()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = openMenu(s);
    WorksheetWindow& sheet = s.windows().worksheet();
    // What the worksheet shows where the button stands, the button hidden.
    sheet.button(1).hide();
    const QImage expected = sheet.grab(QRect(190, 90, 60, 30)).toImage();
    sheet.button(1).show();
    selectEntry(s, 1);
    s.windows().properties().findChild<QPushButton*>(QStringLiteral("Command_apercu"))->click();
    for (const char* name : {"n.png_transp.bmp", "h.png_transp.bmp", "c.png_transp.bmp"})
        QVERIFY2(QFile::exists(QString::fromStdString(folder + name)), name);
    const QImage baked(QString::fromStdString(folder + "n.png_transp.bmp"));
    QCOMPARE(baked.size(), QSize(60, 30));
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 60; ++x) {
            const QColor want = y == 0 ? QColor(Qt::red) : expected.pixelColor(x, y);
            if (baked.pixelColor(x, y) != want)
                QFAIL(qPrintable(QStringLiteral("pixel %1,%2").arg(x).arg(y)));
        }
    // Both the text box (green) and the background lie under it.
    QCOMPARE(baked.pixelColor(30, 20), QColor(0, 255, 0));
    QCOMPARE(baked.pixelColor(5, 5), expected.pixelColor(5, 5));
    // The worksheet now shows the baked normal picture.
    QCOMPARE(sheet.grab(QRect(190, 90, 60, 30)).toImage().pixelColor(30, 20), QColor(0, 255, 0));
    QVERIFY(s.dialogs.unexpected.isEmpty());
}

void TestTransparency::bakeAllSkipsWhatIsNotTransparentAndToldOnceOfAnUnwritableFile()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = openMenu(s, [](MenuProject& p, const std::string& dir) {
        for (bool transparent : {false, true}) {
            const int n = *p.addButton();
            p.button(n).kind = "code";
            p.button(n).transparent = transparent;
            p.button(n).normalImage = keyedPicture(dir + "o" + std::to_string(n) + ".png", 10, 10);
            p.button(n).hoverImage = p.button(n).pressedImage = p.button(n).normalImage;
        }
    });
    // The third button's one picture cannot be written: a folder holds its name.
    QVERIFY(QDir().mkpath(QString::fromStdString(folder + "o3.png_transp.bmp")));
    selectEntry(s, 1);
    s.dialogs.messages.clear();
    s.editor->baker().bakeAllButtons();
    QCOMPARE(s.windows().properties().elementSelector()->currentIndex(), 0);
    QVERIFY(QFile::exists(QString::fromStdString(folder + "n.png_transp.bmp")));
    QVERIFY(!QFile::exists(QString::fromStdString(folder + "o2.png_transp.bmp")));
    QCOMPARE(s.dialogs.messages.size(), std::size_t(1));
    QCOMPARE(s.dialogs.lastMessage().title, std::string("Transparence des boutons"));
    QVERIFY(s.dialogs.lastMessage().text.find("o3.png_transp.bmp") != std::string::npos);
}

void TestTransparency::theFrameStoresTheBoxAndTheSwatch()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    openMenu(s);
    selectEntry(s, 1);
    PropertiesPanel& panel = s.windows().properties();
    auto* box = panel.findChild<QCheckBox*>(QStringLiteral("Check_transparence"));
    QVERIFY(box->isChecked());
    box->click();
    QVERIFY(!s.core().project().button(1).transparent);
    s.dialogs.colourAnswers = {0x00123456};
    panel.findChild<QPushButton*>(QStringLiteral("Picture_transparence"))->click();
    QCOMPARE(s.core().project().button(1).transparentColor, 0x00123456);
    QVERIFY(!s.core().project().button(1).transparent);
    // Not transparent: "Aperçu rapide" writes nothing.
    const std::string folder = s.folder("menu");
    panel.findChild<QPushButton*>(QStringLiteral("Command_apercu"))->click();
    QVERIFY(!QFile::exists(QString::fromStdString(folder + "n.png_transp.bmp")));
}

void TestTransparency::toolboxShowsTheOutlineImageUntilClicked()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    ToolboxWindow& toolbox = s.windows().toolbox();
    const QSize before = toolbox.size();
    // The pop-up lists the entries; "Voir l'image actuelle" with none set.
    QStringList captions;
    QTimer::singleShot(0, [&captions] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (QAction* a : menu->actions())
            captions << a->text();
        menu->actions().at(1)->trigger();
        menu->close();
    });
    toolbox.command(5)->click();
    QCOMPARE(captions, (QStringList{QStringLiteral("Choisir une image..."), QStringLiteral("Voir l'image actuelle"),
                                    QStringLiteral("Ne pas utiliser la transparence"), QStringLiteral("Informations"),
                                    QString(), QStringLiteral("Annuler")}));
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Aucune image définie !"));
    s.core().project().transparencyImage = Session::picture(s.folder("forme") + "forme.png", 120, 90);
    s.core().designer().outline().run(OutlineCommand::ShowImage);
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Cliquez sur l'image pour revenir"));
    QCOMPARE(toolbox.size(), QSize(120, 90));
    QVERIFY(toolbox.command(0)->isHidden() || !toolbox.command(0)->isVisibleTo(&toolbox));
    QTest::mouseClick(toolbox.outlinePicture(), Qt::LeftButton);
    QCOMPARE(toolbox.size(), before);
    QVERIFY(toolbox.outlinePicture()->isHidden());
}

void TestTransparency::printPreviewCapturesZoomsSavesAndCopies()
{
    Session s;
    QCOMPARE(s.start(), StartOutcome::Running);
    const std::string folder = openMenu(s);
    s.trigger(CommandId::PrintToClipboard);
    PrintPreviewWindow* preview = s.editor->printPreview();
    QVERIFY(preview);
    const QString capture = QString::fromStdString(s.programFile("tmp_impression.bmp"));
    QVERIFY(QFile::exists(capture));
    QCOMPARE(preview->focusWidget(), preview->command("Command6"));
    const QImage shot = s.windows().worksheet().grab().toImage();
    QCOMPARE(preview->capture().size(), shot.size());
    QCOMPARE(preview->capture().pixelColor(220, 125), QColor(0, 255, 0));
    // The baked button is part of the capture.
    QVERIFY(QFile::exists(QString::fromStdString(folder + "n.png_transp.bmp")));
    QCOMPARE(preview->horizontalBar()->maximum(), int(preview->capture().width() * 15 / 800));
    QCOMPARE(preview->verticalBar()->maximum(), int(preview->capture().height() * 15 / 800));
    const double width = preview->imageWidth();
    preview->command("Command3")->click();
    QCOMPARE(preview->imageWidth(), width * 0.95);
    preview->command("Command6")->click();
    QCOMPARE(s.dialogs.lastMessage().text, std::string("Image copiée dans le presse papier !"));
    QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
             preview->capture().convertToFormat(QImage::Format_RGB32));
    s.dialogs.saveAnswers = {folder + "copie.bmp", folder + "absent/copie.bmp"};
    preview->command("Command5")->click();
    QCOMPARE(QImage(QString::fromStdString(folder + "copie.bmp")).convertToFormat(QImage::Format_RGB32),
             preview->capture().convertToFormat(QImage::Format_RGB32));
    preview->command("Command5")->click();
    QVERIFY(s.dialogs.lastMessage().text.find("dans la procédure Command5_Click de Feuille Form18") !=
            std::string::npos);
    // Opening again gives a fresh window; closing deletes the capture.
    s.trigger(CommandId::PrintToBmp);
    QVERIFY(s.editor->printPreview() != nullptr);
    QCOMPARE(s.editor->printPreview()->focusWidget(), s.editor->printPreview()->command("Command5"));
    s.editor->printPreview()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!s.editor->printPreview());
    QVERIFY(!QFile::exists(capture));
}

QTEST_MAIN(TestTransparency)
#include "tst_transparency.moc"
