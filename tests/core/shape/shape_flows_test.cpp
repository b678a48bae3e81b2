#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/designer/designer.h"
#include "core/shape/shape_flows.h"
#include "../designer/designer_fixture.h"
#include "fake_dialogs.h"
#include "fake_screen.h"
#include "fake_shape_view.h"
#include "temp_dir.h"

namespace qor {
namespace {

constexpr const char* kTriangleFile =
    "[FormeMenu]\r\nX=300\r\nY=300\r\nX=3000\r\nY=450\r\nX=1200\r\nY=2400\r\nX=300\r\nY=300\r\n[/FormeMenu]\r\n";

const ShapePoints kOldShape{{15, 15}, {600, 15}, {15, 600}, {15, 15}};

struct ShapeFixture {
    MenuProject project;
    test::FakeDialogs dialogs;
    test::FakeScreen screen;
    Phrases phrases;
    test::FakeShapeView view;
    ShapeFlows flows{project, ShapePorts{dialogs, screen, phrases}};
    test::TempDir dir;

    ShapeFixture()
    {
        project.shapePoints = kOldShape;
        flows.setView(&view);
        flows.open();
    }
    void triangle()
    {
        flows.press(kLeftButton, {100, 100});
        flows.press(kLeftButton, {1000, 100});
        flows.press(kLeftButton, {100, 1000});
        flows.press(kRightButton, {});
    }
    void loadFile(const std::string& path)
    {
        dialogs.openAnswers.push_back(path);
        flows.load();
    }
};

Message question(const char* text) { return {text, "Editeur de forme", MessageIcon::Question, MessageButtons::YesNo}; }
Message refusal(const char* text)
{
    return {text, "Editeur de forme", MessageIcon::Exclamation, MessageButtons::Ok};
}
Message failure(const char* title, const char* text)
{
    return {text, title, MessageIcon::Critical, MessageButtons::Ok};
}

TEST(ShapeFlows, OpeningShowsTheEditorOverTheProjectsShape)
{
    ShapeFixture f;
    EXPECT_TRUE(f.flows.isOpen());
    EXPECT_EQ(f.view.calls, (std::vector<std::string>{"show", "refresh"}));
    EXPECT_EQ(f.flows.editor().oldEdges().size(), 3u);
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Empty);
    f.flows.open();   // a second "Editeur" while open does nothing
    EXPECT_EQ(f.view.count("show"), 1);
}

TEST(ShapeFlows, TheToolboxCommandEditeurOpensTheEditor)
{
    test::DesignerFixture d;
    test::FakeShapeView view;
    ShapeFlows flows{d.project, ShapePorts{d.dialogs, d.screen, d.phrases}};
    flows.setView(&view);
    d.designer.runToolbox(ToolboxCommand::ShapeEditor);
    EXPECT_FALSE(flows.isOpen());   // not wired yet: nothing
    d.designer.setShapeEditor(&flows);
    d.designer.runToolbox(ToolboxCommand::ShapeEditor);
    EXPECT_TRUE(flows.isOpen());
    EXPECT_EQ(view.count("show"), 1);
}

// Every command: the answer given, what it asked, whether the panel
// closed and what became of the project's shape.
struct CommandCase {
    const char* name;
    void (ShapeFlows::*command)();
    bool drawTriangle;
    bool midDrawing;
    std::vector<Answer> answers;
    std::vector<Message> asked;
    bool closed;
    ShapePoints shapeAfter;
};

TEST(ShapeFlows, CommandsTheirQuestionsAndTheProjectsShape)
{
    const ShapePoints triangle{{100, 100}, {1000, 100}, {100, 1000}, {100, 100}};
    const char* abandon = "Abandonner la forme en cours ?";
    const char* clear = "Effacer la forme du menu en cours ?";
    const CommandCase cases[] = {
        {"Valider a triangle", &ShapeFlows::validate, true, false, {}, {}, true, triangle},
        {"Valider with nothing drawn keeps the shape", &ShapeFlows::validate, false, false, {}, {}, true, kOldShape},
        {"Valider while drawing", &ShapeFlows::validate, false, true, {}, 
         {refusal("Veuillez terminer la forme en cours avant de Valider (clique droit) !")}, false, kOldShape},
        {"Pas de forme, yes", &ShapeFlows::noShape, true, false, {Answer::Yes}, {question(clear)}, true, {}},
        {"Pas de forme, no", &ShapeFlows::noShape, true, false, {Answer::No}, {question(clear)}, false, kOldShape},
        {"Pas de forme while drawing", &ShapeFlows::noShape, false, true, {Answer::Yes}, {question(clear)}, true, {}},
        {"Annuler, yes", &ShapeFlows::cancel, true, false, {Answer::Yes}, {question(abandon)}, true, kOldShape},
        {"Annuler, no", &ShapeFlows::cancel, true, false, {Answer::No}, {question(abandon)}, false, kOldShape},
        {"Charger while drawing", &ShapeFlows::load, false, true, {},
         {refusal("Veuillez terminer la forme en cours avant de Charger(clique droit) !")}, false, kOldShape},
        {"Sauver while drawing", &ShapeFlows::save, false, true, {},
         {refusal("Veuillez terminer la forme en cours avant de la Sauver (clique droit) !")}, false, kOldShape},
    };
    for (const auto& c : cases) {
        ShapeFixture f;
        if (c.drawTriangle)
            f.triangle();
        if (c.midDrawing)
            f.flows.press(kLeftButton, {5, 5});
        f.dialogs.messageAnswers.assign(c.answers.begin(), c.answers.end());
        (f.flows.*c.command)();
        EXPECT_EQ(f.dialogs.messages, c.asked) << c.name;
        EXPECT_EQ(!f.flows.isOpen(), c.closed) << c.name;
        EXPECT_EQ(f.view.count("close"), c.closed ? 1 : 0) << c.name;
        EXPECT_EQ(f.project.shapePoints, c.shapeAfter) << c.name;
    }
}

TEST(ShapeFlows, RecommencerReopensAFreshSurfaceAndAsksPhrase3InAnotherLanguage)
{
    ShapeFixture f;
    f.triangle();
    f.dialogs.messageAnswers = {Answer::No};
    f.flows.restart();
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Closed);
    f.dialogs.messageAnswers = {Answer::Yes};
    f.flows.restart();
    EXPECT_EQ(f.dialogs.messages.back(), question("Abandonner la forme en cours ?"));
    EXPECT_TRUE(f.flows.isOpen());
    EXPECT_EQ(f.view.count("close"), 1);
    EXPECT_EQ(f.view.count("show"), 2);
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Empty);
    EXPECT_EQ(f.project.shapePoints, kOldShape);

    std::vector<std::string> list(4);
    list[3] = "Abandon the current shape?";
    f.phrases.useLanguage(list);
    f.view.caption = "Editor";
    f.dialogs.messageAnswers = {Answer::No};
    f.flows.restart();
    EXPECT_EQ(f.dialogs.messages.back(),
              (Message{"Abandon the current shape?", "Editor", MessageIcon::Question, MessageButtons::YesNo}));
}

TEST(ShapeFlows, ClosingByTheCloseBoxDiscardsTheSurface)
{
    ShapeFixture f;
    f.triangle();
    f.flows.close();
    f.flows.close();
    EXPECT_EQ(f.view.count("close"), 1);
    EXPECT_EQ(f.project.shapePoints, kOldShape);
    f.flows.open();
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Empty);
    EXPECT_TRUE(f.flows.editor().points().empty());
}

TEST(ShapeFlows, PreviewSnapsThePointsToPixelsAndCutsTheSurfaceOnce)
{
    ShapeFixture f;
    f.triangle();
    f.flows.preview();
    ASSERT_EQ(f.view.cuts.size(), 1u);
    EXPECT_EQ(f.view.cuts[0], (std::vector<PixelPoint>{{7, 7}, {67, 7}, {7, 67}, {7, 7}}));
    EXPECT_EQ(f.flows.editor().points(), (ShapePoints{{105, 105}, {1005, 105}, {105, 1005}, {105, 105}}));
    EXPECT_TRUE(f.flows.editor().newEdges().empty());
    EXPECT_TRUE(f.flows.editor().oldEdges().empty());
    EXPECT_FALSE(f.flows.editor().previewEnabled());
    f.flows.validate();
    EXPECT_EQ(f.project.shapePoints, (ShapePoints{{105, 105}, {1005, 105}, {105, 1005}, {105, 105}}));
}

TEST(ShapeFlows, PreviewOfAnEmptyLoadedBlockLeavesTheSurfaceAlone)
{
    ShapeFixture f;
    f.loadFile(f.dir.write("empty.ffl", "[FormeMenu]\r\n[/FormeMenu]\r\n"));
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Closed);
    EXPECT_TRUE(f.flows.editor().previewEnabled());
    f.flows.preview();
    EXPECT_EQ(f.view.count("cut"), 0);
    EXPECT_FALSE(f.flows.editor().previewEnabled());
    f.flows.validate();
    EXPECT_EQ(f.project.shapePoints, kOldShape);
}

TEST(ShapeFlows, LoadingReplacesTheWorkingListAndClosesIt)
{
    ShapeFixture f;
    f.loadFile(f.dir.write("tri.ffl", kTriangleFile));
    EXPECT_TRUE(f.dialogs.messages.empty());
    EXPECT_EQ(f.dialogs.openRequests.back(),
              (FileDialogRequest{"Charger une forme...", "", "", ""}));
    EXPECT_EQ(f.flows.editor().points().size(), 4u);
    EXPECT_EQ(f.flows.editor().newEdges().size(), 3u);
    EXPECT_EQ(f.flows.editor().state(), ShapeState::Closed);
    EXPECT_TRUE(f.flows.editor().previewEnabled());
    EXPECT_FALSE(f.flows.editor().rubberBandVisible());
    EXPECT_EQ(f.project.shapePoints, kOldShape);
}

// A failed load: the message, and what stays of the working list drawn before.
struct LoadFailure {
    const char* name;
    std::string file;   // "" for a path that does not exist, "/" for the folder
    Message shown;
    std::size_t pointsAfter;
    bool previewAfter;
};

TEST(ShapeFlows, FailedLoadsAndWhatTheyKeep)
{
    const LoadFailure cases[] = {
        {"missing", "", failure("Erreur n°999", "Erreur : Fichier introuvable !"), 4, false},
        {"folder", "/", failure("Erreur n°999", "Erreur : Fichier introuvable !"), 4, false},
        {"invalid", "X=1\r\n", failure("Erreur n°999", "Erreur : Fichier Invalide"), 4, false},
        {"cut short", "[FormeMenu]\r\nX=1\r\nY=2\r\nX=3\r\nY=4\r\n",
         failure("Erreur n°62", ("Erreur : " + makeError(err::InputPastEnd).description).c_str()), 2, false},
    };
    for (const auto& c : cases) {
        ShapeFixture f;
        f.triangle();
        f.flows.preview();   // "Aperçu" used: the failed load must not enable it again
        const std::string path = c.file.empty() ? f.dir.file("absent.ffl")
                                 : c.file == "/" ? f.dir.folder()
                                                 : f.dir.write("bad.ffl", c.file);
        f.loadFile(path);
        ASSERT_EQ(f.dialogs.messages.size(), 1u) << c.name;
        EXPECT_EQ(f.dialogs.messages[0], c.shown) << c.name;
        EXPECT_EQ(f.flows.editor().points().size(), c.pointsAfter) << c.name;
        EXPECT_EQ(f.flows.editor().previewEnabled(), c.previewAfter) << c.name;
        EXPECT_EQ(f.flows.editor().state(), ShapeState::Closed) << c.name;
        EXPECT_EQ(f.project.shapePoints, kOldShape) << c.name;
    }
}

TEST(ShapeFlows, CancelledDialogsAreSilent)
{
    ShapeFixture f;
    f.triangle();
    f.dialogs.openAnswers.push_back(std::nullopt);
    f.flows.load();
    f.dialogs.saveAnswers.push_back(std::nullopt);
    f.flows.save();
    f.dialogs.saveAnswers.push_back(std::string());
    f.flows.save();
    EXPECT_TRUE(f.dialogs.messages.empty());
    EXPECT_EQ(f.flows.editor().points().size(), 4u);
}

TEST(ShapeFlows, SavingWritesTheNameAsGiven)
{
    struct Case {
        bool draw;
        ShapePoints project;
        std::string bytes;
    };
    const Case cases[] = {
        {true, kOldShape,
         "[FormeMenu]\r\nX=100\r\nY=100\r\nX=1000\r\nY=100\r\nX=100\r\nY=1000\r\nX=100\r\nY=100\r\n[/FormeMenu]\r\n"},
        {false, {{1, 2}}, "[FormeMenu]\r\nX=1\r\nY=2\r\n[/FormeMenu]\r\n"},
        {false, {}, ""},
    };
    for (const auto& c : cases) {
        ShapeFixture f;
        f.project.shapePoints = c.project;
        if (c.draw)
            f.triangle();
        f.dialogs.saveAnswers.push_back(f.dir.file("forme"));
        f.flows.save();
        EXPECT_EQ(f.dialogs.saveRequests.back(),
                  (FileDialogRequest{"Enregistrer la forme sous...", "Fichier Forme QOR *.ffl | *.ffl", "", ""}));
        EXPECT_EQ(f.dir.read("forme"), c.bytes);
        EXPECT_TRUE(f.dialogs.messages.empty());
    }
}

TEST(ShapeFlows, SavingOntoAFolderShowsTheSystemsError)
{
    ShapeFixture f;
    f.triangle();
    f.dialogs.saveAnswers.push_back(f.dir.folder());
    f.flows.save();
    ASSERT_EQ(f.dialogs.messages.size(), 1u);
    EXPECT_EQ(f.dialogs.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(f.dialogs.messages[0].title.rfind("Erreur n°", 0), 0u);
    EXPECT_EQ(f.dialogs.messages[0].text.rfind("Erreur : ", 0), 0u);
}

TEST(ShapeFlows, PointerInputReachesTheView)
{
    ShapeFixture f;
    f.view.calls.clear();
    f.flows.move({10, 10}, false);
    f.flows.press(kLeftButton, {10, 10});
    f.flows.move({20, 20}, false);
    f.flows.press(kRightButton, {});
    f.flows.move({30, 30}, true);
    f.flows.pointerOverHint();
    f.flows.pointerOverHint();
    EXPECT_EQ(f.view.calls, (std::vector<std::string>{"band", "refresh", "band", "refresh", "drag", "refresh"}));
    EXPECT_FALSE(f.flows.editor().hintVisible());
}

}  // namespace
}  // namespace qor
