#include <gtest/gtest.h>

#include "core/designer/designer.h"
#include "core/designer/designer_messages.h"
#include "core/scripting/script_slots.h"
#include "designer_fixture.h"

namespace qor {
namespace {

using Fixture = test::DesignerFixture;

TEST(DesignerElements, NumbersCountEveryElementOfTheKindDeletedOnesIncluded)
{
    Fixture f;
    f.createButton("code");
    f.createButton("vidéo");
    f.createButton("quitter");
    f.designer.select(2);
    f.dialogs.messageAnswers = {Answer::Yes};
    f.designer.deleteButton();
    f.createButton("code");
    f.designer.createText();
    const std::vector<std::string> entries{"Feuille de travail", "Bouton 1 (code)", "Bouton 3 (quitter)",
                                           "Bouton 4 (code)", "Texte 1"};
    EXPECT_EQ(f.designer.entries(), entries);
    EXPECT_EQ(f.view.entries, entries);
    EXPECT_EQ(f.project.button(2).kind, "suppr");
    EXPECT_EQ(f.project.button(4).kind, "code");
    EXPECT_EQ(f.selection.currentText, 1);
    EXPECT_EQ(f.designer.selectedEntry(), 4);
    EXPECT_EQ(f.view.selected, 4);
}

TEST(DesignerElements, ANewButtonIsATemplateCopyAt200WithTheKindsScript)
{
    Fixture f;
    for (int i = 0; i < 11; ++i)
        f.createButton("quitter");
    f.createButton("code");
    const MenuButton& b = f.project.button(12);
    EXPECT_EQ(b.left, 200);
    EXPECT_EQ(b.top, 200);
    EXPECT_EQ(b.action, buttonTemplate(12));
    EXPECT_NE(b.action.find("'Tapez ici le code VBS à exécuter quand le bouton 12 est préssé.\r\n"), std::string::npos);
    EXPECT_EQ(f.project.button(11).action, "");
    EXPECT_EQ(f.view.fronts.back(), "b12");
    EXPECT_TRUE(f.view.buttonsVisible[12]);
    EXPECT_EQ(f.selection.currentButton, 12);
    // The code button is shown: its sub-panel, its script loaded, the editor hidden.
    EXPECT_TRUE(f.view.panels.has(PanelId::Button) && f.view.panels.has(PanelId::Code));
    EXPECT_EQ(f.editor.loaded.back().title, "Code VBS sur bouton 12");
    EXPECT_FALSE(f.editor.visible);
}

TEST(DesignerElements, TheHundredthButtonElementIsRefusedEvenWhenMostAreDeleted)
{
    Fixture f;
    for (int i = 0; i < 99; ++i)
        f.createButton("quitter");
    for (int n = 1; n <= 98; ++n)
        f.project.deleteButton(n);
    const std::size_t asked = f.dialogs.openRequests.size();
    f.designer.createButton("code");
    EXPECT_EQ(f.dialogs.lastMessage(), tooManyButtonsMessage(f.phrases));
    EXPECT_EQ(f.dialogs.openRequests.size(), asked);
    EXPECT_EQ(f.selection.currentButton, 99);
    EXPECT_TRUE(f.project.button(100).kind.empty());
}

TEST(DesignerElements, ImageDialogsFillTheFieldsAndCancelledOnesKeepTheLastButtonsPaths)
{
    Fixture f;
    const std::string normal = f.image("n.png"), hover = f.image("s.png"), pressed = f.image("c.png");
    f.dialogs.openAnswers = {normal, hover, f.dir.file("absent.png")};
    f.designer.createButton("code");
    EXPECT_EQ(f.project.button(1).normalImage, normal);
    EXPECT_EQ(f.project.button(1).hoverImage, hover);
    // A file that does not exist empties the field.
    EXPECT_EQ(f.project.button(1).pressedImage, "");
    EXPECT_EQ(f.pictures.eventsStartingWith("image 1"), (std::vector<std::string>{"image 1 " + normal}));
    EXPECT_EQ(f.dialogs.openRequests[0].title, "Image normale");
    EXPECT_EQ(f.dialogs.openRequests[1].title, "Image au survol");
    EXPECT_EQ(f.dialogs.openRequests[2].title, "Image clique");
    EXPECT_EQ(f.dialogs.openRequests[0].filter,
              "Images *.jpg, *.jpeg, *.gif, *.bmp, *.ico | *.jpg;*.jpeg;*.gif;*.bmp;*.ico");

    f.project.button(1).pressedImage = pressed;
    f.designer.select(1);
    f.createButton("vidéo");
    EXPECT_EQ(f.project.button(2).normalImage, normal);
    EXPECT_EQ(f.project.button(2).hoverImage, hover);
    EXPECT_EQ(f.project.button(2).pressedImage, pressed);
}

TEST(DesignerElements, DeleteKeyNeedsACurrentButtonSelectedAndAYes)
{
    Fixture f;
    f.createButton("code");
    f.designer.createText();
    // A text box is selected: nothing.
    f.designer.deleteButton();
    EXPECT_TRUE(f.dialogs.messages.empty());
    f.designer.select(1);
    f.dialogs.messageAnswers = {Answer::No};
    f.designer.deleteButton();
    EXPECT_EQ(f.dialogs.lastMessage().text, "Supprimer le bouton 1 ?");
    EXPECT_EQ(f.project.button(1).kind, "code");
    f.dialogs.messageAnswers = {Answer::Yes};
    f.designer.deleteButton();
    EXPECT_EQ(f.project.button(1).kind, "suppr");
    EXPECT_FALSE(f.view.buttonsVisible[1]);
    EXPECT_EQ(f.selection.currentButton, -1);
    EXPECT_EQ(f.designer.selectedEntry(), 0);
    EXPECT_TRUE(f.view.panels.has(PanelId::Window));
    // currentButton is -1 now: the key does nothing.
    f.designer.deleteButton();
    EXPECT_EQ(f.dialogs.messages.size(), 2u);
}

TEST(DesignerElements, DeletingATextBoxHidesItAsSuppr)
{
    Fixture f;
    f.designer.createText();
    f.designer.createText();
    EXPECT_EQ(f.project.text(2).content, "Tapez ici le contenu du Texte 2");
    EXPECT_EQ(f.project.text(2).settings, "10");
    f.dialogs.messageAnswers = {Answer::Yes};
    f.designer.deleteText();
    EXPECT_EQ(f.dialogs.lastMessage(), deleteTextQuestion(2));
    EXPECT_EQ(f.project.text(2).content, "SUPPR");
    EXPECT_FALSE(f.project.text(2).visible);
    EXPECT_EQ(f.designer.entries(), (std::vector<std::string>{"Feuille de travail", "Texte 1"}));
    EXPECT_EQ(f.selection.currentText, -1);
    f.designer.createText();
    EXPECT_EQ(f.designer.entries().back(), "Texte 3");
}

TEST(DesignerRefresh, PanelsFollowTheEntryAndTheFieldsTheModel)
{
    Fixture f;
    f.createButton("vidéo");
    f.project.button(1).action = "film.avi";
    f.project.button(1).transparentColor = 0x00FF00;
    f.createButton("quitter");
    f.designer.createText();
    f.project.text(1).backColor = 0x123456;
    f.project.text(1).settings = "01";

    f.designer.select(1);
    EXPECT_TRUE(f.view.panels.has(PanelId::Button) && f.view.panels.has(PanelId::Media));
    EXPECT_FALSE(f.view.panels.has(PanelId::Code));
    EXPECT_EQ(f.view.buttonFields.media, "film.avi");
    EXPECT_EQ(f.view.buttonFields.transparentColor, 0x00FF00);
    f.designer.select(2);
    EXPECT_TRUE(f.view.panels.has(PanelId::Button));
    EXPECT_FALSE(f.view.panels.has(PanelId::Media) || f.view.panels.has(PanelId::Code));
    f.designer.select(3);
    EXPECT_EQ(f.view.panels, [] { PanelSet p; p.add(PanelId::Text); return p; }());
    EXPECT_EQ(f.view.textFields.backColor, 0x123456);
    EXPECT_FALSE(f.view.textFields.scrollBar);
    EXPECT_TRUE(f.view.textFields.locked);
    EXPECT_EQ(f.view.textFields.width, "2895");
    f.designer.select(0);
    EXPECT_FALSE(f.view.handles.has_value());
}

TEST(DesignerRefresh, HandlesSurroundTheSelectedElementUnlessTheOptionIsOff)
{
    Fixture f;
    f.createButton("code");
    f.view.buttonSizes[1] = {600, 300};
    f.designer.select(1);
    ASSERT_TRUE(f.view.handles);
    EXPECT_EQ((*f.view.handles)[0], (TwipsPoint{95, 95}));
    EXPECT_EQ((*f.view.handles)[3], (TwipsPoint{800, 500}));
    f.designer.createText();
    EXPECT_EQ((*f.view.handles)[3], (TwipsPoint{200 + 2895, 200 + 1455}));

    f.designer.select(0);
    f.showHandles = false;
    f.designer.select(1);
    EXPECT_FALSE(f.view.handles.has_value());
    f.designer.worksheet().drop(WorksheetTarget::button(1), WorksheetTarget::background(), {500, 500});
    EXPECT_FALSE(f.view.handles.has_value());
}

TEST(DesignerLoad, ALoadedProjectIsListedAndShownWithoutAskingAnything)
{
    Fixture f;
    f.designer.resetViews();
    EXPECT_EQ(f.selection.currentButton, 0);
    (void)f.project.addButton();
    f.project.button(1).kind = "code";
    f.designer.buttonCreated(1, "code");
    (void)f.project.addText();
    f.designer.textCreated(1);
    f.designer.showStartupChoice(StartupChoice::Script);
    EXPECT_EQ(f.view.entries, (std::vector<std::string>{"Feuille de travail", "Bouton 1 (code)", "Texte 1"}));
    EXPECT_TRUE(f.view.buttonsVisible[1]);
    EXPECT_TRUE(f.view.textsCreated.contains(1));
    EXPECT_EQ(f.view.choiceCaption, "Code VBS :");
    EXPECT_TRUE(f.dialogs.messages.empty());
    EXPECT_TRUE(f.dialogs.openRequests.empty());
    EXPECT_EQ(f.pictures.events.front(), "resetViews");
}

}  // namespace
}  // namespace qor
