#pragma once

#include <optional>
#include <string>

#include "core/ports/button_baker.h"
#include "core/ports/dialogs.h"
#include "model/menu_project.h"

namespace qor {

// Bakes the "_transp.bmp" images of transparent buttons without a screen,
// on the worksheet drawn from the project (see picture/worksheet_scene.h).
// A file that cannot be written is told once through the dialogs and
// remembered, so that the program can end with a failure.
class HeadlessBaker final : public ButtonBaker {
public:
    HeadlessBaker(const MenuProject& project, Dialogs& dialogs, double twipsPerPixel = 15)
        : project_(project), dialogs_(dialogs), twipsPerPixel_(twipsPerPixel)
    {
    }

    void bakeAllButtons() override;
    void bakeButton(int number) override;
    bool failed() const { return failed_; }

private:
    void report(const std::optional<std::string>& unwritable);

    const MenuProject& project_;
    Dialogs& dialogs_;
    double twipsPerPixel_;
    bool failed_ = false;
};

}  // namespace qor
