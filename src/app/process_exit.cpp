#include "app/process_exit.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

namespace huebase {

void endProcess(int exitCode) {
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    // Not std::exit: static destructors would run while the application
    // object and its windows are still alive on the stack below us.
    std::_Exit(exitCode);
}

} // namespace huebase
