#include <gtest/gtest.h>

#include "text/text_helpers.h"

namespace qor {
namespace {

TEST(TextHelpers, FileNameAndFolderTakeBothSeparators)
{
    struct Case { const char* path; const char* name; const char* folder; };
    const Case cases[] = {
        {"C:\\img\\b1.gif", "b1.gif", "C:\\img\\"},
        {"/home/u/b1.gif", "b1.gif", "/home/u/"},
        {"b1.gif", "b1.gif", ""},
        {"C:\\", "", "C:\\"},
        {"a/b\\c.qor", "c.qor", "a/b\\"},
        {"", "", ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(fileNameOf(c.path), c.name) << c.path;
        EXPECT_EQ(folderOf(c.path), c.folder) << c.path;
    }
    EXPECT_EQ(withTrailingSeparator("/a/b"), "/a/b/");
    EXPECT_EQ(withTrailingSeparator("/a/b/"), "/a/b/");
    EXPECT_EQ(withTrailingSeparator("C:\\x\\"), "C:\\x\\");
    EXPECT_EQ(withTrailingSeparator(""), "");
}

TEST(TextHelpers, ReplaceRegardlessOfCase)
{
    struct Case { const char* text; const char* what; const char* with; const char* out; };
    const Case cases[] = {
        {"demo.QMB", ".qmb", "", "demo"},
        {"a.qmb.Qmb", ".QMB", "", "a"},
        {"Bonjour[R]à tous[r]!", "[r]", "\r\n", "Bonjour\r\nà tous\r\n!"},
        {"ÉTÉ été", "été", "x", "x x"},
        {"nothing", "zz", "y", "nothing"},
        {"aaa", "a", "aa", "aaaaaa"},
        {"abc", "", "x", "abc"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(replaceNoCase(c.text, c.what, c.with), c.out) << c.text;
}

TEST(TextHelpers, BeginsWithAndLonger)
{
    struct Case { const char* text; const char* prefix; bool yes; };
    const Case cases[] = {
        {"VBS:MsgBox 1", "VBS:", true},
        {"vbs:x", "VBS:", true},
        {"VBS:", "VBS:", false},
        {"VB", "VBS:", false},
        {"'para3", "'para", true},
        {"'PARA", "'para", false},
        {"'Para1", "'para", true},
        {"xVBS:", "VBS:", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(beginsWithAndLonger(c.text, c.prefix), c.yes) << c.text;
}

TEST(TextHelpers, LetterCaseFoldsAccentedLetters)
{
    EXPECT_EQ(toUpperText("été œuvre ÿ"), "ÉTÉ ŒUVRE Ÿ");
    EXPECT_EQ(toLowerText("MINUTEUR Ç"), "minuteur ç");
    EXPECT_TRUE(equalsNoCase("Bleu", "bLEU"));
    EXPECT_TRUE(equalsNoCase("Par défaut", "PAR DÉFAUT"));
    EXPECT_FALSE(equalsNoCase("Bleu", "Bleus"));
    EXPECT_FALSE(equalsNoCase("a×", "a÷"));
    EXPECT_TRUE(endsWithNoCase("x.QMB", "qmb"));
    EXPECT_FALSE(endsWithNoCase("mb", "qmb"));
}

TEST(TextHelpers, LineBreakMarksAndForbiddenCharacters)
{
    EXPECT_EQ(encodeLineBreaks("a\r\nb\r\nc"), "a¤b¤c");
    EXPECT_EQ(decodeLineBreaks("a¤b¤"), "a\r\nb\r\n");
    EXPECT_EQ(encodeLineBreaks("lone\nLF"), "lone\nLF");
    EXPECT_TRUE(hasForbiddenChars("x¬y"));
    EXPECT_TRUE(hasForbiddenChars("¤"));
    EXPECT_FALSE(hasForbiddenChars("é à"));
    EXPECT_EQ(removeForbiddenChars("a¤b¬c"), "abc");
}

TEST(TextHelpers, LeftCharsCountsCharactersNotBytes)
{
    EXPECT_EQ(leftChars("éléphant", 3), "élé");
    EXPECT_EQ(leftChars("ab", 10), "ab");
    EXPECT_EQ(leftChars("", 3), "");
}

TEST(TextHelpers, DropCharsCountsCharactersNotBytes)
{
    EXPECT_EQ(dropChars("Fichier=1.1", 8), "1.1");
    EXPECT_EQ(dropChars("éé=5", 3), "5");
    EXPECT_EQ(dropChars("X", 2), "");
    EXPECT_EQ(dropChars("", 2), "");
}

}  // namespace
}  // namespace qor
