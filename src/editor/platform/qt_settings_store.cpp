#include "editor/platform/qt_settings_store.h"

#include <QDir>
#include <QSettings>

#include "editor/platform/qt_text.h"

namespace qor {
namespace {

// QSettings keeps its top-level keys in [General]; a group of that name
// would be written as [%General]. So "General" maps to the top level.
bool isGeneral(const QString& section)
{
    return section.compare(QStringLiteral("General"), Qt::CaseInsensitive) == 0;
}

// The stored spelling of name among names, or name itself when none matches.
QString storedSpelling(const QStringList& names, const QString& name)
{
    for (const QString& n : names) {
        if (n.compare(name, Qt::CaseInsensitive) == 0)
            return n;
    }
    return name;
}

// Opens section of settings (nothing for "General") in its stored spelling.
void enterSection(QSettings& settings, const QString& section)
{
    if (!isGeneral(section))
        settings.beginGroup(storedSpelling(settings.childGroups(), section));
}

}  // namespace

QtSettingsStore::QtSettingsStore(QString folder) : folder_(std::move(folder)) {}

QString QtSettingsStore::fileName(const std::string& application) const
{
    const QString app = toQt(application);
    if (folder_.isEmpty())
        return QSettings(QSettings::IniFormat, QSettings::UserScope, app, app).fileName();
    return QDir(folder_).filePath(app + QStringLiteral(".ini"));
}

std::string QtSettingsStore::get(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& defaultValue)
{
    QSettings settings(fileName(application), QSettings::IniFormat);
    enterSection(settings, toQt(section));
    const QString stored = storedSpelling(settings.childKeys(), toQt(key));
    if (!settings.contains(stored))
        return defaultValue;
    return fromQt(settings.value(stored).toString());
}

bool QtSettingsStore::save(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value)
{
    QSettings settings(fileName(application), QSettings::IniFormat);
    if (!settings.isWritable())
        return false;
    enterSection(settings, toQt(section));
    settings.setValue(storedSpelling(settings.childKeys(), toQt(key)), toQt(value));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

}  // namespace qor
