#include "script/module/table_handlers.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"
#include "script/module/tables.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// An engine with the modules that tables need, without trace, and the console's text of a script.
struct SCRIPT_RUN {
    CAPTURE console;
    TMACRO engine;

    SCRIPT_RUN() {
        engine.INIT();
        engine.USE_CORE();
        engine.USE_LIST();
        engine.USE_TABLE();
        engine.verbose = false;
        engine.PUTCONSTANT("v", "untouched");
    }
    std::string RUN(const std::string &script) {
        engine.LOADTEXT(script, "m");
        console.CLEAR();
        engine.SINGLERUN();
        std::string text = console.TEXT();
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        if (text.starts_with(begin)) text.erase(0, begin.size());
        if (text.ends_with(end)) text.erase(text.size() - end.size());
        return text;
    }
    // What a function gives.
    std::string VALUE(const std::string &function) {
        RUN("v := " + function + "\n");
        return GETUTF8(engine.GETCONSTANTVALUE("v"));
    }
};

std::string STATISTICS(std::initializer_list<REAL> values) {
    TPOLYREAL numbers;
    for (const REAL value : values)
        numbers.PUSH(value);
    return GETUTF8(TABLE_STATISTICS(numbers));
}
} // namespace

TEST_CASE("every row of the table commands runs as its usage line shows") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("table.txt", "name\tx\ty\nmouse\t1\t2\n");
    SCRIPT_RUN run;
    for (const COMMAND_ROW &row : TABLE_SET.rows) {
        CAPTURE(row.usage);
        run.RUN("table.use results\ntable.use default\ntable.new 3 3\ntable.addrow mouse 1 2\n");
        run.RUN(std::string(row.usage) + "\n");
        CHECK(run.engine.STATUS.EMPTY());
    }
}

TEST_CASE("a wrong count of parameters is reported by each table command") {
    SCRIPT_RUN run;
    const auto report = [&run](const char *line) { return run.RUN(std::string(line) + "\n"); };
    const std::string one = "Parameter error! Please use one parameter in line 1 (m).\n";
    const std::string two = "Parameter error! Please use 2 parameters in line 1 (m).\n";
    const std::string least = "Parameter error! Please use min. one parameter in line 1 (m).\n";
    for (const char *line : {"table.use", "table.name", "table.setmethod", "table.setjoin",
                             "table.row.to.list", "table.column.to.list a b", "table.save",
                             "table.save.transposed a b", "table.save.data"}) {
        CAPTURE(line);
        CHECK(report(line) == one);
    }
    for (const char *line :
         {"table.swap a", "table.header", "table.header 1 2 3", "table.new 1 2 3", "v := table.get",
          "v := table.get 1 2 3", "v := table.getstat column", "v := table.find 1"}) {
        CAPTURE(line);
        CHECK(report(line) == two);
    }
    for (const char *line : {"table.load", "table.load.comment", "table.addrow"}) {
        CAPTURE(line);
        CHECK(report(line) == least);
    }
    CHECK(report("table.load a b c") ==
          "Parameter error! Please use max. 2 parameters in line 1 (m).\n");
    CHECK(report("table.put 1") ==
          "Parameter error! Please use min. 2 parameters in line 1 (m).\n");
    CHECK(report("table.put 1 2 3 4") ==
          "Parameter error! Please use max. 3 parameters in line 1 (m).\n");
    for (const char *line : {"table.clear 1", "table.rows.to.array 1", "v := table.iftable 1"}) {
        CAPTURE(line);
        CHECK(report(line) == "Parameter error! No parameter needed.\n");
    }
}

TEST_CASE("the sizes are -1 without a table") {
    SCRIPT_RUN run;
    TABLES.DONE();
    for (const char *name : {"lengthx", "sizex", "lengthy", "sizey"})
        CHECK(run.VALUE(std::string("table.") + name) == "-1");
    CHECK(run.VALUE("table.iftable") == "false");
    TABLES.INIT();
    CHECK(run.VALUE("table.sizex") == "0");
}

TEST_CASE("a table reaches no file while the engine's files are switched off") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("t.txt", "a\tb\n");
    SCRIPT_RUN run;
    run.engine.switches.FILES = false;
    CHECK(run.RUN("table.addrow x\ntable.load t.txt\ntable.load.comment t.txt\ntable.save u.txt\n"
                  "table.save.data u.txt\ntable.save.transposed u.txt\nprint table.sizex\n") ==
          "1\n");
    CHECK(folder.FILES() == 1);
}

TEST_CASE("clear takes back the settings of a table, load keeps them") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("t.txt", "a;;b\n");
    SCRIPT_RUN run;
    run.RUN("table.setmethod ;\ntable.setjoin 1\ntable.header 1 1\ntable.load t.txt\n");
    CHECK(run.VALUE("table.sizex") == "2");
    CHECK(TABLES.CURRENT().GETHEADER() == COMPLEXNAT{1, 1});
    run.RUN("table.clean\ntable.load t.txt\n");
    CHECK(run.VALUE("table.sizex") == "1");
    CHECK(TABLES.CURRENT().GETHEADER() == COMPLEXNAT{0, 0});
}

TEST_CASE("header takes a pair or two numbers") {
    SCRIPT_RUN run;
    run.RUN("table.header <2,3>\n");
    CHECK(TABLES.CURRENT().GETHEADER() == COMPLEXNAT{2, 3});
    run.RUN("table.header 1 0\n");
    CHECK(TABLES.CURRENT().GETHEADER() == COMPLEXNAT{1, 0});
    run.RUN("table.header -1 -2\n");
    CHECK(TABLES.CURRENT().GETHEADER() == COMPLEXNAT{0, 0});
}

TEST_CASE("a value handed to the script is cut to 254 characters, the cell stays whole") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("t.txt", std::string(300, 'a') + "\tb\n");
    SCRIPT_RUN run;
    run.RUN("table.load t.txt\ntable.save u.txt\n");
    CHECK(run.VALUE("table.get 1 1") == std::string(254, 'a'));
    CHECK(folder.READ("u.txt") == std::string(300, 'a') + "\tb\n");
}

TEST_CASE("a cell is named by numbers, expressions or header names") {
    SCRIPT_RUN run;
    run.RUN("table.addrow \"\" 2020 area\ntable.put 1 2 m1\ntable.put 2 2 5\ntable.put 3 2 7\n");
    // The empty quotes were no parameter, so the first row is 2020, area and nothing.
    CHECK(run.VALUE("table.get 1 1") == "2020");
    CHECK(run.VALUE("table.get 1+1 2") == "5");
    CHECK(run.VALUE("table.get area m1") == "5");
    CHECK(run.VALUE("table.get 2020 m1").empty());
}

TEST_CASE("a name that is not in the table is no position, even with a number in it") {
    SCRIPT_RUN run;
    run.RUN("table.addrow a1 5\ntable.addrow a2 7\n");
    CHECK(run.VALUE("table.get 2 a2") == "7");
    CHECK(run.VALUE("table.get 2 b2").empty());
    CHECK(run.VALUE("table.get \"x 2\" 1").empty());
    CHECK(run.RUN("table.column.to.list col2\n") == "  No column (col2) in the table!\n");
    CHECK(run.RUN("table.put col2 1 x\n") ==
          "  No table cell (0,1)! Columns and rows count from 1.\n");
}

TEST_CASE("statistics are count, sum, mean, deviation, extremes and quartiles") {
    CHECK(STATISTICS({}) == "0\t\t\t\t\t\t\t\t");
    CHECK(STATISTICS({5}) == "1\t5\t5\t0\t5\t5\t5\t5\t5");
    CHECK(STATISTICS({9, 5, 7}) == "3\t21\t7\t2\t5\t5\t7\t7\t9");
    // Of 1..8: squares around 4.5 sum to 42, divided by 7 is 6, whose root is written so.
    CHECK(STATISTICS({8, 7, 6, 5, 4, 3, 2, 1}) == "8\t36\t4.5\t2.449489742783178\t1\t2\t4\t6\t8");
    CHECK(STATISTICS({2.3, 2.3}) == "2\t4.6\t2.3\t0\t2.3\t2.3\t2.3\t2.3\t2.3");
    CHECK(STATISTICS({500.052}) ==
          "1\t500.052\t500.052\t0\t500.052\t500.052\t500.052\t500.052\t500.052");
    CHECK(STATISTICS({-1, -1, -1, -1}) == "4\t-4\t-1\t0\t-1\t-1\t-1\t-1\t-1");
}

TEST_CASE("the quartiles of many numbers are those of a list of numbers") {
    for (NAT n = 4; n <= 40; ++n) {
        TPOLYREAL numbers;
        for (NAT i = 1; i <= n; ++i)
            numbers.PUSH(static_cast<REAL>(i * 17 % 41)); // all different, in no order
        const VECTOR quartiles = numbers.QUANTILE();
        UTF16 rest = TABLE_STATISTICS(numbers);
        for (int skipped = 0; skipped < 5; ++skipped)
            SPLIT(rest, "\t");
        CAPTURE(n);
        CHECK(GETREAL(SPLIT(rest, "\t")) == quartiles.x);
        CHECK(GETREAL(SPLIT(rest, "\t")) == quartiles.y);
        CHECK(GETREAL(SPLIT(rest, "\t")) == quartiles.z);
    }
}

TEST_CASE("cells become numbers in a list of numbers, else the list becomes one of texts") {
    const morvane::CAPTURE console;
    TLIST list;
    list.PUSH("9");
    CELLS_TO_LIST({".5", " 2 ", "1e3"}, list);
    REQUIRE(list.LENGTH() == 3);
    CHECK(list.KIND() == LIST_REAL);
    CHECK(list.GETHYPER(1).x == 0.5);
    CHECK(list.GETHYPER(3).x == 1000);
    CELLS_TO_LIST({"1", "", "n/a"}, list);
    REQUIRE(list.LENGTH() == 3);
    CHECK(list.KIND() == LIST_CHARS);
    CHECK(GETUTF8(list.GET(3)) == "n/a");
    list.SETKIND(LIST_VECTOR);
    CELLS_TO_LIST({"<1, 2, 3>"}, list);
    CHECK(list.KIND() == LIST_VECTOR);
    CHECK(list.GETHYPER(1) == HYPER{1, 2, 3, 0});
}

TEST_CASE("a list in addrow fills one cell an element") {
    SCRIPT_RUN run;
    run.RUN("table.addrow 1 2 3\ns := table.getstat row 1\ntable.addrow m s end\n");
    CHECK(run.VALUE("table.sizex") == "11");
    CHECK(run.VALUE("table.get 2 2") == "3");
    CHECK(run.VALUE("table.get 3 2") == "6");
    CHECK(run.VALUE("table.get 11 2") == "end");
}

TEST_CASE("the name of a row loses its quotes, a unit in brackets and its blanks") {
    SCRIPT_RUN run;
    run.RUN("table.new\ntable.put 1 1 \"cell '7' [um2]\"\ntable.put 2 1 5\ntable.rows.to.constant\n"
            "v := cell.7\n");
    CHECK(GETUTF8(run.engine.GETCONSTANTVALUE("v")) == "5");
}
