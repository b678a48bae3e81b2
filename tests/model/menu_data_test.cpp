#include <gtest/gtest.h>

#include <random>

#include "model/menu_data_reader.h"
#include "model/menu_data_writer.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

std::vector<std::string> logicalLines(const std::string& line)
{
    std::vector<std::string> out;
    EXPECT_TRUE(line.starts_with("(debut)\u00AC"));
    EXPECT_TRUE(line.ends_with("\r\n"));
    std::string body = line.substr(std::string("(debut)\u00AC").size());
    body.resize(body.size() - 2);
    std::size_t pos = 0;
    for (std::size_t hit; (hit = body.find("\u00AC", pos)) != std::string::npos; pos = hit + 2)
        out.push_back(body.substr(pos, hit - pos));
    out.push_back(body.substr(pos));
    return out;
}

std::vector<std::string> para3to15()
{
    std::vector<std::string> lines;
    for (int i = 3; i <= 15; ++i)
        lines.push_back("'para" + std::to_string(i));
    return lines;
}

// A full-screen menu with a transparent button, a deleted button, a deleted
// text, a two-line script and a shape: every rule of the layout at once.
MenuProject sampleProject()
{
    MenuProject p;
    p.backgroundImage = "C:\\img\\fond.jpg";
    p.fullScreen = true;
    p.border = false;
    p.backgroundMusic = "/home/u/musique.mp3";
    p.startupAction = "VBS:a\r\nb";
    p.backgroundColor = 0x00112233;
    p.contextMenu = false;
    p.timerEnabled = true;
    p.timerInterval = "250";
    p.timerScript = "t";
    p.globalScript = "Const x = 1";
    p.handCursor = true;
    p.clickSound = "C:\\sons\\clic.wav";
    p.transparencyImage = "masque.bmp";
    p.windowHoverScript = "";
    for (int i = 0; i < 3; ++i)
        (void)p.addButton();
    MenuButton& b1 = p.button(1);
    b1 = {1, 200, 300, "C:\\img\\b1.bmp", "C:\\img\\b1s.bmp", "C:\\img\\b1c.bmp", "code", "a\r\nb", "h", true, 0xFF00FF};
    p.button(2) = {2, 1, 2, "x.gif", "y.gif", "z.gif", "suppr", "", "", false, 0};
    p.button(3) = {3, -15, 8.25f, "/m/n.gif", "/m/s.gif", "/m/c.gif", "vidéo", "films\\a.avi", "", false, 0};
    (void)p.addText();
    (void)p.addText();
    p.text(1).content = "SUPPR";
    MenuText& t2 = p.text(2);
    t2.content = "Bonjour\r\nà vous";
    t2.top = 100;
    t2.left = 50;
    t2.fontBold = true;
    p.shapePoints = {{0, 0}, {300, -45}};
    return p;
}

TEST(MenuData, LinesStandInTheirOrderWithTheirEncodings)
{
    const std::string line = menuDataLine(menuDataLines(sampleProject(), {"Démo", "Jeanne"}));
    std::vector<std::string> expected = {
        "FICHIER DAT COMPATIBLE QOR V2.0",
        "[Général]", "fond.jpg", "plein", "ecran", " 0 ", "Démo", "Jeanne", "musique.mp3",
        "[ParamsPlus]", "VBS:a\u00A4b", " 1122867 ", " 0 ", " 1 ", "250", "t", "Const x = 1", " 1 ", "clic.wav", "",
        "[Autre]", "masque.bmp", ""};
    for (const auto& para : para3to15())
        expected.push_back(para);
    for (const std::string l : {"[Bouton]", " 200 ", " 300 ", "b1.bmp_transp.bmp", "b1s.bmp_transp.bmp",
                                "b1c.bmp_transp.bmp", "code", "a\u00A4b", "h", " 1 ", " 16711935 ", "'para4",
                                "[Bouton]", "-15 ", " 8.25 ", "n.gif", "s.gif", "c.gif", "vidéo", "films\\a.avi", "",
                                " 0 ", " 0 ", "'para4",
                                "[Texte]", "Bonjour\u00A4à vous", " 16777215 ", " 0 ", " 1 ", " 0 ", "MS Sans Serif",
                                " 8.25 ", " 0 ", " 0 ", " 100 ", " 50 ", " 2895 ", " 1455 ", "10",
                                "para1", "para2", "para3", "para4",
                                "[FormeMenu]", "X=0", "Y=0", "X=300", "Y=-45", "[/FormeMenu]",
                                "(fin des données QOR)"})
        expected.push_back(l);
    EXPECT_EQ(logicalLines(line), expected);
}

TEST(MenuData, AnEmptyProjectEndsWithTheReservedLinesThenTheMarkerAndOneCrLf)
{
    MenuProject p;
    p.width = 9600;
    p.height = 7200;
    const std::string line = menuDataLine(menuDataLines(p, {"", ""}));
    const auto lines = logicalLines(line);
    ASSERT_GE(lines.size(), 14u);
    const std::vector<std::string> tail(lines.end() - 14, lines.end());
    std::vector<std::string> expected = para3to15();
    expected.push_back("(fin des données QOR)");
    EXPECT_EQ(tail, expected);
    EXPECT_EQ(lines[3], " 9600 ");
    EXPECT_TRUE(line.ends_with("QOR)\r\n"));
    EXPECT_FALSE(line.ends_with("\r\n\r\n"));
    EXPECT_EQ(line.find("\r\n"), line.size() - 2);
}

TEST(MenuData, BytesAreWindows1252)
{
    MenuProject p;
    p.globalScript = "MsgBox \"été €\" ' \u4E2D";
    const std::string bytes = menuDataBytes(p, {"Démo", ""});
    EXPECT_NE(bytes.find("(debut)\xAC"), std::string::npos);
    EXPECT_NE(bytes.find("\xAC" "D\xE9mo\xAC"), std::string::npos);
    EXPECT_NE(bytes.find("MsgBox \"\xE9t\xE9 \x80\" ' ?"), std::string::npos);
}

// Stands for a player: bytes that hold the marker texts in their own code,
// line breaks, and no line break after their last marker text.
std::string playerBytes()
{
    std::string exe = "MZ\x90\0\0binary\r\n(debut)\xAC" "FICHIER DAT\0\n";
    exe += std::string("\0\0\xAC(fin des donn\xE9" "es QOR)\r\n", 26);
    exe += "more code (debut)\xAC";
    return exe;
}

MenuData readBack(const std::string& bytes)
{
    MenuDataResult r = readMenuData(bytes);
    if (auto* e = std::get_if<MenuDataError>(&r)) {
        ADD_FAILURE() << e->message();
        return {};
    }
    return std::get<MenuData>(std::move(r));
}

TEST(MenuData, APlayerFindsItsMenuBehindItsOwnCode)
{
    const std::string exe = playerBytes();
    const std::string bytes = exe + menuDataBytes(sampleProject(), {"Démo", "Jeanne"});
    EXPECT_EQ(findMenuData(bytes), exe.size());
    const MenuData menu = readBack(bytes);
    EXPECT_EQ(menu.info, (MenuDataInfo{"Démo", "Jeanne"}));
    EXPECT_TRUE(menu.project.fullScreen);
    EXPECT_EQ(menu.project.button(1).normalImage, "b1.bmp_transp.bmp");
    // The deleted button left no record: the video button is number 2 here.
    EXPECT_EQ(menu.project.button(2).kind, "vidéo");
    EXPECT_EQ(menu.project.button(2).left, -15);
    EXPECT_EQ(menu.project.textCount(), 1);
    EXPECT_EQ(menu.project.text(1).content, "Bonjour\r\nà vous");
    EXPECT_EQ(menu.project.startupAction, "VBS:a\r\nb");
    EXPECT_EQ(menu.project.shapePoints, (ShapePoints{{0, 0}, {300, -45}}));
}

TEST(MenuData, ATextThatLooksLikeTheStartOfTheDataDoesNotMisleadTheReader)
{
    MenuProject p;
    (void)p.addText();
    p.text(1).content = "(debut)";
    (void)p.addText();
    p.text(2).content = "(fin des données QOR)";
    const MenuData menu = readBack(playerBytes() + menuDataBytes(p, {"(debut)", ""}));
    EXPECT_EQ(menu.info.projectName, "(debut)");
    ASSERT_EQ(menu.project.textCount(), 2);
    EXPECT_EQ(menu.project.text(1).content, "(debut)");
    EXPECT_EQ(menu.project.text(2).content, "(fin des données QOR)");
}

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
}

TEST(MenuData, DamagedOrMissingDataIsReportedNeverGuessed)
{
    const std::string exe = playerBytes();
    const std::string good = menuDataBytes(sampleProject(), {"Démo", "Jeanne"});
    struct Case {
        const char* name;
        std::string bytes;
        MenuDataError::Kind kind;
        int line;   // -1: any
    } cases[] = {
        {"nothing appended", exe, MenuDataError::Kind::NoData, 0},
        {"empty file", "", MenuDataError::Kind::NoData, 0},
        {"cut before the end", exe + good.substr(0, good.size() / 2), MenuDataError::Kind::NoData, 0},
        {"no final CR LF", exe + good.substr(0, good.size() - 2), MenuDataError::Kind::NoData, 0},
        {"cut in the middle, end kept", exe + good.substr(0, 200) + good.substr(good.size() - 40),
         MenuDataError::Kind::Damaged, -1},
        {"width not a number", exe + replaced(good, "\xACplein\xAC", "\xAC" "abc\xAC"), MenuDataError::Kind::Damaged, 4},
        {"a reserved line missing", exe + replaced(good, "'para7\xAC", ""), MenuDataError::Kind::Damaged, 28},
        {"header wrong", exe + replaced(good, "FICHIER DAT", "FICHIER QOR"), MenuDataError::Kind::Damaged, 1},
        {"a line after the marker", exe + replaced(good, "QOR)\r\n", "QOR)\xAC" "x\r\n"), MenuDataError::Kind::NoData, 0},
    };
    for (const auto& c : cases) {
        MenuDataResult r = readMenuData(c.bytes);
        ASSERT_TRUE(std::holds_alternative<MenuDataError>(r)) << c.name << " read as a menu";
        const auto& e = std::get<MenuDataError>(r);
        EXPECT_EQ(e.kind, c.kind) << c.name;
        if (c.line >= 0) {
            EXPECT_EQ(e.logicalLine, c.line) << c.name << ": " << e.message();
        }
        EXPECT_FALSE(e.message().empty());
        EXPECT_FALSE(findMenuData(c.bytes).has_value()) << c.name;
    }
}

TEST(MenuData, ButtonsBeyondTheTableAreDamage)
{
    MenuProject p;
    for (int i = 1; i <= 100; ++i)
        p.button(i) = {std::int16_t(i), 0, 0, "n.gif", "s.gif", "c.gif", "quitter", "", "", false, 0};
    std::string line = menuDataLine(menuDataLines(p, {"", ""}));
    EXPECT_TRUE(std::holds_alternative<MenuData>(parseMenuDataLine(line.substr(0, line.size() - 2))));
    const std::string record = "[Bouton]\u00AC 0 \u00AC 0 \u00ACn.gif\u00ACs.gif\u00ACc.gif\u00ACquitter\u00AC\u00AC\u00AC 0 \u00AC 0 \u00AC'para4\u00AC";
    line = replaced(line, "(fin des", record + "(fin des");
    MenuDataResult r = parseMenuDataLine(line.substr(0, line.size() - 2));
    ASSERT_TRUE(std::holds_alternative<MenuDataError>(r));
    EXPECT_NE(std::get<MenuDataError>(r).reason.find("100"), std::string::npos);
}

// Random projects: what the reader gives back is the project as the data
// describes it (bare names, baked names, live elements renumbered).
MenuProject randomProject(std::mt19937& rng)
{
    auto pick = [&rng](int n) { return int(rng() % unsigned(n)); };
    const std::string words[] = {"", "a", "C:\\dos\\f.gif", "/home/u/b c.bmp", "été", "x\r\ny", "\"q\"", "(z)"};
    auto word = [&] { return words[pick(8)]; };
    // Paths and names hold no line break.
    auto path = [&] { std::string w = word(); return w.find('\n') == std::string::npos ? w : std::string(); };
    MenuProject p;
    p.fullScreen = pick(2);
    p.width = float(pick(20000) - 100);
    p.height = float(pick(20000)) / 4;
    p.backgroundImage = path();
    p.startupAction = word();
    p.timerScript = word();
    p.globalScript = word();
    p.timerInterval = std::to_string(pick(70000));
    p.border = pick(2);
    p.backgroundColor = std::int32_t(rng() & 0x00FFFFFF);
    for (int n = 1, count = pick(100); n <= count; ++n) {
        MenuButton& b = p.button(n);
        b = {std::int16_t(n), float(pick(9000)), float(pick(9000) - 50), path(), path(), path(),
             std::string(std::array{"code", "vidéo", "quitter", "suppr", ""}[pick(5)]), word(), word(), bool(pick(2)),
             std::int32_t(rng() & 0xFFFFFF)};
    }
    for (int n = 1, count = pick(30); n <= count; ++n) {
        (void)p.addText();
        MenuText& t = p.text(n);
        t.content = pick(6) ? word() : "SUPPR";
        t.visible = pick(8);
        t.fontSize = float(pick(4000)) / 100;
        t.left = float(pick(5000));
        t.top = float(pick(5000));
        t.fontItalic = pick(2);
        t.settings = pick(2) ? "01" : "10";
    }
    for (int i = 0, count = pick(3) * pick(20); i < count; ++i)
        p.shapePoints.push_back({pick(20000) - 10000, pick(20000)});
    return p;
}

std::string named(const std::string& path, bool transparent)
{
    if (path.empty())
        return {};
    return fileNameOf(path) + (transparent ? "_transp.bmp" : "");
}

void expectDescribes(const MenuData& menu, const MenuProject& p, int seed)
{
    const MenuProject& q = menu.project;
    EXPECT_EQ(q.fullScreen, p.fullScreen) << seed;
    if (!p.fullScreen) {
        EXPECT_EQ(q.width, p.width) << seed;
        EXPECT_EQ(q.height, p.height) << seed;
    }
    EXPECT_EQ(q.backgroundImage, named(p.backgroundImage, false)) << seed;
    EXPECT_EQ(q.startupAction, p.startupAction) << seed;
    EXPECT_EQ(q.globalScript, p.globalScript) << seed;
    EXPECT_EQ(q.timerInterval, p.timerInterval) << seed;
    EXPECT_EQ(q.backgroundColor, p.backgroundColor) << seed;
    EXPECT_EQ(q.shapePoints, p.shapePoints) << seed;
    const auto buttons = p.savableButtons();
    ASSERT_EQ(q.liveButtons().size() + 0, std::count_if(buttons.begin(), buttons.end(), [](auto* b) { return b->isLive(); }) + 0u) << seed;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const MenuButton& a = *buttons[i];
        const MenuButton& b = q.button(int(i) + 1);
        EXPECT_EQ(b.number, int(i) + 1);
        EXPECT_EQ(b.left, a.left) << seed;
        EXPECT_EQ(b.top, a.top) << seed;
        EXPECT_EQ(b.kind, a.kind) << seed;
        EXPECT_EQ(b.action, a.action) << seed;
        EXPECT_EQ(b.hoverScript, a.hoverScript) << seed;
        EXPECT_EQ(b.transparent, a.transparent) << seed;
        EXPECT_EQ(b.transparentColor, a.transparentColor) << seed;
        EXPECT_EQ(b.pressedImage, named(a.pressedImage, a.transparent)) << seed;
    }
    const auto texts = p.liveTexts();
    ASSERT_EQ(q.textCount(), int(texts.size())) << seed;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const MenuText& a = *texts[i];
        const MenuText& b = q.text(int(i) + 1);
        EXPECT_EQ(b.content, a.content) << seed;
        EXPECT_EQ(b.fontSize, a.fontSize) << seed;
        EXPECT_EQ(b.left, a.left) << seed;
        EXPECT_EQ(b.top, a.top) << seed;
        EXPECT_EQ(b.fontItalic, a.fontItalic) << seed;
        EXPECT_EQ(b.settings, a.settings) << seed;
    }
}

TEST(MenuData, WriterAndReaderAgreeOnGeneratedProjects)
{
    const std::string exe = playerBytes();
    for (int seed = 0; seed < 300; ++seed) {
        std::mt19937 rng{unsigned(seed)};
        const MenuProject p = randomProject(rng);
        const MenuData menu = readBack(exe + menuDataBytes(p, {"Nom " + std::to_string(seed), "été"}));
        EXPECT_EQ(menu.info.projectName, "Nom " + std::to_string(seed));
        expectDescribes(menu, p, seed);
    }
}

}  // namespace
}  // namespace qor
