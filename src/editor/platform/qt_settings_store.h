#pragma once

#include <QSet>
#include <QString>

#include <map>
#include <memory>

#include "core/ports/settings_store.h"

class QObject;
class QSettings;

namespace qor {

// The per-user settings store: one INI file per application name, in the
// user's configuration folder (~/.config/QOR/QOR.ini for "QOR"). Section
// "General" is the file's own [General] section; every other section is a
// section of that name. Sections and keys are found regardless of letter
// case, as the store of the original platform does, so a value written under
// "Langue" reads back under "langue".
//
// Writing a settings file means replacing it whole and waiting for the disk,
// which can cost more than everything else a start does. So values saved
// one after the other (the start's bookkeeping, the association) reach the
// disk together, a moment later, once the windows have painted: after
// kFlushDelayMs of the event loop, at flush(), or when the store goes. A
// save fails at once when the file cannot be written.
class QtSettingsStore : public SettingsStore {
public:
    // folder empty: the user's configuration folder; otherwise the files go
    // there (tests use a temporary folder).
    static constexpr int kFlushDelayMs = 250;

    explicit QtSettingsStore(QString folder = {});
    ~QtSettingsStore() override;

    std::string get(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& defaultValue) override;
    bool save(const std::string& application, const std::string& section,
              const std::string& key, const std::string& value) override;

    // Writes every pending value now; false when a file could not be written.
    bool flush();

    // The file that holds an application's settings.
    QString fileName(const std::string& application) const;

private:
    QSettings& settingsOf(const std::string& application);
    void scheduleFlush();

    QString folder_;
    std::map<QString, std::unique_ptr<QSettings>> open_;
    // Owns the pending flush, so that it dies with the store.
    std::unique_ptr<QObject> flushContext_;
    bool flushPending_ = false;
    // The files found writable since the last flush.
    QSet<QString> writableChecked_;
};

}  // namespace qor
