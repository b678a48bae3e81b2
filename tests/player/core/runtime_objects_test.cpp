// Every property of the run-time objects: a script sets it, the scene and
// the front-end take it, and the script reads back what it set.
#include <functional>

#include "player_fixture.h"
#include "player/core/runtime_objects.h"

namespace qor::player::test {
namespace {

struct PropertyCase {
    std::string statement;
    std::string readBack;    // expression
    std::string expected;    // its value as text
    std::function<bool(const Scene&)> onScreen;   // what the view was told
};

class RuntimeObjects : public PlayerTest {
protected:
    void SetUp() override
    {
        MenuProject p = withButtons(2);
        ASSERT_TRUE(p.addText());
        ASSERT_TRUE(p.addText());
        p.timerEnabled = true;
        p.timerScript = "x = 1";
        view.images["/cd/pic.bmp"] = {32, 16};
        view.images["/cd/qor/b1_n.bmp"] = {10, 10};
        system.files["/cd/pic.bmp"] = "BM";
        run(p);
    }
};

TEST_F(RuntimeObjects, EveryPropertyTakesEffectAndReadsBack)
{
    const PropertyCase cases[] = {
        {"Fenetre.Caption = \"Titre\"", "Fenetre.Caption", "Titre", [](const Scene& s) { return s.window.caption == "Titre"; }},
        {"Fenetre.BackColor = 255", "Fenetre.BackColor", "255", [](const Scene& s) { return s.window.backColor == 255; }},
        {"Fenetre.WindowState = 2", "Fenetre.WindowState", "2", [](const Scene& s) { return s.window.windowState == 2; }},
        {"Fenetre.Left = 1500", "Fenetre.Left", "1500", [](const Scene& s) { return s.window.left == 1500; }},
        {"Fenetre.Top = 750", "Fenetre.Top", "750", [](const Scene& s) { return s.window.top == 750; }},
        {"Fenetre.Visible = True", "Fenetre.Visible", "True", [](const Scene& s) { return s.window.visible; }},
        {"Fenetre.MousePointer = 11", "Fenetre.MousePointer", "11", [](const Scene& s) { return s.window.cursor.pointer == 11; }},
        {"Set Fenetre.MouseIcon = LoadPicture(\"[LECT]:\\pic.bmp\")", "Fenetre.MouseIcon Is Nothing", "False",
         [](const Scene& s) { return s.window.cursor.icon == "/cd/pic.bmp"; }},
        {"Ecran.MousePointer = 2", "Ecran.MousePointer", "2", [](const Scene& s) { return s.window.screenCursor.pointer == 2; }},
        {"Bordure.BorderColor = 65280", "Bordure.BorderColor", "65280", [](const Scene& s) { return s.window.borderColor == 65280; }},
        {"Bordure.BorderWidth = 5", "Bordure.BorderWidth", "5", [](const Scene& s) { return s.window.borderWidth == 5; }},
        {"Bordure.Shape = 4", "Bordure.Shape", "4", [](const Scene& s) { return s.window.borderShape == 4; }},
        {"Bordure.Visible = False", "Bordure.Visible", "False", [](const Scene& s) { return !s.window.borderVisible; }},
        {"ImageFond.Picture = LoadPicture(\"pic.bmp\")", "ImageFond.Picture Is Nothing", "False",
         [](const Scene& s) { return s.window.backgroundImage == "/cd/pic.bmp"; }},
        {"ImageFond.Stretch = False", "ImageFond.Stretch", "False", [](const Scene& s) { return !s.window.stretch; }},
        {"Minuteur.Interval = 250", "Minuteur.Interval", "250", [](const Scene&) { return true; }},
        {"Minuteur.Enabled = False", "Minuteur.Enabled", "False", [](const Scene&) { return true; }},
        {"Bouton2.Picture = LoadPicture(\"pic.bmp\")", "Bouton2.Picture Is Nothing", "False",
         [](const Scene& s) { return s.buttons[1].normalImage == "/cd/pic.bmp" && s.buttons[1].shownImage() == "/cd/pic.bmp"; }},
        {"Bouton1.Left = 3000", "Bouton1.Left", "3000", [](const Scene& s) { return s.buttons[0].left == 3000; }},
        {"Bouton1.Top = 45", "Bouton1.Top", "45", [](const Scene& s) { return s.buttons[0].top == 45; }},
        {"Bouton1.Enabled = False", "Bouton1.Enabled", "False", [](const Scene& s) { return !s.buttons[0].enabled; }},
        {"Bouton2.Visible = False", "Bouton2.Visible", "False", [](const Scene& s) { return !s.buttons[1].visible; }},
        {"Bouton1.MousePointer = 3", "Bouton1.MousePointer", "3", [](const Scene& s) { return s.buttons[0].cursor.pointer == 3; }},
        {"Texte1.Text = \"a\" & vbCrLf & \"b\"", "Texte1.Text", "a\r\nb", [](const Scene& s) { return s.texts[0].text == "a\r\nb"; }},
        {"Texte1.Alignment = 2", "Texte1.Alignment", "2", [](const Scene& s) { return s.texts[0].alignment == 2; }},
        {"Texte1.FontBold = True", "Texte1.FontBold", "True", [](const Scene& s) { return s.texts[0].fontBold; }},
        {"Texte1.FontItalic = True", "Texte1.FontItalic", "True", [](const Scene& s) { return s.texts[0].fontItalic; }},
        {"Texte1.FontName = \"Arial\"", "Texte1.FontName", "Arial", [](const Scene& s) { return s.texts[0].fontName == "Arial"; }},
        {"Texte1.FontSize = 12.5", "Texte1.FontSize", "12.5", [](const Scene& s) { return s.texts[0].fontSize == 12.5; }},
        {"Texte1.FontStrikethru = True", "Texte1.FontStrikethru", "True", [](const Scene& s) { return s.texts[0].fontStrikethru; }},
        {"Texte1.FontUnderline = True", "Texte1.FontUnderline", "True", [](const Scene& s) { return s.texts[0].fontUnderline; }},
        {"Texte2.ForeColor = 255", "Texte2.ForeColor", "255", [](const Scene& s) { return s.texts[1].foreColor == 255; }},
        {"Texte2.BackColor = &H80000005&", "Texte2.BackColor", "-2147483643",
         [](const Scene& s) { return s.texts[1].backColor == 0x80000005u; }},
        {"Texte2.Width = 4000", "Texte2.Width", "4000", [](const Scene& s) { return s.texts[1].width == 4000; }},
        {"Texte2.Height = 600", "Texte2.Height", "600", [](const Scene& s) { return s.texts[1].height == 600; }},
        {"Texte2.Left = 15", "Texte2.Left", "15", [](const Scene& s) { return s.texts[1].left == 15; }},
        {"Texte2.Top = 30", "Texte2.Top", "30", [](const Scene& s) { return s.texts[1].top == 30; }},
        {"Texte2.Locked = True", "Texte2.Locked", "True", [](const Scene& s) { return s.texts[1].locked; }},
        {"Texte2.Visible = False", "Texte2.Visible", "False", [](const Scene& s) { return !s.texts[1].visible; }},
        {"Texte2.MousePointer = 99", "Texte2.MousePointer", "99", [](const Scene& s) { return s.texts[1].cursor.pointer == 99; }},
        {"Action.Tag = \"abc\"", "Action.Tag", "abc", [](const Scene&) { return true; }},
    };
    for (const PropertyCase& c : cases) {
        SCOPED_TRACE(c.statement);
        EXPECT_EQ(exec(c.statement), "");
        EXPECT_EQ(eval(c.readBack), c.expected);
        EXPECT_TRUE(c.onScreen(view.shown));
    }
}

TEST_F(RuntimeObjects, TheTimerPropertiesReachTheTicks)
{
    exec("Minuteur.Interval = 250");
    EXPECT_EQ(log.back(), "timer 250");
    exec("Minuteur.Interval = 0");
    EXPECT_EQ(log.back(), "timer off");
    exec("Minuteur.Interval = 60001");
    EXPECT_EQ(log.back(), "timer off");
    exec("Minuteur.Interval = 60000");
    EXPECT_EQ(log.back(), "timer 60000");
    exec("Minuteur.Enabled = False");
    EXPECT_EQ(log.back(), "timer off");
}

TEST_F(RuntimeObjects, WrongValuesAndUnknownMembersAreScriptErrors)
{
    const std::pair<std::string, std::string> cases[] = {
        {"Fenetre.Left = \"abc\"", "error 13"},
        {"Bouton1.Picture = 5", "error 13"},
        {"Fenetre.Nimporte = 1", "error 438"},
        {"x = Texte1.Inconnu", "error 438"},
        {"Bouton3.Left = 1", "error 424"},
        {"Set p = LoadPicture(\"absent.bmp\")", "error 53"},
    };
    for (const auto& [statement, error] : cases)
        EXPECT_EQ(exec(statement), error) << statement;
    system.files["/cd/texte.txt"] = "pas une image";
    EXPECT_EQ(exec("Set p = LoadPicture(\"texte.txt\")"), "error 481");
}

TEST_F(RuntimeObjects, AHelperListsTheObjectsAScriptReaches)
{
    // Each listed property answers a read on a live object, so the list and
    // the tables cannot drift apart.
    for (const RuntimeObjectInfo& o : runtimeObjectInfo()) {
        const std::string name = o.name == "Bouton" || o.name == "Texte" ? o.name + "1" : o.name;
        for (std::string_view prop : o.properties) {
            const std::string r = eval("IsObject(" + name + "." + std::string(prop) + ") Or True");
            EXPECT_EQ(r, "True") << name << "." << prop;
        }
    }
}

}  // namespace
}  // namespace qor::player::test
