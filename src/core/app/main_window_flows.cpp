#include "core/app/main_window_flows.h"

#include <filesystem>

#include "core/app/web_pages.h"
#include "core/ui/languages.h"
#include "core/ui/menu_tree.h"
#include "model/product.h"
#include "text/numbers.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr const char* kManualIndex = "index.htm";

bool fileExists(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

std::string underline(std::string_view heading)
{
    std::string row;
    for (std::size_t i = 0, n = utf8Length(heading); i < n; ++i)
        row += "\u00AF";  // ¯
    return row;
}

}  // namespace

void MainWindowFlows::reportLoadFailure(const Error& error)
{
    dialogs_.message(Message{error.description, state_.phrases.text(7, "Erreur"), MessageIcon::Critical});
}

void MainWindowFlows::load(const StartFacts& facts)
{
    view_.setApplicationTitle(kApplicationTitle);

    languages_ = languageMenu(installedLanguages(state_.programFolder), state_.interfaceLanguage);
    view_.showLanguages(languages_.captions, languages_.checked);

    if (Status s = options_.read(); !s)
        reportLoadFailure(s.error());
    recentFiles_.rebuild();

    placeMenuTitles();

    view_.setMainCaption(caption());

    // Written for other programs (an installer, say); the editor never reads them.
    settings_.saveQuietly(settings::General, settings::Folder, state_.programFolder);
    settings_.saveQuietly(settings::General, settings::ExeName, state_.executableFile);
    settings_.saveQuietly(settings::General, settings::Version, product::versionText());
    settings_.saveQuietly(settings::General, settings::LastTime, facts.timeText);
    settings_.saveQuietly(settings::General, settings::LastDate, facts.dateText);

    if (Status s = plugins_.load(); !s)
        reportLoadFailure(s.error());
}

void MainWindowFlows::placeMenuTitles()
{
    titles_ = layOutMenuTitles(view_.menuTitleTextWidths());
    view_.placeMenuTitles(titles_);
}

std::string MainWindowFlows::caption() const
{
    return "QOR v" + product::versionText() + " - " + state_.phrases.text(4, "créateur de menus");
}

void MainWindowFlows::pointerOverTitle(int index)
{
    view_.highlightMenuTitle(index, highlightedTitleColours(state_.appearance));
}

void MainWindowFlows::pressTitle(int index)
{
    view_.highlightMenuTitle(index, highlightedTitleColours(state_.appearance));
    if (index >= 0 && index < int(titles_.size())) {
        const MenuPopupPoint at = menuPopupPoint(titles_[std::size_t(index)]);
        view_.popUpMenu(index, at.x, at.y);
    }
}

void MainWindowFlows::resetTitles()
{
    view_.highlightMenuTitle(-1, {});
}

void MainWindowFlows::openManualIn(const std::string& folder)
{
    const long long times = (long long)readNumber(settings_.get(settings::Manual, settings::TimesOpened)) + 1;
    settings_.save(settings::Manual, settings::TimesOpened, std::to_string(times));
    desktop_.open(folder + kManualIndex, WindowShow::Normal);
}

void MainWindowFlows::openManual()
{
    const std::string stored = settings_.get(settings::Manual, settings::Folder);
    if (!stored.empty() && fileExists(stored + kManualIndex)) {
        openManualIn(stored);
        return;
    }
    const auto chosen = dialogs_.pickFolder(state_.phrases.text(
        5, "Veuillez choisir le dossier dans lequel vous avez installé le manuel de QOR :"));
    if (!chosen || chosen->empty())
        return;
    const std::string folder = withTrailingSeparator(*chosen);
    if (!fileExists(folder + kManualIndex)) {
        dialogs_.message(Message{state_.phrases.text(6, "Répertoire incorrect !"),
                                 state_.phrases.text(7, "Erreur"), MessageIcon::Critical});
        return;
    }
    settings_.save(settings::Manual, settings::Folder, folder);
    // The folder just stored is the one the first step would now find.
    openManualIn(folder);
}

void MainWindowFlows::openWebPage(CommandId command)
{
    if (auto address = webPageAddress(command))
        desktop_.open(*address, WindowShow::Normal);
}

void MainWindowFlows::reportBug()
{
    const bool french = !state_.phrases.languageActive();
    const std::string description = dialogs_.inputBox(
        state_.phrases.text(9, "Merci de décrire le bug ci-dessous :"),
        french ? "Report de bug" : commandCaption(CommandId::BugReport), "");
    if (description.empty())
        return;
    desktop_.open(bugReportAddress(description), WindowShow::Normal);
}

void MainWindowFlows::checkVersion()
{
    desktop_.open(versionCheckAddress(state_.interfaceLanguage), WindowShow::Normal);
}

void MainWindowFlows::showSupport()
{
    dialogs_.message(supportMessage(state_.newline));
}

Message supportMessage(const std::string& newline)
{
    const std::string heading = "QOR - créateur de menus";
    const std::string assistance = "Assistance :";
    std::string text;
    auto line = [&](const std::string& l) { text += l + newline; };
    line(heading);
    line(underline(heading));
    line("Auteur : " + std::string(product::author));
    line("");
    line(assistance);
    line(underline(assistance));
    line("Si vous avez le moindre problème, question ou suggestion,");
    line("n'hésitez pas à nous contacter :");
    line("  - par e-mail : " + std::string(product::email));
    line("  - sur le site : " + std::string(product::webSite));
    line("  - par téléphone : " + std::string(product::telephone));
    text += "  - par courrier : " + std::string(product::postalAddress);
    return Message{text, "Assistance", MessageIcon::Information};
}

}  // namespace qor
