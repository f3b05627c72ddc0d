#include "core/rank_index.h"

#include <algorithm>
#include <limits>

namespace huebase {

void RankIndex::assign(const std::vector<float>& ascending) {
    blocks_.clear();
    levelStart_.clear();
    size_ = ascending.size();
    std::vector<float> level = ascending;
    // NaN padding is never at or below anything, so it is never counted. An
    // empty index keeps one block of padding, so queries need no extra test.
    Block padding;
    std::fill(std::begin(padding.key), std::end(padding.key),
              std::numeric_limits<float>::quiet_NaN());
    for (;;) {
        levelStart_.push_back(blocks_.size());
        const std::size_t blockCount =
            std::max<std::size_t>(1, (level.size() + kBlock - 1) / kBlock);
        blocks_.resize(blocks_.size() + blockCount, padding);
        for (std::size_t k = 0; k < level.size(); ++k)
            blocks_[levelStart_.back() + k / kBlock].key[k % kBlock] = level[k];
        if (level.size() <= kBlock) {
            narrowTop_ = level.size() <= kBlock / 2;
            break;
        }
        std::vector<float> firsts;
        for (std::size_t k = 0; k < level.size(); k += kBlock)
            firsts.push_back(level[k]);
        level = std::move(firsts);
    }
    topLevel_ = levelStart_.size() - 1;
}

} // namespace huebase
