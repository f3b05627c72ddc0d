#pragma once

#include "color/screen_pixels.h"

#include <array>
#include <optional>

namespace huebase {

inline constexpr int kBlockSide = 5;
inline constexpr int kBlockCells = kBlockSide * kBlockSide;
inline constexpr int kBlockCentreCell = kBlockCells / 2; // the pixel under the pointer

// The 5x5 block around the pointer, row by row: cell k is column k % 5 and
// row k / 5, so cell 0 is top-left and cell 24 bottom-right.
using SampleBlock = std::array<ColorValue, kBlockCells>;

// The screen point of cell k of the block centred on the pointer.
ScreenPoint blockCellPoint(ScreenPoint pointer, int cell) noexcept;

// Per-channel sums of the 25 samples divided by 25, rounded half to even.
ColorValue averageColor(const SampleBlock& block);

// The two polling modes of screen picking. Each mode remembers the pointer
// position of its own last tick (both start at (0, 0)) and does nothing while
// the pointer stays there, so idle ticks cost one pointer read.
class ScreenSampler {
public:
    explicit ScreenSampler(const ScreenPixels& screen) noexcept : screen_(screen) {}

    // The pixel under the pointer, or nothing when the pointer has not moved.
    std::optional<ColorValue> pickTick();

    // The block around the pointer, or nothing when the pointer has not moved.
    // Points outside the screen bounds (taken on the first tick, edges
    // inclusive) are black.
    std::optional<SampleBlock> blockTick();

private:
    const ScreenPixels& screen_;
    ScreenPoint lastPick_;
    ScreenPoint lastBlock_;
    ScreenRect bounds_;
};

} // namespace huebase
