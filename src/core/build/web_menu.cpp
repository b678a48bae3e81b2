#include "core/build/web_menu.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <set>

#include "core/build/compile_plan.h"
#include "core/build/compile_request.h"
#include "core/build/menu_data_file.h"
#include "model/menu_data_layout.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr const char* kDataName = "menu.dat";

std::string base64(std::string_view bytes)
{
    static constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    std::size_t i = 0;
    for (; i + 2 < bytes.size(); i += 3) {
        const unsigned v = unsigned(std::uint8_t(bytes[i])) << 16 | unsigned(std::uint8_t(bytes[i + 1])) << 8 |
                           unsigned(std::uint8_t(bytes[i + 2]));
        out += {kDigits[v >> 18], kDigits[(v >> 12) & 63], kDigits[(v >> 6) & 63], kDigits[v & 63]};
    }
    if (i < bytes.size()) {
        const bool two = i + 1 < bytes.size();
        const unsigned v = unsigned(std::uint8_t(bytes[i])) << 16 | (two ? unsigned(std::uint8_t(bytes[i + 1])) << 8 : 0);
        out += {kDigits[v >> 18], kDigits[(v >> 12) & 63], two ? kDigits[(v >> 6) & 63] : '=', '='};
    }
    return out;
}

// A JavaScript string literal: names may hold quotes, accents, anything.
std::string jsString(std::string_view s)
{
    std::string out = "\"";
    for (unsigned char c : s) {
        if (c == '"' || c == '\\')
            out += '\\', out += char(c);
        else if (c < 0x20 || c == '<')
            out += "\\x" + std::string{"0123456789abcdef"[c >> 4], "0123456789abcdef"[c & 15]};
        else
            out += char(c);
    }
    return out + "\"";
}

std::string number(double v)
{
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.9g", std::isfinite(v) ? v : 0.0);
    return buf;
}

// Positions in twips, as the data holds them: the page rounds them as the
// player does. Only pictures the export copied are named (lower-case names
// in `present`): a missing one waits for the player's grey box.
std::string previewScript(const MenuProject& project, const std::set<std::string>& present)
{
    const auto copied = [&](const std::string& path) { return present.count(lowerAscii(fileNameOf(path))) != 0; };
    std::string out = "{width:" + number(project.width) + ",height:" + number(project.height) +
                      ",fullScreen:" + (project.fullScreen ? "true" : "false") +
                      ",backColor:" + std::to_string(std::uint32_t(project.backgroundColor)) +
                      ",image:" + jsString(copied(project.backgroundImage) ? fileNameOf(project.backgroundImage) : "") +
                      ",buttons:[";
    bool first = true;
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project.button(n);
        if (b.kind == button_kind::deleted || b.normalImage.empty() || !copied(b.normalImage))
            continue;
        const std::string suffix(b.transparent ? menu_data_layout::kTransparentSuffix : std::string_view());
        out += first ? "" : ",";
        first = false;
        out += "[" + number(b.left) + "," + number(b.top) + "," + jsString(fileNameOf(b.normalImage) + suffix) + "]";
    }
    return out + "]}";
}

// A file name as a relative address: every byte but the unreserved ones
// percent-encoded, as the page's script encodes them.
std::string urlPath(std::string_view name)
{
    std::string out;
    for (unsigned char c : name) {
        if (std::isalnum(c) || c == '-' || c == '_' || c == '.' || c == '~' || c == '!' || c == '*' || c == '(' ||
            c == ')' || c == '\'')
            out += char(c);
        else
            out += '%' + std::string{"0123456789ABCDEF"[c >> 4], "0123456789ABCDEF"[c & 15]};
    }
    return out;
}

}  // namespace

bool embeddedInWebMenu(const std::string& name)
{
    for (const char* ext : {".bmp", ".gif", ".jpg", ".jpeg", ".png", ".ico", ".cur", ".dat"})
        if (endsWithNoCase(name, ext))
            return true;
    return false;
}

std::string webMenuScript(const std::string& dataName,
                          const std::vector<std::pair<std::string, std::string>>& files)
{
    std::string out = "window.QOR_MENU={folder:" + jsString(kWebFolderName) + ",data:" + jsString(dataName) +
                      ",\nfiles:{";
    bool first = true;
    for (const auto& [name, bytes] : files) {
        out += first ? "\n" : ",\n";
        first = false;
        out += jsString(name) + ":\"" + base64(bytes) + "\"";
    }
    return out + "}};\n";
}

Status writeWebMenu(FileSystem& files, const MenuProject& project, const MenuDataInfo& info,
                    const std::string& pageFolder, const std::string& programFolder)
{
    const std::string folder = pageFolder + kWebFolderName + "/";
    if (!files.isFolder(folder))
        if (Status s = files.createFolder(folder); !s)
            return s;
    // The same pictures and sounds a compilation copies into qor/; a file
    // that is missing stays missing, as on the CD, and the player says so.
    CompileRequest request = compileDefaults(project, folder);
    request.subMenu = false;
    const CompilePlan plan = compilePlan(project, request, programFolder);
    std::vector<std::pair<std::string, std::string>> embedded;
    std::set<std::string> copied;
    for (const CompileAction& a : plan.actions) {
        if (a.kind != CompileAction::Kind::Copy || a.source.starts_with(programFolder))
            continue;
        const std::string name = fileNameOf(a.target);
        if (copied.count(lowerAscii(name)))
            continue;
        Result<std::string> bytes = files.readFile(a.source);
        if (!bytes)
            continue;
        copied.insert(lowerAscii(name));
        if (Status s = files.writeFile(folder + name, *bytes); !s)
            return s;
        if (embeddedInWebMenu(name))
            embedded.emplace_back(name, std::move(*bytes));
    }
    // The data alone, with no player program before it.
    const std::string data = folder + kDataName;
    if (Status s = files.writeFile(data, {}); !s)
        return s;
    if (Status s = writeMenuData(files, project, info, data); !s)
        return s;
    Result<std::string> dataBytes = files.readFile(data);
    if (!dataBytes)
        return Status(dataBytes.error());
    embedded.emplace_back(kDataName, std::move(*dataBytes));
    if (Status s = files.writeFile(folder + "menu.js", webMenuScript(kDataName, embedded)); !s)
        return s;

    const std::string player = programFolder + "web/";
    for (const char* name : kWebPlayerFiles)
        if (Status s = files.copyFile(player + name, folder + name, {}); !s)
            return s;
    Result<std::string> page = files.readFile(player + kWebPageTemplate);
    if (!page)
        return Status(page.error());
    // The background is fetched while the scripts load, as a page showing
    // only that picture would.
    std::string preload;
    if (!project.backgroundImage.empty() && copied.count(lowerAscii(fileNameOf(project.backgroundImage))))
        preload = "<link rel=\"preload\" as=\"image\" href=\"" + std::string(kWebFolderName) + "/" +
                  urlPath(fileNameOf(project.backgroundImage)) + "\">";
    std::string text = std::move(*page);
    // The window as first shown is painted by the page itself, before the
    // menu's data and the player are read.
    for (const auto& [marker, value] : {std::pair<std::string, std::string>{"@FOLDER@", kWebFolderName},
                                        {"@PRELOAD@", preload},
                                        {"@PREVIEW@", previewScript(project, copied)}})
        for (std::size_t at = text.find(marker); at != std::string::npos; at = text.find(marker, at + value.size()))
            text.replace(at, marker.size(), value);
    return files.writeFile(pageFolder + kWebPageName, text);
}

}  // namespace qor
