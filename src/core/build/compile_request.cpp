#include "core/build/compile_request.h"

#include <algorithm>

#include "core/build/program_files.h"
#include "core/picture/bake_rules.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {

std::string defaultProjectName(const MenuProject& project)
{
    if (project.filePath.empty())
        return kGenericProjectName;
    const std::string name = fileNameOf(project.filePath);
    // The name less its last four characters: ".qor" (or whatever stands there).
    const std::size_t count = utf8Length(name);
    return count > 4 ? leftChars(name, count - 4) : std::string();
}

std::string defaultAuthor(const MenuProject& project)
{
    if (project.authorEmail.empty())
        return project.authorName;
    return project.authorName + " (" + project.authorEmail + ")";
}

CompileRequest compileDefaults(const MenuProject& project, const std::string& homeFolder)
{
    CompileRequest r;
    r.target = withTrailingSeparator(homeFolder);
    r.projectName = defaultProjectName(project);
    r.author = defaultAuthor(project);
    return r;
}

CompileFieldStates compileFieldStates(bool subMenuTicked)
{
    return CompileFieldStates{subMenuTicked, !subMenuTicked};
}

std::string iconPreviewPath(const MenuProject& project, const std::string& programFolder)
{
    if (isDefaultIconMarker(project.icon))
        return programFolder + std::string(program_files::icon);
    return project.resolve(project.icon);
}

std::string normalisedTarget(const std::string& typed)
{
    if (!typed.empty() && typed.back() == '/')
        return typed;
    return typed + "/";
}

bool isPlainFileName(const std::string& name)
{
    return !name.empty() && name != "." && name != ".." && !hasSeparator(name) && fitsCp1252(name);
}

bool fitsCp1252(const std::string& text)
{
    return decodeCp1252(encodeCp1252(text)) == text;
}

bool needsBaking(const MenuProject& project)
{
    return !buttonsToBake(project).empty();
}

bool isRootFolder(std::string_view folder)
{
    if (folder.empty() || folder.front() != '/')
        return false;
    // Walks the names lexically: ".." at the root stays at the root.
    int depth = 0;
    std::size_t pos = 0;
    while (pos < folder.size()) {
        const std::size_t end = std::min(folder.find('/', pos), folder.size());
        const std::string_view name = folder.substr(pos, end - pos);
        if (name == "..")
            depth = std::max(depth - 1, 0);
        else if (!name.empty() && name != ".")
            ++depth;
        pos = end + 1;
    }
    return depth == 0;
}

}  // namespace qor
