#include "program.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace q7test
{

ProgramResult runProgram(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment,
                         std::chrono::seconds limit)
{
    int output[2];
    if (pipe2(output, O_CLOEXEC) != 0)
        throw std::runtime_error("pipe");
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        for (const auto& [name, value] : environment)
            setenv(name.c_str(), value.c_str(), 1);
        dup2(output[1], STDOUT_FILENO);
        dup2(output[1], STDERR_FILENO);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    close(output[1]);

    ProgramResult result;
    const auto end = std::chrono::steady_clock::now() + limit;
    while (true) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            end - std::chrono::steady_clock::now());
        pollfd wait = {output[0], POLLIN, 0};
        if (left.count() <= 0 || poll(&wait, 1, static_cast<int>(left.count())) == 0) {
            kill(child, SIGKILL);
            break;
        }
        char buffer[4096];
        const ssize_t count = read(output[0], buffer, sizeof buffer);
        if (count <= 0)
            break;
        result.output.append(buffer, static_cast<std::size_t>(count));
    }
    close(output[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status))
        result.exitCode = WEXITSTATUS(status);
    else
        result.signal = WTERMSIG(status);
    return result;
}

} // namespace q7test
