#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/project/document.h"
#include "core/wizard/button_pictures.h"
#include "core/wizard/creation_wizard.h"
#include "text/line_file.h"

namespace qor::test {

// Pictures without a platform: a file whose bytes begin with "PIC w h" is
// a picture of that size; any other existing file is no picture. A text
// button is "drawn" as such a file, 7 pixels per character of its caption
// and 10 + its font size high.
class FakeButtonPictures : public ButtonPictures {
public:
    std::vector<std::string> saved;   // "<state letter> <path>"

    static std::string pictureBytes(int width, int height)
    {
        return "PIC " + std::to_string(width) + " " + std::to_string(height);
    }

    Result<PixelSize> pictureSize(const std::string& path) override
    {
        auto bytes = readFileBytes(path);
        if (!bytes)
            return makeError(err::FileNotFound);
        int w = 0, h = 0;
        if (std::sscanf(bytes->c_str(), "PIC %d %d", &w, &h) != 2)
            return makeError(err::InvalidPicture);
        return PixelSize{w, h};
    }

    Result<PixelSize> saveTextButton(const WizardButton& entry, ButtonState state, const std::string& path) override
    {
        saved.push_back(std::string(1, char(state)) + " " + path);
        const PixelSize size{int(entry.caption.size()) * 7, 10 + entry.fontSize};
        if (Status s = writeFileAtomically(path, pictureBytes(size.width, size.height)); !s)
            return s.error();
        return size;
    }
};

// The window as the flows see it.
class FakeWizardView : public WizardView {
public:
    std::string shownCaption = "Assistant création";
    int refreshes = 0;
    std::vector<std::string> events;   // "hide", "close"

    std::string caption() override { return shownCaption; }
    void refresh() override { ++refreshes; }
    void hideWindow() override { events.push_back("hide"); }
    void closeWindow() override { events.push_back("close"); }
};

// A document that records the projects it is asked to open.
class FakeDocument : public Document {
public:
    std::vector<std::string> opened;

    SaveAnswer askToSave(bool) override { return SaveAnswer::NotSaved; }
    void newBlank() override {}
    bool newThroughWizard() override { return true; }
    void open() override {}
    void save() override {}
    void saveAs() override {}
    void reload() override {}
    void editSource() override {}
    void openRecent(const std::string&) override {}
    void showFileInfo() override {}
    void openPath(const std::string& path) override { opened.push_back(path); }
    void clearForQuit() override {}
    void setWindowSize(double, double) override {}
};

}  // namespace qor::test
