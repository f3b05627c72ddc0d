#include "editor/editor_undo.h"

#include "editor/lut_editor_model.h"
#include "editor/ramp_command.h"
#include "util/guarded.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace huebase {

EditorUndo::EditorUndo(LutEditorModel& model, QWidget& window) : model_(model), window_(window) {
    stack_.setUndoLimit(kSteps);
    undo_ = stack_.createUndoAction(&window, "Undo");
    undo_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Z)});
    redo_ = stack_.createRedoAction(&window, "Redo");
    redo_->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    for (QAction* action : {undo_, redo_}) {
        action->setShortcutContext(Qt::WindowShortcut);
        window.addAction(action);
    }
    // Text boxes claim these keys even with nothing typed; each one that
    // takes the focus is watched so that it keeps them only while typed in.
    connect(qApp, &QApplication::focusChanged, this, guarded(this, [this](QWidget*, QWidget* now) {
                auto* edit = qobject_cast<QLineEdit*>(now);
                if (edit != nullptr && window_.isAncestorOf(edit))
                    edit->installEventFilter(this);
            }));
    model_.addListener(this);
}

EditorUndo::~EditorUndo() {
    model_.removeListener(this);
}

void EditorUndo::rampEdited(const char* name, const RampState& before, const RampState& after) {
    auto from = last_ && *last_ == before ? last_ : std::make_shared<const RampState>(before);
    last_ = std::make_shared<const RampState>(after);
    stack_.push(new RampCommand(model_, &window_, name, std::move(from), last_));
}

bool EditorUndo::eventFilter(QObject* watched, QEvent* event) {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit == nullptr || event->type() != QEvent::ShortcutOverride || edit->isModified())
        return QObject::eventFilter(watched, event);
    const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
    if (undo_->shortcuts().contains(keys) || redo_->shortcuts().contains(keys)) {
        // Left unclaimed, the key reaches the window's actions.
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace huebase
