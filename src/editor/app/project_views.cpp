#include "editor/app/project_views.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QPixmap>

#include "editor/app/editor_windows.h"
#include "editor/designer/properties_panel.h"
#include "editor/designer/worksheet_window.h"
#include "editor/platform/qt_text.h"
#include "picture/picture_file.h"

namespace qor {

Result<QImage> readPicture(const std::string& path)
{
    const QString file = toQt(path);
    if (!QFileInfo(file).isFile())
        return makeError(err::FileNotFound);
    QImage image = readPictureFile(file);
    if (image.isNull())
        return makeError(err::InvalidPicture);
    return image;
}

Result<QImage> ProjectViews::picture(const std::string& path)
{
    const QFileInfo info(toQt(path));
    if (!info.isFile())
        return makeError(err::FileNotFound);
    const qint64 modified = info.lastModified().toMSecsSinceEpoch();
    auto it = pictures_.find(path);
    if (it != pictures_.end() && it->second.modified == modified && it->second.size == info.size())
        return it->second.image;
    auto read = readPicture(path);
    if (read)
        pictures_[path] = Cached{modified, info.size(), *read};
    return read;
}

void ProjectViews::resetViews()
{
    pictures_.clear();
    startupChoice_ = StartupChoice::Nothing;
    if (windows_.isLoaded(WindowId::Worksheet)) {
        windows_.worksheet().removeElements();
        windows_.worksheet().background()->clear();
    }
    if (windows_.isLoaded(WindowId::PropertiesPanel))
        windows_.properties().resetElementSelector();
}

void ProjectViews::setCurrentFolder(const std::string& folder)
{
    QDir::setCurrent(toQt(folder));
}

Status ProjectViews::loadBackgroundImage(const std::string& path)
{
    if (!windows_.isLoaded(WindowId::Worksheet))
        return {};
    WorksheetWindow& sheet = windows_.worksheet();
    if (path.empty()) {
        sheet.background()->clear();
        sheet.setBackgroundStretched(true);
        return {};
    }
    auto read = picture(path);
    if (!read) {
        // A picture that cannot be shown leaves the background empty.
        sheet.background()->clear();
        return read.error();
    }
    sheet.background()->setPixmap(QPixmap::fromImage(*read));
    sheet.setBackgroundStretched(true);
    return {};
}

Status ProjectViews::loadButtonImage(int number, const std::string& path)
{
    if (!windows_.isLoaded(WindowId::Worksheet))
        return {};
    ButtonElement& button = windows_.worksheet().button(number);
    if (path.empty()) {
        button.showPicture(QImage());
        return {};
    }
    auto read = picture(path);
    if (!read)
        return read.error();
    button.showPicture(*read);
    return {};
}

QImage ProjectViews::buttonPicture(int number) const
{
    if (!windows_.isLoaded(WindowId::Worksheet) || !windows_.worksheet().hasButton(number))
        return {};
    const QPixmap p = windows_.worksheet().button(number).pixmap();
    return p.isNull() ? QImage() : p.toImage();
}

}  // namespace qor
