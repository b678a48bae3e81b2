#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace qor {

// How the editor finds a plain text editor for "view the source": the first
// of a short list of common desktop text editors that is on the PATH, else
// the desktop's default application for plain text. Never QOR itself: a
// project file opened "by default" would come straight back to us.

// The editors tried, in order.
const QStringList& commonTextEditors();

// What the choice needs to know about the machine.
struct TextEditorEnvironment {
    // The full path of a program on the PATH, or "" when it is not there.
    std::function<QString(const QString& program)> findExecutable;
    // The Exec line of the desktop's default application for text/plain
    // ("mousepad %U"), or "" when the desktop names none.
    std::function<QString()> defaultTextEditorExec;
    // QOR's own executable, never chosen.
    QString ownExecutable;
};

struct ProgramCall {
    QString program;
    QStringList arguments;
    friend bool operator==(const ProgramCall&, const ProgramCall&) = default;
};

// The program and arguments that open file in a text editor, or nothing
// when the machine has none.
std::optional<ProgramCall> chooseTextEditor(const QString& file, const TextEditorEnvironment& env);

// The desktop entries that mimeapps.list files name for mimeType, most
// wanted first: every file's "[Default Applications]" in the order given
// (the user's files before the system's), then their "[Added Associations]".
// Reading the files ourselves keeps the lookup instant; the desktop's own
// query tool is a script that may take its time.
QStringList desktopEntriesFor(const QString& mimeType, const QStringList& mimeappsContents);

// A desktop entry's Exec line made into a call on file: the file takes the
// place of %f, %F, %u or %U (or goes last when there is none), the other
// field codes are dropped, "%%" is a "%".
std::optional<ProgramCall> callFromDesktopExec(const QString& exec, const QString& file);

}  // namespace qor
