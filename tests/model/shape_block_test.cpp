#include <gtest/gtest.h>

#include <deque>

#include "model/shape_block.h"

namespace qor {
namespace {

TEST(ShapeBlock, WritesOnePairOfLinesPerPointBetweenTheMarkers)
{
    const ShapePoints triangle{{300, 300}, {3000, 450}, {1200, 2400}, {300, 300}};
    std::string out = "avant\r\n";
    appendShapeBlock(out, triangle);
    EXPECT_EQ(out, "avant\r\n[FormeMenu]\r\nX=300\r\nY=300\r\nX=3000\r\nY=450\r\nX=1200\r\nY=2400\r\n"
                   "X=300\r\nY=300\r\n[/FormeMenu]\r\n");
    EXPECT_EQ(shapeBlockLines({{-15, 0}}), (std::vector<std::string>{"[FormeMenu]", "X=-15", "Y=0", "[/FormeMenu]"}));
    EXPECT_EQ(shapeBlockLines({}), (std::vector<std::string>{"[FormeMenu]", "[/FormeMenu]"}));
}

TEST(ShapeBlock, ReadsACoordinateBehindItsTwoFirstCharacters)
{
    struct Case { const char* line; std::int32_t value; };
    const Case cases[] = {
        {"X=300", 300}, {"Y=-2400", -2400}, {"A=5", 5}, {"X=12.5", 12}, {"X=13.5", 14},
        {"X= 7abc", 7}, {"X=", 0}, {"X", 0}, {"X=1 200", 1200}, {"X=\t4\t2", 42},
        {"X=8,25", 8}, {"X=&HFF", 255}, {"X=1e3", 1000}, {"é=9", 9}, {"[/FormeMenu]", 0},
        {"X=-2147483648", -2147483648LL}, {"X=2147483647", 2147483647},
    };
    for (const auto& c : cases) {
        auto v = shapeCoordinate(c.line);
        ASSERT_TRUE(v.ok()) << c.line;
        EXPECT_EQ(*v, c.value) << c.line;
    }
    for (const char* tooBig : {"X=2147483648", "X=1e20", "X=-1e300"}) {
        auto v = shapeCoordinate(tooBig);
        ASSERT_FALSE(v.ok()) << tooBig;
        EXPECT_EQ(v.error().number, err::Overflow) << tooBig;
    }
}

// Reads a block from lines, recording the failures; failed() answers from goOn.
struct BlockRead {
    ShapePoints points;
    std::vector<int> failures;
    std::size_t linesLeft = 0;

    BlockRead(std::vector<std::string> lines, std::deque<bool> goOn)
    {
        std::size_t next = 0;
        readShapeBlock(
            points,
            [&](std::string_view& line) {
                if (next == lines.size())
                    return false;
                line = lines[next++];
                return true;
            },
            [&](const Error& e) {
                failures.push_back(e.number);
                if (goOn.empty())
                    return false;
                bool answer = goOn.front();
                goOn.pop_front();
                return answer;
            });
        linesLeft = lines.size() - next;
    }
};

TEST(ShapeBlock, TakesTheLineAfterAnXLineAsItsYWhateverItHolds)
{
    BlockRead r({"X=1", "[/FormeMenu]", "X=2", "Y=3", "[/FormeMenu]", "après"}, {});
    EXPECT_EQ(r.points, (ShapePoints{{1, 0}, {2, 3}}));
    EXPECT_TRUE(r.failures.empty());
    EXPECT_EQ(r.linesLeft, 1u);
}

TEST(ShapeBlock, AnEmptyBlockHasNoPoint)
{
    BlockRead r({"[/FormeMenu]"}, {});
    EXPECT_TRUE(r.points.empty());
    EXPECT_TRUE(r.failures.empty());
}

TEST(ShapeBlock, ABlockCutShortReportsEachReadPastTheEndUntilTheCallerStops)
{
    BlockRead r({"X=10", "Y=20", "X=30"}, {true, true, false});
    EXPECT_EQ(r.points, (ShapePoints{{10, 20}, {30, 0}}));
    EXPECT_EQ(r.failures, (std::vector<int>{62, 62, 62}));
}

TEST(ShapeBlock, AValueOutOfRangeLeavesItsCoordinateZero)
{
    BlockRead goOn({"X=1e20", "Y=5", "[/FormeMenu]"}, {true});
    EXPECT_EQ(goOn.points, (ShapePoints{{0, 5}}));
    EXPECT_EQ(goOn.failures, (std::vector<int>{6}));

    BlockRead stop({"X=1e20", "Y=5", "[/FormeMenu]"}, {false});
    EXPECT_EQ(stop.points, (ShapePoints{{0, 0}}));
    EXPECT_EQ(stop.linesLeft, 2u);
}

}  // namespace
}  // namespace qor
