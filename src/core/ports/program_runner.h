#pragma once

#include <string>
#include <vector>

#include "text/error.h"

namespace qor {

// Runs a program of the system (found on the PATH) to its end.
class ProgramRunner {
public:
    virtual ~ProgramRunner() = default;

    // The program's exit status, or an error when it could not start or
    // ended by a signal.
    virtual Result<int> run(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

}  // namespace qor
