#include "player/core/player.h"

#include <algorithm>

#include "player/core/command_line.h"
#include "player/core/picture.h"
#include "player/core/pixels.h"
#include "player/core/runtime_objects.h"
#include "player/core/script_services.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor::player {

Stage::~Stage() = default;

Player::Player(MenuData menu, MenuPlace place, PlayerView& view, MediaPort& media, SystemPort& system)
    : menu_(std::move(menu)),
      place_(std::move(place)),
      view_(view),
      media_(media),
      system_(system),
      screen_(view.screen()),
      host_(std::make_unique<PlayerScriptHost>(view, system, static_cast<Stage&>(*this), place_)),
      module_(host_.get())
{
    module_.setStepBudget(kScriptStepBudget);
    buildScene();
    addRuntimeObjects(module_, *this);
}

Player::~Player() = default;

std::string Player::dataFile(std::string_view name) const
{
    return name.empty() ? std::string() : resolveMenuPath(name, place_, place_.playerFolder);
}

std::string Player::cdFile(std::string_view name) const
{
    return resolveMenuPath(name, place_, place_.cdRoot);
}

void Player::start()
{
    if (closed_)
        return;
    view_.show(scene_);
    if (!menu_.project.globalScript.empty()) {
        busy_ = true;
        script::RunResult r = module_.addCode(expandPlaceholders(menu_.project.globalScript, place_));
        busy_ = false;
        if (!r.ok() && !closeAsked_)
            view_.messageBox({scriptErrorText(*r.error, "code global"), std::string(kScriptErrorTitle), 16});
        settle();
    }
    if (closed_)
        return;
    if (!menu_.project.backgroundMusic.empty())
        media_.playMusic(dataFile(menu_.project.backgroundMusic));
    const std::string& startup = menu_.project.startupAction;
    if (startsWithNoCase(startup, "VBS:"))
        runScript(std::string_view(startup).substr(4), "code du démarrage");
    else if (!startup.empty())
        playMedia(startup);
    if (!closed_)
        view_.timerChanged(scene_.timer);
}

// The script's text with its placeholders expanded, run in the menu's
// module. Returns false when it failed (the error has been shown).
bool Player::runScript(std::string_view script, std::string_view where)
{
    if (closed_ || busy_ || script.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return true;
    busy_ = true;
    script::RunResult r = module_.runCode(expandPlaceholders(script, place_));
    if (!r.ok() && !closeAsked_)
        view_.messageBox({scriptErrorText(*r.error, where), std::string(kScriptErrorTitle), 16});
    busy_ = false;
    settle();
    return r.ok();
}

// After a script: a close it asked for happens now. A window the script hid
// with no timer left to show it again could never be reached by the user:
// the menu ends rather than linger unseen.
void Player::settle()
{
    if (closed_)
        return;
    if (closeAsked_ || (!scene_.window.visible && !scene_.timer.runs()))
        close();
}

void Player::close()
{
    if (closed_)
        return;
    if (busy_) {
        // Inside a script (Action.Text = "Fermer"): the rest of it does not run.
        closeAsked_ = true;
        module_.requestStop();
        return;
    }
    closed_ = true;
    media_.stopAll();
    scene_.timer.enabled = false;
    view_.timerChanged(scene_.timer);
    view_.close();
}

void Player::pointerEntersButton(std::size_t index)
{
    if (closed_ || index >= scene_.buttons.size())
        return;
    ButtonScene& b = scene_.buttons[index];
    if (!b.visible || !b.enabled)
        return;
    where_ = Where::Button;
    if (b.look == ButtonScene::Look::Normal) {
        b.look = ButtonScene::Look::Hover;
        view_.buttonChanged(index, b);
    }
    if (!menu_.project.hoverSound.empty())
        media_.playSound(dataFile(menu_.project.hoverSound));
    runScript(buttons_[index]->hoverScript, "survol du bouton " + std::to_string(b.number));
}

void Player::pointerLeavesButton(std::size_t index)
{
    if (closed_ || index >= scene_.buttons.size())
        return;
    ButtonScene& b = scene_.buttons[index];
    if (where_ == Where::Button)
        where_ = Where::Outside;
    if (b.look != ButtonScene::Look::Normal) {
        b.look = ButtonScene::Look::Normal;
        view_.buttonChanged(index, b);
    }
}

void Player::pressButton(std::size_t index)
{
    if (closed_ || index >= scene_.buttons.size())
        return;
    ButtonScene& b = scene_.buttons[index];
    if (!b.visible || !b.enabled)
        return;
    b.look = ButtonScene::Look::Pressed;
    view_.buttonChanged(index, b);
}

void Player::releaseButton(std::size_t index, bool overButton)
{
    if (closed_ || index >= scene_.buttons.size())
        return;
    ButtonScene& b = scene_.buttons[index];
    if (b.look != ButtonScene::Look::Pressed)
        return;
    b.look = overButton ? ButtonScene::Look::Hover : ButtonScene::Look::Normal;
    view_.buttonChanged(index, b);
    if (overButton && b.visible && b.enabled)
        clickButton(index);
}

void Player::clickButton(std::size_t index)
{
    if (!menu_.project.clickSound.empty())
        media_.playSound(dataFile(menu_.project.clickSound));
    const MenuButton& data = *buttons_[index];
    if (data.kind == button_kind::code)
        runScript(data.action, "code du bouton " + std::to_string(scene_.buttons[index].number));
    else if (data.kind == button_kind::video)
        playMedia(data.action);
    else if (data.kind == button_kind::quit)
        close();
}

void Player::pointerOverBackground()
{
    if (closed_ || where_ == Where::Background)
        return;
    where_ = Where::Background;
    runScript(menu_.project.windowHoverScript, "survol de la fenêtre");
}

void Player::pointerLeavesBackground()
{
    where_ = Where::Outside;
}

void Player::timerTick()
{
    if (closed_ || busy_ || !scene_.timer.runs())
        return;
    // A timer script that fails would fail again at every tick, each time
    // with its message: after the first, the timer stops.
    if (!runScript(menu_.project.timerScript, "code du minuteur") && !closed_) {
        scene_.timer.enabled = false;
        view_.timerChanged(scene_.timer);
        settle();
    }
}

void Player::textEdited(std::size_t index, std::string text)
{
    if (index < scene_.texts.size())
        scene_.texts[index].text = std::move(text);
}

void Player::windowMoved(int leftPixels, int topPixels)
{
    scene_.window.left = leftPixels * screen_.twipsPerPixelX;
    scene_.window.top = topPixels * screen_.twipsPerPixelY;
}

void Player::windowStateChanged(int state)
{
    if (state >= 0 && state <= 2)
        scene_.window.windowState = state;
}

std::vector<std::string> Player::contextMenuEntries() const
{
    if (!scene_.window.contextMenu)
        return {};
    return {"Réduire", "Fermer", "A propos..."};
}

void Player::chooseContextEntry(std::size_t entry)
{
    if (closed_ || !scene_.window.contextMenu)
        return;
    if (entry == 0) {
        scene_.window.windowState = 1;
        view_.windowChanged(scene_.window);
    } else if (entry == 1) {
        close();
    } else if (entry == 2) {
        view_.messageBox({authorText(menu_.info), std::string(kAboutTitle), 64});
    }
}

void Player::windowChanged() { view_.windowChanged(scene_.window); }
void Player::buttonChanged(std::size_t index) { view_.buttonChanged(index, scene_.buttons[index]); }
void Player::textChanged(std::size_t index) { view_.textChanged(index, scene_.texts[index]); }
void Player::timerChanged() { view_.timerChanged(scene_.timer); }

script::HostResult Player::loadPicture(std::string_view path)
{
    if (path.empty())
        return script::HostResult::ok(script::Value::object(new PictureObject({}, 0, 0)));
    const std::string file = cdFile(path);
    if (!system_.fileExists(file))
        return script::HostResult::fail(script::errc::FileNotFound, "Fichier introuvable : " + file);
    std::optional<ImageSize> size = view_.imageSize(file);
    if (!size)
        return script::HostResult::fail(script::errc::InvalidPicture);
    return script::HostResult::ok(script::Value::object(new PictureObject(file, size->width, size->height)));
}

MediaKind mediaKindOf(std::string_view path)
{
    static constexpr std::string_view kVideo[] = {".avi", ".mpg", ".mpeg", ".mp4", ".m4v", ".wmv", ".asf",
                                                  ".mov", ".mkv", ".ogv", ".webm", ".flv", ".3gp"};
    static constexpr std::string_view kSound[] = {".wav", ".mp3", ".mid", ".midi", ".aif", ".aiff", ".wma",
                                                  ".ogg", ".oga", ".flac", ".m4a", ".aac", ".au", ".snd"};
    for (std::string_view ext : kVideo)
        if (endsWithNoCase(path, ext))
            return MediaKind::Video;
    for (std::string_view ext : kSound)
        if (endsWithNoCase(path, ext))
            return MediaKind::Sound;
    return MediaKind::Other;
}

// A media name of a "vidéo" button or of the startup action, from the CD
// root. A file missing from the CD is said, by the name the author wrote.
void Player::playMedia(std::string_view name)
{
    const std::string path = cdFile(name);
    if (path.empty())
        return;
    if (!system_.fileExists(path)) {
        view_.messageBox({"Fichier introuvable : " + std::string(name), std::string(kScriptErrorTitle), 16});
        return;
    }
    switch (mediaKindOf(path)) {
    case MediaKind::Video:
        media_.playVideo(path);
        break;
    case MediaKind::Sound:
        media_.playSound(path);
        break;
    case MediaKind::Other:
        system_.openWithDesktop(path);
        break;
    }
}

std::string scriptErrorText(const script::ScriptError& error, std::string_view where)
{
    std::string text = "Erreur n°" + std::to_string(error.number) + " (" + error.description + ")";
    text += "\r\n";
    if (error.line > 0)
        text += "Ligne " + std::to_string(error.line) + " du ";
    else
        text += "Dans le ";
    return text + std::string(where) + ".";
}

PointerShape pointerOver(const WindowScene& window, const CursorChoice& own, bool isButton)
{
    if (window.screenCursor.pointer != 0)
        return {cursorFor(window.screenCursor.pointer), window.screenCursor.icon};
    if (own.pointer != 0)
        return {cursorFor(own.pointer), own.icon};
    if (isButton && window.handOverButtons)
        return {Cursor::Hand, {}};
    return {};
}

}  // namespace qor::player
