#pragma once

namespace qor {

// Which element the properties panel and the worksheet work on: a button
// number and a text number, -1 when nothing of that kind is selected.
struct Selection {
    int currentButton = -1;
    int currentText = -1;
};

}  // namespace qor
