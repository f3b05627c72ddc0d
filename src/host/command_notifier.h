#pragma once

#include "host/host_notifier.h"

#include <string>

namespace huebase {

// Tells a host without automation by running a command with the status text
// as its last argument, and waiting for it. The host counts as told when the
// command ran and exited with status 0.
//
// Elsewhere than on Windows the command is a /bin/sh command line, run as
//     /bin/sh -c 'COMMAND "$1"' huebase-notify STATUS
// so COMMAND may hold arguments, quotes and pipes as the shell reads them,
// and the status arrives as one more argument without ever being spliced
// into the text. A COMMAND ending in a comment or an open quote swallows it.
// On Windows the command is a command line as CreateProcess reads it (the
// program first, quoted when its path holds spaces; shell built-ins need
// "cmd /c"), and " STATUS" is added to its end.
class CommandNotifier : public HostNotifier {
public:
    explicit CommandNotifier(std::string command) : command_(std::move(command)) {}

    bool tell(const std::string& status) override;
    std::string unreachableMessage() const override;

    const std::string& command() const noexcept { return command_; }

private:
    std::string command_;
};

} // namespace huebase
