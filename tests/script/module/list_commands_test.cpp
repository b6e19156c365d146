#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// An engine with all modules, without trace, in a folder of its own.
struct LIST_RUN {
    SCRATCH_FOLDER folder;
    CAPTURE console;
    TMACRO engine;

    LIST_RUN() {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
    }
    std::string RUN(const std::string &script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
        return console.TEXT();
    }
};
} // namespace

TEST_CASE("the usage line of every list command runs as it stands") {
    for (const COMMAND_ROW &row : LIST_SET.rows) {
        LIST_RUN run;
        run.folder.WRITE("areas.txt", "1\n2\n");
        const std::string usage(row.usage);
        const std::string before =
            "list.use areas\nlist.push 4 5 6\nlist.use default\nlist.push 1 2 3\n";
        const std::string text = run.RUN(before + usage + "\nprint reached\n");
        INFO(usage);
        CHECK(run.engine.STATUS.EMPTY());
        CHECK(text.find("reached\n") != std::string::npos);
        CHECK(text.find("ignored") == std::string::npos);
    }
}

TEST_CASE("the length is -1 when there is no list") {
    LIST_RUN run;
    LISTS.DONE();
    CHECK(run.RUN("print list.length \" \" list.size\n").find("-1 -1\n") != std::string::npos);
    CHECK(run.RUN("a := list.iflist\nprint a\n").find("0\n") != std::string::npos);
    INIT_LISTS();
}

TEST_CASE("USE_LIST starts with one empty list of reals named DEFAULT and the factor 3") {
    LIST_RUN first;
    first.RUN("list.nat\nlist.push 1\nlist.use other\nlist.outlier.factor 1\n");
    CHECK(LISTS.LENGTH() == 2);
    CHECK(OUTLIER_FACTOR == 1);
    LIST_RUN second;
    CHECK(LISTS.LENGTH() == 1);
    CHECK(LISTS.GETNAME(1) == UTF16("DEFAULT"));
    CHECK(LISTS.CURRENT().LENGTH() == 0);
    CHECK(LISTS.CURRENT().KIND() == LIST_REAL);
    CHECK(LISTS.DEFAULTKIND == LIST_REAL);
    CHECK(OUTLIER_FACTOR == 3);
}

TEST_CASE("every kind byte has its word") {
    CHECK(LISTKIND(LIST_REAL) == UTF16("real"));
    CHECK(LISTKIND(LIST_NAT) == UTF16("nat"));
    CHECK(LISTKIND(LIST_COMPLEX) == UTF16("complex"));
    CHECK(LISTKIND(LIST_VECTOR) == UTF16("vector"));
    CHECK(LISTKIND(LIST_HYPER) == UTF16("hyper"));
    CHECK(LISTKIND(LIST_CHARS) == UTF16("chars"));
}
