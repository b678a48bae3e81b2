#include "core/build/compiler.h"

#include "core/build/autorun_inf.h"
#include "core/build/build_messages.h"
#include "core/build/menu_data_file.h"
#include "core/build/picture_check.h"
#include "core/build/value_check.h"
#include "text/text_helpers.h"
#include "core/build/program_icon.h"

namespace qor {
namespace {

// The first "vidéo" button without its media file, or 0.
int buttonWithoutMedia(const MenuProject& project)
{
    for (int n = 1; n <= MenuProject::kLastButtonSlot; ++n) {
        const MenuButton& b = project.button(n);
        if (b.kind == button_kind::video && b.action.empty())
            return n;
    }
    return 0;
}

}  // namespace

Compiler::Compiler(FileSystem& files, Dialogs& dialogs, BuildState& state)
    : files_(files), dialogs_(dialogs), state_(state)
{
}

CompileOutcome Compiler::compile(const MenuProject& project, CompileRequest request, const CompileEnvironment& env,
                                 CompileView& view)
{
    state_.compileFailed = false;
    // An empty field would become "/": the whole disk is no folder to burn.
    if (request.target.empty() || isRootFolder(request.target))
        return refuse(incorrectFolderMessage(), true);
    request.target = normalisedTarget(request.target);
    view.setTarget(request.target);
    const CompilePlan plan = compilePlan(project, request, env.programFolder);
    if (CompileOutcome o = check(project, request, plan, env); o != CompileOutcome::Done)
        return o;

    view.setFieldsEnabled(false);
    view.setStatus("Dossier OK. Copie des fichiers :", kFolderOkColour);
    if (Status s = run(project, request, plan, view); !s) {
        (void)files_.removeFile(plan.partialPlayer);
        dialogs_.message(compilationFailedMessage(s.error()));
        state_.compileFailed = true;
        view.setFieldsEnabled(true);
        return CompileOutcome::Failed;
    }
    view.setInstruction(compileFinalText(request.target));
    // The label keeps the colour it took when copying began.
    view.setStatus("Terminé.", kFolderOkColour);
    if (request.subMenu)
        dialogs_.message(subMenuCreatedMessage(request.subMenuName));
    return CompileOutcome::Done;
}

CompileOutcome Compiler::checkValues(const MenuProject& project, const CompileRequest& request)
{
    if (auto fault = firstUnwritableValue(project, request))
        return refuse(unwritableValueMessage(*fault), true);
    return CompileOutcome::Done;
}

CompileOutcome Compiler::check(const MenuProject& project, const CompileRequest& request, const CompilePlan& plan,
                               const CompileEnvironment& env)
{
    if (!files_.isFolder(request.target))
        return refuse(incorrectFolderMessage(), true);
    if (env.requireMediaFile)
        if (int n = buttonWithoutMedia(project))
            return refuse(forgottenMediaMessage(n), true);
    if (CompileOutcome o = checkValues(project, request); o != CompileOutcome::Done)
        return o;
    if (plan.clash)
        return refuse(fileNameClashMessage(plan.clash->first, plan.clash->second), true);
    if (auto picture = firstUnreadablePicture(files_, project))
        return refuse(unreadablePictureMessage(*picture), true);
    return request.subMenu ? checkSubMenu(request, plan) : checkMainMenu(request.target);
}

CompileOutcome Compiler::checkMainMenu(const std::string& target)
{
    const std::string qor = target + "qor";
    const PathKind kind = files_.kind(qor);
    if (kind == PathKind::None)
        return CompileOutcome::Done;
    // Emptying a link would empty the folder it points to, outside the target.
    if (kind != PathKind::Folder)
        return refuse(qorNotAFolderMessage(target), true);
    if (dialogs_.message(replaceCompilationQuestion(target)) != Answer::Yes)
        return CompileOutcome::Declined;
    // What cannot be removed (a sub-folder, say) stays and is reused.
    files_.removeFilesIn(qor + "/");
    (void)files_.removeFolder(qor);
    return CompileOutcome::Done;
}

CompileOutcome Compiler::checkSubMenu(const CompileRequest& request, const CompilePlan& plan)
{
    if (!isPlainFileName(request.subMenuName))
        return refuse(badFileNameMessage(request.subMenuName, "Sous menu"), false);
    const PathKind kind = files_.kind(request.target + "qor");
    if (kind == PathKind::None)
        return refuse(noMainMenuMessage(), false);
    if (kind != PathKind::Folder)
        return refuse(qorNotAFolderMessage(request.target), true);
    // On the CD's machines names differing only in letter case are one file.
    const std::string qor = request.target + "qor/";
    const std::vector<std::string> present = files_.entryNames(qor);
    const std::string exe = request.subMenuName + ".exe";
    for (const std::string& name : present)
        if (equalsNoCase(name, exe))
            return refuse(subMenuExistsMessage(), false);
    // A file shared with the menus already there is copied again, but never
    // over one of their players, nor beside a name it would shadow.
    for (const CompileAction& a : plan.actions) {
        if (a.kind != CompileAction::Kind::Copy)
            continue;
        const std::string name = a.target.substr(qor.size());
        for (const std::string& other : present)
            if (equalsNoCase(other, name) && (other != name || endsWithNoCase(other, ".exe")))
                return refuse(fileNameClashMessage(a.source, qor + other), true);
    }
    return CompileOutcome::Done;
}

CompileOutcome Compiler::refuse(const Message& message, bool setsFlag)
{
    dialogs_.message(message);
    if (setsFlag)
        state_.compileFailed = true;
    return CompileOutcome::Refused;
}

Status Compiler::run(const MenuProject& project, const CompileRequest& request, const CompilePlan& plan,
                     CompileView& view)
{
    done_ = 0;
    total_ = 0;
    for (const auto& a : plan.actions)
        if (a.kind == CompileAction::Kind::Copy)
            total_ += files_.fileSize(a.source).value_or(0);
    view.setProgress(0, total_);
    for (const auto& a : plan.actions)
        if (Status s = perform(a, project, request, view); !s)
            return s;
    view.setProgress(total_, total_);
    return {};
}

Status Compiler::perform(const CompileAction& a, const MenuProject& project, const CompileRequest& request,
                         CompileView& view)
{
    using K = CompileAction::Kind;
    switch (a.kind) {
    case K::Show: view.setStep(a.text); return {};
    case K::WriteAutorunInf: return files_.writeFile(a.target, autorunInfBytes());
    case K::CreateFolder:
        return files_.kind(a.target) == PathKind::Folder ? Status() : files_.createFolder(a.target);
    case K::Copy: {
        if (a.keepExisting && files_.kind(a.target) != PathKind::None)
            return {};
        const std::uint64_t before = done_;
        Status s = files_.copyFile(a.source, a.target, [&](std::uint64_t bytes) {
            done_ = before + bytes;
            view.setProgress(done_, total_);
        });
        done_ = before + files_.fileSize(a.source).value_or(0);
        return s;
    }
    case K::SetIcon: {
        Result<std::string> program = files_.readFile(a.target);
        if (!program)
            return program.error();
        const Result<std::string> icon = files_.readFile(a.source);
        const ProgramUpdate set = icon ? withProgramIcon(*program, *icon) : ProgramUpdate{{}, "le fichier ne se lit pas"};
        // A CD is never spoilt by its icon: the player keeps its own.
        if (!set.problem.empty()) {
            dialogs_.message(programIconMessage(a.source, set.problem));
            return {};
        }
        return files_.writeFile(a.target, set.program);
    }
    case K::SetDetails: {
        Result<std::string> program = files_.readFile(a.target);
        if (!program)
            return program.error();
        // A player without version information to change keeps what it has:
        // the author asked for nothing there, so nothing is said.
        const ProgramUpdate set = withProgramDetails(*program, {request.projectName, request.author});
        return set.problem.empty() ? files_.writeFile(a.target, set.program) : Status();
    }
    case K::WriteData:
        return writeMenuData(files_, project, MenuDataInfo{request.projectName, request.author}, a.target);
    case K::Rename: return files_.rename(a.source, a.target);
    }
    return {};
}

}  // namespace qor
