#pragma once

#include <map>

#include "picture/button_bake.h"

namespace qor {

// The worksheet drawn from the project alone, for baking without a window:
// the background colour, the background picture stretched over the window,
// then the buttons' normal pictures in number order and the text boxes
// (their colours, font and content) in number order, as a project read
// from its file stacks them. Text boxes are drawn plainly, without the
// frame and scroll bar of the editor's fields.
class WorksheetScene final : public BakeSurface {
public:
    WorksheetScene(const MenuProject& project, const ScreenMetrics& screen, const QPalette& palette);

    QImage under(int number, const QRect& rect) override;
    void showOnButton(int number, const QImage& picture) override;

private:
    QImage buttonPicture(int number);

    const MenuProject& project_;
    ScreenMetrics screen_;
    QPalette palette_;
    QImage background_;
    // Pictures a button shows once baked, instead of its file's.
    std::map<int, QImage> shown_;
};

}  // namespace qor
