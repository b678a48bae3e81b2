#include "editor/designer/properties_panel.h"

#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

#include "core/designer/element_selector.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"

namespace qor {

PropertiesPanel::PropertiesPanel(const ScreenMetrics& screen, WindowHooks& hooks)
{
    named(this, WindowId::PropertiesPanel);
    setWindowTitle(QStringLiteral("Paramètres"));
    selector_ = new QComboBox(this);
    named(selector_, "Combo1");
    content_ = new QWidget(this);
    named(content_, "Picture1");
    scroll_ = new QScrollBar(Qt::Vertical, this);
    named(scroll_, "VScroll1");
    scroll_->setMaximum(0);
    setFixedWidth(twipsToPixels(kWidth, screen.twipsPerPixelX));
    runLoadHooks(*this, hooks);
}

void PropertiesPanel::resetElementSelector()
{
    selector_->clear();
    selector_->addItem(toQt(kWorksheetEntry));
    selector_->setCurrentIndex(0);
}

void PropertiesPanel::addElementEntry(const std::string& entry)
{
    selector_->addItem(toQt(entry));
}

bool PropertiesPanel::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && activations_ == 0) {
        // Parked after the first time: later activations do nothing.
        activations_ = 1;
        emit firstActivated();
    }
    return ToolWindow::event(event);
}

void PropertiesPanel::resizeEvent(QResizeEvent* event)
{
    ToolWindow::resizeEvent(event);
    const int margin = 4;
    selector_->setGeometry(margin, margin, width() - 2 * margin, selector_->sizeHint().height());
    const int top = selector_->geometry().bottom() + margin;
    const int barWidth = scroll_->sizeHint().width();
    scroll_->setGeometry(width() - barWidth, top, barWidth, std::max(0, height() - top - margin));
    content_->setGeometry(0, top, width() - barWidth, std::max(0, height() - top));
}

}  // namespace qor
