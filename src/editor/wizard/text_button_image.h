#pragma once

#include <QImage>

#include "core/wizard/wizard_button.h"

namespace qor {

// One picture of a text button, drawn from its caption in its font and
// colours: the caption's width plus 0.12 of its height wide, 1.12 of its
// height high, cleared to the background colour, the caption at the top
// left (moved by 0.06 of its height when pressed). Drawn without
// antialiasing, so that a transparent background leaves no fringe of mixed
// colours around the letters. Needs no display: it draws into memory at
// the 96 dots per inch of a picture.
QImage drawTextButton(const WizardButton& entry, ButtonState state);

}  // namespace qor
