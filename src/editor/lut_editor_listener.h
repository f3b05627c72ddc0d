#pragma once

#include "editor/ramp_state.h"

namespace huebase {

// What the editor's widgets are told when the model changes. Every method
// has an empty default, so a widget overrides only what it shows.
class LutEditorListener {
public:
    virtual ~LutEditorListener() = default;

    // The distribution, the graph's coordinates or its curve changed.
    virtual void graphPrepared() {}
    // Rows were added, removed or replaced: the row count may differ.
    virtual void rowsReset() {}
    // Fields of one row changed (value, bounds, lock, method or colour).
    virtual void rowChanged(int /*row*/) {}
    // The node buttons are to be placed again from the rows.
    virtual void tabsPlaced() {}
    // New colour bar slices are ready.
    virtual void colorBarPainted() {}
    // The no-data colour changed.
    virtual void noDataColorChanged() {}
    // A user edit called `name` changed the ramp from `before` to `after`.
    virtual void rampEdited(const char* /*name*/, const RampState& /*before*/,
                            const RampState& /*after*/) {}
};

} // namespace huebase
