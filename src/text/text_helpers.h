#pragma once

#include <string>
#include <string_view>

namespace qor {

// The two characters that the file formats use as separators and that never
// occur in scripts or texts: "¤" (line break mark) and "¬" (line separator
// of the compiled menu data).
inline constexpr std::string_view kLineBreakMark = "\u00A4";    // ¤
inline constexpr std::string_view kLineSeparatorMark = "\u00AC"; // ¬
inline constexpr std::string_view kForbiddenCharMessage = "Caratère interdit !";

// True when text holds "¤" or "¬".
bool hasForbiddenChars(std::string_view text);

// text without any "¤" or "¬".
std::string removeForbiddenChars(std::string_view text);

// Every CR LF of text written as "¤" (a lone CR or LF stays as it is).
std::string encodeLineBreaks(std::string_view text);

// Every "¤" of text read back as CR LF.
std::string decodeLineBreaks(std::string_view text);

// Path helpers. Both "\" and "/" separate folders, so that a path written on
// Windows ("C:\img\b1.gif") still gives "b1.gif".

// The part behind the last separator, or the whole path when there is none.
std::string fileNameOf(std::string_view path);

// The path up to and including its last separator, or "" when there is none.
std::string folderOf(std::string_view path);

// The folder with a separator at its end: "/a/b" -> "/a/b/"; "" stays "".
std::string withTrailingSeparator(std::string_view folder);

// True when path holds a "\" or "/".
bool hasSeparator(std::string_view path);

// Letter case. The rules work on UTF-8 and fold ASCII letters and the
// accented letters of Windows-1252 (é/É, œ/Œ ...).
char32_t lowerCodePoint(char32_t c);
char32_t upperCodePoint(char32_t c);
std::string toLowerText(std::string_view text);
std::string toUpperText(std::string_view text);
bool equalsNoCase(std::string_view a, std::string_view b);

// Compares a and b ignoring letter case, character by character: <0, 0, >0.
int compareNoCase(std::string_view a, std::string_view b);

// ASCII letters only, for names whose case a language ignores (script
// identifiers): other bytes are compared and copied as they are.
std::string lowerAscii(std::string_view text);
bool equalsNoCaseAscii(std::string_view a, std::string_view b);

// Replaces every occurrence of what in text by with, regardless of case.
std::string replaceNoCase(std::string_view text, std::string_view what, std::string_view with);

// Replaces every occurrence of what in text by with, case sensitive.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

// True when text begins with prefix (case ignored) and is longer than it.
bool beginsWithAndLonger(std::string_view text, std::string_view prefix);

// True when text begins with prefix, case ignored.
bool startsWithNoCase(std::string_view text, std::string_view prefix);

// True when text ends with suffix, case ignored.
bool endsWithNoCase(std::string_view text, std::string_view suffix);

// The first n characters (code points) of a UTF-8 text.
std::string leftChars(std::string_view text, std::size_t n);

// text without its first n characters (code points); "" when it has no more.
std::string_view dropChars(std::string_view text, std::size_t n);

}  // namespace qor
