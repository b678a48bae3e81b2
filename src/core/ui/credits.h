#pragma once

#include <string>
#include <vector>

namespace qor {

// One line of the about window's credits: a role heading, or an entry under
// it; an entry may carry an address it opens when clicked.
struct CreditLine {
    bool heading = false;
    std::string text;
    std::string address;  // a web address, an e-mail address ("@"), or empty
};

// The credits from the top, headings in their fixed order.
const std::vector<CreditLine>& creditLines();

// The about window's title line.
inline constexpr const char* kCreditsTitle = "QOR créateur de menus";
// The panel's tag while the pointer rests on an entry.
inline constexpr const char* kCreditsPaused = "PAUSE";
// How far the credits move at each step, in twips.
inline constexpr double kCreditsStep = 5;

// The panel's next top (twips) after one step: 5 twips higher, and back at
// the window's inner height, below the window, once it has left by the top.
double nextCreditsTop(double top, double height, double innerHeight);

// What clicking an entry opens: an e-mail address as a message to it with
// the contact subject, any other address as it is; nothing without one.
std::string creditLinkTarget(const std::string& address);

}  // namespace qor
