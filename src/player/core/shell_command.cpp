#include "player/core/shell_command.h"

#include "model/menu_data_reader.h"
#include "text/text_helpers.h"

namespace qor::player {
namespace {

std::string_view trim(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t'))
        s.remove_suffix(1);
    return s;
}

// One pair of quotes around the whole text goes.
std::string_view unquote(std::string_view s)
{
    s = trim(s);
    if (s.size() >= 2 && s.front() == '"' && s.back() == '"')
        s = trim(s.substr(1, s.size() - 2));
    return s;
}

bool isAddress(std::string_view s)
{
    for (std::string_view scheme : {"http:", "https:", "ftp:", "mailto:", "www.", "file:"})
        if (startsWithNoCase(s, scheme))
            return true;
    return false;
}

bool isMenuFile(const std::string& path, const SystemPort& system)
{
    std::optional<std::string> bytes = system.readFile(path);
    return bytes && findMenuData(*bytes).has_value();
}

// The program and the rest: a quoted program, or the text up to the first blank.
std::pair<std::string_view, std::string_view> splitProgram(std::string_view s)
{
    if (!s.empty() && s.front() == '"') {
        const std::size_t close = s.find('"', 1);
        if (close != std::string_view::npos)
            return {s.substr(1, close - 1), trim(s.substr(close + 1))};
    }
    const std::size_t blank = s.find(' ');
    if (blank == std::string_view::npos)
        return {s, {}};
    return {s.substr(0, blank), trim(s.substr(blank + 1))};
}

}  // namespace

ShellTarget classifyCommand(std::string_view command, const MenuPlace& place, const SystemPort& system)
{
    const std::string expanded = expandPlaceholders(command, place);
    std::string_view s = unquote(expanded);
    if (isAddress(s))
        return {ShellTarget::Kind::Address, std::string(s), {}};
    if (equalsNoCaseAscii(s, "explorer") || startsWithNoCase(s, "explorer ")) {
        std::string_view what = unquote(s.substr(8));
        if (isAddress(what))
            return {ShellTarget::Kind::Address, std::string(what), {}};
        return {ShellTarget::Kind::Explore, resolveMenuPath(what, place, place.cdRoot), {}};
    }
    // The whole text may be a path with blanks in it.
    const std::string whole = resolveMenuPath(s, place, place.cdRoot);
    auto [program, arguments] = splitProgram(s);
    std::string path = system.fileExists(whole) ? whole : resolveMenuPath(program, place, place.cdRoot);
    if (path == whole)
        arguments = {};
    if (endsWithNoCase(path, ".exe") && isMenuFile(path, system))
        return {ShellTarget::Kind::SubMenu, path, {}};
    if (!endsWithNoCase(path, ".exe") && system.fileExists(path))
        return {ShellTarget::Kind::Document, path, {}};
    if (system.fileExists(path))
        return {ShellTarget::Kind::Program, path, std::string(arguments)};
    return {ShellTarget::Kind::Program, std::string(program), std::string(arguments)};
}

script::HostResult runCommand(std::string_view command, const MenuPlace& place, SystemPort& system)
{
    const ShellTarget t = classifyCommand(command, place, system);
    bool started = false;
    switch (t.kind) {
    case ShellTarget::Kind::Address:
        system.openWithDesktop(t.target);
        return script::HostResult::ok(script::Value::integer(0));
    case ShellTarget::Kind::Explore:
    case ShellTarget::Kind::Document:
        started = system.openWithDesktop(t.target);
        break;
    case ShellTarget::Kind::SubMenu:
        started = system.startMenu(t.target);
        break;
    case ShellTarget::Kind::Program:
        started = system.startProgram(t.target, t.arguments);
        break;
    }
    if (!started)
        return script::HostResult::fail(script::errc::FileNotFound, "Fichier introuvable : " + t.target);
    return script::HostResult::ok(script::Value::integer(0));
}

}  // namespace qor::player
