#pragma once

#include <string>

#include "core/build/build_context.h"

namespace qor {

// What an export makes: its kind's name in the prompts and its extension.
struct ExportKind {
    std::string name;        // "exécutable"
    std::string extension;   // "exe"
};

// "En exécutable simple": a hidden main-menu compilation into a chosen
// folder F, rearranged into F/N.exe beside F/qor/ with the media.
class ExecutableExport {
public:
    explicit ExecutableExport(BuildContext& context) : c_(context) {}

    void run(const ExportKind& kind);

private:
    // The questions of the export; false when the user ends it.
    bool ask(const ExportKind& kind, CompileRequest& request, std::string& fileName);
    void rearrange(const std::string& folder, const std::string& executable);
    void end();

    BuildContext& c_;
};

// The exported executable's path in folder F (ending with "/").
std::string exportedExecutablePath(const std::string& folder, const std::string& name, const ExportKind& kind);

}  // namespace qor
