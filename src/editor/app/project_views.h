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

// The editor's side of the project hooks: the pictures a reset or a load
// puts on the worksheet (background, buttons) and the current folder. The
// element selector and the elements themselves follow the designer.
class ProjectViews final : public ProjectHooks {
public:
    explicit ProjectViews(EditorWindows& windows) : windows_(windows) {}

    void resetViews() override;
    void setCurrentFolder(const std::string& folder) override;
    Status loadBackgroundImage(const std::string& path) override;
    Status loadButtonImage(int number, const std::string& path) override;
    void buttonCreated(int, const std::string&) override {}
    void textCreated(int) override {}
    void setLoading(bool loading) override { loading_ = loading; }
    void showStartupChoice(StartupChoice choice) override { startupChoice_ = choice; }

    bool loading() const { return loading_; }
    StartupChoice startupChoice() const { return startupChoice_; }
    // The picture button number shows, null when it shows none.
    QImage buttonPicture(int number) const;

private:
    // A picture read once is kept while its file stays as it was: hover and
    // pressed previews switch pictures on every pointer move.
    Result<QImage> picture(const std::string& path);

    struct Cached {
        qint64 modified = 0;
        qint64 size = 0;
        QImage image;
    };

    EditorWindows& windows_;
    std::map<std::string, Cached> pictures_;
    bool loading_ = false;
    StartupChoice startupChoice_ = StartupChoice::Nothing;
};

}  // namespace qor
