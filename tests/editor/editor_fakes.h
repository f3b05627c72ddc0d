#pragma once

#include "editor/lut_editor_listener.h"
#include "editor/lut_editor_model.h"
#include "core/lut_editor_owner.h"

#include <vector>

namespace huebase::testing {

// An owner that behaves like the LUT control: it keeps the tables sent and
// gives the last one back on reset.
class FakeOwner : public LutEditorOwner {
public:
    explicit FakeOwner(LutEditorModel& editor) : editor_(editor) { editor.setOwner(this); }

    void receiveLutTable(const LutTable& table) override { received.push_back(table); }
    void OK_Clicked() override { ++okCount; }
    void resetLutTable() override {
        ++resetCount;
        if (!received.empty())
            editor_.SetLutTable(received.back());
    }

    std::vector<LutTable> received;
    int okCount = 0;
    int resetCount = 0;

private:
    LutEditorModel& editor_;
};

class CountingListener : public LutEditorListener {
public:
    void tabsPlaced() override { ++tabs; }
    void colorBarPainted() override { ++bars; }

    int tabs = 0;
    int bars = 0;
};

inline LutNode node(float value, std::uint8_t method, ColorValue color, float upper = 0.0f) {
    return {value, method, color, upper};
}

} // namespace huebase::testing
