#pragma once

#include "orientation/scan/line_statistic.hpp"
#include "orientation/scan/scan_method.hpp"

namespace morvane {
// take(direction, value) for every direction with at least r samples, in scanning order, counted
// from 0. False at the first shorter one when fullScan is set: the voxel then has no vector.
template <class TAKE> bool FOR_EACH_LONG_LINE(const VOXEL_SCAN &scan, const TAKE &take) {
    NAT *samples = scan.lists.line.DATA();
    for (NAT k = 0; k < scan.directions.points.LENGTH; ++k) {
        const NAT count = scan.source.read(scan.source.self, k, samples);
        if (count < scan.r) {
            if (scan.settings.fullScan) return false;
            continue;
        }
        take(k, LINE_STATISTIC(scan.settings.subMethod, samples, count));
    }
    return true;
}
} // namespace morvane
