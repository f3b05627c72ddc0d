#include "editor/ramp_command.h"

#include "editor/lut_editor_model.h"
#include "util/guarded.h"

#include <utility>

namespace huebase {

RampCommand::RampCommand(LutEditorModel& model, const QObject* context, const QString& name,
                         State before, State after)
    : QUndoCommand(name), model_(model), context_(context), before_(std::move(before)),
      after_(std::move(after)) {}

void RampCommand::undo() {
    restore(*before_);
}

void RampCommand::redo() {
    if (std::exchange(pushed_, true))
        restore(*after_);
}

// Qt calls undo and redo from its own code: a failure stops here.
void RampCommand::restore(const RampState& state) {
    guard(context_, [&] { model_.restoreRamp(state); });
}

} // namespace huebase
