#include "editor/designer/properties_panel.h"

#include <QComboBox>
#include <algorithm>
#include <cmath>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/designer/designer.h"
#include "core/designer/element_selector.h"
#include "core/ui/appearance_rules.h"
#include "editor/designer/button_panel.h"
#include "editor/designer/text_panel.h"
#include "editor/designer/window_panel.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/platform/widget_names.h"
#include "editor/ui/run_time_texts.h"

namespace qor {
namespace {

// The content area stands this far above the scroll bar's top.
constexpr double kContentAboveBar = 100;
constexpr double kBarBottomMargin = 50;

}  // namespace

PropertiesPanel::PropertiesPanel(const ScreenMetrics& screen, WindowHooks& hooks) : screen_(screen)
{
    hooks_ = &hooks;
    named(this, WindowId::PropertiesPanel);
    setWindowTitle(QStringLiteral("Paramètres"));
    selector_ = new QComboBox(this);
    named(selector_, "Combo1");
    viewport_ = named(new QWidget(this), "Cadre_contenu");
    content_ = new QWidget(viewport_);
    named(content_, "Picture1");
    // The panel is narrow: its captions take the small size of tool windows.
    QFont small = content_->font();
    small.setPointSizeF(std::min(small.pointSizeF(), 8.0));
    content_->setFont(small);
    column_ = new QVBoxLayout(content_);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    window_ = new WindowPanel(content_, hooks);
    column_->addWidget(window_);
    // No stretch below: the area is made exactly as tall as the panels ask
    // for their width, and a stretch would take its share of that height
    // from them.
    scroll_ = new QScrollBar(Qt::Vertical, this);
    named(scroll_, "VScroll1");
    scroll_->setMaximum(0);
    connect(scroll_, &QScrollBar::valueChanged, this, [this](int v) { scrollTo(v); });
    setFixedWidth(twipsToPixels(kWidth, screen.twipsPerPixelX));
    // The window's panel shows first, laid out when the window is shown, with
    // its size and its fonts: showing it now would lay it out for nothing.
    runLoadHooks(*this, hooks);
}

void PropertiesPanel::buildLateControls()
{
    if (button_)
        return;
    button_ = new ButtonPanel(content_);
    text_ = new TextPanel(content_);
    button_->hide();
    button_->showSubPanels(false, false);
    text_->hide();
    column_->addWidget(button_);
    column_->addWidget(text_);
    if (designer_) {
        button_->connectFlows(designer_->elementPanel());
        text_->connectFlows(designer_->elementPanel(), *designer_);
    }
    // The controls coloured already keep their colours: only the new ones change.
    if (appearance_)
        applyAppearance(*windowNode(*this), *appearance_);
}

ButtonPanel& PropertiesPanel::buttonPanel()
{
    buildLateControls();
    return *button_;
}

TextPanel& PropertiesPanel::textPanel()
{
    buildLateControls();
    return *text_;
}

void PropertiesPanel::connectDesigner(Designer& designer)
{
    designer_ = &designer;
    connect(selector_, &QComboBox::activated, this, [&designer](int index) { designer.select(index); });
    window_->connectFlows(designer.windowPanel());
    if (button_) {
        button_->connectFlows(designer.elementPanel());
        text_->connectFlows(designer.elementPanel(), designer);
    }
}

void PropertiesPanel::resetElementSelector()
{
    selector_->clear();
    // Shown in the interface language; the designer keeps the entries it parses.
    selector_->addItem(inInterfaceLanguage(*hooks_, toQt(kWorksheetEntry)));
    selector_->setCurrentIndex(0);
}

void PropertiesPanel::addElementEntry(const std::string& entry)
{
    selector_->addItem(inInterfaceLanguage(*hooks_, toQt(entry)));
}

void PropertiesPanel::removeElementEntry(int index)
{
    selector_->removeItem(index);
}

void PropertiesPanel::showSelectedEntry(int index)
{
    selector_->setCurrentIndex(index);
}

void PropertiesPanel::showPanels(const PanelSet& panels)
{
    if (panels.has(PanelId::Button) || panels.has(PanelId::Text))
        buildLateControls();
    window_->setVisible(panels.has(PanelId::Window));
    if (button_) {
        button_->setVisible(panels.has(PanelId::Button));
        button_->showSubPanels(panels.has(PanelId::Media), panels.has(PanelId::Code));
        text_->setVisible(panels.has(PanelId::Text));
    }
    // Another element's panel is read from its top.
    const QSignalBlocker quiet(scroll_);
    scroll_->setValue(0);
    layOut();
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
    layOut();
}

// The bar runs from under the selector to 50 twips above the bottom; its
// maximum is what the area cannot show of the content, in steps of 500 twips.
void PropertiesPanel::layOut()
{
    const int margin = 4;
    selector_->setGeometry(margin, margin, width() - 2 * margin, selector_->sizeHint().height());
    const int contentTop = selector_->geometry().bottom() + margin;
    const int barTop = contentTop + twipsToPixels(kContentAboveBar, screen_.twipsPerPixelY);
    const int barWidth = scroll_->sizeHint().width();
    const int barHeight = height() - barTop - twipsToPixels(kBarBottomMargin, screen_.twipsPerPixelY);
    scroll_->setGeometry(width() - barWidth, barTop, barWidth, std::max(0, barHeight));
    viewport_->setGeometry(0, contentTop, width() - barWidth, std::max(0, height() - contentTop));
    // Captions wrap in the narrow panel: the height follows the width.
    QLayout* column = content_->layout();
    // Never below what the controls need, or the layout squeezes the
    // commands and cuts their captions.
    const int contentHeight =
        std::max(column->hasHeightForWidth() ? column->totalHeightForWidth(viewport_->width()) : 0,
                 content_->minimumSizeHint().height());
    content_->resize(viewport_->width(), contentHeight);
    // The last step brings the content's end into view, no further.
    const double hiddenTwips = std::max(0, content_->height() - viewport_->height()) * screen_.twipsPerPixelY;
    scroll_->setMaximum(int(std::ceil(hiddenTwips / kScrollStep)));
    scrollTo(scroll_->value());
}

void PropertiesPanel::scrollTo(int value)
{
    content_->move(0, -twipsToPixels(kScrollStep * value, screen_.twipsPerPixelY));
}

}  // namespace qor
