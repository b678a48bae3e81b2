#include "core/project/file_info.h"

#include <filesystem>

#include "model/menu_project.h"
#include "text/line_file.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr std::size_t kKeyLength = 8;  // "Editeur=", "Version=", "Fichier="

std::string withoutKey(const std::string& line)
{
    return line.substr(std::min(line.size(), leftChars(line, kKeyLength).size()));
}

}  // namespace

FileInfo readFileInfo(const std::string& filePath)
{
    const FileInfo unknown{kUnknownFileInfo, kUnknownFileInfo, kUnknownFileInfo, kUnknownFileInfo};
    std::error_code ec;
    if (filePath.empty() || !std::filesystem::is_regular_file(filePath, ec))
        return unknown;
    const auto size = std::filesystem::file_size(filePath, ec);
    if (ec)
        return unknown;

    FileInfo info = unknown;
    info.topLine = fileNameOf(filePath) + " (" + std::to_string(size) + " octets )";
    auto lines = readLineFile(filePath);
    if (!lines)
        return info;
    info.editor.clear();
    info.version.clear();
    info.fileVersion.clear();
    const auto& l = *lines;
    for (std::size_t i = 0; i < l.size(); ++i) {
        if (l[i] != "[Format]")
            continue;
        if (i + 1 < l.size()) info.editor = withoutKey(l[i + 1]);
        if (i + 2 < l.size()) info.version = withoutKey(l[i + 2]);
        if (i + 3 < l.size()) info.fileVersion = withoutKey(l[i + 3]);
        break;
    }
    if (info.fileVersion.empty())
        info.fileVersion = "1.0";
    return info;
}

AuthorFields authorFieldsOf(const MenuProject& project)
{
    return {project.authorName, project.authorEmail, project.authorWebSite, project.notes};
}

// A one-line field as the project keeps it: without the files' two
// separators, line breaks or NUL bytes, which a paste may bring.
std::string cleanOneLine(std::string_view typed)
{
    std::string out;
    for (char c : removeForbiddenChars(typed))
        if (c == '\r' || c == '\n')
            out += ' ';
        else if (c != '\0')
            out += c;
    return out;
}

void applyAuthorFields(MenuProject& project, const AuthorFields& fields)
{
    project.authorName = cleanOneLine(fields.name);
    project.authorEmail = cleanOneLine(fields.email);
    project.authorWebSite = cleanOneLine(fields.webSite);
    project.notes = cleanNotes(fields.notes);
}

std::string cleanNotes(std::string_view typed)
{
    return replaceAll(typed, kLineBreakMark, "*");
}

}  // namespace qor
