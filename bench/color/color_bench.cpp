// The colour dialog refreshes every display on each pick tick and draws its
// palette once per dialog; these are the logic costs behind that.
#include "color/hsl.h"
#include "color/palette_field.h"
#include "color/screen_sampler.h"

#include <benchmark/benchmark.h>

namespace {

using namespace huebase;

// A screen held in memory, so that only the sampling logic is measured.
class MemoryScreen : public ScreenPixels {
public:
    ScreenPoint pointerPosition() const override { return pointer; }
    ScreenRect screenGeometry() const override { return {0, 0, 1920, 1080}; }
    ColorValue pixelAt(ScreenPoint p) const override {
        return composeColor(p.x & 255, p.y & 255, 77);
    }
    ScreenPoint pointer;
};

// What one refresh of the dialog computes: the HSL boxes and eight strip steps.
void BM_RefreshArithmetic(benchmark::State& state) {
    ColorValue color = composeColor(70, 130, 180);
    for (auto _ : state) {
        benchmark::DoNotOptimize(modHSL::RGBToHSL(color));
        for (int i = 0; i < 4; ++i)
            benchmark::DoNotOptimize(modHSL::DarkenColor(color, (4 - i) * 0.05f));
        for (int i = 4; i < 8; ++i)
            benchmark::DoNotOptimize(modHSL::LightenColor(color, (i - 3) * 0.05f));
        color = (color + 0x010203) & 0xFFFFFF;
    }
}
BENCHMARK(BM_RefreshArithmetic);

void BM_BlockTickAndAverage(benchmark::State& state) {
    MemoryScreen screen;
    ScreenSampler sampler(screen);
    int step = 0;
    for (auto _ : state) {
        screen.pointer = {100 + (step & 511), 200 + ((step >> 9) & 255)};
        ++step;
        const auto block = sampler.blockTick();
        benchmark::DoNotOptimize(averageColor(*block));
    }
}
BENCHMARK(BM_BlockTickAndAverage);

void BM_PaletteField(benchmark::State& state) {
    for (auto _ : state)
        for (int y = 0; y < 215; ++y)
            for (int x = 0; x < 254; ++x)
                benchmark::DoNotOptimize(paletteColorAt(x, y, 254, 215));
}
BENCHMARK(BM_PaletteField)->Unit(benchmark::kMillisecond);

} // namespace
