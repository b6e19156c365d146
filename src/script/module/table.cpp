#include "script/module/table_handlers.hpp"
#include "script/module/tables.hpp"
#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"
#include "script/workspace/setting_handlers.hpp"

namespace morvane {
namespace {
UTF16 SizeText(const TFILETABLE &table) {
    return "(" + GETSTRING(table.LENGTHX()) + "x" + GETSTRING(table.LENGTHY()) + ")";
}

bool IsFilled(const TFILETABLE &table) { return table.LENGTHX() > 0 && table.LENGTHY() > 0; }

constexpr WORKSPACE_WORDS<TFILETABLE> WORDS = {
    .name = "table",
    .dump = "table",
    .current = "Table",
    .list = "Table",
    .field = "table",
    .kind = 0,
    .init = [](TFILETABLE &table, BYTE) { table.INIT(); },
    .describe = [](const TFILETABLE &table) { return "table" + SizeText(table); },
    .size = SizeText,
    .notEmpty = IsFilled,
    .same = nullptr};

void IFTABLE_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(TABLES.LENGTH() > 0 && IsFilled(TABLES.CURRENT()));
}

template <NAT (TFILETABLE::*SIZE)() const> void SIZE_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(TABLES.LENGTH() > 0 ? (TABLES.CURRENT().*SIZE)() : NAT{-1});
}
constexpr HANDLER WIDTH_LAMD = SIZE_LAMD<&TFILETABLE::LENGTHX>;
constexpr HANDLER HEIGHT_LAMD = SIZE_LAMD<&TFILETABLE::LENGTHY>;

void CLEAR_TABLE(TMACRO *) {
    TABLES.CURRENT().DONE();
    TABLES.CURRENT().INIT();
}

void SETMETHOD_CHAR(TMACRO *engine) {
    const UTF16 text = engine->GETPARAMETER(1);
    if (!TABLES.CURRENT().SETMETHOD(text.GETCHAR(1))) engine->ERROR("no separator: " + text);
}

void SETJOIN_FLAG(TMACRO *engine) { TABLES.CURRENT().SETJOIN(GETBOOLEAN(engine->GETPARAMETER(1))); }

// load file [c]: without files nothing is touched.
template <bool (TFILETABLE::*LOAD)(const UTF16 &, UTF16CHAR)> void LOAD_TABLE(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 2) return engine->MAX_PARAMETERERROR(2);
    const UTF16 own = engine->GETPARAMETER_ERRORFREE(2);
    if (!own.EMPTY() && !TFILETABLE::ISSEPARATOR(own.GETCHAR(1)))
        return engine->ERROR("no separator: " + own);
    if (engine->switches.FILES)
        (TABLES.CURRENT().*LOAD)(engine->GETPARAMETER(1), own.GETCHAR(1)); // tells its failure
}

template <bool (TFILETABLE::*SAVE)(const UTF16 &) const> void SAVE_TABLE(TMACRO *engine) {
    if (engine->switches.FILES)
        (TABLES.CURRENT().*SAVE)(engine->GETPARAMETER(1)); // tells its failure
}

// Two numbers, or one pair; false after the report.
bool ReadPair(TMACRO *engine, COMPLEXNAT &pair) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1 || count > 2) return engine->PARAMETERERROR(2), false;
    pair = count == 1
               ? GETCOMPLEXNAT(engine->GETPARAMETER(1))
               : COMPLEXNAT{GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2))};
    return true;
}

void SET_HEADER(TMACRO *engine) {
    COMPLEXNAT size;
    if (ReadPair(engine, size)) TABLES.CURRENT().SETHEADER(size.x, size.y);
}

// get <x,y>, or x and y as numbers or header names.
void GET_CELL_REF(TMACRO *engine) {
    COMPLEXNAT cell;
    if (!ReadPair(engine, cell)) return;
    const TFILETABLE &table = TABLES.CURRENT();
    if (engine->PARAMETERLENGTH() == 2)
        cell = {TABLE_COLUMN(table, engine->GETPARAMETER(1)),
                TABLE_ROW(table, engine->GETPARAMETER(2))};
    engine->COMMAND_RESULT = table.GET(cell.x, cell.y);
}

// find column text: the first data row with that cell, 0 for none.
void FIND_ROW_REF(TMACRO *engine) {
    const TFILETABLE &table = TABLES.CURRENT();
    const NAT x = TABLE_COLUMN(table, engine->GETPARAMETER(1));
    engine->COMMAND_RESULT = GETSTRING(table.SEARCHCELL(x, engine->GETPARAMETER(2)));
}

void NEW_TABLE(TMACRO *engine) {
    COMPLEXNAT size;
    if (engine->PARAMETERLENGTH() > 0 && !ReadPair(engine, size)) return;
    TABLES.CURRENT().NEW(size.x, size.y); // tells its failure
}

// put x y [text]: no text empties the cell.
void PUT_CELL(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 3) return engine->MAX_PARAMETERERROR(3);
    TFILETABLE &table = TABLES.CURRENT();
    const NAT x = TABLE_COLUMN(table, engine->GETPARAMETER(1));
    table.PUT(x, TABLE_ROW(table, engine->GETPARAMETER(2)), engine->GETPARAMETER_ERRORFREE(3));
}

// A value with tabs, as lists are written, fills one cell an element.
void ADD_ROW(TMACRO *engine) {
    std::vector<UTF16> cells;
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i) {
        UTF16 rest = engine->GETPARAMETER(i);
        for (bool more = true; more;) {
            more = POS("\t", rest) > 0;
            cells.push_back(SPLIT(rest, "\t"));
        }
    }
    TABLES.CURRENT().ADDROW(cells); // tells its failure
}

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("use", USE_HANDLER<&TABLES>, OWN_COUNT, "table: name", "table.use default",
              "make a table current, a new one when the name is new"),
    PROCEDURE("swap", SWAP_HANDLER<&TABLES>, OWN_COUNT, "first: name, second: name",
              "table.swap default results", "exchange two names"),
    PROCEDURE("name", NAME_HANDLER<&TABLES>, OWN_COUNT, "new: name", "table.name default",
              "rename the current table"),
    PROCEDURE("dump", DUMP_HANDLER<&TABLES>, OWN_COUNT, "", "table.dump", "list the tables"),
    FUNCTION("iftable", IFTABLE_REF, EXACTLY(0), "", "a := table.iftable",
             "true: the table has cells"),
    LAMBDA("lengthx", WIDTH_LAMD, "print table.lengthx", "count of columns"),
    LAMBDA("sizex", WIDTH_LAMD, "print table.sizex", "count of columns"),
    LAMBDA("lengthy", HEIGHT_LAMD, "print table.lengthy", "count of rows"),
    LAMBDA("sizey", HEIGHT_LAMD, "print table.sizey", "count of rows"),
    PROCEDURE("clear", CLEAR_TABLE, EXACTLY(0), "", "table.clear", "no cells, all settings anew"),
    PROCEDURE("clean", CLEAR_TABLE, EXACTLY(0), "", "table.clean", "no cells, all settings anew"),
    PROCEDURE("setmethod", SETMETHOD_CHAR, EXACTLY(1), "separator: text", "table.setmethod ;",
              "the character between columns"),
    PROCEDURE("setjoin", SETJOIN_FLAG, EXACTLY(1), "join: flag", "table.setjoin true",
              "a run of separators counts as one"),
    PROCEDURE("load", LOAD_TABLE<&TFILETABLE::LOAD>, AT_LEAST(1), "file: file, [separator: text]",
              "table.load table.txt", "read a table without its comment lines"),
    PROCEDURE("load.comment", LOAD_TABLE<&TFILETABLE::LOAD_COMMENT>, AT_LEAST(1),
              "file: file, [separator: text]", "table.load.comment table.txt",
              "read a table with its comment lines"),
    PROCEDURE("header", SET_HEADER, OWN_COUNT, "columns: number, rows: number", "table.header 1 1",
              "first columns and rows that hold names"),
    FUNCTION("get", GET_CELL_REF, OWN_COUNT, "column: text, row: text", "a := table.get 2 3",
             "a cell; empty outside the table"),
    PROCEDURE("rows.to.constant", TABLE_ROWS_TO_CONSTANT, EXACTLY(0), "", "table.rows.to.constant",
              "each row a variable with its first value"),
    PROCEDURE("columns.to.constant", TABLE_COLUMNS_TO_CONSTANT, EXACTLY(0), "",
              "table.columns.to.constant", "each column a variable with its first value"),
    PROCEDURE("rows.to.array", TABLE_ROWS_TO_ARRAY, EXACTLY(0), "", "table.rows.to.array",
              "each row a variable with all its values"),
    PROCEDURE("columns.to.array", TABLE_COLUMNS_TO_ARRAY, EXACTLY(0), "", "table.columns.to.array",
              "each column a variable with all its values"),
    PROCEDURE("row.to.list", TABLE_ROW_TO_LIST, EXACTLY(1), "row: text", "table.row.to.list 2",
              "a row's values into the current list"),
    PROCEDURE("column.to.list", TABLE_COLUMN_TO_LIST, EXACTLY(1), "column: text",
              "table.column.to.list 2", "a column's values into the current list"),
    FUNCTION("getstat", TABLE_GETSTAT_REF, OWN_COUNT, "[line: text, which: text]",
             "a := table.getstat column 2",
             "count, sum, mean, sd, min, Q.25, median, Q.75, max of the numbers"),
    PROCEDURE("save", SAVE_TABLE<&TFILETABLE::SAVE>, EXACTLY(1), "file: file",
              "table.save copy.txt", "write the table"),
    PROCEDURE("save.transposed", SAVE_TABLE<&TFILETABLE::SAVE_TRANSPOSE>, EXACTLY(1), "file: file",
              "table.save.transposed turned.txt", "write rows as columns"),
    PROCEDURE("save.data", SAVE_TABLE<&TFILETABLE::SAVE_HEADER>, EXACTLY(1), "file: file",
              "table.save.data data.txt", "write the table without its header"),
    FUNCTION("find", FIND_ROW_REF, EXACTLY(2), "column: text, value: text",
             "a := table.find 1 mouse", "first data row with that cell; 0 for none"),
    PROCEDURE("new", NEW_TABLE, OWN_COUNT, "[columns: number, rows: number]", "table.new 3 2",
              "empty cells; without numbers none"),
    PROCEDURE("put", PUT_CELL, AT_LEAST(2), "column: text, row: text, [value: text]",
              "table.put 2 3 0.5", "write a cell; the table grows"),
    PROCEDURE("addrow", ADD_ROW, AT_LEAST(1), "value: text ...", "table.addrow mouse 0.5",
              "append a row; a list gives one cell an element"),
};
static_assert(ROWS_ARE_SOUND(ROWS));
} // namespace

TWORKSPACE<TFILETABLE> TABLES(WORDS);

const COMMAND_SET TABLE_SET{"table.", ROWS};

void TMACRO::USE_TABLE() {
    TABLES.INIT();
    REGISTER(TABLE_SET);
}
} // namespace morvane
