#include <gtest/gtest.h>

#include <algorithm>

#include "model/project_format.h"
#include "model/project_layout.h"
#include "model/project_writer.h"
#include "text/line_file.h"

namespace qor {
namespace {

namespace layout = project_layout;

const RelativePathRule kAsRead("", "", [](const std::string&) { return false; });

template <class Record>
int writtenLines(const layout::Block<Record>& block)
{
    return 1 + int(block.fields.size());
}

// The line count of each block, header included, is part of the file
// format: a row dropped from or added to a table shows here.
TEST(ProjectLayout, EachBlockHasTheLinesOfTheFileFormat)
{
    EXPECT_EQ(writtenLines(layout::kFormat), 4);
    EXPECT_EQ(writtenLines(layout::kAuthor), 5);
    EXPECT_EQ(writtenLines(layout::kGeneral), 8);
    EXPECT_EQ(writtenLines(layout::kParamsPlus), 11);
    EXPECT_EQ(writtenLines(layout::kOther), 16);
    EXPECT_EQ(writtenLines(layout::kButton), 12);
    EXPECT_EQ(writtenLines(layout::kText), 19);
}

TEST(ProjectLayout, ReadersTakeTheLinesTheirVersionHas)
{
    EXPECT_EQ(layout::linesRead(layout::kButton, false), 7);   // version 1.0 ends after the action
    EXPECT_EQ(layout::linesRead(layout::kButton, true), 11);
    EXPECT_EQ(layout::linesRead(layout::kText, false), 18);
    EXPECT_EQ(layout::linesRead(layout::kOther, false), 2);    // the main loop skips the rest
}

// The writer walks the same tables: a written file holds each header followed
// by exactly the block's lines (the next line is the next header).
TEST(ProjectLayout, TheWriterWritesEachBlockWithItsLineCount)
{
    MenuProject p;
    auto& b = p.button(*p.addButton());
    b.kind = "code";
    b.normalImage = b.hoverImage = b.pressedImage = "b.gif";
    (void)p.addText();
    p.shapePoints = {{1, 2}};
    const auto lines = splitLines(projectFileText(p, kAsRead));
    struct Case {
        std::string_view header;
        std::string_view following;
        std::ptrdiff_t lines;
    };
    const Case cases[] = {
        {layout::kFormat.header, layout::kAuthor.header, 4},
        {layout::kAuthor.header, layout::kGeneral.header, 5},
        {layout::kGeneral.header, layout::kParamsPlus.header, 8},
        {layout::kParamsPlus.header, layout::kOther.header, 11},
        {layout::kOther.header, layout::kButton.header, 16},
        {layout::kButton.header, layout::kText.header, 12},
        {layout::kText.header, project_format::shapeComment, 19},
    };
    for (const auto& c : cases) {
        auto at = std::find(lines.begin(), lines.end(), c.header);
        ASSERT_NE(at, lines.end()) << c.header;
        EXPECT_EQ(std::find(at, lines.end(), c.following) - at, c.lines) << c.header;
    }
}

}  // namespace
}  // namespace qor
