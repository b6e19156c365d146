#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a constant keeps its first 254 units") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTCONSTANT("long", UTF16(std::string(300, 'x')));
    CHECK(runner.engine.GETCONSTANTVALUE("long") == UTF16(std::string(254, 'x')));
}

TEST_CASE("a constant's name is lower case with points for blanks") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTCONSTANT("My Name", "5");
    CHECK(runner.engine.GETCONSTANTVALUE("my.name") == "5");
    CHECK(runner.engine.GETCONSTANTVALUE("MY.NAME") == "5");
    CHECK(runner.engine.GETCONSTANTVALUE("other").EMPTY());
    CHECK(runner.engine.SEARCHCONSTANT("other") == 0);
}

TEST_CASE("a constant may not have the exact name of a command of any kind") {
    CHECK(RUN_SCRIPT("nop := 1\nprint a\n") ==
          "Error (overloaded identifier: nop) in line 1 (m)!\n");
    CHECK(RUN_SCRIPT("sum := 1\n") == "Error (overloaded identifier: sum) in line 1 (m)!\n");
    CHECK(RUN_SCRIPT("tick := 1\n") == "Error (overloaded identifier: tick) in line 1 (m)!\n");
    CHECK(RUN_SCRIPT("ticks := 1\nprint ok\n") == "ok\n");
}

TEST_CASE("a later declaration makes a constant's name an overloaded one") {
    CHECK(RUN_SCRIPT("for 2\na := for.count\nprint a\nprocess\nprocedure a\nend\nend\nend\n"
                     "procedure a\nend\na := 3\n") ==
          "1\n2\nError (overloaded identifier: a) in line 11 (m)!\n");
}

TEST_CASE("an assignment inside a block changes an outer constant of that name") {
    CHECK(RUN_SCRIPT("a := 1\nprocess\na := 2\nb := 3\nend\nprint a b\n") == "2b\n");
}

TEST_CASE("an element is written into the tab-separated value") {
    CHECK(RUN_SCRIPT("a[3] := 5\nlist a a[0] a[3]\n") == "0[\t\t5]4[3]4[5]\n");
    CHECK(RUN_SCRIPT("a[2] := 7\nlist a a[1] a[2]\n") == "0[\t7]4[]4[7]\n");
    CHECK(RUN_SCRIPT("a := x\na[2] := y\na[3] := z\na[1] := w\nlist a\n") == "0[w\ty\tz]\n");
}

TEST_CASE("an element number of zero or none writes the whole value") {
    CHECK(RUN_SCRIPT("a := 1\na[0] := 5\nlist a\na[x] := 6\nlist a\n") == "0[5]\n0[6]\n");
}

TEST_CASE("an element number is replaced by @ alone") {
    CHECK(RUN_SCRIPT("i := 2\na[@i] := 7\nlist a[2]\n") == "4[7]\n");
}

TEST_CASE("an element far behind costs no memory") {
    CHECK(RUN_SCRIPT("a := x\na[9000000000] := 7\nlist a[0] a[1]\n") == "4[254]4[x]\n");
}

TEST_CASE("trailing empty elements stay") {
    CHECK(RUN_SCRIPT("a[3] := \"\"\na[1] := x\nlist a[0]\n") == "4[3]\n");
}

TEST_CASE("PUTCONSTANT_SCOPE keeps the scopes ascending") {
    SCRIPT_RUNNER runner;
    static std::vector<NAT> scopes;
    scopes.clear();
    runner.engine.PUTPROCEDURE("look", [](TMACRO *e) {
        for (NAT i = 1; i <= e->CONSTANTLENGTH(); ++i)
            scopes.push_back(e->GETCONSTANT(i).scope);
    });
    CHECK(runner.RUN("a := 1\nprocess\nb := 2\nprocess\nc := 3\nglobal d 4\nlook\nend\nprint b\n"
                     "end\nprint a b c d\n") == "2\n1bc4\n");
    REQUIRE(scopes.size() == 11);
    for (std::size_t i = 1; i < scopes.size(); ++i)
        CHECK(scopes[i - 1] <= scopes[i]);
}

TEST_CASE("names are found after an insertion among equal names") {
    SCRIPT_RUNNER runner;
    TMACRO &engine = runner.engine;
    engine.PUTCONSTANT("a", "0");
    CHECK(engine.PUTCONSTANT_NEXTSCOPE("b", "1") == 1);
    CHECK(engine.PUTCONSTANT_NEXTSCOPE("b", "2") == 2);
    engine.PUTCONSTANT_SCOPE("c", "3", 0); // before both b
    CHECK(engine.GETCONSTANT(2).name->text == "c");
    CHECK(engine.GETCONSTANTVALUE("b") == "2");
    CHECK(engine.GETCONSTANTVALUE("c") == "3");
    CHECK(engine.SEARCHCONSTANT("b") == 4);
    engine.CLEAR();
    CHECK(engine.GETCONSTANTVALUE("b").EMPTY());
    CHECK(engine.GETCONSTANTVALUE("c") == "3");
}

TEST_CASE("a loop's counters print in the number format in which they were set") {
    CHECK(RUN_SCRIPT("for 1000 1000\nprint for.count\nend\n") == "1000\n");
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("scientific", [](TMACRO *) { FORMAT.SCIENTIFIC = true; });
    const std::string shown = runner.RUN("for 1000 1000\nscientific\nprint for.count\nend\n");
    FORMAT.SCIENTIFIC = false;
    CHECK(shown == "1000\n");
}

TEST_CASE("var empties an outer constant of that name") {
    CHECK(RUN_SCRIPT("x := 5\nprocess\nvar x y\nlist x y\nend\nlist x y\n") == "0[]0[]\n0[]0[y]\n");
}

TEST_CASE("any word that begins with var, local or global is that keyword") {
    CHECK(RUN_SCRIPT("x := 5\nvariable x\nlist x\nlocale x 6\nlist x\nglobally x 7\nlist x\n") ==
          "0[]\n0[6]\n0[7]\n");
}

TEST_CASE("declared names are taken as written, after @ replacement") {
    CHECK(RUN_SCRIPT("x := y\nlocal x 5\nlist x\nn := 1\nlocal x@n 6\nlist x1\n") ==
          "0[5]\n0[6]\n");
}

TEST_CASE("local joins its values without a separator") {
    CHECK(RUN_SCRIPT("b := 2\nlocal a \"x \" b 3\nprint a\n") == "x 23\n");
}

TEST_CASE("global lives until the script ends") {
    CHECK(RUN_SCRIPT("process\nglobal g 5\nlocal l 6\nend\nlist g l\n") == "0[5]0[l]\n");
}

TEST_CASE("local and global keep the scope of a constant that exists") {
    CHECK(RUN_SCRIPT("process\na := 1\nprocess\nglobal a 2\nend\nlist a\nend\nlist a\n") ==
          "0[2]\n0[a]\n");
}

TEST_CASE("var, local and global without a name need one parameter") {
    for (const char *word : {"var", "local", "global"})
        CHECK(RUN_SCRIPT(std::string(word) + "\n") ==
              "Parameter error! Please use min. one parameter in line 1 (m).\n");
}
