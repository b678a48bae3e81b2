#include "editor/platform/desktop_file_type_registry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include "editor/platform/qt_text.h"

namespace qor {
namespace {

constexpr const char* kMimePackageName = "application-x-qor.xml";
constexpr const char* kDesktopEntryName = "qor.desktop";

QString xmlEscaped(const QString& text)
{
    return text.toHtmlEscaped();
}

// Replaces the file whole, so that a desktop reading it never sees half of it.
bool writeWhole(const QString& path, const QByteArray& bytes)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(bytes);
    return file.commit();
}

}  // namespace

QByteArray mimePackageText(const QString& description)
{
    QString xml;
    xml += QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    xml += QStringLiteral("<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n");
    xml += QStringLiteral("  <mime-type type=\"%1\">\n").arg(QString::fromLatin1(DesktopFileTypeRegistry::kMimeType));
    xml += QStringLiteral("    <comment>%1</comment>\n").arg(xmlEscaped(description));
    xml += QStringLiteral("    <glob pattern=\"*.qor\"/>\n");
    xml += QStringLiteral("  </mime-type>\n");
    xml += QStringLiteral("</mime-info>\n");
    return xml.toUtf8();
}

QString desktopExecArgument(const QString& argument)
{
    // Two levels of escaping: the Exec quoting rule puts a backslash before
    // '"', '`', '$' and '\', and the key file's string rule then doubles
    // every backslash. "%" is the field code marker, written "%%".
    QString out = QStringLiteral("\"");
    for (const QChar c : argument) {
        if (c == QChar('"') || c == QChar('`') || c == QChar('$'))
            out += QStringLiteral("\\\\") + c;
        else if (c == QChar('\\'))
            out += QStringLiteral("\\\\\\\\");
        else if (c == QChar('%'))
            out += QStringLiteral("%%");
        else
            out += c;
    }
    return out + QChar('"');
}

QByteArray desktopEntryText(const QString& executable)
{
    QString entry;
    entry += QStringLiteral("[Desktop Entry]\n");
    entry += QStringLiteral("Type=Application\n");
    entry += QStringLiteral("Name=QOR\n");
    entry += QStringLiteral("Comment=Créateur de menus\n");
    entry += QStringLiteral("Exec=%1 %f\n").arg(desktopExecArgument(executable));
    entry += QStringLiteral("MimeType=%1;\n").arg(QString::fromLatin1(DesktopFileTypeRegistry::kMimeType));
    entry += QStringLiteral("Terminal=false\n");
    entry += QStringLiteral("Categories=Development;\n");
    return entry.toUtf8();
}

DesktopFileTypeRegistry::DesktopFileTypeRegistry(QString dataFolder)
    : findProgram([](const QString& program) { return QStandardPaths::findExecutable(program); }),
      startProgram([](const QString& program, const QStringList& arguments) {
          QProcess::startDetached(program, arguments);
      }),
      dataFolder_(dataFolder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                                       : std::move(dataFolder))
{
}

QString DesktopFileTypeRegistry::mimePackageFile() const
{
    return QDir(dataFolder_).filePath(QStringLiteral("mime/packages/") + QString::fromLatin1(kMimePackageName));
}

QString DesktopFileTypeRegistry::desktopEntryFile() const
{
    return QDir(dataFolder_).filePath(QStringLiteral("applications/") + QString::fromLatin1(kDesktopEntryName));
}

void DesktopFileTypeRegistry::registerProjectFiles(const std::string& executablePath,
                                                   const std::string& description)
{
    if (dataFolder_.isEmpty())
        return;
    const bool mimeWritten = writeWhole(mimePackageFile(), mimePackageText(toQt(description)));
    const bool entryWritten = writeWhole(desktopEntryFile(), desktopEntryText(toQt(executablePath)));
    if (mimeWritten) {
        const QString tool = findProgram(QStringLiteral("update-mime-database"));
        if (!tool.isEmpty())
            startProgram(tool, {QDir(dataFolder_).filePath(QStringLiteral("mime"))});
    }
    if (entryWritten) {
        const QString tool = findProgram(QStringLiteral("update-desktop-database"));
        if (!tool.isEmpty())
            startProgram(tool, {QDir(dataFolder_).filePath(QStringLiteral("applications"))});
    }
}

}  // namespace qor
