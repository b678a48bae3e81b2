#include "core/app/menu_titles.h"

namespace qor {

std::vector<TitleBox> layOutMenuTitles(const std::vector<double>& textWidths)
{
    std::vector<TitleBox> boxes;
    boxes.reserve(textWidths.size());
    double left = kMenuTitleFirstLeft;
    for (double textWidth : textWidths) {
        TitleBox box{left, kMenuTitleTop, textWidth + kMenuTitlePadding, kMenuTitleHeight};
        boxes.push_back(box);
        left = box.right();
    }
    return boxes;
}

int menuTitleAt(const std::vector<TitleBox>& boxes, double x, double y)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const auto& b = boxes[i];
        if (x >= b.left && x < b.right() && y >= b.top && y < b.bottom())
            return int(i);
    }
    return -1;
}

MenuPopupPoint menuPopupPoint(const TitleBox& box)
{
    return {box.left, box.bottom()};
}

TitleColours highlightedTitleColours(const Appearance& appearance)
{
    return {appearance.textColor, appearance.windowBack};
}

}  // namespace qor
