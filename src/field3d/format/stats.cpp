#include "field3d/format/stats.hpp"

#include "field3d/raster/values.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/poly_text.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT FEW_BINS = 11;    // fewer are listed
constexpr NAT CHART_WIDTH = 70; // characters
constexpr NAT LINE_LENGTH = 71; // characters that a line stays below

void WRITE_BINS(const TPOLYNAT &bins) {
    if (bins.LENGTH == 0) return WRITELN("  Empty.");
    const auto all = bins.SPAN();
    const NAT filled = std::count_if(all.begin(), all.end(), [](NAT count) { return count != 0; });
    if (filled >= FEW_BINS) {
        WRITE("  ");
        return WRITE_HISTOGRAM(CHART_WIDTH, 1, bins);
    }
    UTF16 line("  ");
    for (NAT bin = 1; bin <= bins.LENGTH; ++bin)
        if (bins._GET(bin) != 0)
            line += GETSTRING(bin - 1) + UTF16(":(") + GETSTRING(bins._GET(bin)) + UTF16(") ");
    WRITELN(line);
}
} // namespace

void WRITE_FRAME(const UTF16 &title, const FRAME &frame) {
    const MATRIX3 &matrix = frame.MATRIX();
    const UTF16 line = title + GETSTRING(matrix) + UTF16(" + ") + GETSTRING(frame.MOVE());
    if (line.LENGTH() < LINE_LENGTH) return WRITELN(line);
    const UTF16 indent = FILLUP(UTF16(), title.LENGTH(), UTF16(" "));
    WRITELN(title + GETSTRING(matrix[0]));
    WRITELN(indent + GETSTRING(matrix[1]));
    WRITELN(indent + GETSTRING(matrix[2]));
    WRITELN(COPY(indent, 1, indent.LENGTH() - 2) + UTF16("+ ") + GETSTRING(frame.MOVE()));
}

template <class VOXEL> void __WRITE_STATS(const RASTER<VOXEL> &field) {
    TPOLYNAT bins;
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    HISTOGRAM_FAST(field, bins, random);
    WRITE_BINS(bins);
    WRITE_FRAME(UTF16("  Transformation: "), field.frame);
}

template void __WRITE_STATS(const T3DMONO &);
template void __WRITE_STATS(const T3DGRAY &);
template void __WRITE_STATS(const T3DFULLGRAY &);
} // namespace morvane
