#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/designer/designer.h"

namespace qor::test {

// The worksheet and the properties panel as the designer's tests see them:
// the selector's entries, which elements are shown where, the panels and
// their fields. The worksheet has a frame (kFrame twips wide on each side
// and a caption kCaption twips high), and resizing it raises the designer's
// resize as the real window does.
class FakeDesignerView : public DesignerView {
public:
    static constexpr double kFrame = 60;
    static constexpr double kCaption = 300;

    explicit FakeDesignerView(Designer& designer) : designer_(designer) {}

    std::vector<std::string> entries{"Feuille de travail"};
    int selected = 0;
    std::map<int, bool> buttonsVisible;
    std::map<int, TwipsPoint> buttonPlaces;
    std::map<int, TwipsSize> buttonSizes;   // what each button's picture measures
    std::set<int> textsCreated;
    std::map<int, int> textShows;           // how often each text box was redrawn
    std::set<int> disabledTexts;
    std::vector<std::string> fronts;        // "b3", "t2" in the order brought forward
    std::optional<std::array<TwipsPoint, 4>> handles;
    TwipsSize outer{9000, 7200};
    std::string caption;
    TwipsSize picture;
    bool stretched = true;
    Colour background = 0x00FFFFFF;
    std::array<std::string, 4> readouts;
    PanelSet panels;
    int windowFieldShows = 0;
    std::string sizeW, sizeH;
    bool sizeEnabled = true;
    std::string interval;
    StartupChoice choice = StartupChoice::Nothing;
    std::string choiceCaption;
    bool modifyShown = false;
    ButtonFields buttonFields;
    TextFields textFields;
    std::string textSizeW, textSizeH;

    void resetEntries() override { entries.assign(1, "Feuille de travail"), selected = 0; }
    void addEntry(const std::string& e) override { entries.push_back(e); }
    void removeEntry(int i) override { entries.erase(entries.begin() + i); }
    void selectEntry(int i) override { selected = i; }
    void createButtonElement(int n) override { buttonsVisible[n] = false; }
    void placeButton(int n) override
    {
        const MenuButton& b = designer_.context().project.button(n);
        buttonPlaces[n] = {b.left, b.top};
    }
    void setButtonVisible(int n, bool v) override { buttonsVisible[n] = v; }
    TwipsSize buttonSize(int n) override { return buttonSizes[n]; }
    void createTextElement(int n) override { textsCreated.insert(n); }
    void showText(int n) override { ++textShows[n]; }
    void setTextEnabled(int n, bool enabled) override
    {
        if (enabled)
            disabledTexts.erase(n);
        else
            disabledTexts.insert(n);
    }
    bool textEnabled(int n) override { return !disabledTexts.contains(n); }
    void bringButtonToFront(int n) override { fronts.push_back("b" + std::to_string(n)); }
    void bringTextToFront(int n) override { fronts.push_back("t" + std::to_string(n)); }
    void showHandles(const std::array<TwipsPoint, 4>& corners) override { handles = corners; }
    void hideHandles() override { handles.reset(); }
    TwipsSize worksheetOuterSize() override { return outer; }
    TwipsSize worksheetInnerSize() override { return {outer.width - 2 * kFrame, outer.height - kCaption - kFrame}; }
    void setWorksheetOuterSize(TwipsSize size) override
    {
        outer = size;
        designer_.worksheet().resized(size);
    }
    void setCaption(const std::string& c) override { caption = c; }
    TwipsSize backgroundPictureSize() override { return picture; }
    void setBackgroundStretched(bool s) override { stretched = s; }
    void setBackgroundColour(Colour c) override { background = c; }
    void showMousePosition(const std::array<std::string, 4>& r) override { readouts = r; }
    void showPanels(const PanelSet& p) override { panels = p; }
    void showWindowFields(const MenuProject&) override { ++windowFieldShows; }
    void setWindowSizeFields(const std::string& w, const std::string& h, bool enabled) override
    {
        sizeW = w, sizeH = h, sizeEnabled = enabled;
    }
    void setTimerIntervalField(const std::string& text) override { interval = text; }
    void showStartupChoice(StartupChoice c, const std::string& line, bool modify) override
    {
        choice = c, choiceCaption = line, modifyShown = modify;
    }
    void showButtonFields(const ButtonFields& f) override { buttonFields = f; }
    void showTextFields(const TextFields& f) override { textFields = f; }
    void setTextSizeFields(const std::string& w, const std::string& h) override { textSizeW = w, textSizeH = h; }

private:
    Designer& designer_;
};

}  // namespace qor::test
