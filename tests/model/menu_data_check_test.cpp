#include <gtest/gtest.h>

#include "model/menu_data_check.h"
#include "model/menu_data_reader.h"
#include "model/menu_data_writer.h"

namespace qor {
namespace {

using K = DataValueKind;
using P = DataValueProblem;

TEST(DataValueProblem, EachValueByHowTheDataCarriesIt)
{
    struct Row {
        std::string value;
        K kind;
        std::optional<P> expected;
    } rows[] = {
        {"fond.jpg", K::FileName, std::nullopt},
        {"..", K::FileName, P::NoFileName},
        {"", K::FileName, P::NoFileName},
        {"..", K::OneLine, std::nullopt},
        {"é à œ €.jpg", K::FileName, std::nullopt},
        {"a\u00ACb.jpg", K::FileName, P::Separator},
        {"a\u00A4b.jpg", K::FileName, P::LineBreakMark},
        {"a\nb.jpg", K::FileName, P::LineBreak},
        {"a\rb", K::OneLine, P::LineBreak},
        {std::string("a\0b", 3), K::OneLine, P::NulByte},
        {"ウ.wav", K::FileName, P::NotWestern},
        {"ウ", K::OneLine, std::nullopt},          // written as "?" like every text
        {std::string(255, 'x'), K::FileName, std::nullopt},
        {std::string(256, 'x'), K::FileName, P::NameTooLong},
        {std::string(10000, 'x'), K::MultiLine, std::nullopt},
        {"a\r\nb\nc\rd\t\u00A0!", K::MultiLine, std::nullopt},   // line breaks are the script's own
        {"MsgBox 1\u00AC", K::MultiLine, P::Separator},
        {"a\u00A4b", K::MultiLine, P::LineBreakMark},
        {"\u00C2\u00AC", K::OneLine, P::Separator},   // "Â¬": the mark after a character of the same lead byte
        {"\u00C2", K::OneLine, std::nullopt},
    };
    for (const auto& row : rows)
        EXPECT_EQ(dataValueProblem(row.value, row.kind), row.expected) << row.value;
}

// Whatever the check lets through comes back from the data as it went in:
// every text row of the tables holds a value made of the characters a user
// may rightly type.
TEST(DataValueProblem, AcceptedValuesReadBackWhole)
{
    const std::string script = "If a\tThen\r\n\tMsgBox \"Bonjour\u00A0!\"\r\nEnd If";
    MenuProject p;
    p.backgroundImage = "/i/fond d'écran.jpg";
    p.startupAction = "VBS:" + script;
    p.timerScript = p.globalScript = p.windowHoverScript = script;
    MenuButton& b = p.button(*p.addButton());
    b.kind = "code";
    b.normalImage = b.hoverImage = b.pressedImage = "/i/b #1.png";
    b.action = b.hoverScript = script;
    MenuText& t = p.text(*p.addText());
    t.content = "Ligne 1\r\nLigne\u00A02";
    const MenuDataInfo info{"Démo\u00A0!", "Jeanne (j@x.org)"};
    ASSERT_EQ(findDataValueFault(p, info), std::nullopt);

    std::string line = menuDataLine(menuDataLines(p, info));
    line.resize(line.size() - 2);
    const auto read = parseMenuDataLine(line);
    ASSERT_TRUE(std::holds_alternative<MenuData>(read));
    const MenuData& back = std::get<MenuData>(read);
    EXPECT_EQ(back.info, info);
    EXPECT_EQ(back.project.globalScript, script);
    EXPECT_EQ(back.project.button(1).action, script);
    EXPECT_EQ(back.project.text(1).content, t.content);
    EXPECT_EQ(back.project.backgroundImage, "fond d'écran.jpg");
}

TEST(DataValueFault, NamesTheRecordAndRowOfTheFirstFault)
{
    MenuProject p;
    for (int i = 0; i < 3; ++i) {
        MenuButton& b = p.button(*p.addButton());
        b.kind = "code";
        b.normalImage = b.hoverImage = b.pressedImage = "b.png";
    }
    p.deleteButton(2);
    p.button(2).action = "\u00AC";      // a deleted button is not in the data
    p.button(3).hoverScript = "x\u00AC";
    (void)p.addText();
    p.text(1).fontName = "Arial\n";
    const auto fault = findDataValueFault(p, {"n", "a"});
    ASSERT_TRUE(fault);
    EXPECT_EQ(fault->record, DataValueFault::Record::Button);
    EXPECT_EQ(fault->number, 3);
    EXPECT_EQ(fault->field, "hoverScript");
    EXPECT_EQ(fault->problem, P::Separator);

    p.button(3).hoverScript.clear();
    const auto text = findDataValueFault(p, {"n", "a"});
    ASSERT_TRUE(text);
    EXPECT_EQ(text->record, DataValueFault::Record::Text);
    EXPECT_EQ(text->number, 1);
    EXPECT_EQ(text->field, "fontName");
}

}  // namespace
}  // namespace qor
