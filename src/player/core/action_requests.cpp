// What a script asks for through Action.Tag and Action.Text.
#include <functional>

#include "player/core/player.h"
#include "text/numbers.h"
#include "text/text_helpers.h"

namespace qor::player {

void Player::request(std::string_view verb, std::string_view argument)
{
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
        {"JouerVideo", [&] { media_.playVideo(cdFile(argument)); }},
        {"JouerSon", [&] { media_.playSound(cdFile(argument)); }},
        {"JouerSonWAV", [&] { media_.playSound(cdFile(argument)); }},
        {"AfficheBarre", [&] { scrollBar(true); }},
        {"MasqueBarre", [&] { scrollBar(false); }},
        {"OuvrirCD", [&] { system_.ejectTray(drive(), true); }},
        {"FermerCD", [&] { system_.ejectTray(drive(), false); }},
        {"Fermer", [&] { close(); }},
    };
    for (const auto& v : verbs)
        if (equalsNoCaseAscii(v.name, verb)) {
            v.carryOut();
            return;
        }
    // Any other verb asks for nothing this player knows: nothing happens.
}

}  // namespace qor::player
