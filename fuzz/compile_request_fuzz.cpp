// The compile request as the dialog and qorc build it: four typed lines
// (target, project name, author, sub-menu name), a line of flags, then a
// .qor file. Whatever passes the value check must make a data line that
// reads back whole, and a plan that writes nowhere but T, T/qor and the
// files of T/qor, each name of qor/ once whatever its letter case.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>

#include "core/build/compile_plan.h"
#include "core/build/compile_request.h"
#include "core/build/value_check.h"
#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "model/menu_data_reader.h"
#include "model/menu_data_writer.h"
#include "scripted_dialogs.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"

using namespace qor;

namespace {

[[noreturn]] void fail(const char* what, const std::string& detail)
{
    std::fprintf(stderr, "%s: %s\n", what, detail.c_str());
    std::abort();
}

// The next line of text, taken off its front.
std::string takeLine(std::string& text)
{
    const std::size_t end = text.find('\n');
    std::string line = text.substr(0, end);
    text.erase(0, end == std::string::npos ? text.size() : end + 1);
    return line;
}

void checkDataLine(const MenuProject& project, const MenuDataInfo& info)
{
    std::string line = menuDataLine(menuDataLines(project, info));
    line.resize(line.size() - 2);
    const MenuDataResult read = parseMenuDataLine(line);
    if (!std::holds_alternative<MenuData>(read))
        fail("a checked project's data does not read back", std::get<MenuDataError>(read).reason);
    const MenuData& menu = std::get<MenuData>(read);
    if (menu.info != info || menu.project.savableButtons().size() != project.savableButtons().size() ||
        menu.project.liveTexts().size() != project.liveTexts().size())
        fail("a checked project's data reads back different", line);
}

void checkPlan(const MenuProject& project, const CompileRequest& request)
{
    const CompilePlan plan = compilePlan(project, request, "/prog/");
    const std::string qor = request.target + "qor/";
    std::set<std::string> names;
    for (const CompileAction& a : plan.actions) {
        if (a.kind == CompileAction::Kind::Show || a.target == request.target + "qor" ||
            a.target == request.target + "Autorun.inf")
            continue;
        if (!a.target.starts_with(qor))
            fail("the plan writes outside T/qor", a.target);
        const std::string name = a.target.substr(qor.size());
        // A button without its hover or pressed image copies "nothing",
        // which fails at that copy as it always has.
        if (a.kind == CompileAction::Kind::Copy && fileNameOf(a.source).empty())
            continue;
        if (name.empty() || name == "." || name == ".." || hasSeparator(name))
            fail("the plan names no plain file of qor/", name);
        if (a.kind == CompileAction::Kind::Copy && !names.insert(toLowerText(name)).second && !plan.clash)
            fail("two copies land on one name of qor/", a.target);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::string text = decodeCp1252(bytes);
    CompileRequest request;
    request.target = takeLine(text);
    request.projectName = takeLine(text);
    request.author = takeLine(text);
    request.subMenuName = takeLine(text);
    const std::string flags = takeLine(text);
    request.subMenu = flags.find('s') != std::string::npos;
    request.skipRuntime = flags.find('r') != std::string::npos;

    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    ScriptedDialogs dialogs(hashOf(bytes));
    ProjectServices services{dialogs, phrases, hooks, routes};
    MenuProject project;
    loadProjectText(project, text, "/proj/menu.qor", services);

    // The compiler's own order: a target that is no folder stops it first.
    if (request.target.empty() || isRootFolder(request.target) || !request.target.starts_with("/"))
        return 0;
    request.target = normalisedTarget(request.target);
    if (firstUnwritableValue(project, request))
        return 0;
    checkDataLine(project, MenuDataInfo{request.projectName, request.author});
    if (request.subMenu && !isPlainFileName(request.subMenuName))
        return 0;
    checkPlan(project, request);
    return 0;
}
