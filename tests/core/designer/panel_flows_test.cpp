#include <gtest/gtest.h>

#include "core/designer/designer.h"
#include "core/designer/designer_messages.h"
#include "core/scripting/forbidden_chars.h"
#include "core/scripting/script_slots.h"
#include "designer_fixture.h"

namespace qor {
namespace {

using Fixture = test::DesignerFixture;

TEST(WorksheetPointer, PlainPressShowsThePressedImageAndHoverWaitsForTheRelease)
{
    Fixture f;
    const int n = f.button("code");
    f.button("quitter");
    f.pictures.events.clear();
    EXPECT_FALSE(f.sheet.pressButton(n, false, {10, 10}));
    EXPECT_EQ(f.selection.currentButton, n);
    EXPECT_EQ(f.sheet.display(n), WorksheetFlows::Display::Pressed);
    EXPECT_EQ(f.pictures.events, (std::vector<std::string>{"image 1 " + f.project.button(1).pressedImage}));
    EXPECT_EQ(f.project.button(n).left, 200);
    f.sheet.pointerMoved(WorksheetTarget::button(n), {12, 12}, false);
    EXPECT_EQ(f.sheet.display(n), WorksheetFlows::Display::Pressed);
    f.sheet.releaseButton(false);
    f.sheet.pointerMoved(WorksheetTarget::button(n), {12, 12}, false);
    EXPECT_EQ(f.sheet.display(n), WorksheetFlows::Display::Hover);
    f.sheet.pointerMoved(WorksheetTarget::button(2), {1, 1}, false);
    EXPECT_EQ(f.sheet.display(n), WorksheetFlows::Display::Normal);
    EXPECT_EQ(f.sheet.display(2), WorksheetFlows::Display::Hover);
    f.sheet.deactivated();
    EXPECT_EQ(f.sheet.display(2), WorksheetFlows::Display::Normal);
    EXPECT_EQ(f.view.readouts[0], "X=201");
    EXPECT_EQ(f.view.readouts[2], "X=13.4px");
}

TEST(WorksheetPointer, AMissingNormalImageStopsTheWalkBackToNormal)
{
    Fixture f;
    f.button("code");
    f.button("code");
    f.sheet.pointerMoved(WorksheetTarget::button(1), {}, false);
    f.sheet.pointerMoved(WorksheetTarget::button(2), {}, false);
    f.sheet.pointerMoved(WorksheetTarget::button(1), {}, false);
    f.pictures.failingImages[f.project.button(1).normalImage] = makeError(err::FileNotFound);
    f.sheet.showNormalImages(0);
    EXPECT_EQ(f.sheet.display(1), WorksheetFlows::Display::Hover);
    EXPECT_TRUE(f.dialogs.messages.empty());
}

TEST(WorksheetPointer, ShiftDragDropsRelativeToTheWorksheetWithoutBounds)
{
    Fixture f;
    f.button("code");
    f.button("code");
    f.project.button(2).left = 4000;
    f.project.button(2).top = 500;
    EXPECT_TRUE(f.sheet.pressButton(1, true, {100, 50}));
    EXPECT_EQ(f.sheet.display(1), WorksheetFlows::Display::Normal);
    f.sheet.drop(WorksheetTarget::button(1), WorksheetTarget::button(2), {30, 45});
    EXPECT_EQ(f.view.buttonPlaces[1], (TwipsPoint{3930, 495}));
    EXPECT_TRUE(f.sheet.pressButton(1, true, {300, 15}));
    f.sheet.drop(WorksheetTarget::button(1), WorksheetTarget::background(), {20, 20});
    EXPECT_EQ(f.project.button(1).left, -280);
    EXPECT_EQ(f.project.button(1).top, 5);
}

TEST(WorksheetPointer, RightButtonResizeUpdatesTheFieldsOnlyAwayFromButtons)
{
    Fixture f;
    f.button("code");
    f.designer.createText();
    f.sheet.pressText(1, false, true, {});
    EXPECT_FALSE(f.view.textEnabled(1));
    f.sheet.pointerMoved(WorksheetTarget::background(), {3200, 1700}, true);
    EXPECT_EQ(f.project.text(1).width, 3000);
    EXPECT_EQ(f.view.textSizeW, "3000");
    f.sheet.pointerMoved(WorksheetTarget::button(1), {100, 100}, true);
    EXPECT_EQ(f.project.text(1).width, 100);
    EXPECT_EQ(f.view.textSizeW, "3000");
    // Nothing when the pointer is left of the box; only the right button resizes.
    f.sheet.pointerMoved(WorksheetTarget::background(), {100, 100}, true);
    f.sheet.pointerMoved(WorksheetTarget::background(), {1000, 1000}, false);
    EXPECT_EQ(f.project.text(1).width, 100);
    f.sheet.releaseOverBackground();
    EXPECT_TRUE(f.view.textEnabled(1));
}

TEST(WorksheetPointer, TypedTextLosesForbiddenCharactersOneKindAtATime)
{
    Fixture f;
    f.designer.createText();
    struct Case {
        const char* typed;
        const char* kept;
        std::size_t messages;
    } cases[] = {{"a¤b", "ab", 1}, {"¬", "", 1}, {"a¤¬b", "ab", 2}, {"ligne\r\nsuite", "ligne\r\nsuite", 0}};
    for (const auto& c : cases) {
        f.dialogs.messages.clear();
        std::string shown = c.typed;
        while (auto cleaned = f.sheet.textTyped(1, shown))
            shown = *cleaned;
        EXPECT_EQ(f.project.text(1).content, c.kept) << c.typed;
        EXPECT_EQ(f.dialogs.messages.size(), c.messages) << c.typed;
        for (const Message& m : f.dialogs.messages)
            EXPECT_EQ(m, forbiddenCharMessage());
    }
}

TEST(WindowPanel, SizeFitZoomAndTheCaption)
{
    Fixture f;
    f.window.applySize("9000", "7200");
    EXPECT_EQ(f.view.caption, "Feuille de travail - 9000x7200 - 600x480px");
    EXPECT_EQ(f.view.sizeW, "9000");
    for (const char* bad : {"", "abc", "1e400", "-0", "99999999999", "12,5", "0", "-5"}) {
        f.dialogs.messages.clear();
        f.window.applySize(bad, "7200");
        EXPECT_EQ(f.dialogs.messages, std::vector<Message>{invalidNumbersMessage()}) << bad;
    }
    EXPECT_EQ(f.project.width, 9000);

    f.view.picture = {6000, 4500};
    f.window.fitToBackground();
    EXPECT_NEAR(f.view.worksheetInnerSize().width, 6000, 1);
    EXPECT_NEAR(f.view.worksheetInnerSize().height, 4500, 1);
    EXPECT_TRUE(f.view.stretched);
    EXPECT_NEAR(f.project.width, 6120, 1);

    f.window.applySize("10000", "8000");
    f.window.zoom(false);
    EXPECT_NEAR(f.view.outer.width, 9500, 0.01);
    f.window.zoom(true);
    EXPECT_NEAR(f.view.outer.width, 10000, 0.01);

    f.window.setFullScreen(true);
    EXPECT_EQ(f.view.caption, "Feuille de travail - (sera affiché en plein écran)");
    EXPECT_FALSE(f.view.sizeEnabled);
    EXPECT_TRUE(f.project.fullScreen);
}

TEST(WindowPanel, TimerIntervalChecksOnLeavingTheField)
{
    Fixture f;
    struct Case {
        const char* typed;
        const char* kept;
        bool message;
    } cases[] = {{"0", "1000", true}, {"60000", "60000", false}, {"12.9", "12", false}, {"abc", "1000", true}};
    for (const auto& c : cases) {
        f.dialogs.messages.clear();
        f.window.timerIntervalLeft(c.typed);
        EXPECT_EQ(f.project.timerInterval, c.kept) << c.typed;
        EXPECT_EQ(f.view.interval, c.kept) << c.typed;
        EXPECT_EQ(f.dialogs.messages.size(), c.message ? 1u : 0u) << c.typed;
    }
    EXPECT_EQ(f.dialogs.lastMessage(), invalidIntervalMessage());
}

TEST(WindowPanel, FilesColoursAndFlagsGoStraightToTheProject)
{
    Fixture f;
    const std::string fond = f.dir.write("fond.png", "x");
    f.dialogs.openAnswers = {fond, std::nullopt, f.dir.file("absent.gif"), "/music/a.mp3", "/icons/cd.ico"};
    f.window.chooseBackground();
    EXPECT_EQ(f.project.backgroundImage, fond);
    EXPECT_EQ(f.pictures.events.back(), "background " + fond);
    f.window.chooseBackground();
    EXPECT_EQ(f.project.backgroundImage, fond);
    f.window.chooseBackground();
    EXPECT_EQ(f.project.backgroundImage, "");
    f.window.chooseMusic();
    EXPECT_EQ(f.project.backgroundMusic, "/music/a.mp3");
    EXPECT_EQ(f.dialogs.openRequests[3].filter, "Son *.wav, *.mp3, *.mid, *.aif, *.wma | *.wav;*.mp3;*.mid;*.aif;*.wma");
    f.window.chooseIcon();
    EXPECT_EQ(f.project.icon, "/icons/cd.ico");
    f.window.clearIcon();
    EXPECT_EQ(f.project.icon, "(Icone par défaut)");
    EXPECT_TRUE(isDefaultIconMarker(f.project.icon));

    f.dialogs.colourAnswers = {0x00336699, std::nullopt};
    f.window.chooseBackgroundColour();
    f.window.chooseBackgroundColour();
    EXPECT_EQ(f.project.backgroundColor, 0x00336699);
    EXPECT_EQ(f.view.background, 0x00336699);

    f.window.setBorder(false);
    f.window.setHandCursor(false);
    f.window.setContextMenu(false);
    f.window.setTimerEnabled(true);
    EXPECT_FALSE(f.project.border || f.project.handCursor || f.project.contextMenu);
    EXPECT_TRUE(f.project.timerEnabled);
}

TEST(WindowPanel, StartupChoicesRewriteTheStartupAction)
{
    Fixture f;
    f.window.chooseStartup(StartupChoice::Script);
    EXPECT_EQ(f.project.startupAction, "VBS:" + startupTemplate());
    EXPECT_TRUE(f.editor.visible);
    EXPECT_EQ(f.editor.last().title, "Code VBS à exécuter au démarrage du projet");
    EXPECT_EQ(f.view.choiceCaption, "Code VBS :");

    // Media after a script: the script goes before the question.
    f.dialogs.inputAnswers = {"intro.avi"};
    f.window.chooseStartup(StartupChoice::MediaFile);
    EXPECT_EQ(f.dialogs.inputs.back().defaultText, "");
    EXPECT_EQ(f.dialogs.inputs.back().prompt, std::string(kStartupMediaPrompt));
    EXPECT_EQ(f.project.startupAction, "intro.avi");
    EXPECT_EQ(f.view.choiceCaption, "intro.avi");
    EXPECT_FALSE(f.editor.visible);
    f.dialogs.inputAnswers = {"autre.avi"};
    f.window.modifyStartup();
    EXPECT_EQ(f.dialogs.inputs.back().defaultText, "intro.avi");

    // A media name gives way to the template.
    f.window.chooseStartup(StartupChoice::Script);
    EXPECT_EQ(f.editor.last().text, startupTemplate());
    f.window.chooseStartup(StartupChoice::Nothing);
    EXPECT_EQ(f.project.startupAction, "");
    EXPECT_FALSE(f.view.modifyShown);

    // While a project loads, choosing asks nothing.
    f.designer.setLoading(true);
    f.window.chooseStartup(StartupChoice::MediaFile);
    f.designer.setLoading(false);
    EXPECT_EQ(f.dialogs.inputs.size(), 2u);
}

TEST(ElementPanel, PositionDialogsInTwipsAndPixels)
{
    Fixture f;
    f.button("code");
    f.dialogs.inputAnswers = {"12.7", "-3.2"};
    f.element.movePosition(false, false);
    EXPECT_EQ(f.dialogs.inputs[0].prompt, "Entrez la nouvelle position X du bouton :");
    EXPECT_EQ(f.dialogs.inputs[0].defaultText, "200");
    EXPECT_EQ(f.project.button(1).left, 12);
    EXPECT_EQ(f.project.button(1).top, -4);

    f.project.button(1).left = 200;
    f.dialogs.inputAnswers = {"20", "1"};
    f.element.movePosition(false, true);
    EXPECT_EQ(f.dialogs.inputs[2].prompt, "Entrez la nouvelle position X du bouton (en pixel) :");
    EXPECT_EQ(f.dialogs.inputs[2].defaultText, "13");
    EXPECT_EQ(f.project.button(1).left, 300);
    EXPECT_EQ(f.view.buttonPlaces[1], (TwipsPoint{300, 15}));

    // Cancelling the first prompt asks nothing more; a non-number is refused.
    f.dialogs.inputAnswers = {""};
    f.element.movePosition(false, false);
    EXPECT_EQ(f.dialogs.inputs.size(), 5u);
    f.dialogs.inputAnswers = {"12,5"};
    f.element.movePosition(false, false);
    EXPECT_EQ(f.dialogs.lastMessage(), invalidPositionMessage());
    EXPECT_EQ(f.project.button(1).left, 300);

    f.designer.createText();
    f.dialogs.inputAnswers = {"45", "30"};
    f.element.movePosition(true, true);
    EXPECT_EQ(f.dialogs.inputs.back().prompt, "Entrez la nouvelle position Y du texte (en pixel) :");
    EXPECT_EQ(f.project.text(1).left, 675);
    EXPECT_EQ(f.project.text(1).top, 450);
}

TEST(ElementPanel, MediaFieldSoundsAndScripts)
{
    Fixture f;
    f.button("vidéo");
    f.element.mediaTyped("clip.avi");
    EXPECT_EQ(f.project.button(1).action, "clip.avi");
    f.dialogs.openAnswers = {"c:\\films\\a.avi", "c:\\films\\a.avi", std::nullopt};
    f.dialogs.inputAnswers = {"videos"};
    f.element.locateMedia(MediaLocation::CdRoot);
    EXPECT_EQ(f.project.button(1).action, "a.avi");
    f.element.locateMedia(MediaLocation::CdFolders);
    EXPECT_EQ(f.project.button(1).action, "videos\\a.avi");
    EXPECT_EQ(f.view.buttonFields.media, "videos\\a.avi");
    f.element.locateMedia(MediaLocation::WhereItIs);
    EXPECT_EQ(f.project.button(1).action, "videos\\a.avi");

    f.dialogs.openAnswers = {"/sons/clic.wav"};
    f.element.chooseClickSound();
    f.button("quitter");
    EXPECT_EQ(f.view.buttonFields.clickSound, "/sons/clic.wav");
    EXPECT_EQ(f.project.clickSound, "/sons/clic.wav");
    EXPECT_EQ(f.dialogs.openRequests.back().filter, "Images *.jpg, *.jpeg, *.gif, *.bmp, *.ico | *.jpg;*.jpeg;*.gif;*.bmp;*.ico");
}

TEST(ElementPanel, TextColoursFontSizeAndSettings)
{
    Fixture f;
    f.designer.createText();
    f.dialogs.colourAnswers = {0x000000FF, 0x0000FF00};
    f.element.chooseTextBackColour();
    f.element.chooseTextForeColour();
    EXPECT_EQ(f.project.text(1).backColor, 0x000000FF);
    EXPECT_EQ(f.project.text(1).foreColor, 0x0000FF00);
    f.dialogs.fontAnswers = {FontChoice{"DejaVu Serif", 14, true, false, true, false}};
    f.element.chooseFont();
    EXPECT_EQ(f.dialogs.fontRequests[0].name, "MS Sans Serif");
    EXPECT_EQ(f.project.text(1).fontName, "DejaVu Serif");
    EXPECT_EQ(f.project.text(1).fontSize, 14);
    EXPECT_TRUE(f.project.text(1).fontBold && f.project.text(1).fontStrikethru);

    f.element.applyTextSize("4000", "abc");
    EXPECT_EQ(f.dialogs.lastMessage(), invalidNumbersMessage());
    f.element.applyTextSize("4000", "900");
    EXPECT_EQ(f.project.text(1).width, 4000);

    f.element.scrollBarClicked(true, true);
    f.element.lockClicked(true, false);
    EXPECT_EQ(f.project.text(1).settings, "10");
    f.element.scrollBarClicked(false, false);
    EXPECT_EQ(f.project.text(1).settings, "00");
    f.element.setFilling(true);
    f.element.lockClicked(true, true);
    EXPECT_EQ(f.project.text(1).settings, "00");
}

}  // namespace
}  // namespace qor

namespace qor {
namespace {

// Records which buttons were baked.
class RecordingBaker : public ButtonBaker {
public:
    std::vector<int> baked;
    void bakeAllButtons() override { baked.push_back(0); }
    void bakeButton(int number) override { baked.push_back(number); }
};

TEST(ButtonTransparency, TheBoxStoresTheSwatchColourAndTheSwatchStoresTheBox)
{
    test::DesignerFixture f;
    const int n = f.button("code");
    f.element.transparencyTicked(true);
    EXPECT_TRUE(f.project.button(n).transparent);
    EXPECT_EQ(f.project.button(n).transparentColor, 0);
    f.dialogs.colourAnswers = {std::nullopt, 0x00FF00FF};
    f.element.chooseTransparentColour();
    EXPECT_EQ(f.project.button(n).transparentColor, 0);
    f.element.chooseTransparentColour();
    EXPECT_EQ(f.project.button(n).transparentColor, 0x00FF00FF);
    EXPECT_TRUE(f.project.button(n).transparent);
    EXPECT_EQ(f.dialogs.colourRequests, (std::vector<Colour>{0, 0}));
    f.element.transparencyTicked(false);
    EXPECT_FALSE(f.project.button(n).transparent);
    EXPECT_EQ(f.project.button(n).transparentColor, 0x00FF00FF);
}

TEST(ButtonTransparency, QuickPreviewBakesOnlyATransparentCurrentButton)
{
    test::DesignerFixture f;
    RecordingBaker baker;
    f.designer.context().baker = &baker;
    const int n = f.button("code");
    f.element.quickPreview();
    EXPECT_TRUE(baker.baked.empty());
    f.element.transparencyTicked(true);
    f.element.quickPreview();
    EXPECT_EQ(baker.baked, (std::vector<int>{n}));
    f.selection.currentButton = -1;
    f.element.quickPreview();
    EXPECT_EQ(baker.baked, (std::vector<int>{n}));
}

}  // namespace
}  // namespace qor
