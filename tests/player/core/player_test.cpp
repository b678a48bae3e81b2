// What the user's input and the scripts set off, in order, through fake ports.
#include "player_fixture.h"

namespace qor::player::test {
namespace {

using Look = ButtonScene::Look;

TEST_F(PlayerTest, StartShowsTheWindowThenMusicThenStartupThenTimer)
{
    MenuProject p;
    p.backgroundMusic = "C:\\sons\\fond.mid";
    p.globalScript = "Const Nom = \"global\"";
    p.startupAction = "VBS:MsgBox Nom";
    p.timerEnabled = true;
    p.timerInterval = "500";
    p.timerScript = "n = n + 1";
    run(p, false);
    const Log expected = {"show", "music /cd/qor/fond.mid", "msgbox global", "timer 500"};
    EXPECT_EQ(log, expected);
}

// As a "vidéo" button does; a file missing from the CD is said by the name
// the author wrote.
TEST_F(PlayerTest, TheStartupActionPlaysAMediaNameFromTheCdRoot)
{
    for (const char* file : {"/cd/videos/intro.avi", "/cd/son.mp3", "/cd/doc/lisez.pdf"})
        system.files[file] = "x";
    const std::pair<std::string, std::string> cases[] = {
        {"videos\\intro.avi", "video /cd/videos/intro.avi"},
        {"son.mp3", "sound /cd/son.mp3"},
        {"[LECT]:\\doc\\lisez.pdf", "open /cd/doc/lisez.pdf"},
        {"[LECT]:\\films\\absent.avi", "msgbox Fichier introuvable : [LECT]:\\films\\absent.avi"},
    };
    for (const auto& [action, expected] : cases) {
        MenuProject p;
        p.startupAction = action;
        log.clear();
        run(p, false);
        ASSERT_EQ(log.size(), 3u) << action;
        EXPECT_EQ(log[1], expected);
    }
}

TEST_F(PlayerTest, HoverShowsTheImageThenPlaysTheSoundThenRunsTheScript)
{
    MenuProject p = withButtons(2);
    p.hoverSound = "survol.wav";
    p.button(2).hoverScript = "MsgBox \"survol 2\"";
    run(p);
    player->pointerEntersButton(1);
    const Log expected = {"button 2 /cd/qor/b2_s.bmp", "sound /cd/qor/survol.wav", "msgbox survol 2"};
    EXPECT_EQ(log, expected);
    player->pointerLeavesButton(1);
    EXPECT_EQ(log.back(), "button 2 /cd/qor/b2_n.bmp");
}

TEST_F(PlayerTest, AClickPressesThenOnReleasePlaysTheSoundThenActsByKind)
{
    MenuProject p = withButtons(3);
    p.clickSound = "clic.wav";
    p.button(1).action = "MsgBox \"code\"";
    p.button(2).kind = std::string(button_kind::video);
    p.button(2).action = "films\\a.mpg";
    system.files["/cd/films/a.mpg"] = "x";
    p.button(3).kind = std::string(button_kind::quit);
    run(p);
    player->pointerEntersButton(0);
    player->pressButton(0);
    player->releaseButton(0, true);
    Log expected = {"button 1 /cd/qor/b1_s.bmp", "button 1 /cd/qor/b1_c.bmp", "button 1 /cd/qor/b1_s.bmp",
                    "sound /cd/qor/clic.wav", "msgbox code"};
    EXPECT_EQ(log, expected);
    log.clear();
    player->pressButton(1);
    player->releaseButton(1, true);
    EXPECT_EQ(log.back(), "video /cd/films/a.mpg");
    EXPECT_FALSE(player->closed());
    player->pressButton(2);
    player->releaseButton(2, true);
    EXPECT_TRUE(player->closed());
    EXPECT_TRUE(view.closed);
}

TEST_F(PlayerTest, AReleaseOutsideTheButtonDoesNothing)
{
    MenuProject p = withButtons(1);
    p.button(1).kind = std::string(button_kind::quit);
    run(p);
    player->pressButton(0);
    player->releaseButton(0, false);
    EXPECT_FALSE(player->closed());
    EXPECT_EQ(player->scene().buttons[0].look, Look::Normal);
}

TEST_F(PlayerTest, DisabledOrHiddenButtonsIgnoreThePointer)
{
    MenuProject p = withButtons(2);
    p.button(1).hoverScript = "MsgBox 1";
    run(p);
    exec("Bouton1.Enabled = False : Bouton2.Visible = False");
    log.clear();
    for (std::size_t i : {0u, 1u}) {
        player->pointerEntersButton(i);
        player->pressButton(i);
        player->releaseButton(i, true);
    }
    EXPECT_TRUE(log.empty());
}

TEST_F(PlayerTest, TheWindowHoverScriptRunsOncePerEntry)
{
    MenuProject p = withButtons(1);
    p.windowHoverScript = "n = n + 1";
    run(p);
    player->pointerOverBackground();
    player->pointerOverBackground();
    player->pointerOverBackground();
    EXPECT_EQ(eval("n"), "1");
    player->pointerEntersButton(0);
    player->pointerLeavesButton(0);
    player->pointerOverBackground();
    EXPECT_EQ(eval("n"), "2");
    player->pointerLeavesBackground();
    player->pointerOverBackground();
    EXPECT_EQ(eval("n"), "3");
}

TEST_F(PlayerTest, ScriptsShareTheGlobalProceduresAndKeepTheirVariables)
{
    MenuProject p = withButtons(1);
    p.globalScript = "Function Double(x)\r\n Double = 2 * x\r\nEnd Function";
    p.timerEnabled = true;
    p.timerScript = "compte = compte + 1\r\nFenetre.Caption = Double(compte)";
    run(p);
    player->timerTick();
    player->timerTick();
    player->timerTick();
    EXPECT_EQ(player->scene().window.caption, "6");
}

TEST_F(PlayerTest, AScriptErrorIsShownAndTheMenuGoesOn)
{
    MenuProject p = withButtons(1);
    p.button(1).action = "x = 1\r\ny = 1 / 0";
    p.windowHoverScript = "Fenetre.Caption = \"encore là\"";
    run(p);
    view.answers = {1};
    player->pressButton(0);
    player->releaseButton(0, true);
    ASSERT_EQ(view.messages.size(), 1u);
    EXPECT_EQ(view.messages[0].text, "Erreur n°11 (Division par zéro)\r\nLigne 2 du code du bouton 1.");
    EXPECT_EQ(view.messages[0].title, "Erreur !");
    EXPECT_EQ(view.messages[0].buttons, 16);
    player->pointerOverBackground();
    EXPECT_EQ(player->scene().window.caption, "encore là");
}

TEST_F(PlayerTest, ErrorsInEveryKindOfScriptNameTheirScript)
{
    MenuProject p = withButtons(1);
    p.globalScript = "Erreur(";
    p.startupAction = "VBS:Err.Raise 5";
    p.button(1).hoverScript = "Err.Raise 6";
    p.windowHoverScript = "Err.Raise 7";
    p.timerEnabled = true;
    p.timerScript = "Err.Raise 9";
    run(p, false);
    player->pointerEntersButton(0);
    player->pointerLeavesButton(0);
    player->pointerOverBackground();
    player->timerTick();
    ASSERT_EQ(view.messages.size(), 5u);
    const std::string where[] = {"du code global.", "du code du démarrage.", "du survol du bouton 1.",
                                 "du survol de la fenêtre.", "du code du minuteur."};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_TRUE(view.messages[i].text.ends_with(where[i])) << view.messages[i].text;
}

TEST_F(PlayerTest, ATimerScriptThatFailsStopsTheTimerAfterOneMessage)
{
    MenuProject p;
    p.timerEnabled = true;
    p.timerScript = "x = y.z";
    run(p);
    player->timerTick();
    player->timerTick();
    EXPECT_EQ(view.messages.size(), 1u);
    EXPECT_FALSE(view.timer.runs());
    EXPECT_FALSE(player->closed());
}

TEST_F(PlayerTest, RunawayScriptsAreStoppedWithAMessageWherever)
{
    MenuProject p = withButtons(1);
    p.startupAction = "VBS:Do\r\nLoop";
    p.button(1).hoverScript = "While True\r\nWend";
    p.timerEnabled = true;
    p.timerScript = "Do : x = x + 1 : Loop";
    run(p, false);
    player->pointerEntersButton(0);
    player->timerTick();
    ASSERT_EQ(view.messages.size(), 3u);
    for (const MessageRequest& m : view.messages)
        EXPECT_TRUE(m.text.starts_with("Erreur n°18 (Script interrompu")) << m.text;
    EXPECT_FALSE(view.timer.runs());
    player->chooseContextEntry(1);
    EXPECT_TRUE(player->closed());
}

TEST_F(PlayerTest, ATimerTickDuringAScriptWaitsForIt)
{
    MenuProject p = withButtons(1);
    p.button(1).action = "MsgBox \"a\"";
    p.timerEnabled = true;
    p.timerScript = "n = n + 1";
    run(p);
    // The message box of the button's script is up: the front-end's event
    // loop still delivers ticks, which must not run a script inside another.
    struct TickingView : FakeView {
        using FakeView::FakeView;
        Player* player = nullptr;
        int messageBox(const MessageRequest& r) override
        {
            player->timerTick();
            return FakeView::messageBox(r);
        }
    };
    TickingView ticking(log);
    ticking.player = player.get();
    player = std::make_unique<Player>(compiled(p), place, ticking, media, system);
    ticking.player = player.get();
    player->start();
    player->pressButton(0);
    player->releaseButton(0, true);
    EXPECT_EQ(eval("IsEmpty(n)"), "True");
    player->timerTick();
    EXPECT_EQ(eval("n"), "1");
}

TEST_F(PlayerTest, FermerClosesAtOnceAndTheRestOfTheScriptDoesNotRun)
{
    MenuProject p = withButtons(1);
    p.backgroundMusic = "m.mp3";
    p.button(1).action = "Action.Text = \"Fermer\"\r\nMsgBox \"trop tard\"";
    run(p);
    player->pressButton(0);
    player->releaseButton(0, true);
    EXPECT_TRUE(player->closed());
    EXPECT_TRUE(view.messages.empty());
    const Log tail(log.end() - 3, log.end());
    EXPECT_EQ(tail, (Log{"stop media", "timer off", "close"}));
}

TEST_F(PlayerTest, HidingTheWindowEndsTheMenuUnlessATimerCanShowItAgain)
{
    MenuProject p;
    p.startupAction = "VBS:Fenetre.Visible = False";
    run(p);
    EXPECT_TRUE(player->closed());

    p.timerEnabled = true;
    p.timerScript = "Fenetre.Visible = True";
    run(p);
    EXPECT_FALSE(player->closed());
    player->timerTick();
    EXPECT_TRUE(player->scene().window.visible);
}

TEST_F(PlayerTest, ActionRequestsCarryOutTheirVerb)
{
    MenuProject p;
    ASSERT_TRUE(p.addText());
    ASSERT_TRUE(p.addText());
    run(p);
    for (const char* file : {"/cd/v/film.avi", "/cd/musique.mp3", "/tmp/bip.wav"})
        system.files[file] = "x";
    const std::pair<std::string, std::string> cases[] = {
        {"Action.Tag = \"[LECT]:\\v\\film.avi\" : Action.Text = \"JouerVideo\"", "video /cd/v/film.avi"},
        {"Action.Tag = \"musique.mp3\" : Action.Text = \"JouerSon\"", "sound /cd/musique.mp3"},
        {"Action.Tag = \"/tmp/bip.wav\" : Action.Text = \"JouerSonWAV\"", "sound /tmp/bip.wav"},
        {"Action.Tag = \"[LECT]\" : Action.Text = \"OuvrirCD\"", "eject (menu)"},
        {"Action.Tag = \"E\" : Action.Text = \"OuvrirCD\"", "eject E"},
        {"Action.Tag = \"D\" : Action.Text = \"FermerCD\"", "close tray (menu)"},
        {"Action.Tag = \"2\" : Action.Text = \"MasqueBarre\"", "text 2"},
        {"Action.Text = \"Inconnu\"", "(nothing)"},
    };
    for (const auto& [statement, expected] : cases) {
        log.clear();
        EXPECT_EQ(exec(statement), "") << statement;
        EXPECT_EQ(log.empty() ? "(nothing)" : log.back(), expected) << statement;
    }
    // Missing media: error 53, naming the file as the script wrote it, and nothing plays.
    for (const char* verb : {"JouerVideo", "JouerSon", "JouerSonWAV"}) {
        log.clear();
        exec(std::string("On Error Resume Next : Action.Tag = \"[LECT]:\\absent.avi\" : Action.Text = \"") + verb +
             "\" : e = Err.Number & \"|\" & Err.Description");
        EXPECT_EQ(eval("e"), "53|Fichier introuvable : [LECT]:\\absent.avi") << verb;
        EXPECT_TRUE(log.empty()) << verb;
    }
    EXPECT_FALSE(player->scene().texts[1].scrollBar);
    exec("Action.Tag = \"2\" : Action.Text = \"AfficheBarre\"");
    EXPECT_TRUE(player->scene().texts[1].scrollBar);
    EXPECT_TRUE(player->scene().texts[0].scrollBar);
    exec("Action.Text = \"Fermer\"");
    EXPECT_TRUE(player->closed());
}

TEST_F(PlayerTest, ScriptsSeeThePlaceholdersExpanded)
{
    MenuProject p;
    p.startupAction = "VBS:MsgBox \"[LECT]:\\ | [chemin] | [Joindre]\"";
    run(p, false);
    ASSERT_EQ(view.messages.size(), 1u);
    EXPECT_EQ(view.messages[0].text, "/cd/ | /cd/qor/ | /cd/");
    EXPECT_EQ(view.messages[0].title, "Démo");
}

TEST_F(PlayerTest, InputBoxAndMsgBoxAnswersReachTheScript)
{
    MenuProject p;
    run(p);
    view.inputs = {std::string("Paul"), std::nullopt};
    view.answers = {7};
    exec("a = InputBox(\"Nom ?\", \"Qui\", \"x\") : b = InputBox(\"Encore ?\") : c = MsgBox(\"Sûr ?\", vbYesNo)");
    EXPECT_EQ(eval("a & \"|\" & b & \"|\" & c"), "Paul||7");
    EXPECT_EQ(log[0], "inputbox Nom ? | Qui | x");
    EXPECT_EQ(log[1], "inputbox Encore ? | Démo | ");
}

TEST_F(PlayerTest, TheContextMenuOffersItsThreeEntriesWhenAsked)
{
    MenuProject p;
    p.contextMenu = false;
    run(p);
    EXPECT_TRUE(player->contextMenuEntries().empty());
    p.contextMenu = true;
    run(p);
    EXPECT_EQ(player->contextMenuEntries(), (std::vector<std::string>{"Réduire", "Fermer", "A propos..."}));
    player->chooseContextEntry(0);
    EXPECT_EQ(eval("Fenetre.WindowState"), "1");
    // Restored from the taskbar: the next script that shows the window must
    // not minimise it again.
    player->windowStateChanged(0);
    EXPECT_EQ(eval("Fenetre.WindowState"), "0");
    exec("Fenetre.Visible = True");
    EXPECT_EQ(view.shown.window.windowState, 0);
    player->chooseContextEntry(2);
    ASSERT_EQ(view.messages.size(), 1u);
    EXPECT_EQ(view.messages[0].text, "Projet : Démo\r\nAuteur : Moi");
    player->chooseContextEntry(1);
    EXPECT_TRUE(player->closed());
}

TEST_F(PlayerTest, FileSystemObjectReadsATextIntoATextBox)
{
    MenuProject p;
    ASSERT_TRUE(p.addText());
    run(p);
    system.files["/cd/docs/lisez.txt"] = "Ligne \xE9t\xE9\r\nfin";
    const std::string script =
        "Set fso = CreateObject(\"Scripting.FileSystemObject\")\r\n"
        "Set fich = fso.opentextfile(\"[LECT]:\\docs\\lisez.txt\", 1)\r\n"
        "Texte1.Text=fich.ReadAll\r\n"
        "fich.Close\r\n"
        "ok = fso.FileExists(\"docs/lisez.txt\") And Not fso.FileExists(\"rien.txt\")";
    EXPECT_EQ(exec(script), "");
    EXPECT_EQ(view.shown.texts[0].text, "Ligne été\r\nfin");
    EXPECT_EQ(eval("ok"), "True");
    EXPECT_EQ(exec("Set f = fso.OpenTextFile(\"rien.txt\")"), "error 53");
}

TEST_F(PlayerTest, ShellRunStartsWhatTheAssistantsStatementsName)
{
    MenuProject p;
    run(p);
    system.files["/cd/qor/SousMenu1.exe"] = "MZ\r\n" + std::string(compiledBytes(MenuProject()));
    system.files["/cd/doc/guide.pdf"] = "%PDF";
    const std::pair<std::string, std::string> cases[] = {
        {"exe_f.Run(\"[CHEMIN]SousMenu1.exe\")", "menu /cd/qor/SousMenu1.exe"},
        {"exe_f.Run(Chr(34) + \"http://www.example.org\" + Chr(34))", "open http://www.example.org"},
        {"exe_f.Run(Chr(34) + \"explorer \" + chr(34) + \"[LECT]:\\index.html\" + chr(34) + \"\" + Chr(34))",
         "open /cd/index.html"},
        {"exe_f.Run(Chr(34) + \"explorer [LECT]:\\doc\" + Chr(34))", "open /cd/doc"},
        {"exe_f.Run(Chr(34) + \"mailto:a@b.c?cc=&subject=Hello%20world&body=\" + Chr(34))",
         "open mailto:a@b.c?cc=&subject=Hello%20world&body="},
        {"exe_f.Run(Chr(34) + \"doc\\guide.pdf\" + Chr(34))", "open /cd/doc/guide.pdf"},
        {"exe_f.Run(\"xterm -e top\")", "start xterm | -e top"},
    };
    for (const auto& [statement, expected] : cases) {
        log.clear();
        EXPECT_EQ(exec("Set exe_f = CreateObject(\"WScript.Shell\")\r\n" + statement), "") << statement;
        EXPECT_EQ(log.empty() ? "(nothing)" : log.back(), expected) << statement;
    }
    system.starts = false;
    EXPECT_EQ(exec("exe_f.Run(\"absent.exe\")"), "error 53");
}

}  // namespace
}  // namespace qor::player::test
