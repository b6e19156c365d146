#include "foundation/container/poly_text.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <new>

namespace morvane {
namespace {
constexpr std::string_view EMPTY_PLACE = "\u2001"; // as wide as a block character

// Heights of the bars in eighths of a row; none when the largest bin is not above 1.
TPOLYNAT BAR_HEIGHTS(NAT columns, NAT rows, const TPOLYNAT &bins) {
    TPOLYNAT heights;
    const NAT most = bins.MAX();
    if (bins.LENGTH < 1 || most <= 1) return heights;
    heights.NEWLENGTH(columns);
    const REAL scale = static_cast<REAL>(rows) * 8 / LOG10(static_cast<REAL>(most));
    for (NAT column = 0; column < heights.LENGTH; ++column) {
        const NAT first = column * bins.LENGTH / columns;
        const NAT end = std::max(first + 1, (column + 1) * bins.LENGTH / columns);
        NAT value = 0;
        for (NAT i = first; i < end; ++i)
            value = std::max(value, bins.GET(i + 1));
        if (value > 1) heights._PUT(column + 1, ROUND(scale * LOG10(static_cast<REAL>(value))));
    }
    return heights;
}

// One character of a bar of `height` eighths, in the row that begins at `base` eighths.
std::string BAR_PART(NAT height, NAT base) {
    const NAT eighths = std::clamp<NAT>(height - base, 0, 8);
    if (eighths == 0) return std::string(EMPTY_PLACE);
    std::string block = "\u2580"; // the block characters of 1 to 8 eighths follow it
    block.back() = static_cast<char>(block.back() + eighths);
    return block;
}
} // namespace

std::unique_ptr<TPOLYREAL> GETPOLYREAL(const UTF16 &text) {
    std::unique_ptr<TPOLYREAL> list(new (std::nothrow) TPOLYREAL);
    if (!list) return list;
    list->INIT();
    UTF16 rest = text;
    while (!rest.EMPTY())
        list->PUSH(CUTREAL(rest));
    return list;
}

void WRITE_HISTOGRAM(NAT columns, NAT rows, const TPOLYNAT &bins) {
    if (columns < 1 || rows < 1) return;
    const TPOLYNAT heights = BAR_HEIGHTS(columns, rows, bins);
    for (NAT row = rows - 1; row >= 0; --row) {
        std::string line = row > 0 ? "  " : "0 ";
        NAT column = 1;
        if (row == 0 && heights.LENGTH < 1) {
            line += "empty";
            column = 6;
        }
        for (; column <= columns; ++column)
            line += BAR_PART(heights.GET(column), row * 8);
        if (row == 0) line += " " + GETUTF8(GETSTRING(bins.LENGTH));
        WRITELN(line);
    }
}
} // namespace morvane
