#pragma once

#include <QImage>

#include <map>
#include <string>

#include "core/project/project_hooks.h"
#include "text/error.h"

namespace qor {

class EditorWindows;

// Reads a picture file as the worksheet shows it: error 53 when there is no
// such file, 481 when it is not a picture this editor can read.
Result<QImage> readPicture(const std::string& path);

// The editor's side of the project hooks: what a reset or a load changes on
// the worksheet and in the properties panel. Until the designer places
// element widgets, an element is its selector entry and, for a button, the
// picture it will show.
class ProjectViews final : public ProjectHooks {
public:
    explicit ProjectViews(EditorWindows& windows) : windows_(windows) {}

    void resetViews() override;
    void setCurrentFolder(const std::string& folder) override;
    Status loadBackgroundImage(const std::string& path) override;
    Status loadButtonImage(int number, const std::string& path) override;
    void buttonCreated(int number, const std::string& kind) override;
    void textCreated(int number) override;
    void setLoading(bool loading) override { loading_ = loading; }
    void showStartupChoice(StartupChoice choice) override { startupChoice_ = choice; }

    // The selection: which button and which text box the panel works on
    // (-1: none). A reset makes the button template, number 0, current.
    int currentButton() const { return currentButton_; }
    int currentText() const { return currentText_; }
    bool loading() const { return loading_; }
    StartupChoice startupChoice() const { return startupChoice_; }
    // The normal picture of button number, null when it shows none.
    QImage buttonPicture(int number) const;

private:
    EditorWindows& windows_;
    std::map<int, QImage> buttonPictures_;
    int currentButton_ = -1;
    int currentText_ = -1;
    bool loading_ = false;
    StartupChoice startupChoice_ = StartupChoice::Nothing;
};

}  // namespace qor
