#include "editor/designer/worksheet_surface.h"

#include <QLabel>

#include <vector>

#include "editor/designer/worksheet_window.h"

namespace qor {
namespace {

// Hides widgets for the length of a drawing and shows again those that
// were shown.
class HiddenWhileDrawing {
public:
    explicit HiddenWhileDrawing(std::vector<QWidget*> widgets)
    {
        for (QWidget* w : widgets)
            if (w && !w->isHidden()) {
                w->hide();
                hidden_.push_back(w);
            }
    }
    ~HiddenWhileDrawing()
    {
        for (QWidget* w : hidden_)
            w->show();
    }
    HiddenWhileDrawing(const HiddenWhileDrawing&) = delete;
    HiddenWhileDrawing& operator=(const HiddenWhileDrawing&) = delete;

private:
    std::vector<QWidget*> hidden_;
};

}  // namespace

QImage WorksheetSurface::under(int number, const QRect& rect)
{
    HiddenWhileDrawing hidden({&sheet_.button(number), sheet_.handle(0), sheet_.handle(1), sheet_.handle(2),
                               sheet_.handle(3), sheet_.overlay()});
    QImage out(rect.size(), QImage::Format_RGB32);
    // Beyond the worksheet's edges lies its background colour.
    out.fill(sheet_.backgroundColour());
    const QRect inside = rect.intersected(sheet_.rect());
    if (!inside.isEmpty())
        sheet_.render(&out, inside.topLeft() - rect.topLeft(), QRegion(inside),
                      QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return out;
}

void WorksheetSurface::showOnButton(int number, const QImage& picture)
{
    sheet_.button(number).showPicture(picture);
}

}  // namespace qor
