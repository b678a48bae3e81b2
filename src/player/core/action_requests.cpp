// What a script asks for through Action.Tag and Action.Text.
#include <functional>
#include <optional>

#include "player/core/player.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor::player {

script::HostResult Player::request(std::string_view verb, std::string_view argument)
{
    // A media file missing from the CD is said, with the name the author
    // wrote, rather than left silent.
    std::optional<script::HostResult> missing;
    auto play = [&](void (MediaPort::*how)(const std::string&)) {
        const std::string file = cdFile(argument);
        if (system_.fileExists(file))
            (media_.*how)(file);
        else
            missing = script::HostResult::fail(script::errc::FileNotFound,
                                               "Fichier introuvable : " + std::string(argument));
    };
    auto scrollBar = [this, argument](bool shown) {
        const double n = readNumber(argument);
        for (std::size_t i = 0; i < scene_.texts.size(); ++i)
            if (scene_.texts[i].number == n) {
                scene_.texts[i].scrollBar = shown;
                view_.textChanged(i, scene_.texts[i]);
            }
    };
    // The menu's own drive is "", so the port finds the drive that holds it.
    auto drive = [this, argument]() {
        std::string letter = toUpperText(expandPlaceholders(argument, place_));
        return letter.empty() || equalsNoCaseAscii(letter, place_.driveLetter) ? std::string() : letter;
    };
    const struct {
        std::string_view name;
        std::function<void()> carryOut;
    } verbs[] = {
        {"JouerVideo", [&] { play(&MediaPort::playVideo); }},
        {"JouerSon", [&] { play(&MediaPort::playSound); }},
        {"JouerSonWAV", [&] { play(&MediaPort::playSound); }},
        {"AfficheBarre", [&] { scrollBar(true); }},
        {"MasqueBarre", [&] { scrollBar(false); }},
        {"OuvrirCD", [&] { system_.ejectTray(drive(), true); }},
        {"FermerCD", [&] { system_.ejectTray(drive(), false); }},
        {"Fermer", [&] { close(); }},
    };
    for (const auto& v : verbs)
        if (equalsNoCaseAscii(v.name, verb)) {
            v.carryOut();
            return missing ? std::move(*missing) : script::HostResult::ok();
        }
    // Any other verb asks for nothing this player knows: nothing happens.
    return script::HostResult::ok();
}

}  // namespace qor::player
