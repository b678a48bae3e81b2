#include "editor/platform/qt_settings_store.h"

#include <QDir>
#include <QEvent>
#include <QObject>
#include <QSettings>
#include <QTimer>

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

// Opens section of settings (nothing for "General") in its stored spelling,
// and closes it again when the operation is over.
class SectionScope {
public:
    SectionScope(QSettings& settings, const QString& section) : settings_(settings)
    {
        if (!isGeneral(section)) {
            settings_.beginGroup(storedSpelling(settings_.childGroups(), section));
            open_ = true;
        }
    }
    ~SectionScope()
    {
        if (open_)
            settings_.endGroup();
    }
    SectionScope(const SectionScope&) = delete;
    SectionScope& operator=(const SectionScope&) = delete;

private:
    QSettings& settings_;
    bool open_ = false;
};

// Holds the pending flush, and keeps each file from writing itself at the
// event loop's next turn, as QSettings would after every change: that turn
// paints the windows of a start, and the write would come before them.
class FlushContext : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::UpdateRequest; }
};

}  // namespace

QtSettingsStore::QtSettingsStore(QString folder)
    : folder_(std::move(folder)), flushContext_(std::make_unique<FlushContext>())
{
}

QtSettingsStore::~QtSettingsStore()
{
    flush();
}

QString QtSettingsStore::fileName(const std::string& application) const
{
    const QString app = toQt(application);
    if (folder_.isEmpty())
        return QSettings(QSettings::IniFormat, QSettings::UserScope, app, app).fileName();
    return QDir(folder_).filePath(app + QStringLiteral(".ini"));
}

QSettings& QtSettingsStore::settingsOf(const std::string& application)
{
    const QString file = fileName(application);
    auto& settings = open_[file];
    if (!settings) {
        settings = std::make_unique<QSettings>(file, QSettings::IniFormat);
        settings->installEventFilter(flushContext_.get());
    }
    return *settings;
}

std::string QtSettingsStore::get(const std::string& application, const std::string& section,
                                 const std::string& key, const std::string& defaultValue)
{
    QSettings& settings = settingsOf(application);
    SectionScope scope(settings, toQt(section));
    const QString stored = storedSpelling(settings.childKeys(), toQt(key));
    if (!settings.contains(stored))
        return defaultValue;
    return fromQt(settings.value(stored).toString());
}

bool QtSettingsStore::save(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value)
{
    QSettings& settings = settingsOf(application);
    // Asked once per burst: for a file not written yet, each answer makes
    // and drops a temporary file beside it.
    const QString file = settings.fileName();
    if (!writableChecked_.contains(file)) {
        if (!settings.isWritable())
            return false;
        writableChecked_.insert(file);
    }
    {
        SectionScope scope(settings, toQt(section));
        settings.setValue(storedSpelling(settings.childKeys(), toQt(key)), toQt(value));
    }
    scheduleFlush();
    return true;
}

void QtSettingsStore::scheduleFlush()
{
    if (flushPending_)
        return;
    flushPending_ = true;
    QTimer::singleShot(kFlushDelayMs, flushContext_.get(), [this] { flush(); });
}

bool QtSettingsStore::flush()
{
    flushPending_ = false;
    writableChecked_.clear();
    bool ok = true;
    for (auto& [file, settings] : open_) {
        settings->sync();
        ok = ok && settings->status() == QSettings::NoError;
    }
    return ok;
}

}  // namespace qor
