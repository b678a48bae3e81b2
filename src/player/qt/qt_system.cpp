#include "player/qt/qt_system.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QUrl>

namespace qor::player {
namespace {

QString q(const std::string& s) { return QString::fromStdString(s); }

// Files a script may read whole: well past any text a menu shows.
constexpr qint64 kMaxReadBytes = qint64(256) * 1024 * 1024;

}  // namespace

std::string QtSystem::driveLetterOf(const std::string&) const
{
    return kMenuDriveLetter;
}

bool QtSystem::fileExists(const std::string& path) const
{
    return !path.empty() && QFileInfo(q(path)).isFile();
}

std::optional<std::string> QtSystem::readFile(const std::string& path) const
{
    QFile file(q(path));
    if (path.empty() || !file.open(QIODevice::ReadOnly) || file.size() > kMaxReadBytes)
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    return std::string(bytes.constData(), std::size_t(bytes.size()));
}

bool QtSystem::openWithDesktop(const std::string& target)
{
    const QString t = q(target);
    const QUrl url = QFileInfo::exists(t) ? QUrl::fromLocalFile(t) : QUrl::fromUserInput(t);
    return QFileInfo::exists(t) || url.scheme() != QLatin1String("file") ? QDesktopServices::openUrl(url) : false;
}

bool QtSystem::startProgram(const std::string& program, const std::string& arguments)
{
    const QString p = q(program);
    if (!QFileInfo(p).isFile() && QStandardPaths::findExecutable(p).isEmpty())
        return false;
    return QProcess::startDetached(p, QProcess::splitCommand(q(arguments)));
}

bool QtSystem::startMenu(const std::string& menuFile)
{
    return QProcess::startDetached(QCoreApplication::applicationFilePath(), {q(menuFile)});
}

// Only the drive that holds the menu can be told apart here; a named
// letter means nothing on this system.
void QtSystem::ejectTray(const std::string& driveLetter, bool open)
{
    if (!driveLetter.empty() || menuFolder_.empty())
        return;
    const QString device = QString::fromUtf8(QStorageInfo(q(menuFolder_)).device());
    if (!device.startsWith(QLatin1String("/dev/sr")) && !device.startsWith(QLatin1String("/dev/cdrom")))
        return;
    const QString eject = QStandardPaths::findExecutable(QStringLiteral("eject"));
    if (eject.isEmpty())
        return;
    QProcess::startDetached(eject, open ? QStringList{device} : QStringList{QStringLiteral("-t"), device});
}

}  // namespace qor::player
