// The Linux player's window, offscreen: its size, its outline cut by a shape
// and by a transparency image, its buttons under synthetic mouse events,
// its text boxes and its timer.
#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include "model/menu_data_writer.h"
#include "player/core/pixels.h"
#include "player/core/player.h"
#include "player/qt/menu_window.h"
#include "player/qt/qt_system.h"
#include "script/operations.h"

using namespace qor;
using namespace qor::player;

namespace {

class SilentMedia : public MediaPort {
public:
    QStringList played;
    void playMusic(const std::string& p) override { played << QString::fromStdString("music " + p); }
    void playSound(const std::string& p) override { played << QString::fromStdString("sound " + p); }
    void playVideo(const std::string& p) override { played << QString::fromStdString("video " + p); }
    void stopAll() override { played << "stop"; }
};

}  // namespace

class TestMenuWindow : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::unique_ptr<QtSystem> system_;
    std::unique_ptr<SilentMedia> media_;
    std::unique_ptr<MenuWindow> window_;
    std::unique_ptr<Player> player_;

    QString path(const QString& name) const { return dir_.path() + "/qor/" + name; }

    void writeImage(const QString& name, QSize size, QColor colour)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        QVERIFY(image.save(path(name)));
    }

    // Shows the project as the player would from qor/autorun.exe in the temporary folder.
    void show(const MenuProject& project)
    {
        MenuDataResult read = readMenuData(menuDataBytes(project, {"Essai", "Moi"}));
        QVERIFY(std::holds_alternative<MenuData>(read));
        player_.reset();
        window_ = std::make_unique<MenuWindow>();
        system_ = std::make_unique<QtSystem>();
        media_ = std::make_unique<SilentMedia>();
        const MenuPlace place = MenuPlace::of(path("autorun.exe").toStdString(), '/', "D");
        player_ = std::make_unique<Player>(std::get<MenuData>(std::move(read)), place, *window_, *media_, *system_);
        window_->attach(*player_);
        player_->start();
        QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    }

    int px(double twips) const { return twipsToPixels(twips, window_->screen().twipsPerPixelX); }

    static MenuProject buttonMenu()
    {
        MenuProject p;
        p.width = 6000;
        p.height = 4500;
        MenuButton& b = p.button(*p.addButton());
        b.kind = "quitter";
        b.normalImage = "n.bmp";
        b.hoverImage = "s.bmp";
        b.pressedImage = "c.bmp";
        b.left = 1500;
        b.top = 750;
        return p;
    }

private slots:
    void init()
    {
        QVERIFY(dir_.isValid());
        QVERIFY(QDir(dir_.path()).mkpath("qor"));
        writeImage("n.bmp", {40, 20}, Qt::red);
        writeImage("s.bmp", {40, 20}, Qt::green);
        writeImage("c.bmp", {40, 20}, Qt::blue);
    }

    void cleanup()
    {
        player_.reset();
        window_.reset();
    }

    void windowTakesItsSizeInPixelsAndIsCentred()
    {
        MenuProject p;
        p.width = 9000;
        p.height = 6000;
        p.backgroundColor = 0x000000FF;
        show(p);
        QCOMPARE(window_->size(), QSize(px(9000), px(6000)));
        QVERIFY(window_->windowFlags() & Qt::FramelessWindowHint);
        QCOMPARE(window_->windowTitle(), QString("Essai"));
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        QCOMPARE(window_->geometry().center().x() / 2, screen.center().x() / 2);
        const QImage shot = window_->grab().toImage();
        QCOMPARE(shot.pixelColor(shot.width() / 2, shot.height() / 2), QColor(Qt::red));
        QCOMPARE(shot.pixelColor(0, 0), QColor(Qt::black));   // the border
    }

    // Run at 100 % and again alone with QT_SCALE_FACTOR=1.5 (CMakeLists.txt):
    // the window keeps the designed layout at any density, the button's
    // picture covering the same part of it as designed, within 1 %.
    void theLayoutIsTheSameAtAnyDensity()
    {
        show(buttonMenu());
        QCOMPARE(window_->size(), QSize(400, 300));
        const QImage shot = window_->grab().toImage();
        const double ratio = shot.width() / 400.0;
        QCOMPARE(shot.height(), qRound(300 * ratio));
        int first = -1;
        int last = -1;
        const int row = qRound((50 + 10) * ratio);
        for (int x = 0; x < shot.width(); ++x)
            if (shot.pixelColor(x, row).red() > 200 && shot.pixelColor(x, row).green() < 60) {
                first = first < 0 ? x : first;
                last = x;
            }
        QVERIFY2(first >= 0, "the button's picture is not in the window");
        QVERIFY(qAbs((last - first + 1) / double(shot.width()) - 40 / 400.0) <= 0.01 * 40 / 400.0 + 1.0 / shot.width());
        QVERIFY(qAbs(first / double(shot.width()) - 100 / 400.0) <= 1.0 / shot.width());
    }

    void shapeCutsTheOutline()
    {
        MenuProject p;
        p.width = 6000;
        p.height = 6000;
        // A triangle over the upper left half: the lower right half is cut.
        p.shapePoints = {{0, 0}, {6000, 0}, {0, 6000}, {0, 0}};
        show(p);
        const QRegion mask = window_->mask();
        QVERIFY(mask.contains(QPoint(px(1000), px(1000))));
        QVERIFY(!mask.contains(QPoint(px(5000), px(5000))));
    }

    void transparencyImageCutsItsWhitePixels()
    {
        QImage image(20, 10, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int y = 0; y < 10; ++y)
            for (int x = 10; x < 20; ++x)
                image.setPixelColor(x, y, Qt::black);
        QVERIFY(image.save(path("transp.bmp")));
        MenuProject p;
        p.width = 6000;
        p.height = 3000;
        p.transparencyImage = "transp.bmp";
        show(p);
        const QRegion mask = window_->mask();
        QVERIFY(!mask.contains(QPoint(px(1500), px(1500))));
        QVERIFY(mask.contains(QPoint(px(4500), px(1500))));
    }

    void aWindowCutAwayEntirelyKeepsItsRectangle()
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::white);
        QVERIFY(image.save(path("blanc.bmp")));
        MenuProject p;
        p.transparencyImage = "blanc.bmp";
        show(p);
        QVERIFY(window_->mask().isEmpty());
    }

    void buttonImagesFollowThePointer()
    {
        show(buttonMenu());
        QCOMPARE(window_->buttons().size(), std::size_t(1));
        ButtonWidget* button = window_->buttons()[0];
        QCOMPARE(button->geometry(), QRect(px(1500), px(750), 40, 20));
        auto colour = [button] { return button->shown().toImage().pixelColor(5, 5); };
        QCOMPARE(colour(), QColor(Qt::red));
        QTest::mouseMove(window_.get(), QPoint(5, 5));
        QTest::mouseMove(button, QPoint(10, 10));
        QTRY_COMPARE(colour(), QColor(Qt::green));
        QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(colour(), QColor(Qt::blue));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(60, 60));
        QCOMPARE(colour(), QColor(Qt::red));
        QSignalSpy finished(window_.get(), &MenuWindow::finished);
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(10, 10));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(10, 10));
        QCOMPARE(finished.count(), 1);
        QVERIFY(!window_->isVisible());
    }

    // A menu larger than the screen's free area (run again on a 640 x 480
    // screen, CMakeLists.txt) is reduced as a whole: the window fits and
    // keeps its proportions, the button in its far corner keeps its place
    // and its share of the window, a text's font shrinks with it, and the
    // button is still there to be clicked.
    void aMenuLargerThanTheScreenIsReducedAsAWhole()
    {
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        const struct {
            const char* what;
            int width, height;   // pixels as designed
        } rows[] = {
            {"wider", area.width() * 3 / 2, area.height() / 2},
            {"taller", area.width() / 2, area.height() * 2},
            {"both", area.width() * 3, area.height() * 3},
        };
        for (const auto& row : rows) {
            MenuProject p = buttonMenu();
            p.width = row.width * 15.0f;
            p.height = row.height * 15.0f;
            p.button(1).left = (row.width - 60) * 15.0f;
            p.button(1).top = (row.height - 40) * 15.0f;
            MenuText& t = p.text(*p.addText());
            t.fontSize = 20;
            show(p);
            const double scale = std::min(area.width() / double(row.width), area.height() / double(row.height));
            const QRect window = window_->geometry();
            QVERIFY2(area.contains(window), row.what);
            QVERIFY2(qAbs(window.width() - row.width * scale) <= 1, row.what);
            QVERIFY2(qAbs(window.height() - row.height * scale) <= 1, row.what);
            const QRect button = window_->buttons()[0]->geometry();
            QVERIFY2(window_->rect().contains(button), row.what);
            QVERIFY2(qAbs(button.left() - (row.width - 60) * scale) <= 1, row.what);
            QVERIFY2(qAbs(button.width() - 40 * scale) <= 1, row.what);
            QVERIFY2(qAbs(window_->texts()[0]->font().pointSizeF() - 20 * scale) < 0.01, row.what);
            const QImage shot = window_->grab().toImage();
            QCOMPARE(shot.pixelColor(button.center()), QColor(Qt::red));
            QCOMPARE(window_->childAt(button.center()), window_->buttons()[0]);
            QSignalSpy finished(window_.get(), &MenuWindow::finished);
            const QPoint inside = button.center() - button.topLeft();
            QTest::mousePress(window_->buttons()[0], Qt::LeftButton, {}, inside);
            QTest::mouseRelease(window_->buttons()[0], Qt::LeftButton, {}, inside);
            QVERIFY2(finished.count() == 1, row.what);
        }
    }

    void aButtonWithoutImagesCanStillBeClicked()
    {
        MenuProject p = buttonMenu();
        p.button(1).normalImage = "absent.bmp";
        show(p);
        QCOMPARE(window_->buttons()[0]->size(), ButtonWidget::kPlaceholderSize);
    }

    void textBoxesShowTheirSettings()
    {
        MenuProject p;
        MenuText& t = p.text(*p.addText());
        t.content = "Ligne 1\r\nLigne 2";
        t.settings = "11";
        t.fontName = "DejaVu Sans";
        t.fontSize = 12;
        t.fontBold = true;
        t.foreColor = 0x000000FF;
        t.left = 150;
        t.top = 300;
        MenuText& t2 = p.text(*p.addText());
        t2.settings = "00";
        show(p);
        QCOMPARE(window_->texts().size(), std::size_t(2));
        TextBox* box = window_->texts()[0];
        QCOMPARE(box->toPlainText(), QString("Ligne 1\nLigne 2"));
        QCOMPARE(box->geometry(), QRect(px(150), px(300), px(2895), px(1455)));
        QCOMPARE(box->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QVERIFY(box->isReadOnly());
        QVERIFY(box->font().bold());
        QCOMPARE(box->palette().color(QPalette::Text), QColor(Qt::red));
        QCOMPARE(window_->texts()[1]->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(!window_->texts()[1]->isReadOnly());
        // What the user types reads back in the script with CR LF.
        QTest::keyClicks(window_->texts()[1], "ab");
        QCOMPARE(QString::fromStdString(script::toText(player_->module().eval("Texte2.Text").value)), QString("ab"));
    }

    // The worksheet shows text boxes over the buttons; the menu must too.
    void aTextBoxOverAButtonStaysInFront()
    {
        MenuProject p = buttonMenu();
        MenuText& t = p.text(*p.addText());
        t.left = 1500;
        t.top = 750;
        show(p);
        const QPoint inside = window_->buttons()[0]->geometry().center();
        QWidget* top = window_->childAt(inside);
        QVERIFY(top);
        QVERIFY(top == window_->texts()[0] || window_->texts()[0]->isAncestorOf(top));
    }

    void theTimerChangesTheCaption()
    {
        MenuProject p;
        p.timerEnabled = true;
        p.timerInterval = "20";
        p.timerScript = "n = n + 1\r\nFenetre.Caption = \"tic \" & n";
        show(p);
        QTRY_VERIFY(window_->windowTitle().startsWith("tic "));
    }

    void scriptsChangeTheScreenAtOnce()
    {
        MenuProject p = buttonMenu();
        p.startupAction = "VBS:Fenetre.BackColor = RGB(0, 255, 0)\r\nBouton1.Left = 0\r\nBordure.Visible = False";
        show(p);
        QCOMPARE(window_->buttons()[0]->pos(), QPoint(0, px(750)));
        const QImage shot = window_->grab().toImage();
        QCOMPARE(shot.pixelColor(shot.width() - 1, shot.height() - 1), QColor(Qt::green));
    }
};

QTEST_MAIN(TestMenuWindow)
#include "tst_menu_window.moc"
