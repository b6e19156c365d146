#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
// The value of a scan line by the number of its statistic: 0 sum, 1 mean, 3 minimum, 4 first
// quartile, 5 median, 6 third quartile, 7 maximum, any other the sample standard deviation; the
// same bits as the members of TPOLYNAT. The quartiles reorder the samples. An empty line gives 0.
REAL LINE_STATISTIC(BYTE subMethod, NAT *samples, NAT count);
} // namespace morvane
