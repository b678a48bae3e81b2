#include "core/build/compile_plan.h"

#include "core/build/autorun_inf.h"
#include "core/build/program_files.h"
#include "model/menu_data_layout.h"
#include "text/text_helpers.h"

namespace qor {
namespace {

constexpr const char* kDone = "Terminé.";

// Builds the action list step by step.
class PlanBuilder {
public:
    PlanBuilder(const MenuProject& project, const CompileRequest& request, const std::string& programFolder)
        : project_(project), request_(request), program_(programFolder), qor_(request.target + "qor/")
    {
    }

    CompilePlan build();

private:
    void show(std::string text) { add({.kind = CompileAction::Kind::Show, .text = std::move(text)}); }
    void add(CompileAction a) { plan_.actions.push_back(std::move(a)); }
    void copy(std::string source, std::string target, bool keepExisting = false)
    {
        if (!claim(source, target))
            return;
        add({.kind = CompileAction::Kind::Copy, .source = std::move(source), .target = std::move(target),
             .keepExisting = keepExisting});
    }
    bool claim(const std::string& source, const std::string& target);
    // A file of the project, by its stored path, to qor/ under its file name.
    void copyProjectFile(const std::string& stored, std::string_view suffix = {})
    {
        copy(project_.resolve(stored) + std::string(suffix), qor_ + fileNameOf(stored) + std::string(suffix));
    }
    void copyRuntimeFile(std::string_view name)
    {
        show("Copie de " + std::string(name) + "...");
        copy(program_ + std::string(name), qor_ + std::string(name), name == program_files::keptIfPresent);
        show(kDone);
    }

    void mainMenuParts();
    void buttonImages();
    void sounds();
    void data();

    const MenuProject& project_;
    const CompileRequest& request_;
    std::string program_;
    std::string qor_;
    CompilePlan plan_;
    std::map<std::string, std::string> sources_;   // target, letter case folded -> its source
};

// True when source is to be copied to target: the first file to claim a
// name of qor/ keeps it; the same file again is copied once, another one
// is the plan's clash.
bool PlanBuilder::claim(const std::string& source, const std::string& target)
{
    const auto [it, fresh] = sources_.try_emplace(toLowerText(target), source);
    if (fresh)
        return true;
    if (it->second != source && !plan_.clash)
        plan_.clash = CompilePlan::Clash{it->second, source};
    return false;
}

CompilePlan PlanBuilder::build()
{
    const std::string playerName = request_.subMenu ? request_.subMenuName + ".exe" : "autorun.exe";
    plan_.player = qor_ + playerName;
    plan_.partialPlayer = plan_.player + ".part";
    if (!request_.subMenu)
        mainMenuParts();
    show("Copie du filtre pour la transparence...");
    if (!project_.transparencyImage.empty())
        copyProjectFile(project_.transparencyImage);
    show(kDone);
    copyRuntimeFile(program_files::installer);
    show("Copie d'aurorun.exe...");
    // The player's final name is taken too: a picture called autorun.exe
    // would otherwise be replaced by it.
    claim(program_ + std::string(program_files::player), plan_.player);
    copy(program_ + std::string(program_files::player), plan_.partialPlayer);
    // Explorer and the taskbar show the CD's own icon for its program.
    if (!isDefaultIconMarker(project_.icon))
        add({.kind = CompileAction::Kind::SetIcon, .source = project_.resolve(project_.icon), .target = plan_.partialPlayer});
    if (!request_.projectName.empty() || !request_.author.empty())
        add({.kind = CompileAction::Kind::SetDetails, .target = plan_.partialPlayer});
    show(kDone);
    buttonImages();
    sounds();
    data();
    return std::move(plan_);
}

void PlanBuilder::mainMenuParts()
{
    show("Création de l'Autorun...");
    add({.kind = CompileAction::Kind::WriteAutorunInf, .target = request_.target + kAutorunInfName});
    show(kDone);
    show("Création du répertoire 'qor'...");
    add({.kind = CompileAction::Kind::CreateFolder, .target = request_.target + "qor"});
    show(kDone);
    if (!request_.skipRuntime) {
        show("Copie des fichiers RUNTIME...");
        for (std::string_view name : program_files::runtime)
            copyRuntimeFile(name);
        show(kDone);
    }
    show("Copie de l'icône...");
    if (isDefaultIconMarker(project_.icon))
        copyRuntimeFile(program_files::icon);
    else
        copy(project_.resolve(project_.icon), qor_ + std::string(program_files::icon));
    show(kDone);
}

void PlanBuilder::buttonImages()
{
    show("Copie des fichiers images...");
    if (!project_.backgroundImage.empty())
        copyProjectFile(project_.backgroundImage);
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project_.button(n);
        if (b.kind == button_kind::deleted || b.normalImage.empty())
            continue;
        const std::string_view suffix = b.transparent ? menu_data_layout::kTransparentSuffix : std::string_view();
        for (const std::string* image : {&b.normalImage, &b.hoverImage, &b.pressedImage})
            copyProjectFile(*image, suffix);
    }
    show(kDone);
}

void PlanBuilder::sounds()
{
    show("Copie des fichiers sons...");
    for (const std::string* sound : {&project_.backgroundMusic, &project_.clickSound, &project_.hoverSound})
        if (!sound->empty())
            copyProjectFile(*sound);
    show(kDone);
}

void PlanBuilder::data()
{
    show("Compilation en cours...");
    add({.kind = CompileAction::Kind::WriteData, .target = plan_.partialPlayer});
    add({.kind = CompileAction::Kind::Rename, .source = plan_.partialPlayer, .target = plan_.player});
    show(kDone);
    show("");
}

}  // namespace

std::vector<std::string> CompilePlan::shownTexts() const
{
    std::vector<std::string> out;
    for (const auto& a : actions)
        if (a.kind == CompileAction::Kind::Show)
            out.push_back(a.text);
    return out;
}

CompilePlan compilePlan(const MenuProject& project, const CompileRequest& request, const std::string& programFolder)
{
    return PlanBuilder(project, request, programFolder).build();
}

}  // namespace qor
