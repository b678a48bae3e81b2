#pragma once

#include <QString>
#include <QStringList>

#include <functional>

#include "core/ports/file_type_registry.h"

namespace qor {

// The desktop's registration of project files on Linux: a shared-mime-info
// package that names "*.qor" files application/x-qor, and an application
// entry that opens that type with this editor, both in the user's data
// folder; then the desktop's databases are refreshed by their own tools when
// they are installed. Nothing waits for those tools and nothing is reported.
class DesktopFileTypeRegistry : public FileTypeRegistry {
public:
    static constexpr const char* kMimeType = "application/x-qor";

    // dataFolder empty: the user's data folder (~/.local/share).
    explicit DesktopFileTypeRegistry(QString dataFolder = {});

    void registerProjectFiles(const std::string& executablePath, const std::string& description) override;

    // The files written.
    QString mimePackageFile() const;
    QString desktopEntryFile() const;

    // How the refresh tools are found and started; tests replace them.
    std::function<QString(const QString& program)> findProgram;
    std::function<void(const QString& program, const QStringList& arguments)> startProgram;

private:
    QString dataFolder_;
};

// The shared-mime-info package: the type, its comment and its glob.
QByteArray mimePackageText(const QString& description);

// The application entry that opens the type with executable.
QByteArray desktopEntryText(const QString& executable);

// An argument of a desktop entry's Exec line, quoted and escaped so that
// blanks, quotes, "$", "`", "\" and "%" in it stay what they are.
QString desktopExecArgument(const QString& argument);

}  // namespace qor
