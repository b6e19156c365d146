#pragma once

#include "foundation/base/utf16.hpp"
#include "foundation/container/poly_types.hpp"

#include <vector>

// Handlers of the table commands that make more of a table than one cell.
namespace morvane {
class TMACRO;
class TFILETABLE;
class TLIST;

// A column or row as a script names it: a number, a header name, or an expression; 0 for none.
NAT TABLE_COLUMN(const TFILETABLE &table, const UTF16 &text);
NAT TABLE_ROW(const TFILETABLE &table, const UTF16 &text);

// Count, sum, mean, standard deviation (n - 1), smallest, lower quartile, median, upper quartile,
// largest, parted by tabs; without numbers a zero and eight empty elements. Sorts the numbers.
UTF16 TABLE_STATISTICS(TPOLYREAL &numbers);

// The list becomes these texts: numbers as numbers. A list of numbers turns into one of texts when
// a cell is no number.
void CELLS_TO_LIST(const std::vector<UTF16> &cells, TLIST &list);

void TABLE_ROWS_TO_CONSTANT(TMACRO *engine);
void TABLE_COLUMNS_TO_CONSTANT(TMACRO *engine);
void TABLE_ROWS_TO_ARRAY(TMACRO *engine);
void TABLE_COLUMNS_TO_ARRAY(TMACRO *engine);
void TABLE_ROW_TO_LIST(TMACRO *engine);
void TABLE_COLUMN_TO_LIST(TMACRO *engine);
void TABLE_GETSTAT_REF(TMACRO *engine);
} // namespace morvane
