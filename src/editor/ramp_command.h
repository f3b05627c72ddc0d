#pragma once

#include "editor/ramp_state.h"

#include <QUndoCommand>

#include <memory>

class QObject;

namespace huebase {

class LutEditorModel;

// One step of the editor's history: the ramp before and after a user edit.
// Undo and redo put the one or the other back through the model. It is
// pushed once the edit is made, so its first redo does nothing.
class RampCommand : public QUndoCommand {
public:
    using State = std::shared_ptr<const RampState>;

    RampCommand(LutEditorModel& model, const QObject* context, const QString& name, State before,
                State after);

    void undo() override;
    void redo() override;

private:
    void restore(const RampState& state);

    LutEditorModel& model_;
    const QObject* context_;
    State before_;
    State after_;
    bool pushed_ = false;
};

} // namespace huebase
