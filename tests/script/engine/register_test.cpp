#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void SHOW(TMACRO *engine) { WRITELN(engine->_JOINPARAMETERS(1, " ")); }
void GET_REF(TMACRO *engine) { engine->COMMAND_RESULT = "got"; }
void PLAIN() { WRITELN("plain"); }

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("two", SHOW, EXACTLY(2), "a: number, b: number", "test.two 1 2", "shows both"),
    PROCEDURE("least", SHOW, AT_LEAST(2), "a: number", "test.least 1 2", "shows all"),
    PROCEDURE("most", SHOW, AT_MOST(1), "[a: number]", "test.most", "shows one"),
    PROCEDURE("own", SHOW, OWN_COUNT, "", "test.own", "shows all"),
    PROPERTY("size", SHOW, GET_REF, EXACTLY(1), "a: number", "test.size 1", "a size"),
    FUNCTION("one", GET_REF, EXACTLY(1), "a: number", "a := test.one 1", "an answer"),
    LAMBDA("now", GET_REF, "print test.now", "an answer"),
};
static_assert(ROWS_ARE_SOUND(ROWS));
constexpr COMMAND_SET SET{"test.", ROWS};
} // namespace

TEST_CASE("a command gets the namespace in front, in lower case") {
    SCRIPT_RUNNER runner;
    runner.engine.SETNAMESPACE("Image.");
    runner.engine.PUTPROCEDURE("Crop", PLAIN);
    runner.engine.RESETNAMESPACE();
    runner.engine.PUTPROCEDURE("bare", PLAIN);
    CHECK(runner.RUN("image.crop\nbare\ncrop\n") ==
          "plain\nplain\nSyntax error (crop) in line 3 (m)! Unknown procedure!\n"
          "  Nearest: image.crop\n");
}

TEST_CASE("a blank inside a command's name becomes a point after a warning") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("a b", PLAIN);
    CHECK(runner.console == "Attention, wrong char ( ) inside command (a b)!\n");
    CHECK(runner.RUN("a.b\n") == "plain\n");
}

TEST_CASE("two registrations of one name, scope and kind keep the first and tell") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("twice", PLAIN);
    runner.engine.PUTPROCEDURE("twice", SHOW);
    CHECK(runner.console == "Attention double syntax member in this scope! (twice)\n");
    CHECK(runner.RUN("twice 5\n") == "plain\n");
}

TEST_CASE("a name can be a procedure and a function at once") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROPERTY("scale", SHOW, GET_REF);
    CHECK(runner.console.empty());
    CHECK(runner.RUN("scale 5\na := scale\nprint a\n") == "5\ngot\n");
}

TEST_CASE("the kinds are stored as documented") {
    SCRIPT_RUNNER runner;
    const NAT before = runner.engine.COMMANDLENGTH();
    runner.engine.PUTPROCEDURE("k1", PLAIN);
    runner.engine.PUTPROCEDURE("k2", SHOW);
    runner.engine.PUTFUNCTION("k3", GET_REF);
    runner.engine.PUTLAMBDA("k4", GET_REF);
    runner.engine.PUTPROPERTY("k5", SHOW, GET_REF);
    const int kinds[] = {2, 18, 19, 20, 18, 19};
    for (NAT i = 0; i < 6; ++i) {
        const COMMAND_ENTRY &entry = runner.engine.GETCOMMAND(before + 1 + i);
        CHECK(int{entry.kind} == kinds[i]);
        CHECK(entry.scope == 0);
        CHECK(entry.startLine == 0);
        CHECK(entry.useCount == 0);
        CHECK(entry.reserved[0].EMPTY());
    }
}

TEST_CASE("a row stays reachable from the table") {
    SCRIPT_RUNNER runner;
    runner.engine.REGISTER(SET);
    const NAT index = runner.engine.SEARCH_FUNCTION_COMMAND("test.size");
    REQUIRE(index > 0);
    CHECK(runner.engine.GETCOMMAND(index).row == &ROWS[4]);
    CHECK(runner.engine.GETCOMMAND(index).TEXT() == "test.size");
    CHECK(runner.engine.NAMESPACE.EMPTY());
}

TEST_CASE("the rule of a row is tested before its handler") {
    SCRIPT_RUNNER runner;
    runner.engine.REGISTER(SET);
    CHECK(runner.RUN("test.two 1\n") ==
          "Parameter error! Please use 2 parameters in line 1 (m).\n");
    CHECK(runner.RUN("test.two 1 2\n") == "1 2\n");
    CHECK(runner.RUN("test.least 1\n") ==
          "Parameter error! Please use min. 2 parameters in line 1 (m).\n");
    CHECK(runner.RUN("test.least 1 2 3\n") == "1 2 3\n");
    CHECK(runner.RUN("test.most 1 2\n") ==
          "Parameter error! Please use max. one parameter in line 1 (m).\n");
    CHECK(runner.RUN("test.most\ntest.own 1 2 3\n") == "\n1 2 3\n");
    CHECK(runner.RUN("a := test.one\n") ==
          "Parameter error! Please use one parameter in line 1 (m).\n");
}

TEST_CASE("the rule of a property holds for its setter alone, and a lambda has none") {
    SCRIPT_RUNNER runner;
    runner.engine.REGISTER(SET);
    CHECK(runner.RUN("a := test.size\nprint a test.now\ntest.size\n") ==
          "gotgot\nParameter error! Please use one parameter in line 3 (m).\n");
}

namespace {
struct NUMBER_FORMS {
    std::string word;
    std::vector<std::string> candidates; // in the order in which they are tried
};
const NUMBER_FORMS FORMS[] = {
    {"abcda", {"abcdae", "abcdum"}},
    {"abcde", {"abcves", "abcd"}},
    {"abcdf", {"abcdves"}},
    {"abcdi", {"abcdus"}},
    {"abcdm", {"abca"}},
    {"abcdo", {"abcdos", "abcdoes"}},
    {"abcdxs",
     {"abcdes", "abcdi", "abcfe", "abcf", "abcdxos", "abcdoes", "abcdis", "abcdy", "abcy", "abcdx",
      "abcd"}},
    {"abcdy", {"abcdys", "abcdies"}},
    {"abcdx", {"abcdxs", "abcdxes"}},
};
} // namespace

TEST_CASE("names of another number find their command") {
    for (const NUMBER_FORMS &forms : FORMS)
        for (const std::string &name : forms.candidates) {
            CAPTURE(forms.word);
            CAPTURE(name);
            SCRIPT_RUNNER runner;
            runner.engine.PUTPROCEDURE(name, PLAIN);
            CHECK(runner.RUN(forms.word + "\n") == "plain\n");
        }
}

TEST_CASE("number forms are tried in their order") {
    for (const NUMBER_FORMS &forms : FORMS)
        for (std::size_t i = 1; i < forms.candidates.size(); ++i) {
            CAPTURE(forms.candidates[i]);
            SCRIPT_RUNNER runner;
            runner.engine.PUTPROCEDURE(forms.candidates[i - 1], PLAIN);
            runner.engine.PUTPROCEDURE(forms.candidates[i], SHOW);
            CHECK(runner.RUN(forms.word + " x\n") == "plain\n");
        }
}

TEST_CASE("a word without any number form is unknown") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("abcd", PLAIN);
    CHECK(runner.RUN("abcdf\n") ==
          "Syntax error (abcdf) in line 1 (m)! Unknown procedure!\n  Nearest: abcd\n");
}

TEST_CASE("an exact name wins over a number form") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("load", PLAIN);
    runner.engine.PUTPROCEDURE("loads", SHOW);
    CHECK(runner.RUN("loads x\nload x\n") == "x\nplain\n");
}

TEST_CASE("functions and lambdas are found by number forms too") {
    CHECK(RUN_SCRIPT("a := sums 1 2\nprint a ticks\n") == "31\n");
}

TEST_CASE("each successful look-up raises the use count") {
    SCRIPT_RUNNER runner;
    const auto uses = [&](const char *name) {
        NAT count = 0;
        for (NAT i = 1; i <= runner.engine.COMMANDLENGTH(); ++i)
            if (runner.engine.GETCOMMAND(i).TEXT() == name)
                count = runner.engine.GETCOMMAND(i).useCount;
        return count;
    };
    runner.RUN("for 3\nnop\nend\n");
    CHECK(uses("nop") == 3);
    runner.RUN("if 0\nthen\nnop\nend\n"); // the scan of skipped code looks up too
    CHECK(uses("nop") == 4);
    runner.RUN("print tick\n"); // classified and called, in both lists
    CHECK(uses("tick") == 4);
}

TEST_CASE("a script command in a deeper scope shadows a built-in until its block ends") {
    CHECK(RUN_SCRIPT("process\nprocedure nop\nprint mine\nend\nnop\nend\nnop\nprint a\n") ==
          "mine\na\n");
}

TEST_CASE("a block procedure runs its block between its two handlers") {
    SCRIPT_RUNNER runner;
    COMMAND_ENTRY entry;
    entry.kind = KIND_BLOCK;
    entry.open.plain = [] { WRITELN("open"); };
    entry.close.plain = [] { WRITELN("close"); };
    runner.engine._PUTCOMMAND("frame", 0, std::move(entry));
    CHECK(runner.RUN("frame\nprint inside\nend\nprint behind\n") ==
          "open\ninside\nclose\nbehind\n");
    CHECK(runner.RUN("ignore\nframe\nend\nprint no\nend\nprint behind\n") == "behind\n");
}

TEST_CASE("a block procedure may take the engine") {
    SCRIPT_RUNNER runner;
    COMMAND_ENTRY entry;
    entry.kind = KIND_BLOCK | KIND_WITH_ENGINE;
    entry.open.withEngine = SHOW;
    entry.close.withEngine = [](TMACRO *) { WRITELN("close"); };
    runner.engine._PUTCOMMAND("frame", 0, std::move(entry));
    CHECK(runner.RUN("frame 1 2\nprint inside\nend\n") == "1 2\ninside\nclose\n");
}

TEST_CASE("a block procedure without its closing handler is an unknown block") {
    SCRIPT_RUNNER runner;
    COMMAND_ENTRY entry;
    entry.kind = KIND_BLOCK;
    entry.open.plain = PLAIN;
    runner.engine._PUTCOMMAND("frame", 0, std::move(entry));
    CHECK(runner.RUN("frame\nend\n") == "Syntax error (frame) in line 1 (m)! Unknown block!\n");
}

TEST_CASE("modules keep the count of constants and their scope until their block ends") {
    SCRIPT_RUNNER runner;
    static COMPLEXNAT seen;
    static NAT length;
    runner.engine.PUTPROCEDURE("look", [](TMACRO *e) {
        length = e->MODULELENGTH();
        seen = e->GETMODULE(1);
    });
    runner.RUN("a := 1\nmodule\nlook\nend\n");
    CHECK(length == 1);
    CHECK(seen.x == 8); // seven built-in constants and a
    CHECK(seen.y == 2);
    runner.RUN("module\nend\nlook\n");
    CHECK(length == 0);
}

TEST_CASE("the kinds of open blocks can be read") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("kinds", [](TMACRO *e) {
        for (NAT level = 1; level < e->SCOPELEVEL(); ++level)
            WRITELN(e->GETSCOPEKIND(level));
    });
    CHECK(runner.RUN("for 1\nif 1\nthen\nprocess\nkinds\nend\nend\nend\nkinds\n") ==
          "for\nif.then\nprocess\n");
}
