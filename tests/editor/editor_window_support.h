#pragma once

#include "editor/color_table_row.h"
#include "editor/distribution_graph.h"
#include "editor/lut_editor_window.h"
#include "editor/node_tab_strip.h"
#include "editor_fakes.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace huebase::testing {

// A shown editor window of a fixed size with an owner that keeps what it is
// sent, and the ways a test reaches its controls by name and its graph by
// data coordinates.
struct ShownEditor {
    ShownEditor() : owner(window.model()) {
        window.resize(980, 600);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    template <typename T> T& find(const char* name) const {
        T* control = window.findChild<T*>(name);
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return *control;
    }

    LutEditorModel& model() { return window.model(); }
    DistributionGraph& graph() const { return find<DistributionGraph>("Graph"); }
    NodeTabStrip& tabs() const { return find<NodeTabStrip>("GraphColorTab"); }

    // The graph pixel nearest to data value x and count y.
    QPoint graphPoint(double x, double y = 0.0) const { return graph().pointAt(x, y).toPoint(); }
    // The data value the graph reads at the pixel nearest to x.
    float valueAtPixelOf(double x) const {
        return static_cast<float>(graph().valueAt(graphPoint(x).x()));
    }
    QPoint tabCentre(int k) const { return tabs().tabRect(k).center(); }

    // A pointer move with no button held, as mouse tracking delivers it.
    static void moveTo(QWidget& widget, QPoint pos, Qt::MouseButtons held = Qt::NoButton) {
        QMouseEvent move(QEvent::MouseMove, pos, widget.mapToGlobal(pos), Qt::NoButton, held,
                         Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
    }

    std::vector<float> values() const {
        std::vector<float> result;
        for (const NodeRow& row : window.model().rows().all())
            result.push_back(row.value);
        return result;
    }

    LutEditorWindow window;
    FakeOwner owner;
};

} // namespace huebase::testing
