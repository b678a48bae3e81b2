#include "core/app/menu_titles.h"

namespace qor {

std::vector<MenuTitleBox> layoutMenuTitles(const std::vector<double>& captionWidths)
{
    std::vector<MenuTitleBox> boxes;
    boxes.reserve(captionWidths.size());
    double left = kMenuTitleFirstLeft;
    for (double captionWidth : captionWidths) {
        MenuTitleBox box{left, kMenuTitleTop, captionWidth + kMenuTitlePadding, kMenuTitleHeight};
        boxes.push_back(box);
        left = box.right();
    }
    return boxes;
}

int menuTitleAt(const std::vector<MenuTitleBox>& boxes, double x, double y)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const auto& b = boxes[i];
        if (x >= b.left && x < b.right() && y >= b.top && y < b.bottom())
            return int(i);
    }
    return -1;
}

MenuPopupPoint menuPopupPoint(const MenuTitleBox& box)
{
    return {box.left, box.bottom()};
}

}  // namespace qor
