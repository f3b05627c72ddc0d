#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace huebase {

class LutEditorModel;

// The small input behind "Insert node at value...": asks for a value,
// reads it as a value box does and refuses, with a message, text that is no
// number and values where no node can go (outside the first and last node,
// or on a node). The caller inserts the value it returns.
class NodeValuePrompt {
public:
    static constexpr const char* kTitle = "Insert node";

    // Shows the input modal to parent with `suggested` filled in; nothing
    // when the user cancels or the value is refused.
    static std::optional<float> ask(QWidget* parent, const LutEditorModel& model,
                                    const QString& suggested = {});

    // The middle of the interval below row k's next node (of the last row,
    // the interval below it), as the input suggests it.
    static QString middleAfter(const LutEditorModel& model, int k);
};

} // namespace huebase
