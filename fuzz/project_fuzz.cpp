// Feeds arbitrary bytes to the project reader as the content of a .qor file.
// The read-error question is answered Yes or No from a hash of the input, so
// both roads are taken. Whatever was read must then survive a save and a
// second read unchanged: reading the text written from the first read asks
// nothing, and writing it again gives the same text.
#include <cstdint>
#include <cstdlib>
#include <cstdio>
#include <string>
#include <string_view>

#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"
#include "model/project_writer.h"
#include "scripted_dialogs.h"
#include "text/cp1252.h"

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Phrases phrases;
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    // No file lies beside the project: paths are written as they were read.
    RelativePathRule paths("", "", [](const std::string&) { return false; });

    ScriptedDialogs dialogs(hashOf(bytes));
    ProjectServices services{dialogs, phrases, hooks, routes};
    MenuProject first;
    loadProjectText(first, decodeCp1252(bytes), "", services);
    const std::string once = projectFileText(first, paths);

    ScriptedDialogs alwaysYes(~0ull);
    ProjectServices again{alwaysYes, phrases, hooks, routes};
    MenuProject second;
    loadProjectText(second, once, "", again);
    const std::string twice = projectFileText(second, paths);
    // A file this editor wrote must read back without a question, to the same project.
    if (alwaysYes.asked != 0 || twice != once) {
        std::fprintf(stderr, "a written project does not read back the same (%d questions)\n"
                     "--- once\n%s\n--- twice\n%s\n", alwaysYes.asked, once.c_str(), twice.c_str());
        std::abort();
    }
    return 0;
}
