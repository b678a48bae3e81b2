#include "editor/ui/mouse_position_window.h"

#include <QGridLayout>
#include <QLabel>

#include "editor/platform/qt_text.h"
#include "editor/platform/widget_names.h"

namespace qor {

MousePositionWindow::MousePositionWindow(WindowHooks& hooks)
{
    named(this, WindowId::MousePosition);
    setWindowTitle(QStringLiteral("Position de la souris"));
    auto* grid = new QGridLayout(this);
    // Start-up puts this window at the main window's top, right of it: it
    // must be no taller than the main window and the gap below it, or it
    // covers the toolbox's caption. So the two rows sit tight.
    grid->setContentsMargins(6, 1, 6, 1);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(12);
    const char* resting[4] = {"X=0000", "Y=0000", "X=0000", "Y=0000"};
    for (int i = 0; i < 4; ++i) {
        auto* label = new QLabel(QString::fromUtf8(resting[i]), this);
        named(label, QStringLiteral("Label%1").arg(i + 1));
        // Wide enough for "X=66.66666px" without the window jumping.
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("X=00000.00000px")));
        grid->addWidget(label, i / 2, i % 2);
        labels_[std::size_t(i)] = label;
    }
    setFixedSize(sizeHint());
    runLoadHooks(*this, hooks);
}

void MousePositionWindow::setReadouts(const std::array<std::string, 4>& texts)
{
    for (std::size_t i = 0; i < 4; ++i)
        labels_[i]->setText(toQt(texts[i]));
}

QString MousePositionWindow::readout(int i) const
{
    return labels_[std::size_t(i)]->text();
}

}  // namespace qor
