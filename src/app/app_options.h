#pragma once

#include <optional>
#include <string>
#include <vector>

namespace huebase {

// What the command line asks for.
struct AppOptions {
    std::string folder;        // the program's folder; empty: the executable's folder
    std::string notifyCommand; // run with the status text instead of attaching to the host
    bool help = false;
    bool version = false;

    // Parses the arguments after the program name. Returns nothing and sets
    // error on an unknown option or a missing value.
    static std::optional<AppOptions> parse(const std::vector<std::string>& args,
                                           std::string& error);
    static std::string usage();
};

} // namespace huebase
