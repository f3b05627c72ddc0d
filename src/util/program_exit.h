#pragma once

#include <functional>

namespace huebase {

// Every way out of the program goes through endProgram. The installed
// handler of the real program flushes what is open and ends the process, so
// the call does not return there; tests install a handler that records the
// call and returns, so callers must return at once after calling it.

using ProgramExitHandler = std::function<void(int exitCode)>;

void endProgram(int exitCode = 0);

// Replaces the handler; returns the previous one. Without a handler,
// endProgram flushes the standard streams and calls std::exit.
ProgramExitHandler setProgramExitHandler(ProgramExitHandler handler);

} // namespace huebase
