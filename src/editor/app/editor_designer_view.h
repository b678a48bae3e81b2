#pragma once

#include <QSize>

#include "core/designer/designer_view.h"

namespace qor {

class EditorWindows;
class PropertiesPanel;
class WorksheetWindow;

// The designer's view over the editor's windows: the worksheet's elements,
// handles, caption and background, the properties panel's selector, panels
// and fields, the mouse-position read-outs. Twips become pixels here.
// Before a window is loaded, what concerns it is skipped.
class EditorDesignerView final : public DesignerView {
public:
    EditorDesignerView(EditorWindows& windows, const MenuProject& project) : windows_(windows), project_(project) {}

    void resetEntries() override;
    void addEntry(const std::string& entry) override;
    void removeEntry(int index) override;
    void selectEntry(int index) override;
    void createButtonElement(int number) override;
    void placeButton(int number) override;
    void setButtonVisible(int number, bool visible) override;
    TwipsSize buttonSize(int number) override;
    void createTextElement(int number) override;
    void showText(int number) override;
    void setTextEnabled(int number, bool enabled) override;
    bool textEnabled(int number) override;
    void bringButtonToFront(int number) override;
    void bringTextToFront(int number) override;
    void showHandles(const std::array<TwipsPoint, 4>& corners) override;
    void hideHandles() override;
    TwipsSize worksheetOuterSize() override;
    TwipsSize worksheetInnerSize() override;
    void setWorksheetOuterSize(TwipsSize size) override;
    void setCaption(const std::string& caption) override;
    TwipsSize backgroundPictureSize() override;
    void setBackgroundStretched(bool stretched) override;
    void setBackgroundColour(Colour colour) override;
    void showMousePosition(const std::array<std::string, 4>& readouts) override;
    void showPanels(const PanelSet& panels) override;
    void showWindowFields(const MenuProject& project) override;
    void setWindowSizeFields(const std::string& width, const std::string& height, bool enabled) override;
    void setTimerIntervalField(const std::string& text) override;
    void showStartupChoice(StartupChoice choice, const std::string& captionLine, bool modifyShown) override;
    void showButtonFields(const ButtonFields& fields) override;
    void showTextFields(const TextFields& fields) override;
    void setTextSizeFields(const std::string& width, const std::string& height) override;

private:
    WorksheetWindow* sheet();
    PropertiesPanel* panel();
    TwipsSize twipsOf(QSize pixels) const;

    EditorWindows& windows_;
    const MenuProject& project_;
};

}  // namespace qor
