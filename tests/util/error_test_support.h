#pragma once

#include "util/vb_error.h"

namespace huebase::testing {

// The number of the VbError that call throws; 0 when it throws none.
inline int errorNumberOf(auto&& call) {
    try {
        call();
    } catch (const VbError& e) {
        return e.number();
    }
    return 0;
}

} // namespace huebase::testing
