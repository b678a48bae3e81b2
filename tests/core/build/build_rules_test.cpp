#include <gtest/gtest.h>

#include "core/build/build_messages.h"
#include "core/build/compile_request.h"
#include "core/build/iso_image.h"
#include "core/build/value_check.h"
#include "model/project_layout.h"
#include "core/build/program_icon.h"
#include "core/ports/program_runner.h"

namespace qor::test {
namespace {

// What cannot give a program its icon says why and changes nothing (a
// program that does read back is checked under wine, on the real player).
TEST(ProgramIcon, WhatCannotBeSetSaysWhy)
{
    const std::string entry("\x10\x10\0\0\1\0\x20\0\4\0\0\0\x16\0\0\0", 16);
    const std::string ico = std::string("\0\0\1\0\1\0", 6) + entry + "ABCD";
    const std::string notIcon = "ce n'est pas une icône Windows (.ico)";
    const std::string noSlot = "le programme du menu n'a pas d'icône à remplacer";
    const std::string notIcons[] = {
        "",
        "MY ICON",
        std::string("\0\0\1\0\0\0", 6),                    // no image
        std::string("\0\0\2\0\1\0", 6) + entry + "ABCD",   // a cursor
        ico.substr(0, ico.size() - 1),                        // cut short
    };
    for (const std::string& bytes : notIcons)
        EXPECT_EQ(withProgramIcon("MZ-player-bytes", bytes).problem, notIcon) << bytes.size();
    for (const std::string& program : {std::string(), std::string("MZ-player-bytes"), std::string(0x200, 'M')}) {
        EXPECT_EQ(withProgramIcon(program, ico).problem, noSlot) << program.size();
        EXPECT_EQ(withProgramDetails(program, {"Titre", "Moi"}).problem,
                  "le programme du menu n'a pas d'informations de version") << program.size();
    }
    EXPECT_EQ(withProgramIcon("MZ-player-bytes", ico).program, "");
}

TEST(CompileDefaults, NameAndAuthorFromTheProject)
{
    struct Row {
        const char* filePath;
        const char* author;
        const char* email;
        const char* name;
        const char* shownAuthor;
    } rows[] = {
        {"/p/menu.qor", "Jeanne", "j@x.org", "menu", "Jeanne (j@x.org)"},
        {"C:\\cd\\Démo été.qor", "Jeanne", "", "Démo été", "Jeanne"},
        {"", "", "", kGenericProjectName, ""},
        {"/p/.qor", "", "", "", ""},
    };
    for (const auto& r : rows) {
        MenuProject p;
        p.filePath = r.filePath;
        p.authorName = r.author;
        p.authorEmail = r.email;
        const CompileRequest d = compileDefaults(p, "/home/u");
        EXPECT_EQ(d.target, "/home/u/");
        EXPECT_EQ(d.projectName, r.name) << r.filePath;
        EXPECT_EQ(d.author, r.shownAuthor) << r.filePath;
        EXPECT_EQ(d.subMenuName, "SousMenu1");
        EXPECT_FALSE(d.subMenu || d.skipRuntime);
    }
    EXPECT_EQ(compileFieldStates(true), (CompileFieldStates{true, false}));
    EXPECT_EQ(compileFieldStates(false), (CompileFieldStates{false, true}));
}

TEST(CompileDefaults, IconPreview)
{
    MenuProject p;
    p.filePath = "/p/menu.qor";
    EXPECT_EQ(iconPreviewPath(p, "/prog/"), "/prog/autorun.ico");
    p.icon = "cd.ico";
    EXPECT_EQ(iconPreviewPath(p, "/prog/"), "/p/cd.ico");
}

TEST(CompileMessages, RuntimeHelpAsWritten)
{
    const Message m = runtimeHelpMessage();
    EXPECT_EQ(m.title, "Aide rapide");
    EXPECT_EQ(m.icon, MessageIcon::Information);
    EXPECT_EQ(m.text,
              "Si vous cochez cette case, votre menu compilé fera environ 900Ko au lieu de 4.5Mo en temps normal. "
              "Mais pour qu'il fonctionne il faut que les ordinateurs sur lesquels il sera exécuté possèdent les "
              "fichiers suivants dans le répertoire WINDOWS\\SYSTEM : \r\n- Asycfilt.dll\r\n- Comcat.dll\r\n"
              "- Msvbvm60.dll\r\n- Oleaut32.dll\r\n- Vb6fr.dll\r\n- Olepro32.dll\r\n- Stdole.tlb\r\n- Msdxm.ocx\r\n"
              "- Msscript.ocx\r\n- Msscrfr.dll\r\n- Msscript.cnt\r\nNote : Ne cochez que si vous manquez vraiment "
              "d'espace.");
    EXPECT_EQ(compileFinalText("/cd/"),
              "Compilation terminée :\r\n\r\nVous pouvez fermer cette fenêtre et graver à partir du répertoire /cd/ "
              "vers la racine du CD-R (et n'oubliez pas de graver votre (vos) fichier(s) multimédia(s) !).");
}

TEST(IsoImage, VolumeNames)
{
    const std::pair<const char*, const char*> rows[] = {
        {"Démo d'été", "DEMO_D_ETE"},
        {"menu2", "MENU2"},
        {"", "QOR"},
        {"???", "QOR"},
        {"Cœur", "COEUR"},
        {"un nom bien plus long que trente-deux caractères", "UN_NOM_BIEN_PLUS_LONG_QUE_TRENTE"},
    };
    for (const auto& [name, volume] : rows)
        EXPECT_EQ(isoVolumeName(name), volume) << name;
}

class RecordingRunner : public ProgramRunner {
public:
    std::vector<std::string> calls;
    Result<int> answer = 0;
    Result<int> run(const std::string& program, const std::vector<std::string>& arguments) override
    {
        std::string line = program;
        for (const auto& a : arguments)
            line += " " + a;
        calls.push_back(line);
        return answer;
    }
};

TEST(IsoImage, XorrisoIsAskedForJolietAndRockRidge)
{
    RecordingRunner runner;
    ASSERT_TRUE(writeIsoImage(runner, "/o/cd.iso", "MENU", "/tmp/qor-1/", {"/m/videos/", "/m/a=b"}));
    EXPECT_EQ(runner.calls, (std::vector<std::string>{
                                "xorriso -as mkisofs -quiet -r -J -joliet-long -V MENU -o /o/cd.iso -graft-points "
                                "/=/tmp/qor-1 /videos=/m/videos /a\\=b=/m/a\\=b"}));
    runner.answer = 1;
    EXPECT_FALSE(writeIsoImage(runner, "/o/cd.iso", "MENU", "/tmp/qor-1/", {}));
    runner.answer = makeError(err::FileNotFound, "No such file");
    auto missing = writeIsoImage(runner, "/o/cd.iso", "MENU", "/tmp/qor-1/", {});
    ASSERT_FALSE(missing);
    EXPECT_NE(missing.error().description.find("xorriso"), std::string::npos);
}

TEST(Baking, OnlyLiveTransparentButtonsWithAnImage)
{
    struct Row {
        int slot;
        std::string_view kind;
        bool transparent;
        const char* image;
        bool expected;
    } rows[] = {
        {1, button_kind::code, true, "b.bmp", true},
        {100, button_kind::video, true, "b.bmp", true},
        {1, button_kind::code, false, "b.bmp", false},
        {1, button_kind::deleted, true, "b.bmp", false},
        {1, button_kind::code, true, "", false},
        {0, button_kind::code, true, "b.bmp", false},  // the hidden template is never compiled
    };
    for (const auto& r : rows) {
        MenuProject p;
        MenuButton& b = p.button(r.slot);
        b.kind = r.kind;
        b.transparent = r.transparent;
        b.normalImage = r.image;
        EXPECT_EQ(needsBaking(p), r.expected) << r.slot << ' ' << r.kind << ' ' << r.transparent << r.image;
    }
    EXPECT_FALSE(needsBaking(MenuProject()));
}

TEST(FileNames, PlainNamesOnly)
{
    for (const char* good : {"Intro", "menu 2", "été"})
        EXPECT_TRUE(isPlainFileName(good)) << good;
    for (const char* bad : {"", ".", "..", "a/b", "a\\b", "菜单"})
        EXPECT_FALSE(isPlainFileName(bad)) << bad;
    EXPECT_EQ(normalisedTarget("/cd"), "/cd/");
    EXPECT_EQ(normalisedTarget("/cd/"), "/cd/");
}

// A row added to a table of the data is named in a refusal like the others,
// never by its field's name.
TEST(ValueCheck, EveryTextRowOfTheDataHasAPlace)
{
    namespace layout = project_layout;
    using R = DataValueFault::Record;
    std::vector<std::pair<R, std::string_view>> rows;
    auto add = [&rows](R record, const auto& fields) {
        for (const auto& f : fields)
            if (f.encoding == layout::Encoding::Text || f.encoding == layout::Encoding::MultiLine ||
                f.encoding == layout::Encoding::Path || f.encoding == layout::Encoding::DecimalText)
                rows.emplace_back(record, f.name);
    };
    add(R::Project, layout::kGeneralFields);
    add(R::Project, layout::kParamsPlusFields);
    add(R::Project, layout::kOtherFields);
    add(R::Button, layout::kButtonFields);
    add(R::Text, layout::kTextFields);
    add(R::Info, menu_data_layout::kInfoFields);
    for (const auto& [record, field] : rows) {
        const std::string place = valuePlace(DataValueFault{record, 7, field, "", DataValueProblem::Separator});
        EXPECT_FALSE(place.starts_with("la valeur")) << field;
        if (record == R::Button || record == R::Text) {
            EXPECT_TRUE(place.ends_with("n°7")) << place;
        }
    }
}

}  // namespace
}  // namespace qor::test
