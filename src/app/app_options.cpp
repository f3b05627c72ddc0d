#include "app/app_options.h"

namespace huebase {

std::optional<AppOptions> AppOptions::parse(const std::vector<std::string>& args,
                                            std::string& error) {
    AppOptions options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const auto value = [&](std::string& target) {
            if (i + 1 >= args.size()) {
                error = arg + " needs a value";
                return false;
            }
            target = args[++i];
            return true;
        };
        if (arg == "--help" || arg == "-h") {
            options.help = true;
        } else if (arg == "--version") {
            options.version = true;
        } else if (arg == "--folder") {
            if (!value(options.folder))
                return std::nullopt;
        } else if (arg == "--notify-command") {
            if (!value(options.notifyCommand))
                return std::nullopt;
        } else {
            error = "unknown option: " + arg;
            return std::nullopt;
        }
    }
    return options;
}

std::string AppOptions::usage() {
    return "Usage: huebase [--folder DIR] [--notify-command CMD] [--help] [--version]\n"
           "\n"
           "Builds the colour table of a grid from the value distribution that the host\n"
           "GIS wrote to col.tmp, and writes one colour per key back to lut.tmp.\n"
           "\n"
           "  --folder DIR           read and write the exchange files and the myLuts\n"
           "                         library in DIR instead of the program's folder\n"
           "  --notify-command CMD   tell the host the outcome by running CMD with the\n"
           "                         status text (0G or -1G) as its last argument\n"
           "  --help                 show this text\n"
           "  --version              show the version\n";
}

} // namespace huebase
