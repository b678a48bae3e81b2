#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/shape/shape_file.h"
#include "temp_dir.h"

namespace qor {
namespace {

struct ReadCase {
    const char* name;
    std::string bytes;
    bool started;
    ShapePoints points;
    std::optional<Error> error;
};

TEST(ShapeFileRead, BlocksAndTheirLenientValues)
{
    const Error pastEnd = makeError(err::InputPastEnd);
    const ReadCase cases[] = {
        {"triangle", "[FormeMenu]\r\nX=300\r\nY=300\r\nX=3000\r\nY=450\r\nX=300\r\nY=300\r\n[/FormeMenu]\r\n", true,
         {{300, 300}, {3000, 450}, {300, 300}}, {}},
        {"no point", "[FormeMenu]\r\n[/FormeMenu]\r\n", true, {}, {}},
        {"halves to even, junk, bare", "[FormeMenu]\r\nX=12.5\r\nY=13.5\r\nX= 7abc\r\nY=\r\n[/FormeMenu]\r\n", true,
         {{12, 14}, {7, 0}}, {}},
        {"prefix unchecked, sign, blanks inside", "[FormeMenu]\r\nA=-5\r\nB=1 200\r\n[/FormeMenu]\r\n", true,
         {{-5, 1200}}, {}},
        {"LF only", "[FormeMenu]\nX=1\nY=2\n[/FormeMenu]\n", true, {{1, 2}}, {}},
        {"CR only", "[FormeMenu]\rX=1\rY=2\r[/FormeMenu]", true, {{1, 2}}, {}},
        {"end line in Y place is a Y", "[FormeMenu]\r\nX=4\r\n[/FormeMenu]\r\nX=5\r\nY=6\r\n[/FormeMenu]\r\n", true,
         {{4, 0}, {5, 6}}, {}},
        {"lines after the block ignored", "[FormeMenu]\r\nX=1\r\nY=1\r\n[/FormeMenu]\r\ngarbage\r\n", true,
         {{1, 1}}, {}},
        {"end marker is case-sensitive", "[FormeMenu]\r\nX=1\r\nY=1\r\n[/formemenu]\r\n", true, {{1, 1}}, pastEnd},
        {"ends between pairs", "[FormeMenu]\r\nX=1\r\nY=2\r\nX=3\r\nY=4\r\n", true, {{1, 2}, {3, 4}}, pastEnd},
        {"cut inside a pair", "[FormeMenu]\r\nX=1\r\nY=2\r\nX=3\r\n", true, {{1, 2}}, pastEnd},
        {"beyond 32 bits", "[FormeMenu]\r\nX=1\r\nY=2\r\nX=99999999999\r\nY=4\r\n[/FormeMenu]\r\n", true, {{1, 2}},
         makeError(err::Overflow)},
        {"empty file", "", false, {}, pastEnd},
        {"other first line", "[formemenu]\r\nX=1\r\nY=1\r\n[/FormeMenu]\r\n", false, {}, shapeFileInvalid()},
        {"blank before the marker", " [FormeMenu]\r\n[/FormeMenu]\r\n", false, {}, shapeFileInvalid()},
        {"binary", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), false, {}, shapeFileInvalid()},
    };
    for (const auto& c : cases) {
        const ShapeFileRead read = readShapeFile(c.bytes);
        EXPECT_EQ(read.started, c.started) << c.name;
        EXPECT_EQ(read.points, c.points) << c.name;
        EXPECT_EQ(read.error, c.error) << c.name;
    }
}

TEST(ShapeFileRead, AMillionPointsAreAllRead)
{
    ShapePoints points;
    for (int i = 0; i < 1000000; ++i)
        points.push_back({i, -i});
    const ShapeFileRead read = readShapeFile(shapeFileBytes(points, {}));
    EXPECT_FALSE(read.error);
    EXPECT_EQ(read.points, points);
}

TEST(ShapeFileRead, TheOwnErrorsAre999)
{
    EXPECT_EQ(shapeFileNotFound(), (Error{999, "Fichier introuvable !"}));
    EXPECT_EQ(shapeFileInvalid(), (Error{999, "Fichier Invalide"}));
}

TEST(ShapeFileRead, APathThatIsNoFileIsNotFound)
{
    test::TempDir dir;
    const std::string cases[] = {"", dir.file("absent.ffl"), dir.folder()};
    for (const auto& path : cases) {
        const ShapeFileRead read = readShapeFileAt(path);
        EXPECT_FALSE(read.started) << path;
        EXPECT_EQ(read.error, shapeFileNotFound()) << path;
    }
    const ShapeFileRead read = readShapeFileAt(dir.write("ok.ffl", "[FormeMenu]\r\nX=1\r\nY=2\r\n[/FormeMenu]\r\n"));
    EXPECT_EQ(read.points, (ShapePoints{{1, 2}}));
    EXPECT_FALSE(read.error);
}

TEST(ShapeFileWrite, WorkingListElseProjectElseNothing)
{
    struct Case {
        ShapePoints working, project;
        std::string bytes;
    };
    const Case cases[] = {
        {{{300, 300}, {-15, 450}, {300, 300}}, {{1, 1}},
         "[FormeMenu]\r\nX=300\r\nY=300\r\nX=-15\r\nY=450\r\nX=300\r\nY=300\r\n[/FormeMenu]\r\n"},
        {{}, {{1, 2}, {1, 2}}, "[FormeMenu]\r\nX=1\r\nY=2\r\nX=1\r\nY=2\r\n[/FormeMenu]\r\n"},
        {{}, {}, ""},
    };
    for (const auto& c : cases) {
        const std::string bytes = shapeFileBytes(c.working, c.project);
        EXPECT_EQ(bytes, c.bytes);
        if (!c.bytes.empty()) {
            EXPECT_EQ(readShapeFile(bytes).points, c.working.empty() ? c.project : c.working);
        }
    }
}

}  // namespace
}  // namespace qor
