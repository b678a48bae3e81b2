#pragma once

#include <string>

#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "fake_dialogs.h"
#include "fake_project_hooks.h"
#include "model/menu_project.h"
#include "model/project_format.h"
#include "temp_dir.h"
#include "text/cp1252.h"
#include "text/line_file.h"

namespace qor::test {

// A project with fakes for everything loading and saving reach.
struct ProjectEnv {
    MenuProject project;
    FakeDialogs dialogs;
    Phrases phrases;
    FakeProjectHooks hooks;
    ProjectServices services{dialogs, phrases, hooks, hooks};

    void load(const std::string& path) { loadProject(project, path, true, services); }
    void save(const std::string& path) { saveProject(project, path, services); }
    // Reads text (UTF-8) as the content of the file at path.
    void read(const std::string& text, const std::string& path = "/p/menu.qor")
    {
        project.reset();
        loadProjectText(project, text, path, services);
    }
    void answer(std::initializer_list<Answer> answers) { dialogs.messageAnswers.insert(dialogs.messageAnswers.end(), answers); }
};

// A file of tests/data/projects.
inline std::string projectData(const std::string& name)
{
    return std::string(QOR_TEST_DATA_DIR) + "/projects/" + name;
}

// The decoded lines of a file of tests/data/projects.
inline std::vector<std::string> projectDataLines(const std::string& name)
{
    auto lines = readLineFile(projectData(name));
    return lines ? *lines : std::vector<std::string>{};
}

// lines with row `row` of the first `header` section replaced (the header is row 1).
inline std::vector<std::string> withRow(std::vector<std::string> lines, const std::string& header, int row,
                                        const std::string& value)
{
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i] == header) {
            lines.at(i + std::size_t(row) - 1) = value;
            break;
        }
    return lines;
}

// The decoded text of a hand-written file of tests/data/projects, with the
// "Version=" line of this build: the revision is the build's own number.
inline std::string expectedText(const std::string& name)
{
    std::string text = decodeCp1252(readBytes(projectData(name)));
    auto at = text.find("Version=");
    if (at != std::string::npos)
        text.replace(at, text.find('\r', at) - at, project_format::versionLine());
    return text;
}

inline std::string joined(const std::vector<std::string>& lines) { return joinLinesCrLf(lines); }

}  // namespace qor::test
