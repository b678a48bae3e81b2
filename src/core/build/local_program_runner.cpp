#include "core/build/local_program_runner.h"

#include <spawn.h>
#include <sys/wait.h>

#include <cerrno>
#include <cstring>

extern char** environ;

namespace qor {

Result<int> LocalProgramRunner::run(const std::string& program, const std::vector<std::string>& arguments)
{
    std::vector<std::string> words = {program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (auto& w : words)
        argv.push_back(w.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (const int e = ::posix_spawnp(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ); e != 0)
        return makeError(err::FileNotFound, std::strerror(e));
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0)
        if (errno != EINTR)
            return makeError(err::PathFileAccess, std::strerror(errno));
    if (!WIFEXITED(status))
        return makeError(err::Interrupted, "signal " + std::to_string(WTERMSIG(status)));
    return WEXITSTATUS(status);
}

}  // namespace qor
