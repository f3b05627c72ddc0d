#pragma once

namespace huebase {

// The program's way out: flushes the standard streams and ends the process
// at once with the code. Works from inside any number of nested modal
// loops, since it never returns to them; what the session writes is closed
// before it calls endProgram.
[[noreturn]] void endProcess(int exitCode);

} // namespace huebase
