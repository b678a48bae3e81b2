#include "editor/platform/qt_desktop.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

#include <cerrno>
#include <csignal>
#include <sys/types.h>

#include "editor/platform/qt_text.h"

namespace qor {

QUrl urlOfTarget(const std::string& target)
{
    const QString text = toQt(target).trimmed();
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]+:"));
    // "C:\..." has a one-letter "scheme": that is a drive, not an address.
    if (scheme.match(text).hasMatch())
        return QUrl(text, QUrl::TolerantMode);
    QString path = text;
    path.replace(QChar('\\'), QChar('/'));
    return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
}

namespace {

// The Exec line of a desktop entry's main group, or "".
QString execOfDesktopEntry(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    bool inMainGroup = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(QChar('[')))
            inMainGroup = line == QStringLiteral("[Desktop Entry]");
        else if (inMainGroup && line.startsWith(QStringLiteral("Exec=")))
            return line.mid(5);
    }
    return {};
}

}  // namespace

QString defaultTextEditorExec()
{
    // The association files, the user's first: mimeapps.list in the config
    // folders, then mimeapps.list and the older defaults.list beside the
    // desktop entries.
    QStringList files;
    for (const QString& dir : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation))
        files << dir + QStringLiteral("/mimeapps.list");
    for (const QString& dir : QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation))
        files << dir + QStringLiteral("/mimeapps.list") << dir + QStringLiteral("/defaults.list");
    QStringList contents;
    for (const QString& path : files) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly | QIODevice::Text))
            contents << QString::fromUtf8(file.readAll());
    }
    for (const QString& entry : desktopEntriesFor(QStringLiteral("text/plain"), contents)) {
        const QString path = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, entry);
        if (path.isEmpty())
            continue;
        const QString exec = execOfDesktopEntry(path);
        if (!exec.isEmpty())
            return exec;
    }
    return {};
}

QtDesktop::QtDesktop()
{
    environment_.findExecutable = [](const QString& program) {
        return QStandardPaths::findExecutable(program);
    };
    environment_.defaultTextEditorExec = [] { return defaultTextEditorExec(); };
    environment_.ownExecutable = QCoreApplication::applicationFilePath();
}

bool QtDesktop::open(const std::string& target, WindowShow)
{
    if (toQt(target).trimmed().isEmpty())
        return false;
    return QDesktopServices::openUrl(urlOfTarget(target));
}

std::optional<ProcessId> QtDesktop::start(const std::string& commandLine, WindowShow)
{
    QStringList parts = QProcess::splitCommand(toQt(commandLine));
    if (parts.isEmpty())
        return std::nullopt;
    const QString program = parts.takeFirst();
    qint64 pid = 0;
    if (!QProcess::startDetached(program, parts, QDir::currentPath(), &pid) || pid <= 0)
        return std::nullopt;
    return ProcessId(pid);
}

bool QtDesktop::isRunning(ProcessId process)
{
    if (process <= 0)
        return false;
    // A detached program is not our child: it is reaped by the system as soon
    // as it ends, so "no such process" means it has finished.
    return ::kill(pid_t(process), 0) == 0 || errno == EPERM;
}

void QtDesktop::terminate(ProcessId process)
{
    if (process > 0)
        ::kill(pid_t(process), SIGTERM);
}

bool QtDesktop::editText(const std::string& path)
{
    const auto call = chooseTextEditor(toQt(path), environment_);
    if (!call)
        return false;
    return QProcess::startDetached(call->program, call->arguments, QDir::currentPath());
}

}  // namespace qor
