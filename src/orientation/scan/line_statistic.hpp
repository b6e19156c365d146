#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
// The value of a scan line by the number of its statistic: 0 sum, 1 mean, 3 minimum, 4 first
// quartile, 5 median, 6 third quartile, 7 maximum, any other the sample standard deviation; the
// same bits as the members of TPOLYNAT. The quartiles reorder the samples. An empty line gives 0.
REAL LINE_STATISTIC(BYTE subMethod, NAT *samples, NAT count);

// The statistics 3 to 7 are the sample at a sorted position, from 1; position 0 has the value 0.
constexpr bool IS_RANK(BYTE subMethod) { return subMethod >= 3 && subMethod <= 7; }
constexpr NAT RANK_POSITION(BYTE subMethod, NAT count) {
    switch (subMethod) {
    case 3: return 1;
    case 4: return count / 4 + count % 2;
    case 5: return count / 2 + count % 2;
    case 6: return count / 4 * 3 + count % 2;
    default: return count;
    }
}
} // namespace morvane
