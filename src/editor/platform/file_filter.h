#pragma once

#include <QStringList>

#include <string_view>

namespace qor {

// The editor writes its file dialog filters as pairs of description and
// patterns separated by "|": "Fichier QOR v1.1 (*.qor) | *.qor" or
// "Son *.wav, *.mp3 | *.wav;*.mp3". Qt wants one "Description (*.a *.b)"
// entry per pair. A description that already ends with its patterns in
// parentheses keeps them once; a lone last description matches everything.
QStringList qtNameFilters(std::string_view filter);

}  // namespace qor
