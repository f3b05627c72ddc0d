#pragma once

#include "util/messages.h"
#include "util/vb_error.h"

namespace huebase {

// Runs an editing action started by the user; a run-time error it raises
// (or any other failure, as its error number) is shown as "Error: N.
// description" and the editor carries on with what was done before the error.
template <typename Action> bool reportingErrors(Action&& action) {
    try {
        action();
        return true;
    } catch (...) {
        showMessage(VbError::from(std::current_exception()).message(), {}, MessageIcon::Critical);
        return false;
    }
}

} // namespace huebase
