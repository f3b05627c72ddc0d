#pragma once

#include "util/messages.h"
#include "util/vb_error.h"

namespace huebase {

// Runs an editing action started by the user; a run-time error it raises is
// shown as "Error: N. description" and the editor carries on with what was
// done before the error.
template <typename Action> bool reportingErrors(Action&& action) {
    try {
        action();
        return true;
    } catch (const VbError& error) {
        showMessage(error.message(), {}, MessageIcon::Critical);
        return false;
    }
}

} // namespace huebase
