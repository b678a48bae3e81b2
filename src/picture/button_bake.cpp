#include "picture/button_bake.h"


#include "core/picture/bake_rules.h"
#include "picture/bmp_file.h"
#include "picture/colours.h"
#include "picture/compose.h"
#include "picture/picture_file.h"

namespace qor {

BakeOutcome bakeButton(const MenuProject& project, int number, const ScreenMetrics& screen, const QPalette& palette,
                       BakeSurface& surface)
{
    BakeOutcome outcome;
    const MenuButton& button = project.button(number);
    const QRgb key = toQColor(button.transparentColor, palette).rgb();
    for (const BakeStep& step : bakeSteps(project, number)) {
        const QImage picture = readPictureFile(QString::fromStdString(step.source));
        if (picture.isNull())
            return outcome;
        const PixelRect at = buttonRect(button, picture.width(), picture.height(), screen);
        const QRect place(at.left, at.top, at.width, at.height);
        const QImage under = surface.under(number, place);
        const QRect local(QPoint(0, 0), place.size());
        const QImage baked = compose(place.size(), Qt::black, {{under, local, std::nullopt}, {picture, local, key}});
        surface.showOnButton(number, baked);
        if (saveBmp(baked, QString::fromStdString(step.target))) {
            outcome.unwritable = step.target;
            return outcome;
        }
        outcome.written.push_back(step.target);
    }
    return outcome;
}

BakeOutcome bakeButtons(const MenuProject& project, const ScreenMetrics& screen, const QPalette& palette,
                        BakeSurface& surface)
{
    BakeOutcome all;
    for (int n : buttonsToBake(project)) {
        BakeOutcome one = bakeButton(project, n, screen, palette, surface);
        all.written.insert(all.written.end(), one.written.begin(), one.written.end());
        if (one.unwritable && !all.unwritable)
            all.unwritable = std::move(one.unwritable);
    }
    return all;
}

}  // namespace qor
