#include "foundation/base/number_text.hpp"
#include "script/file/file_table.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
using GRID = std::vector<std::vector<std::string>>;

GRID CELLS(const TFILETABLE &table) {
    GRID grid;
    for (NAT y = 1; y <= table.LENGTHY(); ++y) {
        grid.emplace_back();
        for (NAT x = 1; x <= table.LENGTHX(); ++x)
            grid.back().emplace_back(table.GETVIEW(x, y));
    }
    return grid;
}

struct FORM {
    char separator = '\t';
    bool join = false, comments = false;
};

GRID READ(std::string_view bytes, FORM form = {}) {
    TFILETABLE table;
    table.SETMETHOD({static_cast<BYTE>(form.separator), 0});
    table.SETJOIN(form.join);
    table.LOADBYTES(bytes, form.comments);
    return CELLS(table);
}

// The cells after writing and reading again.
GRID AGAIN(const GRID &grid, FORM form = {}) {
    TFILETABLE table, copy;
    for (TFILETABLE *each : {&table, &copy}) {
        each->SETMETHOD({static_cast<BYTE>(form.separator), 0});
        each->SETJOIN(form.join);
    }
    for (std::size_t y = 0; y < grid.size(); ++y)
        for (std::size_t x = 0; x < grid[y].size(); ++x)
            table.PUT(static_cast<NAT>(x) + 1, static_cast<NAT>(y) + 1, grid[y][x]);
    copy.LOADBYTES(table.SAVEBYTES());
    return CELLS(copy);
}

std::vector<REAL> NUMBERS(const TFILETABLE &table, RANGENAT columns, RANGENAT rows) {
    TPOLYREAL numbers;
    table.GETNUMBERS(columns, rows, numbers);
    const auto span = numbers.SPAN();
    return {span.begin(), span.end()};
}
} // namespace

TEST_CASE("without a separator of its own a table is cut at tabs") {
    TFILETABLE table;
    table.LOADBYTES("a b\tc;d\n1\t2\n");
    CHECK(CELLS(table) == GRID{{"a b", "c;d"}, {"1", "2"}});
    CHECK(GETUTF8(table.GET(2, 1)) == "c;d");
}

TEST_CASE("the separator is any character but a quote, a line end or a zero") {
    TFILETABLE table;
    CHECK_FALSE(table.SETMETHOD({'"', 0}));
    CHECK_FALSE(table.SETMETHOD({'\n', 0}));
    CHECK_FALSE(table.SETMETHOD({'\r', 0}));
    CHECK_FALSE(table.SETMETHOD({}));
    CHECK(table.SETMETHOD(UTF16("§").GETCHAR(1)));
    table.LOADBYTES("a§b\n1§2\n");
    CHECK(CELLS(table) == GRID{{"a", "b"}, {"1", "2"}});
}

TEST_CASE("every line end ends a row, and a last line needs none") {
    CHECK(READ("a\tb\r\nc\td\re\tf\ng\th") == GRID{{"a", "b"}, {"c", "d"}, {"e", "f"}, {"g", "h"}});
}

TEST_CASE("a file of fewer than two bytes has no rows") {
    CHECK(READ("").empty());
    CHECK(READ("5").empty());
    CHECK(READ("5\n") == GRID{{"5"}});
}

TEST_CASE("blank lines are no rows, but a line of separators is one") {
    CHECK(READ("a\tb\n\n   \nc\td\n\t\n\n") == GRID{{"a", "b"}, {"c", "d"}, {"", ""}});
}

TEST_CASE("missing cells of a short row are empty") {
    CHECK(READ("a\tb\tc\n1\n2\t3\n") == GRID{{"a", "b", "c"}, {"1", "", ""}, {"2", "3", ""}});
}

TEST_CASE("blanks around a cell are no part of it, quotes keep them") {
    CHECK(READ(" a , b\t,\" c \" ,d\n", {','}) == GRID{{"a", "b", " c ", "d"}});
}

TEST_CASE("quotes hold separators, line ends and doubled quotes") {
    CHECK(READ("\"a,b\",\"x \"\"y\"\" z\"\n\"two\r\nlines\",\"\"\n", {','}) ==
          GRID{{"a,b", "x \"y\" z"}, {"two\r\nlines", ""}});
}

TEST_CASE("a quote that does not close before a separator or line end is a character") {
    CHECK(READ("\"open,b\nc,d\n", {','}) == GRID{{"\"open", "b"}, {"c", "d"}});
    CHECK(READ("\"a\"b,5\"\n", {','}) == GRID{{"\"a\"b", "5\""}});
    CHECK(READ("a\"b,\"\"x\n", {','}) == GRID{{"a\"b", "\"\"x"}});
}

TEST_CASE("joined separators count as one, blanks at the ends of a line as none") {
    CHECK(READ("  1   2 3  \n\t4  \"\"  6\n", {' ', true}) ==
          GRID{{"1", "2", "3"}, {"4", "", "6"}});
    CHECK(READ("a;;b; ;c;\n", {';', true}) == GRID{{"a", "b", "c", ""}});
    CHECK(READ("a;;b\n", {';', false}) == GRID{{"a", "", "b"}});
}

TEST_CASE("lines that begin with a comment mark are left out unless they are wanted") {
    const char *text = "# x\ty\n % z\n//n\n1\t# 2\n\"#\"\t3\n";
    CHECK(READ(text) == GRID{{"1", "# 2"}, {"#", "3"}});
    CHECK(READ(text, {'\t', false, true}) ==
          GRID{{"# x", "y"}, {"% z", ""}, {"//n", ""}, {"1", "# 2"}, {"#", "3"}});
}

TEST_CASE("a byte order mark is no part of the first cell") {
    CHECK(READ("\xEF\xBB\xBF"
               "a\tb\n") == GRID{{"a", "b"}});
}

TEST_CASE("a text in two-byte units is read as UTF-8") {
    using namespace std::string_view_literals;
    CHECK(READ("\xFF\xFE\xE4\0\t\0b\0\n\0"sv) == GRID{{"ä", "b"}});
    CHECK(READ("\xFE\xFF\0\xE4\0\t\0b\0\n"sv) == GRID{{"ä", "b"}});
}

TEST_CASE("cells stay whole whatever their length") {
    const std::string text(1000, 'a');
    CHECK(READ(text + "\tb\n") == GRID{{text, "b"}});
}

TEST_CASE("what a table writes it reads back equal") {
    const GRID grid{{"a\tb", " c", "d "},
                    {"\"", "x\ny", "\r"},
                    {"# no comment", "1", "2"},
                    {"// no", "%", "\"q\""},
                    {"", "", ""},
                    {"\xEF\xBB\xBF", "ä", "µm²"},
                    {"%", "", ","},
                    {"a,b", "c;d", "\"\"\""}};
    for (const char separator : {'\t', ',', ';', ' ', '/', '#', '%', '|', 'a', '\0'})
        for (const bool join : {false, true}) {
            CAPTURE(separator);
            CAPTURE(join);
            CHECK(AGAIN(grid, {separator, join}) == grid);
        }
    CHECK(AGAIN({{""}, {"x"}}) == GRID{{""}, {"x"}});
}

TEST_CASE("ragged rows are written at full width") {
    TFILETABLE table;
    table.LOADBYTES("a\tb\tc\n1\n");
    CHECK(table.SAVEBYTES() == "a\tb\tc\n1\t\t\n");
}

TEST_CASE("a table is saved whole, transposed and without its header") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    TFILETABLE table;
    table.LOADBYTES("name\tarea\tlength\nm1\t5\t6\nm2\t7\t8\n");
    table.SETHEADER(1, 1);
    CHECK(table.SAVE("whole.txt"));
    CHECK(table.SAVE_TRANSPOSE("turned.txt"));
    CHECK(table.SAVE_HEADER("data.txt"));
    CHECK(folder.READ("whole.txt") == "name\tarea\tlength\nm1\t5\t6\nm2\t7\t8\n");
    CHECK(folder.READ("turned.txt") == "name\tm1\tm2\narea\t5\t7\nlength\t6\t8\n");
    CHECK(folder.READ("data.txt") == "5\t6\n7\t8\n");
    table.SETHEADER(9, 9);
    CHECK(table.SAVE_HEADER("none.txt"));
    CHECK(folder.READ("none.txt").empty());
}

TEST_CASE("a name ending in gz is packed and unpacked") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    TFILETABLE table, copy;
    table.LOADBYTES("a\tb\n1\t2\n");
    REQUIRE(table.SAVE("table.txt.gz"));
    CHECK(folder.READ("table.txt.gz").starts_with("\x1F\x8B"));
    CHECK(copy.LOAD("table.txt.gz"));
    CHECK(CELLS(copy) == CELLS(table));
}

TEST_CASE("a file that cannot be read is told and leaves no cells") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    TFILETABLE table;
    table.LOADBYTES("a\tb\n");
    CHECK_FALSE(table.LOAD("missing.txt"));
    CHECK(console.CONTAINS("  File (missing.txt) not found."));
    CHECK(table.LENGTHX() == 0);
    CHECK(table.LENGTHY() == 0);
}

TEST_CASE("a failed save leaves the old file") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    TFILETABLE table;
    table.LOADBYTES("a\tb\n");
    CHECK_FALSE(table.SAVE("no_folder/table.txt"));
    CHECK(folder.FILES() == 0);
}

TEST_CASE("a .csv file is cut at the most frequent of comma, semicolon and tab in its first line") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    const auto read = [&folder](const char *name, const char *text) {
        folder.WRITE(name, text);
        TFILETABLE table;
        table.LOAD(name);
        return CELLS(table);
    };
    CHECK(read("a.csv", "# n;o;t\na,b;c,d\n1,2,3\n") == GRID{{"a", "b;c", "d"}, {"1", "2", "3"}});
    CHECK(read("b.CSV", "\"x,y,z\n\";b\n1,5;2\n") == GRID{{"x,y,z\n", "b"}, {"1,5", "2"}});
    CHECK(read("c.csv", "a\tb\n1\t2\n") == GRID{{"a", "b"}, {"1", "2"}});
    CHECK(read("d.csv", "one\n1,2\n") == GRID{{"one", ""}, {"1", "2"}});
    CHECK(read("t.csv", "a;b, c\n1,5;2\n") == GRID{{"a", "b, c"}, {"1,5", "2"}});
    CHECK(read("e.txt", "a,b\n1,2\n") == GRID{{"a,b"}, {"1,2"}});
}

TEST_CASE("a .csv file is written with commas and read back equal") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    TFILETABLE table, copy;
    table.LOADBYTES("a;b;c\td\n1,5\t2\n");
    REQUIRE(table.SAVE("table.csv"));
    CHECK(folder.READ("table.csv") == "\"a;b;c\",d\n\"1,5\",2\n");
    copy.LOAD("table.csv");
    CHECK(CELLS(copy) == CELLS(table));
}

TEST_CASE("a separator for one load leaves the table's own as it was") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    folder.WRITE("t.csv", "a,b,c;d\n");
    TFILETABLE table;
    table.LOAD("t.csv", {';', 0});
    CHECK(CELLS(table) == GRID{{"a,b,c", "d"}});
    table.LOAD("t.csv");
    CHECK(CELLS(table) == GRID{{"a", "b", "c;d"}});
}

TEST_CASE("a cell outside the table is empty") {
    TFILETABLE table;
    table.LOADBYTES("a\tb\n");
    for (const NAT x : {NAT{0}, NAT{-1}, NAT{3}, NATMAX, NATMIN})
        for (const NAT y : {NAT{0}, NAT{2}, NATMAX, NATMIN}) {
            CHECK(table.GET(x, 1).EMPTY());
            CHECK(table.GET(1, y).EMPTY());
        }
}

TEST_CASE("rows and columns are given parted by tabs, a tab in a cell is a blank") {
    TFILETABLE table;
    table.LOADBYTES("a\t\"b\tc\"\td\n1\n");
    CHECK(GETUTF8(table.GETROW(1)) == "a\tb c\td");
    CHECK(GETUTF8(table.GETROW(2)) == "1\t\t");
    CHECK(GETUTF8(table.GETROW(1, 2)) == "b c\td");
    CHECK(GETUTF8(table.GETCOLUMN(1)) == "a\t1");
    CHECK(GETUTF8(table.GETCOLUMN(2, 2)) == "");
    CHECK(table.GETROW(3).LENGTH() == 2);
}

TEST_CASE("header names are found without regard to case") {
    TFILETABLE table;
    table.LOADBYTES("Name\tArea\nMouse\t5\n");
    CHECK(table.SEARCHCOLUMN("area") == 2);
    CHECK(table.SEARCHCOLUMN("AREA") == 2);
    CHECK(table.SEARCHCOLUMN("5") == 0);
    CHECK(table.SEARCHROW("mouse") == 2);
    CHECK(table.SEARCHROW("5") == 0);
    table.SETHEADER(2, 2);
    CHECK(table.SEARCHCOLUMN("5") == 2);
    CHECK(table.SEARCHROW("5") == 2);
}

TEST_CASE("a header name is found with or without its unit, the whole name first") {
    TFILETABLE table;
    table.LOADBYTES("Area [mm]\tLength [mm]\tArea\nx [1]\t1\t2\n");
    CHECK(table.SEARCHCOLUMN("area") == 3);
    CHECK(table.SEARCHCOLUMN("Area [mm]") == 1);
    CHECK(table.SEARCHCOLUMN("length") == 2);
    CHECK(table.SEARCHCOLUMN("length [") == 0);
    CHECK(table.SEARCHROW("X") == 2);
    CHECK(GETUTF8(WITHOUT_UNIT(" a b [c] [d] ")) == "a b");
    CHECK(GETUTF8(WITHOUT_UNIT("a [b] c")) == "a [b] c");
}

TEST_CASE("a cell is searched as text or as number below the header") {
    TFILETABLE table;
    table.LOADBYTES("a\t5\nb\t5.0\nc\tx\n");
    CHECK(table.SEARCHCELL(2, "5") == 1);
    table.SETHEADER(0, 1);
    CHECK(table.SEARCHCELL(2, "5") == 2);
    CHECK(table.SEARCHCELL(2, "x") == 3);
    CHECK(table.SEARCHCELL(2, "X") == 0);
    CHECK(table.SEARCHCELL(7, "5") == 0);
    table.SETHEADER(0, NATMAX);
    CHECK(table.SEARCHCELL(2, "x") == 0);
}

TEST_CASE("a cell is a number when all of it is one, with blanks around") {
    REAL value = 0;
    for (const auto &[text, number] : std::vector<std::pair<const char *, REAL>>{
             {"5", 5}, {" -1.5 ", -1.5}, {".5", 0.5}, {"2.", 2}, {"1e3", 1000}, {"-2E-1", -0.2}}) {
        CAPTURE(text);
        CHECK(CELL_NUMBER(text, value));
        CHECK(value == number);
    }
    for (const char *text : {"", " ", "5 mm", "1,5", "1/2", "50%", "NA", "nan", "inf", "1e999",
                             "0x10", "-", ".", "1 2"}) {
        CAPTURE(text);
        CHECK_FALSE(CELL_NUMBER(text, value));
    }
}

TEST_CASE("with a decimal comma a point makes no number") {
    const bool before = FORMAT.DECIMAL;
    FORMAT.DECIMAL = false;
    REAL value = 0;
    CHECK(CELL_NUMBER("1,5", value));
    CHECK(value == 1.5);
    CHECK_FALSE(CELL_NUMBER("1.5", value));
    FORMAT.DECIMAL = before;
}

TEST_CASE("numbers are taken from the cells outside the header") {
    TFILETABLE table;
    table.LOADBYTES("1\t2\t3\n4\t5\tx\n7\t\t9\n");
    CHECK(NUMBERS(table, table.ALLCOLUMNS(), table.ALLROWS()) ==
          std::vector<REAL>{1, 2, 3, 4, 5, 7, 9});
    table.SETHEADER(1, 1);
    CHECK(NUMBERS(table, table.ALLCOLUMNS(), table.ALLROWS()) == std::vector<REAL>{5, 9});
    CHECK(NUMBERS(table, {2, 2}, table.ALLROWS()) == std::vector<REAL>{5});
    CHECK(NUMBERS(table, table.ALLCOLUMNS(), {3, 3}) == std::vector<REAL>{9});
    CHECK(NUMBERS(table, {1, 1}, table.ALLROWS()).empty());
    CHECK(NUMBERS(table, {0, NATMAX}, {NATMIN, NATMAX}) == std::vector<REAL>{5, 9});
}

TEST_CASE("a table grows to the cell that is put") {
    TFILETABLE table;
    CHECK(table.PUT(2, 3, "x"));
    CHECK(CELLS(table) == GRID{{"", ""}, {"", ""}, {"", "x"}});
    CHECK(table.ADDROW({"a", "b", "c"}));
    CHECK(CELLS(table) == GRID{{"", "", ""}, {"", "", ""}, {"", "x", ""}, {"a", "b", "c"}});
    CHECK(table.NEW(2, 1));
    CHECK(CELLS(table) == GRID{{"", ""}});
    CHECK(table.NEW(0, 5));
    CHECK(table.LENGTHY() == 0);
}

TEST_CASE("a table made cell by cell has at most 16777216 cells") {
    const morvane::CAPTURE console;
    TFILETABLE table;
    CHECK_FALSE(table.PUT(NATMAX, NATMAX, "x"));
    CHECK(console.CONTAINS("  Table too large! At most 16777216 cells."));
    CHECK_FALSE(table.NEW(NATMAX, 2));
    CHECK_FALSE(table.NEW(4097, 4096));
    CHECK_FALSE(table.NEW(-1, 2));
    CHECK(console.CONTAINS("  A table has no negative size!"));
    CHECK_FALSE(table.PUT(0, 1, "x"));
    CHECK(console.CONTAINS("  No table cell (0,1)! Columns and rows count from 1."));
    CHECK(table.LENGTHX() == 0);
    CHECK(table.LENGTHY() == 0);
    CHECK(table.NEW(4096, 4096));
}

TEST_CASE("DONE keeps the settings, INIT takes them back") {
    TFILETABLE table;
    table.SETMETHOD({';', 0});
    table.SETJOIN(true);
    table.SETHEADER(1, 2);
    table.DONE();
    table.LOADBYTES("a;;b\n");
    CHECK(CELLS(table) == GRID{{"a", "b"}});
    CHECK(table.GETHEADER() == COMPLEXNAT{1, 2});
    table.INIT();
    table.LOADBYTES("a;;b\n");
    CHECK(CELLS(table) == GRID{{"a;;b"}});
    CHECK(table.GETHEADER() == COMPLEXNAT{0, 0});
}
