#pragma once

#include "util/vb_error.h"
#include "util/vb_numeric.h"

#include <cstdint>
#include <utility>
#include <vector>

// In-place ascending sort of a range of a vector: quicksort with a middle
// pivot, recursion on the smaller part only (so the depth stays logarithmic),
// and insertion sort for ranges of at most 13 elements. Elements are compared
// with their own < and >, so the editor can sort its own element types.
// Indices are signed 32-bit; every index step is overflow-checked, and a range
// reaching outside the vector is error 9 before anything is moved.
namespace huebase::Sort {

namespace detail {

inline std::int32_t next(std::int32_t i) {
    return checkedInt32(std::int64_t{i} + 1);
}
inline std::int32_t previous(std::int32_t i) {
    return checkedInt32(std::int64_t{i} - 1);
}

template <typename T> void checkRange(const std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    if (lo < 0 || lo > hi || static_cast<std::uint64_t>(hi) >= a.size())
        throw VbError(VbError::SubscriptOutOfRange);
}

template <typename T> void insertionSort(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    for (std::int32_t i = next(lo); i <= hi; i = next(i)) {
        T x = std::move(a[i]);
        std::int32_t j = previous(i);
        while (j >= lo && a[j] > x) {
            a[j + 1] = std::move(a[j]);
            j = previous(j);
        }
        a[j + 1] = std::move(x);
    }
}

template <typename T> std::int32_t partition(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    const std::int32_t mid = lo + (hi - lo) / 2;
    T pivot = std::move(a[mid]);
    // a[lo] is not read again until it is overwritten below.
    if (mid != lo)
        a[mid] = std::move(a[lo]);
    std::int32_t i = next(lo);
    std::int32_t j = hi;
    for (;;) {
        while (j > i && a[i] < pivot)
            i = next(i);
        while (j >= i && a[j] > pivot)
            j = previous(j);
        if (i >= j)
            break;
        std::swap(a[i], a[j]);
        j = previous(j);
        i = next(i);
    }
    if (j != lo)
        a[lo] = std::move(a[j]);
    a[j] = std::move(pivot);
    return j;
}

template <typename T> void quickSort(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    while (lo < hi) {
        if (hi - lo <= 12) {
            insertionSort(a, lo, hi);
            return;
        }
        const std::int32_t p = partition(a, lo, hi);
        // Ties go left; the larger part is handled by the loop.
        if (p - lo <= hi - p) {
            quickSort(a, lo, previous(p));
            lo = next(p);
        } else {
            quickSort(a, next(p), hi);
            hi = previous(p);
        }
    }
}

} // namespace detail

// Sorts a[lo..hi] (inclusive) in ascending order; lo >= hi does nothing.
template <typename T> void QuickSortRange(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    if (lo >= hi)
        return;
    detail::checkRange(a, lo, hi);
    detail::quickSort(a, lo, hi);
}

// Takes a[mid] as the pivot, moves the smaller elements before it and the
// larger after it (equal ones may go either way) and returns its final index.
// Needs lo <= hi.
template <typename T>
std::int32_t PartitionRange(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    detail::checkRange(a, lo, hi);
    return detail::partition(a, lo, hi);
}

// Sorts a[lo..hi] by straight insertion; lo >= hi does nothing.
template <typename T> void InsertionSortRange(std::vector<T>& a, std::int32_t lo, std::int32_t hi) {
    if (lo >= hi)
        return;
    detail::checkRange(a, lo, hi);
    detail::insertionSort(a, lo, hi);
}

} // namespace huebase::Sort
