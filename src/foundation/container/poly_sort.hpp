#pragma once

#include "foundation/base/records.hpp"

#include <utility>

// The heap sort of the system. The order of equal elements follows from it and is part of results.
namespace morvane {
// Restores the heap below position `parent` of `count` elements; `data[0]` is position 1.
template <class T, class LESS> void SIFT_DOWN(T *data, NAT parent, NAT count, const LESS &less) {
    for (NAT child = 2 * parent; child <= count; child = 2 * parent) {
        if (child < count && less(data[child - 1], data[child])) ++child; // strictly larger only
        if (!less(data[parent - 1], data[child - 1])) return;
        std::swap(data[parent - 1], data[child - 1]);
        parent = child;
    }
}

// Ascending by `less`; not stable. The right child is taken only when it is strictly larger, and a
// parent moves down only below a strictly larger child.
template <class T, class LESS> void HEAP_SORT(T *data, NAT count, const LESS &less) {
    for (NAT parent = count / 2; parent >= 1; --parent)
        SIFT_DOWN(data, parent, count, less);
    for (NAT last = count; last > 1; --last) {
        std::swap(data[0], data[last - 1]);
        SIFT_DOWN(data, 1, last - 1, less);
    }
}
} // namespace morvane
