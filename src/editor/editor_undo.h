#pragma once

#include "editor/lut_editor_listener.h"
#include "editor/ramp_state.h"

#include <QObject>
#include <QUndoStack>

#include <memory>

class QAction;
class QWidget;

namespace huebase {

class LutEditorModel;

// The editor's undo history: every edit the model records becomes a step,
// and the Undo and Redo actions (Ctrl+Z; Ctrl+Shift+Z and Ctrl+Y) walk it.
// While a text box of the window holds text being typed, those keys undo
// and redo the text, as in any text box.
class EditorUndo : public QObject, private LutEditorListener {
    Q_OBJECT
public:
    static constexpr int kSteps = 1000;

    // The actions belong to `window`, whose shortcuts they are. The model
    // must outlive this.
    EditorUndo(LutEditorModel& model, QWidget& window);
    ~EditorUndo() override;

    QUndoStack& stack() noexcept { return stack_; }
    QAction* undoAction() const noexcept { return undo_; }
    QAction* redoAction() const noexcept { return redo_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void rampEdited(const char* name, const RampState& before, const RampState& after) override;

    LutEditorModel& model_;
    QWidget& window_;
    QUndoStack stack_;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    // The state the last step ended in, shared with the next step when it
    // starts there, so that a long history keeps one copy per step.
    std::shared_ptr<const RampState> last_;
};

} // namespace huebase
