#pragma once

#include <gtest/gtest.h>

#include "core/build/build_flows.h"
#include "fake_build_view.h"
#include "fake_dialogs.h"
#include "fake_file_system.h"
#include "model/menu_data_reader.h"
#include "model/menu_data_writer.h"

namespace qor::test {

// A program folder /prog/ with its player, icon and installer, a project in
// /proj/ with two buttons (one transparent), a background, music and a
// click sound, and an empty target folder /cd/.
// A picture the picture rule reads (a 1 x 1 GIF) that carries tag, so that
// a test still sees which file went where.
inline std::string picture(const std::string& tag)
{
    return std::string("GIF89a\x01\x00\x01\x00\x00\x00\x00", 13) + tag + ";";
}

struct BuildWorld {
    FakeFileSystem files;
    FakeDialogs dialogs;
    FakeBuildView view;
    MenuProject project;
    std::string programFolder = "/prog/";
    Phrases phrases;
    bool requireMediaFile = true;
    BuildState state;
    Compiler compiler{files, dialogs, state};

    BuildWorld()
    {
        files.addFile("/prog/compil.exe", "MZ-player-bytes");
        files.addFile("/prog/autorun.ico", "ICON");
        files.addFile("/prog/install.bat", "@echo off");
        files.addFolder("/cd");
        project.filePath = "/proj/menu.qor";
        project.backgroundImage = "fond.jpg";
        files.addFile("/proj/fond.jpg", picture("JPEG-background"));
        project.backgroundMusic = "/music/theme.mid";
        files.addFile("/music/theme.mid", "MIDI");
        project.clickSound = "clic.wav";
        files.addFile("/proj/clic.wav", "RIFF");
        addButton("code", "b1", false);
        addButton("quitter", "b2", true);
    }

    // A button whose three images b.png, b_s.png, b_c.png lie in /proj/
    // (their "_transp.bmp" copies too when transparent).
    MenuButton& addButton(const std::string& kind, const std::string& name, bool transparent)
    {
        MenuButton& b = project.button(*project.addButton());
        b.kind = kind;
        b.transparent = transparent;
        b.normalImage = name + ".png";
        b.hoverImage = name + "_s.png";
        b.pressedImage = name + "_c.png";
        for (const std::string* image : {&b.normalImage, &b.hoverImage, &b.pressedImage}) {
            files.addFile("/proj/" + *image, picture("PNG " + *image));
            if (transparent)
                files.addFile("/proj/" + *image + "_transp.bmp", picture("BMP " + *image));
        }
        return b;
    }

    CompileRequest request(const std::string& target = "/cd/")
    {
        CompileRequest r;
        r.target = target;
        r.projectName = "Démo";
        r.author = "Moi";
        return r;
    }

    CompileOutcome compile(const CompileRequest& r, CompileView& v)
    {
        return compiler.compile(project, r, CompileEnvironment{programFolder, requireMediaFile}, v);
    }
    CompileOutcome compile(const CompileRequest& r)
    {
        FakeCompileView v;
        return compile(r, v);
    }

    // The build's commands over the same fakes.
    BuildFlows flows()
    {
        return BuildFlows(project, BuildPorts{dialogs, files, view, view},
                          BuildSettings{programFolder, phrases, requireMediaFile, "QOR - création"});
    }
};

class BuildFixture : public ::testing::Test, public BuildWorld {};

}  // namespace qor::test
