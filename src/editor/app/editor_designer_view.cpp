#include "editor/app/editor_designer_view.h"

#include "editor/app/editor_windows.h"
#include "editor/designer/button_panel.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/text_panel.h"
#include "editor/designer/window_panel.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/colours.h"
#include "editor/platform/qt_text.h"
#include "editor/platform/twips.h"
#include "editor/ui/mouse_position_window.h"
#include "editor/ui/run_time_texts.h"

namespace qor {

WorksheetWindow* EditorDesignerView::sheet()
{
    return windows_.isLoaded(WindowId::Worksheet) ? &windows_.worksheet() : nullptr;
}

PropertiesPanel* EditorDesignerView::panel()
{
    return windows_.isLoaded(WindowId::PropertiesPanel) ? &windows_.properties() : nullptr;
}

TwipsSize EditorDesignerView::twipsOf(QSize pixels) const
{
    const ScreenMetrics& s = windows_.screen();
    return {pixels.width() * s.twipsPerPixelX, pixels.height() * s.twipsPerPixelY};
}

void EditorDesignerView::resetEntries()
{
    if (auto* p = panel())
        p->resetElementSelector();
}

void EditorDesignerView::addEntry(const std::string& entry)
{
    if (auto* p = panel())
        p->addElementEntry(entry);
}

void EditorDesignerView::removeEntry(int index)
{
    if (auto* p = panel())
        p->removeElementEntry(index);
}

void EditorDesignerView::selectEntry(int index)
{
    if (auto* p = panel())
        p->showSelectedEntry(index);
}

void EditorDesignerView::createButtonElement(int number)
{
    if (auto* s = sheet())
        s->button(number).hide();
}

void EditorDesignerView::placeButton(int number)
{
    if (auto* s = sheet()) {
        const MenuButton& b = project_.button(number);
        const ScreenMetrics& m = windows_.screen();
        s->button(number).move(twipsToPixels(b.left, m.twipsPerPixelX), twipsToPixels(b.top, m.twipsPerPixelY));
    }
}

void EditorDesignerView::setButtonVisible(int number, bool visible)
{
    if (auto* s = sheet())
        s->button(number).setVisible(visible);
}

TwipsSize EditorDesignerView::buttonSize(int number)
{
    auto* s = sheet();
    return s && s->hasButton(number) ? twipsOf(s->button(number).size()) : TwipsSize{};
}

void EditorDesignerView::createTextElement(int number)
{
    if (auto* s = sheet())
        (void)s->text(number);
}

void EditorDesignerView::showText(int number)
{
    if (auto* s = sheet())
        s->text(number).showText(project_.text(number), windows_.screen());
}

void EditorDesignerView::setTextEnabled(int number, bool enabled)
{
    if (auto* s = sheet())
        s->text(number).setResizing(!enabled);
}

bool EditorDesignerView::textEnabled(int number)
{
    auto* s = sheet();
    return !s || !s->hasText(number) || !s->text(number).resizing();
}

void EditorDesignerView::bringButtonToFront(int number)
{
    if (auto* s = sheet())
        s->bringToFront(s->button(number));
}

void EditorDesignerView::bringTextToFront(int number)
{
    if (auto* s = sheet())
        s->bringToFront(s->text(number));
}

void EditorDesignerView::showHandles(const std::array<TwipsPoint, 4>& corners)
{
    auto* s = sheet();
    if (!s)
        return;
    const ScreenMetrics& m = windows_.screen();
    std::array<QPoint, 4> pixels;
    for (std::size_t i = 0; i < 4; ++i)
        pixels[i] = {twipsToPixels(corners[i].x, m.twipsPerPixelX), twipsToPixels(corners[i].y, m.twipsPerPixelY)};
    s->showHandles(pixels);
}

void EditorDesignerView::hideHandles()
{
    if (auto* s = sheet())
        s->hideHandles();
}

TwipsSize EditorDesignerView::worksheetOuterSize()
{
    auto* s = sheet();
    return s ? windows_.outerSize(*s) : TwipsSize{};
}

TwipsSize EditorDesignerView::worksheetInnerSize()
{
    auto* s = sheet();
    return s ? twipsOf(s->size()) : TwipsSize{};
}

void EditorDesignerView::setWorksheetOuterSize(TwipsSize size)
{
    if (auto* s = sheet())
        windows_.setOuterSize(*s, size.width, size.height);
}

void EditorDesignerView::setCaption(const std::string& caption)
{
    if (auto* s = sheet())
        s->setWindowTitle(toQt(caption));
}

TwipsSize EditorDesignerView::backgroundPictureSize()
{
    auto* s = sheet();
    return s ? twipsOf(s->backgroundPictureSize()) : TwipsSize{};
}

void EditorDesignerView::setBackgroundStretched(bool stretched)
{
    if (auto* s = sheet())
        s->setBackgroundStretched(stretched);
}

void EditorDesignerView::setBackgroundColour(Colour colour)
{
    if (auto* s = sheet())
        s->setBackgroundColour(toQColor(colour, s->palette()));
}

void EditorDesignerView::showMousePosition(const std::array<std::string, 4>& readouts)
{
    if (windows_.isLoaded(WindowId::MousePosition))
        windows_.mousePosition().setReadouts(readouts);
}

void EditorDesignerView::showPanels(const PanelSet& panels)
{
    if (auto* p = panel())
        p->showPanels(panels);
}

void EditorDesignerView::showWindowFields(const MenuProject& project)
{
    if (auto* p = panel())
        p->windowPanel().showProject(project);
}

void EditorDesignerView::setWindowSizeFields(const std::string& width, const std::string& height, bool enabled)
{
    if (auto* p = panel())
        p->windowPanel().setSizeFields(toQt(width), toQt(height), enabled);
}

void EditorDesignerView::setTimerIntervalField(const std::string& text)
{
    if (auto* p = panel())
        p->windowPanel().setTimerInterval(toQt(text));
}

void EditorDesignerView::showStartupChoice(StartupChoice choice, const std::string& captionLine, bool modifyShown)
{
    if (auto* p = panel())
        p->windowPanel().showStartupChoice(choice, inInterfaceLanguage(windows_.hooks(), toQt(captionLine)),
                                           modifyShown);
}

void EditorDesignerView::showButtonFields(const ButtonFields& fields)
{
    if (auto* p = panel())
        p->buttonPanel().showFields(fields);
}

void EditorDesignerView::showTextFields(const TextFields& fields)
{
    if (auto* p = panel())
        p->textPanel().showFields(fields);
}

void EditorDesignerView::setTextSizeFields(const std::string& width, const std::string& height)
{
    if (auto* p = panel())
        p->textPanel().setSizeFields(toQt(width), toQt(height));
}

}  // namespace qor
