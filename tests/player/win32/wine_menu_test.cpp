// The Windows player as a user meets it: compiled menus started under wine
// in a virtual screen, looked at through screenshots and used with the pointer.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "menu_maker.h"
#include "screen.h"
#include "temp_dir.h"

namespace qor::test {
namespace {

constexpr int kStartMs = 30000;      // wine starts a program in a few seconds; a slow machine gets more
constexpr std::uint32_t kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF, kYellow = 0xFFFF00;

MenuButton& addButton(MenuProject& p, float left, float top, const std::string& image, std::string_view kind)
{
    MenuButton& b = p.button(*p.addButton());
    b.left = left;
    b.top = top;
    b.normalImage = image + "_n.bmp";
    b.hoverImage = image + "_s.bmp";
    b.pressedImage = image + "_c.bmp";
    b.kind = std::string(kind);
    return b;
}

// 400 x 300 pixels on a 96-dpi screen, red, with a green and a blue button
// (yellow under the pointer) and the second one closing the menu; the first
// one's script is firstAction, its hover script firstHover.
MenuProject sampleMenu(const std::string& firstAction = "Fenetre.Caption = \"clic\"", const std::string& firstHover = "")
{
    MenuProject p;
    p.width = 6000;
    p.height = 4500;
    p.backgroundColor = 0x000000FF;
    MenuButton& first = addButton(p, 600, 600, "vert", button_kind::code);
    first.action = firstAction;
    first.hoverScript = firstHover;
    addButton(p, 3000, 1500, "bleu", button_kind::quit);
    return p;
}

std::map<std::string, std::string> sampleFiles()
{
    std::map<std::string, std::string> files;
    for (const char* look : {"_n.bmp", "_c.bmp"}) {
        files[std::string("vert") + look] = solidBitmap(50, 30, kGreen);
        files[std::string("bleu") + look] = solidBitmap(60, 40, kBlue);
    }
    files["vert_s.bmp"] = solidBitmap(50, 30, kYellow);
    files["bleu_s.bmp"] = solidBitmap(60, 40, kYellow);
    return files;
}

struct Probe {
    const char* what;
    int x;
    int y;
    std::uint32_t colour;
};

constexpr int kPaintMs = 5000;

// The first probe is waited for: the window has painted when it shows.
void expectPixels(const WindowBox& w, std::initializer_list<Probe> probes)
{
    const Probe& first = *probes.begin();
    const std::optional<Shot> shot = screenShotWhen(w.x + first.x, w.y + first.y, first.colour, kPaintMs);
    ASSERT_TRUE(shot) << "no screenshot (ImageMagick's import)";
    for (const Probe& p : probes)
        EXPECT_EQ(shot->at(w.x + p.x, w.y + p.y), p.colour)
            << p.what << " at " << p.x << "," << p.y << std::hex << " is 0x" << shot->at(w.x + p.x, w.y + p.y);
}

TEST(WineMenu, WindowHasItsSizeBackgroundAndButtons)
{
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), sampleMenu(), "QOR fenetre", sampleFiles()));
    const std::optional<WindowBox> w = waitForWindow("QOR fenetre", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    EXPECT_EQ(w->width, 400);
    EXPECT_EQ(w->height, 300);
    expectPixels(*w, {{"background", 10, 150, kRed},
                      {"background right of button 1", 95, 55, kRed},
                      {"button 1", 64, 54, kGreen},
                      {"button 1 corner", 40, 40, kGreen},
                      {"button 2", 229, 119, kBlue},
                      {"border", 0, 150, 0x000000},
                      {"border", 399, 150, 0x000000}});
    moveTo(w->x + 65, w->y + 55);
    expectPixels(*w, {{"button 1 under the pointer", 64, 54, kYellow}, {"button 2", 229, 119, kBlue}});
}

// The window of that title once it has painted its first button, the
// pointer kept off it.
std::optional<WindowBox> paintedWindow(const std::string& title)
{
    moveTo(0, 0);
    const std::optional<WindowBox> w = waitForWindow(title, kStartMs);
    if (w)
        expectPixels(*w, {{"button 1", 64, 54, kGreen}});
    return w;
}

// The screen density wine gives the programs it starts from now on.
void setDensity(int dpi)
{
    const std::string command = "wine reg add \"HKCU\\Control Panel\\Desktop\" /v LogPixels /t REG_DWORD /d " +
                                std::to_string(dpi) + " /f >/dev/null 2>&1";
    // A program just ended may still hold the registry a moment.
    int status = -1;
    for (int attempt = 0; attempt < 3 && status != 0; ++attempt)
        status = std::system(command.c_str());
    EXPECT_EQ(status, 0) << command;
}

// How far apart two 0xRRGGBB colours are.
int distance(std::uint32_t a, std::uint32_t b)
{
    int d = 0;
    for (int shift : {0, 8, 16})
        d += std::abs(int((a >> shift) & 0xFF) - int((b >> shift) & 0xFF));
    return d;
}

// Where a button's colour runs along the row y (window pixels) over the red
// background: its first and last column, a pixel counting when it is nearer
// the button's colour than the background's (the edges of a scaled picture
// are blended).
std::pair<int, int> runOf(const Shot& shot, const WindowBox& w, int y, std::uint32_t colour)
{
    int first = -1;
    int last = -1;
    for (int x = 1; x + 1 < w.width; ++x)
        if (const std::uint32_t c = shot.at(w.x + x, w.y + y); distance(c, colour) < distance(c, kRed)) {
            first = first < 0 ? x : first;
            last = x;
        }
    return {first, last};
}

// The whole window scales with the screen: at each density every button's
// picture covers the part of the window it was designed to, within 1 %, and
// a click at the scaled place of the quit button reaches it.
TEST(WineMenu, TheLayoutHoldsAtEveryDensity)
{
    struct Button {
        const char* name;
        int left, top, width, height;   // on the 400 x 300 design
        std::uint32_t colour;
    };
    const Button buttons[] = {{"vert", 40, 40, 50, 30, kGreen}, {"bleu", 200, 100, 60, 40, kBlue}};
    std::cout << "dpi  button  designed  measured (fraction of the window's width)\n";
    struct Restore {
        ~Restore() { setDensity(96); }
    } restore;
    for (const int dpi : {96, 120, 144, 192}) {
        setDensity(dpi);
        moveTo(0, 0);   // no button under the pointer
        TempDir cd;
        WineProgram player(makeMenu(cd.folder(), sampleMenu(), "QOR densite", sampleFiles()));
        const std::optional<WindowBox> w = waitForWindow("QOR densite", kStartMs);
        ASSERT_TRUE(w) << dpi;
        const double f = dpi / 96.0;
        EXPECT_NEAR(w->width, 400 * f, 1) << dpi;
        EXPECT_NEAR(w->height, 300 * f, 1) << dpi;
        const Button& last = buttons[1];
        const int y = int((last.top + last.height / 2) * f);
        const std::optional<Shot> shot = screenShotWhen(w->x + int((last.left + 2) * f), w->y + y, last.colour, kPaintMs);
        ASSERT_TRUE(shot) << dpi;
        for (const Button& b : buttons) {
            const auto [first, end] = runOf(*shot, *w, int((b.top + b.height / 2) * f), b.colour);
            const double designed = b.width / 400.0;
            const double measured = (end - first + 1) / double(w->width);
            std::cout << dpi << "  " << b.name << "  " << designed << "  " << measured << "\n";
            EXPECT_NEAR(measured, designed, designed * 0.01) << dpi << " " << b.name;
            EXPECT_NEAR(first / double(w->width), b.left / 400.0, 0.01 * b.left / 400.0) << dpi << " " << b.name;
        }
        clickAt(w->x + int((last.left + last.width / 2) * f), w->y + y);
        EXPECT_EQ(player.waitExit(10000), std::optional<int>(0)) << dpi << ": the quit button was not reached";
    }
}

// The sample menu's quit button clicked on a window at density factor f:
// no window stays to stand behind the next check's. Without a window
// manager, a click after another program's window may only activate it.
void quit(WineProgram& player, const WindowBox& w, double f)
{
    std::optional<int> status;
    for (int attempt = 0; attempt < 3 && !status; ++attempt) {
        clickAt(w.x + int(229 * f), w.y + int(119 * f));
        status = player.waitExit(3000);
    }
    EXPECT_EQ(status, std::optional<int>(0)) << "the quit button was not reached";
}

// What of a box's window scales: its size, the widest white run (its text
// field), the span of its dark pixels (its text) and of those in its top
// left part (an input box's prompt).
struct BoxMeasure {
    int width = 0, height = 0, field = 0, text = 0, prompt = 0;
};

std::optional<BoxMeasure> measureBox(const std::string& title)
{
    const std::optional<WindowBox> box = waitForWindow(title, kStartMs);
    if (!box)
        return std::nullopt;
    std::optional<Shot> shot;
    // Painted once its frame's face shows inside.
    for (int tries = 0; tries < 20 && (!shot || shot->at(box->x + box->width / 2, box->y + box->height - 4) == 0); ++tries)
        shot = screenShotWhen(box->x + 2, box->y + box->height / 2, 0xFF000000u, 200);
    if (!shot)
        return std::nullopt;
    BoxMeasure m{box->width, box->height, 0, 0};
    int textFirst = box->width, textLast = -1, promptFirst = box->width, promptLast = -1;
    for (int y = 2; y + 2 < box->height; ++y)
        for (int x = 2, run = 0; x + 2 < box->width; ++x) {
            const std::uint32_t c = shot->at(box->x + x, box->y + y);
            run = c == 0xFFFFFF ? run + 1 : 0;
            m.field = std::max(m.field, run);
            if (distance(c, 0) < 120 && y > box->height / 4) {
                textFirst = std::min(textFirst, x);
                textLast = std::max(textLast, x);
            }
            if (distance(c, 0) < 120 && x < box->width * 7 / 10 && y < box->height * 6 / 10) {
                promptFirst = std::min(promptFirst, x);
                promptLast = std::max(promptLast, x);
            }
        }
    m.text = textLast - textFirst + 1;
    m.prompt = promptLast - promptFirst + 1;
    return m;
}

// The InputBox and the message box grow with the screen's density: at 144
// dpi their size, the input box's text field and prompt and the message's
// text are half as large again as at 96 dpi. The answer reaches the script,
// and the background then drags the window.
TEST(WineMenu, TheBoxesGrowWithTheDensityAndAnswer)
{
    struct Restore {
        ~Restore() { setDensity(96); }
    } restore;
    std::map<int, std::pair<BoxMeasure, BoxMeasure>> seen;
    for (const int dpi : {96, 144}) {
        setDensity(dpi);
        TempDir cd;
        WineProgram player(makeMenu(cd.folder(),
                                    sampleMenu("Fenetre.Caption = InputBox(\"Votre nom ?\", \"QOR question\")\r\n"
                                               "MsgBox \"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW\", 0, \"QOR message\""),
                                    "QOR boites", sampleFiles()));
        moveTo(0, 0);
        const std::optional<WindowBox> w = waitForWindow("QOR boites", kStartMs);
        ASSERT_TRUE(w) << dpi;
        const double f = dpi / 96.0;
        expectPixels(*w, {{"button 1", int(64 * f), int(54 * f), kGreen}});
        clickAt(w->x + int(64 * f), w->y + int(54 * f));
        const std::optional<BoxMeasure> input = measureBox("QOR question");
        ASSERT_TRUE(input) << dpi << ": no input box";
        const std::optional<WindowBox> question = waitForWindow("QOR question", 1000);
        ASSERT_TRUE(question) << dpi;
        typeText(*question, "Paul");
        pressKey(*question, "Return");
        const std::optional<BoxMeasure> message = measureBox("QOR message");
        ASSERT_TRUE(message) << dpi << ": no message box";
        const std::optional<WindowBox> shown = waitForWindow("QOR message", 1000);
        ASSERT_TRUE(shown) << dpi;
        pressOk(*shown);
        ASSERT_FALSE(waitForWindow("QOR message", 300)) << dpi << ": the message box stayed";
        seen[dpi] = {*input, *message};
        const std::optional<WindowBox> answered = waitForWindow("Paul", 5000);
        ASSERT_TRUE(answered) << dpi << ": the answer did not reach the script";
        dragBy(answered->x + int(20 * f), answered->y + int(250 * f), 60, 40);
        const std::optional<WindowBox> moved = waitForWindow("Paul", 5000);
        ASSERT_TRUE(moved) << dpi;
        EXPECT_EQ(moved->x, answered->x + 60) << dpi;
        EXPECT_EQ(moved->y, answered->y + 40) << dpi;
        quit(player, *moved, f);
        std::cout << dpi << " dpi: input box " << input->width << "x" << input->height << ", field " << input->field
                  << ", prompt " << input->prompt
                  << "; message box " << message->width << "x" << message->height << ", text " << message->text << "\n";
    }
    const auto& [input96, message96] = seen[96];
    const auto& [input144, message144] = seen[144];
    EXPECT_NEAR(input144.width, input96.width * 1.5, input96.width * 0.05);
    EXPECT_NEAR(input144.height, input96.height * 1.5, input96.height * 0.08);
    EXPECT_NEAR(input144.field, input96.field * 1.5, input96.field * 0.03);
    EXPECT_NEAR(input144.prompt, input96.prompt * 1.5, input96.prompt * 0.1);
    EXPECT_NEAR(message144.text, message96.text * 1.5, message96.text * 0.1);
    EXPECT_NEAR(message144.width, message96.width * 1.5, message96.width * 0.1);
}

// A menu larger than the screen (1100 x 800 on 1024 x 768) is reduced as a
// whole: all of it on the screen, its quit button in the bottom corner
// reachable where the reduction put it.
TEST(WineMenu, AMenuLargerThanTheScreenIsReducedAsAWhole)
{
    MenuProject p;
    p.width = 1100 * 15;
    p.height = 800 * 15;
    p.backgroundColor = 0x000000FF;
    addButton(p, 1000 * 15, 700 * 15, "bleu", button_kind::quit);
    TempDir cd;
    moveTo(0, 0);
    WineProgram player(makeMenu(cd.folder(), p, "QOR grand", sampleFiles()));
    const std::optional<WindowBox> w = waitForWindow("QOR grand", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    const double s = std::min(1024 / 1100.0, 768 / 800.0);
    EXPECT_NEAR(w->width, 1100 * s, 1);
    EXPECT_NEAR(w->height, 800 * s, 1);
    EXPECT_GE(w->x, 0);
    EXPECT_GE(w->y, 0);
    EXPECT_LE(w->x + w->width, 1024);
    EXPECT_LE(w->y + w->height, 768);
    const int x = int(1030 * s);
    const int y = int(720 * s);
    expectPixels(*w, {{"the quit button", x, y, kBlue}});
    clickAt(w->x + x, w->y + y);
    EXPECT_EQ(player.waitExit(10000), std::optional<int>(0)) << "the quit button was not reached";
}

// A button loads a picture and opens a sub-menu through "[CHEMIN]", from a
// copy of the CD in cd/name; with onShare, started as \\serveur\partage\name
// (wine reads \\serveur\partage from the prefix's dosdevices/unc/serveur/partage,
// made a link to cd).
void showSubMenuFrom(const std::string& name, bool onShare = false)
{
    TempDir cd;
    const std::string folder = cd.folder() + name;
    const MenuProject p = sampleMenu("Set image = LoadPicture(\"[CHEMIN]bleu_n.bmp\")\r\n"
                                     "Set exe_f = CreateObject(\"WScript.Shell\")\r\n"
                                     "exe_f.Run(\"[CHEMIN]Sous Menu.exe\")");
    std::string exe = makeMenu(folder, p, "QOR dossier", sampleFiles());
    makeMenu(folder, sampleMenu(), "QOR sous menu", sampleFiles(), "Sous Menu.exe");
    if (onShare) {
        const std::filesystem::path server = std::filesystem::path(std::getenv("WINEPREFIX")) / "dosdevices/unc/serveur";
        std::filesystem::create_directories(server);
        std::filesystem::remove(server / "partage");
        std::filesystem::create_directory_symlink(cd.folder(), server / "partage");
        exe = "\\\\serveur\\partage" + name + "\\qor\\autorun.exe";
        std::replace(exe.begin(), exe.end(), '/', '\\');
    }
    WineProgram player(exe);
    const std::optional<WindowBox> w = paintedWindow("QOR dossier");
    ASSERT_TRUE(w) << "the menu window never showed";
    clickAt(w->x + 64, w->y + 54);
    moveTo(0, 0);   // off the sub-menu's buttons, which open over these
    const std::optional<WindowBox> sub = waitForWindow("QOR sous menu", kStartMs);
    EXPECT_FALSE(waitForWindow("Erreur !", 1000)) << "the button's script failed";
    ASSERT_TRUE(sub) << "the sub-menu never showed";
    expectPixels(*sub, {{"the sub-menu's button 1", 64, 54, kGreen}});
    clickAt(sub->x + 229, sub->y + 119);   // its quit button
}

// A copy of the CD in a folder whose name has blanks, an accent, "#" and
// "&", then deep past 260 characters: a button loads a picture and opens a
// sub-menu through "[CHEMIN]".
TEST(WineMenu, PicturesAndSubMenusFromAFolderWithAnyName)
{
    std::string deep = "/Mon CD #2 & \xC3\xA9t\xC3\xA9";
    for (int level = 0; level < 5; ++level)
        deep += "/un dossier aux noms longs, tr\xC3\xA8s longs, num\xC3\xA9ro " + std::to_string(level);
    for (const std::string& name : {std::string("/Mon CD #2 & \xC3\xA9t\xC3\xA9"), deep}) {
        SCOPED_TRACE(name);
        showSubMenuFrom(name);
    }
    // A network share, at its root and in a folder of it.
    for (const std::string& name : {std::string(), std::string("/Mon CD #2 & \xC3\xA9t\xC3\xA9")}) {
        SCOPED_TRACE("\\\\serveur\\partage" + name);
        showSubMenuFrom(name, true);
    }
}

TEST(WineMenu, ASecondCopyOfTheSameMenuLeavesTheFirstAlone)
{
    TempDir cd;
    const std::string exe = makeMenu(cd.folder(), sampleMenu(), "QOR une fois", sampleFiles());
    WineProgram first(exe);
    const std::optional<WindowBox> w = waitForWindow("QOR une fois", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    WineProgram second(exe);
    EXPECT_EQ(second.waitExit(kStartMs), std::optional<int>(0)) << "the second copy stayed";
    EXPECT_EQ(first.waitExit(500), std::nullopt) << "the first copy ended";
    clickAt(w->x + 229, w->y + 119);
    EXPECT_EQ(first.waitExit(10000), std::optional<int>(0)) << "the first copy no longer answers";
}

// A video plays in a window centred over the menu, which closes at its end.
TEST(WineMenu, AVideoPlaysOverTheMenuAndItsWindowCloses)
{
    std::map<std::string, std::string> files = sampleFiles();
    // White: its three bytes alike, it reads the same whatever order wine's
    // video window takes them in.
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    files["film.avi"] = solidVideo(64, 48, 20, kWhite);
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), sampleMenu("Action.Tag = \"[CHEMIN]film.avi\" : Action.Text = \"JouerVideo\""),
                                "QOR video", files));
    const std::optional<WindowBox> w = paintedWindow("QOR video");
    ASSERT_TRUE(w) << "the menu window never showed";
    clickAt(w->x + 64, w->y + 54);
    moveTo(0, 0);
    const int cx = w->x + w->width / 2;
    const int cy = w->y + w->height / 2;
    const std::optional<Shot> playing = screenShotWhen(cx, cy, kWhite, kPaintMs);
    ASSERT_TRUE(playing);
    EXPECT_EQ(playing->at(cx, cy), kWhite) << "no video over the menu's centre";
    const std::optional<Shot> after = screenShotWhen(cx, cy, kRed, 10000);
    ASSERT_TRUE(after);
    EXPECT_EQ(after->at(cx, cy), kRed) << "the video's window stayed after its end";
}

// A hover script's message closed with Enter: the next click on that button
// is a whole click, its script runs.
TEST(WineMenu, TheClickAfterAHoverMessageClosedWithEnterRunsItsScript)
{
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), sampleMenu("Fenetre.Caption = \"clic\"", "MsgBox \"survol\", 0, \"QOR survol\""),
                                "QOR survol menu", sampleFiles()));
    const std::optional<WindowBox> w = paintedWindow("QOR survol menu");
    ASSERT_TRUE(w) << "the menu window never showed";
    moveTo(w->x + 64, w->y + 54);
    const std::optional<WindowBox> box = waitForWindow("QOR survol", kStartMs);
    ASSERT_TRUE(box) << "the hover message never showed";
    pressKey(*box, "Return");
    bool closed = false;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!closed && std::chrono::steady_clock::now() < end)
        closed = !waitForWindow("QOR survol", 100);
    ASSERT_TRUE(closed) << "Enter did not close the hover message";
    clickAt(w->x + 64, w->y + 54);
    EXPECT_TRUE(waitForWindow("clic", 5000)) << "the click's script did not run";
}

// The right-click menu's "Fermer" (its second entry) ends the menu.
TEST(WineMenu, TheContextMenuClosesTheMenu)
{
    MenuProject p = sampleMenu();
    p.contextMenu = true;
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), p, "QOR contexte", sampleFiles()));
    const std::optional<WindowBox> w = paintedWindow("QOR contexte");
    ASSERT_TRUE(w) << "the menu window never showed";
    rightClickAt(w->x + 20, w->y + 250);
    pressKey(*w, "Down Down Return");
    EXPECT_EQ(player.waitExit(10000), std::optional<int>(0)) << "Fermer did not end the menu";
}

// The pointer over a button is the hand when the menu asks for it, the
// background's pointer otherwise.
TEST(WineMenu, TheHandShowsOverButtonsWhenAsked)
{
    for (const bool hand : {true, false}) {
        MenuProject p = sampleMenu();
        p.handCursor = hand;
        TempDir cd;
        WineProgram player(makeMenu(cd.folder(), p, "QOR curseur", sampleFiles()));
        const std::optional<WindowBox> w = paintedWindow("QOR curseur");
        ASSERT_TRUE(w) << hand;
        moveTo(w->x + 20, w->y + 250);
        const std::optional<PointerPicture> background = pointerPicture();
        ASSERT_TRUE(background) << "no pointer picture (Xfixes)";
        moveTo(w->x + 65, w->y + 55);
        std::optional<PointerPicture> over = pointerPicture();
        for (int tries = 0; tries < 10 && over == background; ++tries) {
            moveTo(w->x + 66 + tries % 2, w->y + 55);
            over = pointerPicture();
        }
        EXPECT_EQ(over != background, hand) << (hand ? "no hand over the button" : "a pointer not asked for");
        quit(player, *w, 1);
    }
}

// The timer's script runs again and again until it stops the timer: the
// caption grows one "+" a tick and the background turns blue at the third.
TEST(WineMenu, TheTimerRunsUntilItIsStopped)
{
    MenuProject p = sampleMenu();
    p.timerEnabled = true;
    p.timerInterval = "150";
    p.timerScript = "Fenetre.Caption = Fenetre.Caption & \"+\"\r\n"
                    "If Fenetre.Caption = \"QOR minuteur+++\" Then\r\n"
                    "  Fenetre.BackColor = RGB(0, 0, 255)\r\n"
                    "  Minuteur.Enabled = False\r\n"
                    "End If";
    TempDir cd;
    moveTo(0, 0);
    WineProgram player(makeMenu(cd.folder(), p, "QOR minuteur", sampleFiles()));
    const std::optional<WindowBox> w = waitForWindow("QOR minuteur\\+\\+\\+", kStartMs);
    ASSERT_TRUE(w) << "the timer did not run three times";
    expectPixels(*w, {{"the background the timer set", 10, 150, kBlue}});
    std::this_thread::sleep_for(std::chrono::milliseconds(600));
    EXPECT_TRUE(waitForWindow("QOR minuteur\\+\\+\\+", 500)) << "the timer ran on after it was stopped";
    quit(player, *w, 1);
}

// A button opens a text document of the CD: wine's program for it starts
// with the document's name in its title.
TEST(WineMenu, ADocumentOpensInItsProgram)
{
    // Every Windows opens .txt with Notepad; a fresh wine prefix has the
    // program's entry but not the extension's.
    ASSERT_EQ(std::system("wine reg add \"HKCR\\.txt\" /ve /d txtfile /f >/dev/null 2>&1"), 0);
    std::map<std::string, std::string> files = sampleFiles();
    files["lisezmoi.txt"] = "Bonjour\r\n";
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(),
                                sampleMenu("CreateObject(\"WScript.Shell\").Run \"[CHEMIN]lisezmoi.txt\""),
                                "QOR document", files));
    const std::optional<WindowBox> w = paintedWindow("QOR document");
    ASSERT_TRUE(w) << "the menu window never showed";
    clickAt(w->x + 64, w->y + 54);
    EXPECT_FALSE(waitForWindow("Erreur !", 1000)) << "the button's script failed";
    const std::optional<WindowBox> opened = waitForWindow(".*lisezmoi.*", kStartMs);
    ASSERT_TRUE(opened) << "no window of the document's program";
    // Closed, so that it hides no later menu.
    pressKey(*opened, "alt+F4");
    for (int tries = 0; tries < 30 && waitForWindow(".*lisezmoi.*", 100); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    quit(player, *w, 1);
}

// A short silent 8-bit mono WAV file.
std::string silentWave()
{
    std::string w;
    auto le = [&w](std::uint32_t v, int bytes) {
        for (int i = 0; i < bytes; ++i, v >>= 8)
            w += char(v & 0xFF);
    };
    constexpr std::uint32_t kSamples = 800;
    w += "RIFF";
    le(36 + kSamples, 4);
    w += "WAVEfmt ";
    for (const auto& [v, bytes] : {std::pair{16u, 4}, {1u, 2}, {1u, 2}, {8000u, 4}, {8000u, 4}, {1u, 2}, {8u, 2}})
        le(v, bytes);
    w += "data";
    le(kSamples, 4);
    return w + std::string(kSamples, char(0x80));
}

// What the trace holds of the three sounds, in its order.
std::vector<std::string> soundsIn(const std::string& traceFile)
{
    std::ifstream in(traceFile);
    std::vector<std::string> seen;
    for (std::string line; std::getline(in, line);)
        for (const char* sound : {"fond.wav", "survol.wav", "clic.wav"})
            if (line.find(sound) != std::string::npos && (seen.empty() || seen.back() != sound))
                seen.emplace_back(sound);
    return seen;
}

// The background music starts with the menu, the hover sound when the
// pointer enters a button, the click sound at the click: seen in wine's
// trace of the player's multimedia calls.
TEST(WineMenu, SoundsStartAtTheirMoments)
{
    MenuProject p = sampleMenu();
    p.backgroundMusic = "fond.wav";
    p.hoverSound = "survol.wav";
    p.clickSound = "clic.wav";
    std::map<std::string, std::string> files = sampleFiles();
    for (const char* sound : {"fond.wav", "survol.wav", "clic.wav"})
        files[sound] = silentWave();
    TempDir cd;
    const std::string trace = cd.folder() + "/trace.txt";
    WineProgram player(makeMenu(cd.folder(), p, "QOR sons", files), trace);
    const std::optional<WindowBox> w = paintedWindow("QOR sons");
    ASSERT_TRUE(w) << "the menu window never showed";
    EXPECT_EQ(soundsIn(trace), (std::vector<std::string>{"fond.wav"}));
    moveTo(w->x + 65, w->y + 55);
    EXPECT_EQ(soundsIn(trace), (std::vector<std::string>{"fond.wav", "survol.wav"}));
    clickAt(w->x + 65, w->y + 55);
    EXPECT_EQ(soundsIn(trace), (std::vector<std::string>{"fond.wav", "survol.wav", "clic.wav"}));
    quit(player, *w, 1);
}

TEST(WineMenu, OutlineCutsTheWindow)
{
    MenuProject p = sampleMenu();
    // The upper-left half of the window: a triangle.
    p.shapePoints = {{0, 0}, {6000, 0}, {0, 4500}};
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), p, "QOR forme", sampleFiles()));
    const std::optional<WindowBox> w = waitForWindow("QOR forme", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    const std::optional<Shot> shot = screenShotWhen(w->x + 20, w->y + 150, kRed, kPaintMs);
    ASSERT_TRUE(shot);
    EXPECT_EQ(shot->at(w->x + 20, w->y + 150), kRed) << "inside the outline";
    EXPECT_NE(shot->at(w->x + 390, w->y + 290), kRed) << "cut away";
    EXPECT_NE(shot->at(w->x + 229, w->y + 219), kRed) << "cut away";
}

TEST(WineMenu, StartupMessageThenQuitButtonEndsWithZero)
{
    MenuProject p = sampleMenu();
    p.startupAction = "VBS:MsgBox \"Bonjour\", 64, \"QOR accueil\"";
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), p, "QOR quitter", sampleFiles()));
    const std::optional<WindowBox> box = waitForWindow("QOR accueil", kStartMs);
    ASSERT_TRUE(box) << "the startup message box never showed";
    pressOk(*box);
    const std::optional<WindowBox> w = waitForWindow("QOR quitter", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    clickAt(w->x + 229, w->y + 119);
    EXPECT_EQ(player.waitExit(10000), std::optional<int>(0)) << "the quit button did not end the menu";
}

TEST(WineMenu, PlayerWithoutMenuSaysSoAndEnds)
{
    TempDir cd;
    WineProgram player(copyBarePlayer(cd.folder(), "vide.exe"));
    const std::optional<WindowBox> box = waitForWindow("Erreur !", kStartMs);
    ASSERT_TRUE(box) << "no message for a player without menu";
    pressOk(*box);
    EXPECT_EQ(player.waitExit(10000), std::optional<int>(1));
}

// Hostile data all at once: 10 000 text boxes, an outline of 100 000 points
// and a startup script that never ends. The engine's step budget stops the
// script with a message, the window shows, cut, and a click reaches the quit
// button while the boxes are still being made.
TEST(WineMenu, HostileMenuStillShowsAndCloses)
{
    MenuProject p = sampleMenu();
    p.startupAction = "VBS:Do : Loop";
    for (int i = 0; i < 10000; ++i) {
        MenuText& t = p.text(*p.addText());
        t.content = "t";
        t.left = float(i % 100) * 10;
        t.top = 4000;
        t.width = 150;
        t.height = 150;
    }
    constexpr int kPoints = 100000;
    for (int i = 0; i < kPoints; ++i) {
        const double a = 2 * M_PI * i / kPoints;
        p.shapePoints.push_back({std::int32_t(std::lround(3000 + 2200 * std::cos(a))), std::int32_t(std::lround(2250 + 2200 * std::sin(a)))});
    }
    TempDir cd;
    WineProgram player(makeMenu(cd.folder(), p, "QOR hostile", sampleFiles()));
    const std::optional<WindowBox> box = waitForWindow("Erreur !", 2 * kStartMs);
    ASSERT_TRUE(box) << "the endless startup script was never stopped with a message";
    pressOk(*box);
    const std::optional<WindowBox> w = waitForWindow("QOR hostile", kStartMs);
    ASSERT_TRUE(w) << "the menu window never showed";
    const std::optional<Shot> shot = screenShotWhen(w->x + 200, w->y + 20, kRed, kPaintMs);
    ASSERT_TRUE(shot) << "the window inside the outline never painted";
    EXPECT_NE(shot->at(w->x + 2, w->y + 2), kRed) << "the corner lies outside the outline";
    clickAt(w->x + 229, w->y + 119);
    EXPECT_EQ(player.waitExit(10000), std::optional<int>(0)) << "the quit button did not end the menu";
}

}  // namespace
}  // namespace qor::test
