#pragma once

#include "color/screen_pixels.h"

#include <functional>
#include <vector>

namespace huebase::testing {

// A screen whose pointer, size and pixels a test sets, recording every point
// read. By default pixel (x, y) is (10 + x, 20 + y, 30), so cells differ.
class FakeScreen : public ScreenPixels {
public:
    FakeScreen(int width, int height) : geometry_{0, 0, width, height} {}

    void movePointer(int x, int y) { pointer_ = {x, y}; }
    void resize(int width, int height) { geometry_ = {0, 0, width, height}; }
    void paint(std::function<ColorValue(ScreenPoint)> pixels) { pixels_ = std::move(pixels); }
    std::vector<ScreenPoint>& reads() const { return reads_; }

    ScreenPoint pointerPosition() const override { return pointer_; }
    ScreenRect screenGeometry() const override { return geometry_; }
    ColorValue pixelAt(ScreenPoint p) const override {
        reads_.push_back(p);
        return pixels_(p);
    }

private:
    ScreenPoint pointer_;
    ScreenRect geometry_;
    std::function<ColorValue(ScreenPoint)> pixels_ = [](ScreenPoint p) {
        return composeColor(10 + p.x, 20 + p.y, 30);
    };
    mutable std::vector<ScreenPoint> reads_;
};

} // namespace huebase::testing
