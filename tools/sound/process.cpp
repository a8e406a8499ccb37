#include "tools/sound/process.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ventrel::sound {

Result<> run(const std::vector<std::string>& words) {
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str())); // the interface of old leaves out the const
    }
    arguments.push_back(nullptr);
    pid_t child = 0;
    if (posix_spawnp(&child, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0) {
        return failed(words.front() + " cannot be started");
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child || status != 0) {
        return failed(words.front() + " failed");
    }
    return {};
}

} // namespace ventrel::sound
