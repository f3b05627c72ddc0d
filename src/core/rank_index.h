#pragma once

#include "core/simd.h"

#include <cstddef>
#include <vector>

namespace huebase {

// Answers "how many of these ascending values are at or below x" in a few
// cache-line steps: the values sit in blocks of 16, every 16th value again in
// blocks above them, and so on up to a single block. Each step counts within
// one block with no branches, so random queries cost the same as sorted ones
// (4,096 values take three steps).
class RankIndex {
public:
    RankIndex() { assign({}); }

    // The values must be ascending (equal neighbours allowed) and not NaN.
    void assign(const std::vector<float>& ascending);

    std::size_t size() const noexcept { return size_; }
    // The index of the first value above x (size() when none is); 0 for NaN.
    std::size_t countAtOrBelow(float x) const noexcept;

private:
    static constexpr std::size_t kBlock = 16;
    struct alignas(64) Block {
        float key[kBlock];
    };
    static std::size_t countInBlock(const Block& block, float x) noexcept;
    // The first half only, for a top block holding at most 8 values.
    static std::size_t countInHalfBlock(const Block& block, float x) noexcept;

    // All levels in one array: the values' blocks first, the single top block
    // last; levelStart_[l] is where level l begins.
    std::vector<Block> blocks_;
    std::vector<std::size_t> levelStart_;
    std::size_t topLevel_ = 0;
    bool narrowTop_ = false;
    std::size_t size_ = 0;
};

// Inline: the colour query runs this for every value it colours.
inline std::size_t RankIndex::countInBlock(const Block& block, float x) noexcept {
#if HUEBASE_SSE2
    const __m128 v = _mm_set1_ps(x);
    // Each true compare is -1 in its lane.
    __m128i sum = _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key), v));
    sum = _mm_add_epi32(sum, _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key + 4), v)));
    sum = _mm_add_epi32(sum, _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key + 8), v)));
    sum = _mm_add_epi32(sum, _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key + 12), v)));
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(1, 0, 3, 2)));
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(2, 3, 0, 1)));
    return static_cast<std::size_t>(-_mm_cvtsi128_si32(sum));
#else
    std::size_t count = 0;
    for (const float key : block.key)
        count += key <= x ? 1 : 0;
    return count;
#endif
}

inline std::size_t RankIndex::countInHalfBlock(const Block& block, float x) noexcept {
#if HUEBASE_SSE2
    const __m128 v = _mm_set1_ps(x);
    __m128i sum = _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key), v));
    sum = _mm_add_epi32(sum, _mm_castps_si128(_mm_cmple_ps(_mm_load_ps(block.key + 4), v)));
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(1, 0, 3, 2)));
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(2, 3, 0, 1)));
    return static_cast<std::size_t>(-_mm_cvtsi128_si32(sum));
#else
    return countInBlock(block, x);
#endif
}

inline std::size_t RankIndex::countAtOrBelow(float x) const noexcept {
    // Below the first value of a block at one level means below its whole
    // block at the level beneath, so only the top can give 0.
    std::size_t count =
        narrowTop_ ? countInHalfBlock(blocks_.back(), x) : countInBlock(blocks_.back(), x);
    if (count == 0 || topLevel_ == 0)
        return count;
    for (std::size_t level = topLevel_; level-- > 0;)
        count = kBlock * (count - 1) + countInBlock(blocks_[levelStart_[level] + count - 1], x);
    return count;
}

} // namespace huebase
