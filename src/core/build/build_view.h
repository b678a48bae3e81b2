#pragma once

#include <string>
#include <vector>

#include "core/build/compile_request.h"
#include "text/error.h"

namespace qor {

// What the build's commands change on screen besides the compile dialog's
// own labels.
class BuildView {
public:
    virtual ~BuildView() = default;

    // Closes the compile dialog if one is open.
    virtual void discardCompileDialog() = 0;
    // Shows a fresh compile dialog with these field values and icon preview.
    virtual void openCompileDialog(const CompileRequest& fields, const std::string& iconPath) = 0;

    // The worksheet's and the script editor's "Veuillez patienter..." panels.
    virtual void showNoticePanels(bool shown) = 0;
    virtual void setWorksheetMinimised(bool minimised) = 0;

    // The test-run watcher, modal: starts program with its arguments and
    // returns once the program has ended or "Stop" has ended it. An error
    // when the program could not be started.
    virtual Status watchPlayer(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

}  // namespace qor
