// The pictures shared by the editor and the headless baker, checked on
// pixels: the composition, BMP files, baking on a surface, the worksheet
// drawn from the project.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "model/menu_project.h"
#include "picture/bmp_file.h"
#include "picture/button_bake.h"
#include "picture/compose.h"
#include "picture/worksheet_scene.h"

namespace qor {
namespace {

QImage filled(int w, int h, QColor c)
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(c);
    return image;
}

// A surface that answers one known picture and records what buttons show.
class FixedSurface : public BakeSurface {
public:
    QImage sheet;
    QList<QRect> asked;
    QList<QImage> shown;
    QImage under(int, const QRect& rect) override
    {
        asked << rect;
        return sheet.copy(rect);
    }
    void showOnButton(int, const QImage& picture) override { shown << picture; }
};

}  // namespace

class PictureTest : public QObject {
    Q_OBJECT

private slots:
    void composeDrawsLayersInOrderLeavingTheKeyOut_data();
    void composeDrawsLayersInOrderLeavingTheKeyOut();
    void bmpFilesAreTwentyFourBitBottomUpPaddedRows();
    void bmpWriteFailureLeavesNoFileUnderTheName();
    void bakeWritesThreeFilesPressedHoverNormal();
    void bakeStopsAtAnUnreadableOrUnwritablePicture();
    void sceneDrawsBackgroundOtherButtonsAndTexts();

private:
    QTemporaryDir dir_;
    QString write(const QString& name, const QImage& image)
    {
        const QString path = dir_.filePath(name);
        image.save(path, "PNG");
        return path;
    }
};

void PictureTest::composeDrawsLayersInOrderLeavingTheKeyOut_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("fill only") << QPoint(0, 2) << QColor(Qt::red);
    QTest::newRow("plain layer") << QPoint(1, 1) << QColor(Qt::blue);
    QTest::newRow("key pixel leaves what is under") << QPoint(0, 0) << QColor(Qt::red);
    QTest::newRow("keyed layer's own pixel") << QPoint(1, 0) << QColor(Qt::green);
    QTest::newRow("key over plain layer") << QPoint(2, 2) << QColor(Qt::blue);
    QTest::newRow("stretched layer") << QPoint(3, 1) << QColor(Qt::white);
    QTest::newRow("stretched layer, far corner") << QPoint(4, 2) << QColor(Qt::white);
}

void PictureTest::composeDrawsLayersInOrderLeavingTheKeyOut()
{
    QImage keyed = filled(3, 3, Qt::magenta);
    keyed.setPixel(1, 0, QColor(Qt::green).rgb());
    const QImage out = compose(QSize(5, 3), Qt::red,
                               {{filled(2, 2, Qt::blue), QRect(1, 1, 2, 2), std::nullopt},
                                {filled(1, 1, Qt::white), QRect(3, 1, 2, 2), std::nullopt},
                                {keyed, QRect(0, 0, 3, 3), QColor(Qt::magenta).rgb()},
                                // Partly outside: drawn where it falls inside.
                                {filled(4, 4, Qt::magenta), QRect(3, -2, 4, 4), QColor(Qt::magenta).rgb()}});
    QFETCH(QPoint, at);
    QFETCH(QColor, colour);
    QCOMPARE(out.size(), QSize(5, 3));
    QCOMPARE(QColor(out.pixel(at)), colour);
}

void PictureTest::bmpFilesAreTwentyFourBitBottomUpPaddedRows()
{
    QImage image = filled(3, 2, Qt::black);
    image.setPixel(0, 0, qRgb(10, 20, 30));
    image.setPixel(2, 1, qRgb(200, 100, 50));
    const QString path = dir_.filePath(QStringLiteral("p.bmp"));
    QVERIFY(!saveBmp(image, path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    auto word = [&](int at, int size) {
        qint64 v = 0;
        for (int i = size - 1; i >= 0; --i)
            v = (v << 8) | quint8(bytes[at + i]);
        return v;
    };
    QCOMPARE(bytes.left(2), QByteArray("BM"));
    QCOMPARE(word(28, 2), 24);                    // bits per pixel
    QCOMPARE(word(22, 4), 2);                     // positive height: bottom-up rows
    const int dataAt = int(word(10, 4));
    QCOMPARE(bytes.size(), dataAt + 2 * 12);      // 3 pixels = 9 bytes, padded to 12
    // The first row in the file is the picture's bottom row, blue first.
    QCOMPARE(quint8(bytes[dataAt + 6]), quint8(50));
    QCOMPARE(quint8(bytes[dataAt + 8]), quint8(200));
    QImage back(path);
    QCOMPARE(back.pixel(0, 0), qRgb(10, 20, 30));
    QCOMPARE(back.pixel(2, 1), qRgb(200, 100, 50));
}

void PictureTest::bmpWriteFailureLeavesNoFileUnderTheName()
{
    const QString inMissingFolder = dir_.filePath(QStringLiteral("missing/p.bmp"));
    QVERIFY(saveBmp(filled(2, 2, Qt::red), inMissingFolder));
    QVERIFY(!QFile::exists(inMissingFolder));
    // A folder standing where the file should go is not replaced.
    const QString taken = dir_.filePath(QStringLiteral("taken.bmp"));
    QVERIFY(QDir().mkpath(taken));
    QVERIFY(saveBmp(filled(2, 2, Qt::red), taken));
    QVERIFY(QFileInfo(taken).isDir());
    // Nor is anything left beside it.
    QCOMPARE(QDir(dir_.path()).entryList({QStringLiteral("*.part")}, QDir::Files | QDir::Hidden), QStringList());
}

void PictureTest::bakeWritesThreeFilesPressedHoverNormal()
{
    MenuProject project;
    project.filePath = dir_.filePath(QStringLiteral("menu.qor")).toStdString();
    const int n = *project.addButton();
    MenuButton& b = project.button(n);
    b.kind = "code";
    b.transparent = true;
    b.transparentColor = 0x00FF00FF;  // magenta
    b.left = 150;                     // 10 px
    b.top = 300;                      // 20 px
    QImage normal = filled(4, 2, Qt::magenta);
    normal.setPixel(0, 0, qRgb(1, 2, 3));
    b.normalImage = "n.png";
    b.hoverImage = "h.png";
    b.pressedImage = "c.png";
    write(QStringLiteral("n.png"), normal);
    write(QStringLiteral("h.png"), filled(4, 2, Qt::yellow));
    write(QStringLiteral("c.png"), filled(6, 3, Qt::cyan));
    FixedSurface surface;
    surface.sheet = filled(100, 100, Qt::darkGreen);
    surface.sheet.setPixel(11, 20, qRgb(9, 9, 9));
    const BakeOutcome out = bakeButton(project, n, ScreenMetrics{}, QPalette(), surface);
    QVERIFY(!out.unwritable);
    QCOMPARE(out.written.size(), std::size_t(3));
    QCOMPARE(QString::fromStdString(out.written[0]), dir_.filePath(QStringLiteral("c.png_transp.bmp")));
    QCOMPARE(QString::fromStdString(out.written[2]), dir_.filePath(QStringLiteral("n.png_transp.bmp")));
    QCOMPARE(surface.asked, (QList<QRect>{QRect(10, 20, 6, 3), QRect(10, 20, 4, 2), QRect(10, 20, 4, 2)}));
    QCOMPARE(surface.shown.size(), 3);
    QCOMPARE(surface.shown.back().pixel(1, 0), qRgb(9, 9, 9));
    const QImage baked(dir_.filePath(QStringLiteral("n.png_transp.bmp")));
    QCOMPARE(baked.size(), QSize(4, 2));
    QCOMPARE(baked.pixel(0, 0), qRgb(1, 2, 3));                  // the button's own pixel
    QCOMPARE(baked.pixel(1, 0), qRgb(9, 9, 9));                  // key: what lies under
    QCOMPARE(baked.pixel(3, 1), QColor(Qt::darkGreen).rgb());
    QCOMPARE(QImage(dir_.filePath(QStringLiteral("h.png_transp.bmp"))).pixel(2, 1), QColor(Qt::yellow).rgb());
}

void PictureTest::bakeStopsAtAnUnreadableOrUnwritablePicture()
{
    QTemporaryDir folder;
    MenuProject project;
    project.filePath = folder.filePath(QStringLiteral("menu.qor")).toStdString();
    const int n = *project.addButton();
    MenuButton& b = project.button(n);
    b.transparent = true;
    b.normalImage = "n.png";
    b.hoverImage = "h.png";
    b.pressedImage = "broken.png";
    filled(2, 2, Qt::red).save(folder.filePath(QStringLiteral("n.png")));
    filled(2, 2, Qt::red).save(folder.filePath(QStringLiteral("h.png")));
    QFile broken(folder.filePath(QStringLiteral("broken.png")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("not a picture");
    broken.close();
    FixedSurface surface;
    surface.sheet = filled(50, 50, Qt::gray);
    BakeOutcome out = bakeButton(project, n, ScreenMetrics{}, QPalette(), surface);
    QVERIFY(out.written.empty());
    QVERIFY(!out.unwritable);
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("n.png_transp.bmp"))));
    // Readable now, but the hover picture's target is taken by a folder.
    project.button(n).pressedImage.clear();
    QVERIFY(QDir().mkpath(folder.filePath(QStringLiteral("h.png_transp.bmp"))));
    out = bakeButtons(project, ScreenMetrics{}, QPalette(), surface);
    QVERIFY(out.written.empty());
    QCOMPARE(QString::fromStdString(*out.unwritable), folder.filePath(QStringLiteral("h.png_transp.bmp")));
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("n.png_transp.bmp"))));
}

void PictureTest::sceneDrawsBackgroundOtherButtonsAndTexts()
{
    QTemporaryDir folder;
    MenuProject project;
    project.filePath = folder.filePath(QStringLiteral("menu.qor")).toStdString();
    project.width = 1500;   // 100 px
    project.height = 1500;
    project.backgroundColor = 0x000000FF;  // red
    // The background picture, 50 px wide, stretched over the 100 px window.
    QImage background = filled(50, 50, Qt::blue);
    background.setPixel(49, 49, QColor(Qt::yellow).rgb());
    background.save(folder.filePath(QStringLiteral("fond.png")));
    project.backgroundImage = "fond.png";
    const int first = *project.addButton();
    const int second = *project.addButton();
    project.button(first).normalImage = "a.png";
    project.button(first).left = 300;     // 20 px
    project.button(second).normalImage = "b.png";
    project.button(second).left = 600;    // 40 px
    filled(30, 10, Qt::green).save(folder.filePath(QStringLiteral("a.png")));
    filled(30, 10, Qt::white).save(folder.filePath(QStringLiteral("b.png")));
    (void)project.addText();
    MenuText& text = project.text(1);
    text.content.clear();
    text.backColor = 0x00400080;
    text.left = 0;
    text.top = 900;                       // 60 px
    text.width = 1500;
    text.height = 300;
    WorksheetScene scene(project, ScreenMetrics{}, QPalette());
    const QImage under = scene.under(second, QRect(30, 0, 70, 100));
    QCOMPARE(QColor(under.pixel(0, 5)), QColor(Qt::green));    // the first button at x 30
    QCOMPARE(QColor(under.pixel(30, 5)), QColor(Qt::blue));    // the second one left out
    QCOMPARE(QColor(under.pixel(69, 99)), QColor(Qt::yellow)); // the stretched corner
    QCOMPARE(under.pixel(10, 65), qRgb(0x80, 0x00, 0x40));     // the text box
    scene.showOnButton(first, filled(30, 10, Qt::black));
    QCOMPARE(QColor(scene.under(second, QRect(30, 0, 70, 100)).pixel(0, 5)), QColor(Qt::black));
}

}  // namespace qor

QTEST_MAIN(qor::PictureTest)
#include "tst_picture.moc"
