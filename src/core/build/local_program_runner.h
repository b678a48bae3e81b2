#pragma once

#include "core/ports/program_runner.h"

namespace qor {

// Runs programs of the PATH as child processes and waits for them.
class LocalProgramRunner final : public ProgramRunner {
public:
    Result<int> run(const std::string& program, const std::vector<std::string>& arguments) override;
};

}  // namespace qor
