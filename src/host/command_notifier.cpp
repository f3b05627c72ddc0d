#include "host/command_notifier.h"

#include <cstdio>

#ifdef _WIN32
#include "util/wide_text.h"

#include <windows.h>
#else
#include <cerrno>
#include <spawn.h>
#include <sys/wait.h>

extern char** environ;
#endif

namespace huebase {

#ifdef _WIN32

bool CommandNotifier::tell(const std::string& status) {
    std::fflush(nullptr);
    // CreateProcessW may write into the command line, so it gets its own buffer.
    std::wstring line = wideFromUtf8(command_ + " " + status);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return false;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD exitCode = 1;
    const BOOL gotCode = GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return gotCode && exitCode == 0;
}

#else

bool CommandNotifier::tell(const std::string& status) {
    // What the program printed so far comes before what the command prints.
    std::fflush(nullptr);
    const std::string script = command_ + " \"$1\"";
    std::string arguments[] = {"sh", "-c", script, "huebase-notify", status};
    char* argv[] = {arguments[0].data(), arguments[1].data(), arguments[2].data(),
                    arguments[3].data(), arguments[4].data(), nullptr};
    pid_t child = 0;
    if (posix_spawn(&child, "/bin/sh", nullptr, nullptr, argv, environ) != 0)
        return false;
    int waitStatus = 0;
    while (waitpid(child, &waitStatus, 0) < 0)
        if (errno != EINTR)
            return false;
    return WIFEXITED(waitStatus) && WEXITSTATUS(waitStatus) == 0;
}

#endif

std::string CommandNotifier::unreachableMessage() const {
    return "Unable to notify the host: the command \"" + command_ + "\" failed";
}

} // namespace huebase
