#pragma once

#include "core/lut_node.h"

namespace huebase {

// What the editor calls on the control that owns it.
class LutEditorOwner {
public:
    virtual ~LutEditorOwner() = default;

    // Receives a copy of the editor's table (ascending, node 1 lowest).
    virtual void receiveLutTable(const LutTable& table) = 0;
    // The editor's OK: the table is final.
    virtual void OK_Clicked() = 0;
    // "Reset": the owner gives the table it holds back through SetLutTable.
    virtual void resetLutTable() = 0;
    // Stores a no-data colour without telling anyone.
    virtual void receiveNoDataColor(ColorValue /*color*/) {}
};

} // namespace huebase
