#include "util/program_exit.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace huebase {

namespace {
ProgramExitHandler& handlerSlot() {
    static ProgramExitHandler handler;
    return handler;
}
} // namespace

void endProgram(int exitCode) {
    if (const ProgramExitHandler& handler = handlerSlot()) {
        handler(exitCode);
        return;
    }
    std::fflush(nullptr);
    std::exit(exitCode);
}

ProgramExitHandler setProgramExitHandler(ProgramExitHandler handler) {
    return std::exchange(handlerSlot(), std::move(handler));
}

} // namespace huebase
