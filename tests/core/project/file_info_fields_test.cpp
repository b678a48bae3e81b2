#include <gtest/gtest.h>

#include "core/project/file_info.h"
#include "model/menu_project.h"
#include "model/product.h"
#include "model/project_writer.h"
#include "temp_dir.h"
#include "text/line_file.h"

namespace qor {
namespace {

TEST(FileInfo, WhatTheWindowShowsOfTheFileOnDisk)
{
    test::TempDir dir;
    const std::string written = dir.file("écrit.qor");
    ASSERT_TRUE(writeFileAtomically(written, projectFileBytes(MenuProject{}, RelativePathRule(written, ""))).ok());
    // The top line names the file and its size on disk.
    auto top = [&](const std::string& name) {
        return name + " (" + std::to_string(std::filesystem::file_size(dir.path() / name)) + " octets )";
    };
    dir.write("v10.qor", "FICHIER\r\n[Format]\r\nEditeur=QOR\r\nVersion=1.0.12\r\nFichier=\r\n");
    dir.write("nu.qor", "[Auteur]\r\nMoi\r\n");
    dir.write("fin.qor", "[Format]\r\nEditeur=X");
    dir.write("autre.qor", "[Format]\r\nAuteur: ZZ\r\nVer\r\nFichier=2.5\r\n");

    struct Case { const char* what; std::string path; FileInfo info; };
    const Case cases[] = {
        {"never saved", "", {"<inconnu>", "<inconnu>", "<inconnu>", "<inconnu>"}},
        {"file gone", dir.file("parti.qor"), {"<inconnu>", "<inconnu>", "<inconnu>", "<inconnu>"}},
        {"written by this editor", written,
         {top("écrit.qor"), "QOR", product::fullVersionText(), "1.1"}},
        {"version 1.0 without a file version", dir.file("v10.qor"), {top("v10.qor"), "QOR", "1.0.12", "1.0"}},
        {"no [Format] section", dir.file("nu.qor"), {top("nu.qor"), "", "", "1.0"}},
        {"[Format] at the end", dir.file("fin.qor"), {top("fin.qor"), "X", "", "1.0"}},
        {"keys are cut by length, whatever they say", dir.file("autre.qor"), {top("autre.qor"), "ZZ", "", "2.5"}},
    };
    for (const auto& c : cases) {
        const FileInfo info = readFileInfo(c.path);
        EXPECT_EQ(info.topLine, c.info.topLine) << c.what;
        EXPECT_EQ(info.editor, c.info.editor) << c.what;
        EXPECT_EQ(info.version, c.info.version) << c.what;
        EXPECT_EQ(info.fileVersion, c.info.fileVersion) << c.what;
    }
    EXPECT_EQ(top("v10.qor"), "v10.qor (58 octets )");
}

TEST(FileInfo, ValidateCopiesTheAuthorFieldsAndCleansTheNotes)
{
    EXPECT_EQ(cleanNotes("a¤b¤"), "a*b*");
    EXPECT_EQ(cleanNotes("ligne 1\r\nligne 2"), "ligne 1\r\nligne 2");

    MenuProject p;
    p.filePath = "/p/a.qor";
    applyAuthorFields(p, {"Jea¬nne", "j@exa¤mple.org\r\n", std::string("http://j.example.org\0", 21), "a¤b"});
    EXPECT_EQ(authorFieldsOf(p), (AuthorFields{"Jeanne", "j@example.org  ", "http://j.example.org", "a*b"}));
    EXPECT_EQ(p.filePath, "/p/a.qor");
}

}  // namespace
}  // namespace qor
