#pragma once

#include <QString>

namespace qor {

class WindowHooks;

// Texts the editor sets on its windows after their translation scripts ran:
// placeholders, step headers, status lines, captions built from a number or
// a path. Each has a phrase number of its own (44 on, after the messages'
// phrases), so a language pack gives them with its other phrases. A text
// made of a fixed beginning or end around a value (a button number, a
// folder) has one phrase for each fixed part.
//
// The text as the interface language shows it: the French text itself
// when no language is active, when the language's phrase list is too short
// to hold its phrase, or when the text is none of the run-time texts.
QString inInterfaceLanguage(const WindowHooks& hooks, const QString& french);

}  // namespace qor
