#include <gtest/gtest.h>

#include "core/app/appearance_editor.h"
#include "core/app/shell.h"
#include "core/ui/credits.h"
#include "fake_desktop.h"
#include "fake_dialogs.h"
#include "fake_file_type_registry.h"
#include "fake_screen.h"
#include "fake_settings.h"
#include "fake_shell_view.h"
#include "temp_dir.h"
#include "text/line_file.h"
#include "../wizard/wizard_fakes.h"

namespace qor {
namespace {

// Records which windows were coloured, and with what.
class ColouringView : public test::FakeShellView {
public:
    std::vector<std::pair<WindowId, Appearance>> coloured;
    void applyAppearance(WindowId w, const Appearance& a) override { coloured.emplace_back(w, a); }
};

// The frame: a list, three swatches and a font field, and a name field.
class FakeFrame : public AppearanceEditorView {
public:
    bool visible = false;
    std::vector<std::string> names;
    int selected = -1;
    Appearance fields;
    std::string name;
    void setAppearanceEditorVisible(bool v) override { visible = v; }
    void showAppearanceList(const std::vector<std::string>& n, int s) override { names = n; selected = s; }
    int selectedAppearance() override { return selected; }
    void showEditorFields(const Appearance& a) override { fields = a; }
    Appearance editorFields() override { return fields; }
    std::string newAppearanceName() override { return name; }
    void clearNewAppearanceName() override { name.clear(); }
};

struct AppearanceEditorFixture : ::testing::Test {
    test::TempDir dir;
    test::FakeDialogs dialogs;
    test::FakeSettings settings;
    test::FakeDesktop desktop;
    test::FakeScreen screen{1024, 768};
    test::FakeFileTypeRegistry fileTypes;
    ColouringView view;
    test::FakeDocument document;
    AppState state;
    UserSettings userSettings{state, settings, dialogs};
    RecentFiles recent{userSettings, view};
    Shell shell{state, AppPorts{dialogs, settings, desktop, screen, fileTypes}, view, userSettings, recent, document};
    AppearanceEditor editor{state, dialogs, shell, shell.options()};
    FakeFrame frame;

    void SetUp() override
    {
        state.programFolder = dir.folder();
        ASSERT_TRUE(writeDefaultAppearancesFile(dir.path()));
        editor.setView(&frame);
    }
};

TEST_F(AppearanceEditorFixture, OpeningListsTheDefaultFirstAndLoadingColoursTheFourWindows)
{
    editor.open();
    EXPECT_TRUE(frame.visible);
    EXPECT_EQ(frame.names, (std::vector<std::string>{"Par défaut", "Bleu", "Rouge", "Orange", "Clair", "Sombre",
                                                      "Sombre2"}));
    EXPECT_EQ(frame.selected, 0);
    frame.selected = 5;  // "Sombre"
    editor.load();
    const Appearance sombre{6392715, 2208689, 16777215, ""};
    EXPECT_EQ(state.appearance, sombre);
    EXPECT_EQ(frame.fields, sombre);
    ASSERT_EQ(view.coloured.size(), 4u);
    const WindowId order[] = {WindowId::Toolbox, WindowId::Main, WindowId::PropertiesPanel, WindowId::MousePosition};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(view.coloured[i], std::make_pair(order[i], sombre));
    // Stored for the next start.
    EXPECT_NE(dir.read("qor_options.ini").find("6392715"), std::string::npos);
    editor.close();
    EXPECT_FALSE(frame.visible);
}

TEST_F(AppearanceEditorFixture, SavingRefusesEmptyAndUsedNames)
{
    editor.open();
    struct Case { std::string name; std::string message; };
    const Case cases[] = {{"", "Champs nom vide !!!"},
                          {"bleu", "Ce nom est déjà utilisé !!!"},
                          {"PAR DÉFAUT", "Ce nom est déjà utilisé !!!"}};
    for (const auto& c : cases) {
        dialogs.messages.clear();
        frame.name = c.name;
        editor.save();
        ASSERT_EQ(dialogs.messages.size(), 1u) << c.name;
        EXPECT_EQ(dialogs.messages[0], (Message{c.message, "", MessageIcon::Exclamation})) << c.name;
    }
    EXPECT_EQ(frame.names.size(), 7u);
    EXPECT_TRUE(view.coloured.empty());
}

TEST_F(AppearanceEditorFixture, SavingAppendsTheRecordAndLoadsIt)
{
    editor.open();
    frame.fields = Appearance{255, 65280, 0, "Arial"};
    frame.name = "Vert";
    editor.save();
    EXPECT_TRUE(dialogs.messages.empty());
    auto lines = readLineFile(dir.path() / "apparences.ini");
    ASSERT_TRUE(lines);
    ASSERT_EQ(lines->size(), 49u);
    EXPECT_EQ(std::vector<std::string>(lines->end() - 7, lines->end()),
              (std::vector<std::string>{"[App]", "Vert", " 255 ", " 65280 ", " 0 ", "Arial", "para"}));
    EXPECT_EQ(frame.name, "");
    EXPECT_EQ(frame.names.back(), "Vert");
    EXPECT_EQ(frame.selected, 7);
    EXPECT_EQ(state.appearance, (Appearance{255, 65280, 0, "Arial"}));
}

TEST_F(AppearanceEditorFixture, TestingColoursWithoutStoringAndSwatchesTakeTheDialogsColour)
{
    editor.open();
    const Appearance before = state.appearance;
    dialogs.colourAnswers = {Colour(0x123456), std::nullopt};
    editor.pickColour(1);
    editor.pickColour(0);  // cancelled: the swatch keeps its colour
    EXPECT_EQ(frame.fields.fieldBack, 0x123456);
    EXPECT_EQ(frame.fields.windowBack, before.windowBack);
    editor.test();
    ASSERT_EQ(view.coloured.size(), 4u);
    EXPECT_EQ(view.coloured[0].second.fieldBack, 0x123456);
    EXPECT_EQ(state.appearance, before);
}

TEST_F(AppearanceEditorFixture, ABrokenFileKeepsWhatWasReadAndSaysWhy)
{
    dir.write("apparences.ini", "[App]\r\nBleu\r\n16755370\r\n10461183\r\n0\r\npara\r\npara\r\n[App]\r\nCut\r\n12\r\n");
    editor.open();
    EXPECT_EQ(frame.names, (std::vector<std::string>{"Par défaut", "Bleu"}));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, "Erreur n°62");
    EXPECT_EQ(dialogs.messages[0].text.rfind("Erreur :", 0), 0u);
}

TEST(Credits, ScrollingWrapsAndLinksOpen)
{
    struct Case { double top, height, inner, next; };
    const Case cases[] = {{100, 500, 2000, 95}, {-495, 500, 2000, 2000}, {-490, 500, 2000, -495}};
    for (const auto& c : cases)
        EXPECT_EQ(nextCreditsTop(c.top, c.height, c.inner), c.next) << c.top;
    EXPECT_EQ(creditLinkTarget("a@b.org"), "mailto:a@b.org?Subject=QOR%20:%20Contact");
    EXPECT_EQ(creditLinkTarget("http://x.org/"), "http://x.org/");
    EXPECT_EQ(creditLinkTarget(""), "");
    std::vector<std::string> headings;
    for (const auto& l : creditLines())
        if (l.heading)
            headings.push_back(l.text);
    EXPECT_EQ(headings, (std::vector<std::string>{"Idée et conception", "Rédaction du manuel",
                                                  "Webmaster du site officiel", "Testeurs", "Remerciements",
                                                  "Informations"}));
}

}  // namespace
}  // namespace qor
