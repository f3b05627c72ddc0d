#include "color/screen_sampler.h"

#include "util/vb_numeric.h"

namespace huebase {

namespace {
// True when the pointer moved since the last tick of the mode, which then
// remembers the new position.
bool moved(ScreenPoint& last, ScreenPoint now) noexcept {
    if (now == last)
        return false;
    last = now;
    return true;
}

// The right and bottom edges count as inside, as the screen size itself is
// taken as the last coordinate.
bool inside(const ScreenRect& bounds, ScreenPoint p) noexcept {
    return p.x >= bounds.left && p.y >= bounds.top && p.x <= bounds.right && p.y <= bounds.bottom;
}
} // namespace

ScreenPoint blockCellPoint(ScreenPoint pointer, int cell) noexcept {
    const int half = kBlockSide / 2;
    return {pointer.x + cell % kBlockSide - half, pointer.y + cell / kBlockSide - half};
}

ColorValue averageColor(const SampleBlock& block) {
    std::int32_t red = 0, green = 0, blue = 0;
    for (const ColorValue sample : block) {
        red += RedOf(sample);
        green += GreenOf(sample);
        blue += BlueOf(sample);
    }
    const auto mean = [](std::int32_t sum) { return toInt32(sum / double(kBlockCells)); };
    return composeColor(mean(red), mean(green), mean(blue));
}

std::optional<ColorValue> ScreenSampler::pickTick() {
    const ScreenPoint pointer = screen_.pointerPosition();
    if (!moved(lastPick_, pointer))
        return std::nullopt;
    return screen_.pixelAt(pointer);
}

std::optional<SampleBlock> ScreenSampler::blockTick() {
    if (bounds_.right == 0)
        bounds_ = screen_.screenGeometry();
    const ScreenPoint pointer = screen_.pointerPosition();
    if (!moved(lastBlock_, pointer))
        return std::nullopt;
    SampleBlock block{};
    for (int k = 0; k < kBlockCells; ++k) {
        const ScreenPoint p = blockCellPoint(pointer, k);
        block[k] = inside(bounds_, p) ? screen_.pixelAt(p) : 0;
    }
    return block;
}

} // namespace huebase
