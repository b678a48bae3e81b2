#include <gtest/gtest.h>

#include "core/picture/window_transparency.h"
#include "fake_dialogs.h"

namespace qor {
namespace {

// The toolbox as the flows see it: a scripted pop-up answer, and a picture
// area that reads only the files it is told exist.
class FakeOutlineView : public OutlineView {
public:
    std::optional<OutlineCommand> answer;
    std::vector<std::string> readable;
    std::vector<std::string> shown;

    std::optional<OutlineCommand> popUpOutlineMenu() override { return answer; }
    bool showOutlineImage(const std::string& path) override
    {
        if (std::find(readable.begin(), readable.end(), path) == readable.end())
            return false;
        shown.push_back(path);
        return true;
    }
};

struct OutlineFixture {
    MenuProject project;
    test::FakeDialogs dialogs;
    FakeOutlineView view;
    WindowTransparencyFlows flows{project, dialogs};

    OutlineFixture()
    {
        project.filePath = "/menus/demo.qor";
        flows.setView(&view);
    }
};

TEST(WindowTransparency, ThePopUpListsItsEntriesInOrder)
{
    std::vector<std::string_view> captions;
    for (const OutlineEntry& e : kOutlineEntries)
        captions.push_back(e.caption);
    EXPECT_EQ(captions, (std::vector<std::string_view>{"Choisir une image...", "Voir l'image actuelle",
                                                       "Ne pas utiliser la transparence", "Informations", "Annuler"}));
    EXPECT_TRUE(kOutlineEntries.back().separatorBefore);
}

TEST(WindowTransparency, ChoosingKeepsTheFullPathAndCancellingChangesNothing)
{
    OutlineFixture f;
    f.project.transparencyImage = "old.bmp";
    f.dialogs.openAnswers = {std::nullopt, "/img/contour.gif"};
    f.flows.run(OutlineCommand::ChooseImage);
    EXPECT_EQ(f.project.transparencyImage, "old.bmp");
    f.flows.run(OutlineCommand::ChooseImage);
    EXPECT_EQ(f.project.transparencyImage, "/img/contour.gif");
    ASSERT_EQ(f.dialogs.openRequests.size(), 2u);
    EXPECT_EQ(f.dialogs.openRequests[0].title, "Image pour la transparence...");
    EXPECT_EQ(f.dialogs.openRequests[0].filter, "Fichier BMP ou GIF avec transparence | *.bmp;*.gif");
}

TEST(WindowTransparency, EntriesActOnTheProjectThroughThePopUp)
{
    struct Case { std::optional<OutlineCommand> chosen; std::string after; std::size_t messages; };
    const Case cases[] = {
        {OutlineCommand::DontUse, "", 0},
        {OutlineCommand::Information, "c.bmp", 1},
        {OutlineCommand::Cancel, "c.bmp", 0},
        {std::nullopt, "c.bmp", 0},
    };
    for (const Case& c : cases) {
        OutlineFixture f;
        f.project.transparencyImage = "c.bmp";
        f.view.answer = c.chosen;
        f.flows.popUp();
        EXPECT_EQ(f.project.transparencyImage, c.after);
        EXPECT_EQ(f.dialogs.messages.size(), c.messages);
    }
    OutlineFixture f;
    f.view.answer = OutlineCommand::Information;
    f.flows.popUp();
    EXPECT_EQ(f.dialogs.lastMessage(), outlineInformationMessage());
    EXPECT_EQ(f.dialogs.lastMessage().title, "Informations sur la transparence");
}

TEST(WindowTransparency, LookingAtTheImageNeedsOneThatCanBeRead)
{
    struct Case { std::string image; bool readable; std::string message; std::size_t shown; };
    const Case cases[] = {
        {"", true, "Aucune image définie !", 0},
        {"contour.bmp", true, "Cliquez sur l'image pour revenir", 1},
        {"contour.bmp", false, "Impossible de lire l'image '/menus/contour.bmp'.", 0},
    };
    for (const Case& c : cases) {
        OutlineFixture f;
        f.project.transparencyImage = c.image;
        if (c.readable)
            f.view.readable = {"/menus/contour.bmp"};
        f.flows.run(OutlineCommand::ShowImage);
        ASSERT_EQ(f.dialogs.messages.size(), 1u) << c.image;
        EXPECT_EQ(f.dialogs.lastMessage().text, c.message);
        EXPECT_EQ(f.view.shown.size(), c.shown);
    }
    EXPECT_EQ(noOutlineImageMessage(), (Message{"Aucune image définie !", "", MessageIcon::Exclamation}));
}

}  // namespace
}  // namespace qor
