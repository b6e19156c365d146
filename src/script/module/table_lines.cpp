#include "script/module/table_handlers.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"
#include "script/module/tables.hpp"

#include <algorithm>

// Whole rows and columns of a table as variables, lists and statistics.
namespace morvane {
namespace {
enum class AXIS : BYTE { ROW, COLUMN };

UTF16 Word(AXIS axis) { return axis == AXIS::ROW ? "row" : "column"; }
NAT Length(AXIS axis, const TFILETABLE &table) {
    return axis == AXIS::ROW ? table.LENGTHY() : table.LENGTHX();
}

// The first line along an axis that is no header, and the first value behind a line's names.
NAT FirstLine(AXIS axis, const TFILETABLE &table) {
    const COMPLEXNAT header = table.GETHEADER();
    const NAT skipped = axis == AXIS::ROW ? header.y : header.x;
    return std::min(skipped, Length(axis, table)) + 1;
}
NAT FirstValue(AXIS axis, const TFILETABLE &table) {
    return FirstLine(axis == AXIS::ROW ? AXIS::COLUMN : AXIS::ROW, table);
}

UTF16 Cell(AXIS axis, const TFILETABLE &table, NAT line, NAT position) {
    return axis == AXIS::ROW ? table.GET(position, line) : table.GET(line, position);
}

// A cell as the name of a variable: without quotes, and without a unit in [ ] at its end, which
// would be read as the number of an element.
UTF16 VariableName(UTF16 name) {
    REPLACE(name, UTF16("\""), UTF16());
    REPLACE(name, UTF16("'"), UTF16());
    return WITHOUT_UNIT(name);
}

// Stores a value under a name from the table. False when the script has to stop.
bool PutVariable(TMACRO *engine, const UTF16 &name, const UTF16 &value) {
    const UTF16 key = CUT_TEXT(GETREPLACE(name, ' ', '.'));
    if (engine->SEARCHCONSTANT(key) > 0)
        WRITELN("Warning! Double constant (" + key + "), its old value is replaced.");
    if (value.LENGTH() > LONGEST_TEXT)
        WRITELN("Warning! The value of (" + key + ") is cut to " + GETSTRING(LONGEST_TEXT) +
                " characters.");
    engine->PUTCONSTANT(name, value);
    return !engine->stop;
}

template <AXIS LINES, bool WHOLE> void ToVariables(TMACRO *engine) {
    const TFILETABLE &table = TABLES.CURRENT();
    const NAT value = std::max<NAT>(2, FirstValue(LINES, table)); // the first cell is the name
    for (NAT line = FirstLine(LINES, table); line <= Length(LINES, table); ++line) {
        const UTF16 name = VariableName(Cell(LINES, table, line, 1));
        if (name.EMPTY()) {
            WRITELN("Warning! No name for " + Word(LINES) + " " + GETSTRING(line) +
                    ", it is left out.");
            continue;
        }
        UTF16 stored;
        if (!WHOLE)
            stored = Cell(LINES, table, line, value);
        else if (LINES == AXIS::ROW)
            stored = table.GETROW(line, value);
        else
            stored = table.GETCOLUMN(line, value);
        if (!PutVariable(engine, name, stored)) return;
    }
}

// Whether a text can be meant as a calculation; "m4" is a name, although a number stands in it.
bool IsExpression(const UTF16 &text) {
    return GETUTF8(text).find_first_not_of("0123456789+-*/. ") == std::string::npos;
}

NAT Position(AXIS axis, const TFILETABLE &table, const UTF16 &text) {
    NAT number = 0, code = 0;
    VAL(text, number, code);
    if (code == 0) return number;
    const NAT found = axis == AXIS::ROW ? table.SEARCHROW(text) : table.SEARCHCOLUMN(text);
    if (found > 0) return found;
    return IsExpression(text) ? GETNAT(text) : 0;
}

// The line that a script names; 0 after telling that the table has none.
NAT FoundLine(AXIS axis, const TFILETABLE &table, const UTF16 &text) {
    const NAT line = Position(axis, table, text);
    if (line >= 1 && line <= Length(axis, table)) return line;
    WRITELN("  No " + Word(axis) + " (" + text + ") in the table!");
    return 0;
}

template <AXIS LINES> void ToList(TMACRO *engine) {
    const TFILETABLE &table = TABLES.CURRENT();
    const NAT line = FoundLine(LINES, table, engine->GETPARAMETER(1));
    const NAT last = LINES == AXIS::ROW ? table.LENGTHX() : table.LENGTHY();
    std::vector<UTF16> cells;
    if (line > 0)
        for (NAT i = FirstValue(LINES, table); i <= last; ++i)
            cells.push_back(Cell(LINES, table, line, i));
    CELLS_TO_LIST(cells, LISTS.CURRENT());
}
} // namespace

NAT TABLE_COLUMN(const TFILETABLE &table, const UTF16 &text) {
    return Position(AXIS::COLUMN, table, text);
}
NAT TABLE_ROW(const TFILETABLE &table, const UTF16 &text) {
    return Position(AXIS::ROW, table, text);
}

void CELLS_TO_LIST(const std::vector<UTF16> &cells, TLIST &list) {
    REAL value = 0;
    const auto isNumber = [&value](const UTF16 &cell) { return CELL_NUMBER(GETUTF8(cell), value); };
    list.DONE();
    const bool numeric = list.KIND() == LIST_REAL || list.KIND() == LIST_NAT;
    const bool fits = std::all_of(cells.begin(), cells.end(), isNumber);
    if (numeric && !fits) list.SETKIND(LIST_CHARS);
    for (const UTF16 &cell : cells) {
        const bool done =
            numeric && fits && isNumber(cell) ? list.PUSH(HYPER{value, 0, 0, 0}) : list.PUSH(cell);
        if (!done) return; // memory ran out, which is told
    }
}

namespace {
// With as few decimals as read back equal: a median is shown as its cell is.
UTF16 Shortest(REAL value) {
    constexpr NAT MOST_DECIMALS = 16;
    for (NAT decimals = 0; decimals < MOST_DECIMALS; ++decimals) {
        const UTF16 text = GETSTRING(value, decimals);
        if (GETREAL(text) == value) return text;
    }
    return GETSTRING(value);
}
} // namespace

UTF16 TABLE_STATISTICS(TPOLYREAL &numbers) {
    const NAT n = numbers.LENGTH;
    UTF16 text = GETSTRING(n);
    if (n < 1) return text + "\t\t\t\t\t\t\t\t";
    const REAL sum = numbers.SUM(), mean = numbers.MEAN(), deviation = numbers.SD();
    numbers.SORT();
    // At an odd count the elements n/4 + 1, n/2 + 1 and n/4*3 + 1, at an even one their lower
    // neighbours.
    const NAT odd = n % 2, half = n / 2 + odd;
    // Deliberate: with two or three numbers the upper quartile is the median.
    const NAT lower = std::max<NAT>(1, n / 4 + odd), upper = std::max(half, n / 4 * 3 + odd);
    for (const REAL value : {sum, mean, deviation, numbers.GET(1), numbers.GET(lower),
                             numbers.GET(half), numbers.GET(upper), numbers.GET(n)})
        text += "\t" + Shortest(value);
    return text;
}

void TABLE_ROWS_TO_CONSTANT(TMACRO *engine) { ToVariables<AXIS::ROW, false>(engine); }
void TABLE_COLUMNS_TO_CONSTANT(TMACRO *engine) { ToVariables<AXIS::COLUMN, false>(engine); }
void TABLE_ROWS_TO_ARRAY(TMACRO *engine) { ToVariables<AXIS::ROW, true>(engine); }
void TABLE_COLUMNS_TO_ARRAY(TMACRO *engine) { ToVariables<AXIS::COLUMN, true>(engine); }
void TABLE_ROW_TO_LIST(TMACRO *engine) { ToList<AXIS::ROW>(engine); }
void TABLE_COLUMN_TO_LIST(TMACRO *engine) { ToList<AXIS::COLUMN>(engine); }

// getstat: all numbers of the table. getstat column x, getstat row y: those of one line.
void TABLE_GETSTAT_REF(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count != 0 && count != 2) return engine->PARAMETERERROR(2);
    const TFILETABLE &table = TABLES.CURRENT();
    RANGENAT columns = table.ALLCOLUMNS(), rows = table.ALLROWS();
    if (count == 2) {
        const UTF16 word = LOWERCASE(engine->GETPARAMETER(1));
        if (word != "column" && word != "row")
            return engine->ERROR("neither column nor row: " + word);
        const AXIS axis = word == "row" ? AXIS::ROW : AXIS::COLUMN;
        const NAT line = FoundLine(axis, table, engine->GETPARAMETER(2));
        (axis == AXIS::ROW ? rows : columns) = {line, line};
    }
    TPOLYREAL numbers;
    table.GETNUMBERS(columns, rows, numbers);
    engine->COMMAND_RESULT = TABLE_STATISTICS(numbers);
}
} // namespace morvane
