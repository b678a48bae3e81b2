#include "core/app/plugins.h"

#include <filesystem>

#include "core/ui/menu_tree.h"
#include "text/line_file.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {

PluginList readPluginLines(const std::vector<std::string>& lines)
{
    PluginList list;
    std::size_t i = 0;
    while (i < lines.size() && !list.started)
        list.started = lines[i++] == kPluginsStartLine;
    while (list.started && i < lines.size()) {
        if (i + 1 >= lines.size()) {
            list.error = makeError(err::InputPastEnd);
            break;
        }
        list.commands.push_back({lines[i], lines[i + 1]});
        i += 2;
    }
    return list;
}

Status Plugins::load()
{
    commands_.clear();
    const std::filesystem::path path = state_.programFile(kPluginsFileName);
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) {
        view_.showPlugins({}, true);
        return {};
    }
    auto lines = readLineFile(path);
    if (!lines) {
        view_.showPlugins({}, true);
        return lines.error();
    }
    PluginList list = readPluginLines(*lines);
    commands_ = list.commands;
    view_.showPlugins(commands_, !list.started);
    if (list.error)
        return *list.error;
    return {};
}

void Plugins::fail()
{
    dialogs_.message(Message{state_.phrases.text(17, "Impossible de démarrer le plugin !"),
                             state_.phrases.text(7, "Erreur"), MessageIcon::Critical});
}

void Plugins::run(int position)
{
    if (position == 0) {
        // The placeholder says what it shows, in the interface language.
        const std::string caption = state_.phrases.text(45, kNoPluginCaption);
        dialogs_.message(Message{caption, caption, MessageIcon::Information});
        return;
    }
    if (position < 0 || position > int(commands_.size()))
        return;
    const std::string& text = commands_[std::size_t(position - 1)].commandText;
    if (utf8Length(text) < 3) {
        fail();
        return;
    }
    const std::string verb = toLowerText(leftChars(text, 2));
    const std::string argument = text.substr(leftChars(text, 3).size());
    if (verb == "s1") {
        if (!desktop_.start(argument, WindowShow::Normal))
            fail();
    } else if (verb == "mb") {
        dialogs_.message(Message{replaceAll(argument, kLineBreakMark, state_.newline), "Information",
                                 MessageIcon::Information});
    } else if (verb == "se" || verb == "sh") {
        if (!desktop_.open(argument, verb == "se" ? WindowShow::Normal : WindowShow::Hidden))
            fail();
    } else if (verb == "cl") {
        view_.openAppearancePanel();
    }
}

}  // namespace qor
