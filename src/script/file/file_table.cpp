#include "script/file/file_table.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_parse.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <cmath>
#include <new>

namespace morvane {
namespace {
constexpr std::size_t Offset(NAT position) { return static_cast<std::size_t>(position - 1); }

bool Tell(const UTF16 &text) {
    WRITELN(text);
    return false;
}

bool TellMemory() { return Tell("  Out of memory!"); }

bool TellTooLarge() {
    return Tell("  Table too large! At most " + GETSTRING(TFILETABLE::MOST_CELLS) + " cells.");
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

void AppendElement(std::string &joined, std::string_view cell, bool first) {
    if (!first) joined += '\t';
    const std::size_t start = joined.size();
    joined += cell;
    std::replace(joined.begin() + static_cast<std::ptrdiff_t>(start), joined.end(), '\t', ' ');
}
} // namespace

UTF16 WITHOUT_UNIT(const UTF16 &name) {
    const auto trimmed = [](const UTF16 &text) {
        return KILLLAST(KILLFIRST(text, ' ', '\t'), ' ', '\t');
    };
    const UTF16 whole = trimmed(name);
    const NAT open = POS("[", whole);
    if (open == 0 || !whole.IS(whole.LENGTH(), ']')) return whole;
    return trimmed(COPY(whole, 1, open - 1));
}

bool CELL_NUMBER(std::string_view cell, REAL &value) {
    constexpr std::size_t LONGEST_NUMBER = 400; // more units than any double needs
    value = 0;
    const std::string_view text = Trimmed(cell);
    if (text.empty() || text.size() > LONGEST_NUMBER) return false;
    if (FORMAT.DECIMAL) return PARSE_REAL(text, value) == 0 && std::isfinite(value);
    if (text.find('.') != std::string_view::npos) return false;
    std::string pointed(text);
    REPLACE(pointed, ",", ".");
    return PARSE_REAL(pointed, value) == 0 && std::isfinite(value);
}

void TFILETABLE::INIT() {
    DONE();
    header = {0, 0};
    separator.clear();
    join = false;
}

void TFILETABLE::DONE() {
    TFILETEXT::DONE();
    rows = {};
    lengthX = 0;
}

bool TFILETABLE::ISSEPARATOR(UTF16CHAR unit) {
    constexpr std::string_view REFUSED{"\0\"\r\n", 4};
    return unit.high != 0 || REFUSED.find(static_cast<char>(unit.low)) == std::string_view::npos;
}

bool TFILETABLE::SETMETHOD(UTF16CHAR newSeparator) {
    if (!ISSEPARATOR(newSeparator)) return false;
    separator = GETUTF8(newSeparator);
    return true;
}

void TFILETABLE::SETHEADER(NAT x, NAT y) { header = {std::max<NAT>(x, 0), std::max<NAT>(y, 0)}; }

std::string_view TFILETABLE::GETVIEW(NAT x, NAT y) const {
    if (x < 1 || y < 1 || y > LENGTHY()) return {};
    const ROW &row = rows[Offset(y)];
    return Offset(x) < row.size() ? std::string_view(row[Offset(x)]) : std::string_view();
}

UTF16 TFILETABLE::GET(NAT x, NAT y) const { return GETUTF16(GETVIEW(x, y)); }

UTF16 TFILETABLE::GETCOLUMN(NAT x, NAT first) const {
    std::string joined;
    for (NAT y = first; y <= LENGTHY(); ++y)
        AppendElement(joined, GETVIEW(x, y), y == first);
    return GETUTF16(joined);
}

UTF16 TFILETABLE::GETROW(NAT y, NAT first) const {
    std::string joined;
    for (NAT x = first; x <= LENGTHX(); ++x)
        AppendElement(joined, GETVIEW(x, y), x == first);
    return GETUTF16(joined);
}

NAT TFILETABLE::SEARCHCOLUMN(const UTF16 &name) const {
    const UTF16 wanted = LOWERCASE(name);
    const NAT names = std::min(std::max<NAT>(1, header.y), LENGTHY());
    NAT near = 0; // the first that differs in its unit
    for (NAT y = 1; y <= names; ++y)
        for (NAT x = 1; x <= static_cast<NAT>(rows[Offset(y)].size()); ++x) {
            const UTF16 found = LOWERCASE(GET(x, y));
            if (found == wanted) return x;
            if (near == 0 && WITHOUT_UNIT(found) == wanted) near = x;
        }
    return near;
}

NAT TFILETABLE::SEARCHROW(const UTF16 &name) const {
    const UTF16 wanted = LOWERCASE(name);
    NAT near = 0;
    for (NAT y = 1; y <= LENGTHY(); ++y) {
        const NAT length = static_cast<NAT>(rows[Offset(y)].size());
        for (NAT x = 1; x <= std::min(std::max<NAT>(1, header.x), length); ++x) {
            const UTF16 found = LOWERCASE(GET(x, y));
            if (found == wanted) return y;
            if (near == 0 && WITHOUT_UNIT(found) == wanted) near = y;
        }
    }
    return near;
}

NAT TFILETABLE::SEARCHCELL(NAT x, const UTF16 &text) const {
    const std::string wanted = GETUTF8(text);
    REAL number = 0, value = 0;
    const bool isNumber = CELL_NUMBER(wanted, number);
    for (NAT y = std::min(header.y, LENGTHY()) + 1; y <= LENGTHY(); ++y) {
        const std::string_view cell = GETVIEW(x, y);
        if (cell == wanted || (isNumber && CELL_NUMBER(cell, value) && value == number)) return y;
    }
    return 0;
}

void TFILETABLE::GETNUMBERS(RANGENAT columns, RANGENAT inRows, TPOLYREAL &numbers) const {
    numbers.INIT();
    const NAT left = std::max(columns.min, std::min(header.x, LENGTHX()) + 1);
    const NAT top = std::max(inRows.min, std::min(header.y, LENGTHY()) + 1);
    REAL value = 0;
    for (NAT y = top; y <= std::min(inRows.max, LENGTHY()); ++y) {
        const NAT length = static_cast<NAT>(rows[Offset(y)].size());
        for (NAT x = left; x <= std::min(columns.max, length); ++x)
            if (CELL_NUMBER(GETVIEW(x, y), value)) numbers.PUSH(value);
    }
}

// The rows up to y and the width up to x exist afterwards, as empty cells.
bool TFILETABLE::Grow(NAT x, NAT y) {
    const NAT wide = std::max(x, LENGTHX()), high = std::max(y, LENGTHY());
    const bool same = wide == LENGTHX() && high == LENGTHY();
    if (!same && wide > MOST_CELLS / high) return TellTooLarge();
    try {
        rows.resize(static_cast<std::size_t>(high));
    } catch (const std::bad_alloc &) {
        return TellMemory();
    }
    lengthX = wide;
    return true;
}

bool TFILETABLE::NEW(NAT x, NAT y) {
    if (x < 0 || y < 0) return Tell("  A table has no negative size!");
    if (x > 0 && y > MOST_CELLS / x) return TellTooLarge();
    DONE();
    return x == 0 || y == 0 || Grow(x, y);
}

bool TFILETABLE::PUT(NAT x, NAT y, const UTF16 &text) {
    if (x < 1 || y < 1)
        return Tell("  No table cell (" + GETSTRING(x) + "," + GETSTRING(y) +
                    ")! Columns and rows count from 1.");
    if (!Grow(x, y)) return false;
    ROW &row = rows[Offset(y)];
    try {
        if (row.size() <= Offset(x)) row.resize(Offset(x) + 1);
        row[Offset(x)] = GETUTF8(text);
    } catch (const std::bad_alloc &) {
        return TellMemory();
    }
    return true;
}

bool TFILETABLE::ADDROW(const std::vector<UTF16> &texts) {
    const NAT y = LENGTHY() + 1;
    if (texts.empty() || !Grow(static_cast<NAT>(texts.size()), y)) return false;
    for (NAT x = 1; x <= static_cast<NAT>(texts.size()); ++x)
        if (!PUT(x, y, texts[Offset(x)])) return false;
    return true;
}
} // namespace morvane
