#include "editor/app/project_views.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QPixmap>

#include "core/designer/element_selector.h"
#include "editor/app/editor_windows.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_text.h"

namespace qor {

Result<QImage> readPicture(const std::string& path)
{
    const QString file = toQt(path);
    if (!QFileInfo(file).isFile())
        return makeError(err::FileNotFound);
    QImageReader reader(file);
    // The extension may lie (a GIF saved as ".bmp"): trust the content.
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull())
        return makeError(err::InvalidPicture);
    return image;
}

void ProjectViews::resetViews()
{
    buttonPictures_.clear();
    currentButton_ = 0;
    startupChoice_ = StartupChoice::Nothing;
    if (windows_.isLoaded(WindowId::Worksheet))
        windows_.worksheet().background()->clear();
    if (windows_.isLoaded(WindowId::PropertiesPanel))
        windows_.properties().resetElementSelector();
}

void ProjectViews::setCurrentFolder(const std::string& folder)
{
    QDir::setCurrent(toQt(folder));
}

Status ProjectViews::loadBackgroundImage(const std::string& path)
{
    QLabel* background = windows_.worksheet().background();
    if (path.empty()) {
        background->clear();
        return {};
    }
    auto picture = readPicture(path);
    if (!picture)
        return picture.error();
    background->setPixmap(QPixmap::fromImage(*picture));
    return {};
}

Status ProjectViews::loadButtonImage(int number, const std::string& path)
{
    if (path.empty()) {
        buttonPictures_.erase(number);
        return {};
    }
    auto picture = readPicture(path);
    if (!picture)
        return picture.error();
    buttonPictures_[number] = *picture;
    return {};
}

void ProjectViews::buttonCreated(int number, const std::string& kind)
{
    windows_.properties().addElementEntry(buttonEntry(number, kind));
}

void ProjectViews::textCreated(int number)
{
    windows_.properties().addElementEntry(textEntry(number));
}

QImage ProjectViews::buttonPicture(int number) const
{
    const auto it = buttonPictures_.find(number);
    return it == buttonPictures_.end() ? QImage() : it->second;
}

}  // namespace qor
