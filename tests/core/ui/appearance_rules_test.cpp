#include <gtest/gtest.h>

#include "core/ui/appearance_rules.h"
#include "fake_controls.h"

namespace qor {
namespace {

TEST(AppearanceRules, FieldsWindowsAndKeptControls)
{
    test::FakeWindow w;
    auto& field = w.add("Text1");
    auto& lowerField = w.add("text2");
    auto& label = w.add("Label1", 0);
    auto& swatch = w.add("Picture1");
    swatch.properties[ControlProperty::Tag] = std::string("N_DESIGN");
    auto& menu = w.add("ouvrir_fich", -1, {{ControlProperty::Caption, std::string("&Ouvrir")}});
    const Appearance a{0x00FFAAAA, 0x009F9FFF, 0x00FF00, ""};
    auto node = w.node();
    applyAppearance(*node, a);

    using P = ControlProperty;
    struct Case { test::FakeControl* c; std::int64_t back; std::int64_t fore; std::string font; };
    const Case cases[] = {
        {&field, 0x9F9FFF, 0x00FF00, "MS Sans Serif"},
        {&lowerField, 0xFFAAAA, 0x00FF00, "MS Sans Serif"},  // the prefix is case-sensitive
        {&label, 0xFFAAAA, 0x00FF00, "MS Sans Serif"},
        {&swatch, 0, 0, ""},                                   // keeps its design colours
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.c->properties[P::BackColor], PropertyValue(c.back)) << c.c->name;
        EXPECT_EQ(c.c->properties[P::ForeColor], PropertyValue(c.fore)) << c.c->name;
        EXPECT_EQ(c.c->properties[P::FontName], PropertyValue(c.font)) << c.c->name;
        EXPECT_EQ(c.c->properties[P::TabStop], PropertyValue(false)) << c.c->name;
    }
    EXPECT_EQ(w.self->properties[P::BackColor], PropertyValue(std::int64_t(0xFFAAAA)));
    // A control without colours is skipped, not given them.
    EXPECT_EQ(menu.properties.size(), 1u);
}

TEST(AppearanceRules, SystemColoursAndNamedFonts)
{
    test::FakeWindow w;
    auto& button = w.add("Command1");
    auto node = w.node();
    Appearance a = defaultAppearance();
    a.font = "Arial";
    applyAppearance(*node, a);
    EXPECT_EQ(button.properties[ControlProperty::BackColor], PropertyValue(std::int64_t(0x8000000F)));
    EXPECT_EQ(button.properties[ControlProperty::ForeColor], PropertyValue(std::int64_t(0x80000012)));
    EXPECT_EQ(button.properties[ControlProperty::FontName], PropertyValue(std::string("Arial")));
}

TEST(AppearanceRules, WindowsThatColourThemselvesOnLoad)
{
    const Appearance a{1, 2, 3, "Arial"};
    for (const char* w : {"Form5", "Form6", "Form14", "Form15", "Form17", "Form18", "Form19"})
        EXPECT_EQ(windowAppearance(w, a), a) << w;
    // The four main windows are coloured together; the others keep their design.
    for (const char* w : {"Form1", "Form2", "Form3", "Form4", "Form7", "Form10", "Form16", "Splash"})
        EXPECT_EQ(windowAppearance(w, a), std::nullopt) << w;
}

}  // namespace
}  // namespace qor
