#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The file that `store out` makes of the lines of a block.
std::string STORED(const std::string &lines, const std::string &before = "") {
    const SCRATCH_FOLDER folder;
    RUN_SCRIPT(before + "store out\n" + lines + "end\n");
    return SCRATCH_FOLDER::TEXT("out");
}
// What the console shows behind the opening line of the file.
std::string SHOWN(const std::string &lines) {
    const SCRATCH_FOLDER folder;
    const std::string shown = RUN_SCRIPT("store out\n" + lines + "end\n");
    return shown.substr(shown.find('\n') + 1);
}
} // namespace

TEST_CASE("store writes its lines as they stand, without empty and comment lines") {
    CHECK(STORED("  one  two \n\n# note\nthree // note\n") == "  one  two \nthree // note\n");
}

TEST_CASE("a line with one @ is evaluated, alone it is an empty line") {
    CHECK(STORED("@ a \"b c\" d\n@\n@<1, 2>\n", "a := 5\n") == "5b cd\n\n1,2\n");
}

TEST_CASE("an indented @ line is text") { CHECK(STORED(" @ a\n") == " @ a\n"); }

TEST_CASE("of a block nested in store only the end line is written") {
    CHECK(STORED("a\nfor 2\nb\n  end x\nc\n") == "a\n  end x\nc\n");
    CHECK(STORED("store other\nfor 2\nb\nend\nc\nend y\nd\n") == "end y\nd\n");
}

TEST_CASE("inline forms hide or show their lines in store as in any skipped code") {
    CHECK(STORED("then word\nelse word\nbegin\nx\n") == "else word\nx\n");
}

TEST_CASE("append goes on behind what the file holds") {
    const SCRATCH_FOLDER folder;
    RUN_SCRIPT("store out\na\nend\nappend out\nb\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("out") == "a\nb\n");
}

TEST_CASE("output.store runs its block and its commands write into the file") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("note", [](TMACRO *e) {
        if (e->IFOUTPUT())
            e->OUTPUTFILE().WRITE(GETUTF8(e->_JOINPARAMETERS(1, {})) + "\n");
        else
            WRITELN(e->_JOINPARAMETERS(1, {}));
    });
    CHECK(runner.RUN("output.store out\nfor 2\nnote for.count\nend\nend\nnote b\n")
              .ends_with(").\nb\n"));
    CHECK(SCRATCH_FOLDER::TEXT("out") == "1\n2\n");
    runner.RUN("output.append out\nnote 3\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("out") == "1\n2\n3\n");
}

TEST_CASE("the newest output file is written until its block ends") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("note", [](TMACRO *e) { e->OUTPUTFILE().WRITE("note\n"); });
    runner.RUN("output.store one\noutput.store two\nnote\nend\nnote\nnote\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("one") == "note\nnote\n");
    CHECK(SCRATCH_FOLDER::TEXT("two") == "note\n");
}

TEST_CASE("store with a file that cannot be opened makes no file and drops its lines") {
    const SCRATCH_FOLDER folder;
    const std::string shown = RUN_SCRIPT("store none/out\nlost\nend\nprint a\n");
    CHECK(shown.ends_with("\na\n"));
    CHECK(shown.find("lost") == std::string::npos);
    CHECK(SCRATCH_FOLDER::TEXT("none/out") == "no file");
}

TEST_CASE("a file that is open already is told and the block's lines are dropped") {
    const SCRATCH_FOLDER folder;
    CHECK(RUN_SCRIPT("output.store out\nstore out\nlost\nend\nend\n")
              .ends_with("Attention file is open! (out)\n"));
    CHECK(SCRATCH_FOLDER::TEXT("out").empty());
}

TEST_CASE("a 256th file is told") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    for (int i = 1; i <= 255; ++i)
        REQUIRE(runner.engine.PUTOUTPUT(UTF16("f" + std::to_string(i))));
    runner.console.clear();
    CHECK(!runner.engine.PUTOUTPUT("last"));
    CHECK(runner.console == "To much open files! (last)\n");
    CHECK(runner.engine.OUTPUTLENGTH() == 255);
    CHECK(runner.engine.GETOUTPUT(255) == "f255");
    CHECK(runner.engine.GETOUTPUTSCOPE(255) == 1);
    runner.engine.CLEAR();
    CHECK(!runner.engine.IFOUTPUT());
}

TEST_CASE("output keywords need a file") {
    for (const char *word : {"store", "append", "output.store", "output.append"})
        CHECK(RUN_SCRIPT(std::string(word) + "\nend\n") ==
              "Parameter error! Please use min. one parameter in line 1 (m).\n");
}

TEST_CASE("store.space and append.space set the separator of later blocks") {
    CHECK(STORED("@ a b\n", "store.space \", \"\n") == "a, b\n");
    CHECK(STORED("@ a b\n", "store.space x\nappend.space ;\n") == "a;b\n");
    CHECK(STORED("@ a b\n", "store.space x\nstore.space\n") == "ab\n");
}

TEST_CASE("the conditional directives write the later parameters") {
    CHECK(
        STORED("@@! 0 a b\n@@! 1 c\n@@? 1 d\n@@? 0 e\n@@3 3 f\n@@3 4 g\n@@c x x h\n@@C x y i\n") ==
        "ab\nd\nf\nh\n");
}

TEST_CASE("directives need their least count") {
    CHECK(SHOWN("@@! 0\n") == "Parameter error! Please use min. 2 parameters in line 2 (m).\n");
    CHECK(SHOWN("@@? 0\n") == "Parameter error! Please use min. 2 parameters in line 2 (m).\n");
    CHECK(SHOWN("@@7 0\n") == "Parameter error! Please use min. 2 parameters in line 2 (m).\n");
    CHECK(SHOWN("@@c 0 0\n") == "Parameter error! Please use min. 3 parameters in line 2 (m).\n");
    CHECK(SHOWN("@@i\n") == "Parameter error! Please use min. one parameter in line 2 (m).\n");
    CHECK(SHOWN("@@m\n") == "Parameter error! Please use min. one parameter in line 2 (m).\n");
}

TEST_CASE("a directive alone or with a blank does nothing and an unknown one is told") {
    CHECK(STORED("@@\n@@ x\na\n") == "a\n");
    CHECK(SHOWN("@@q 1\n") == "Syntax error (@@q) in line 2 (m)! Unknown @ command!\n");
    CHECK(SHOWN("@@λ 1\n") == "Syntax error (@@λ) in line 2 (m)! Unknown @ command!\n");
}

TEST_CASE("the marker turns its directive into an unknown one") {
    CHECK(SHOWN("@@j c\n@@c x x a\n") == "Syntax error (@@$) in line 3 (m)! Unknown @ command!\n");
    CHECK(STORED("@@J \"c c\"\n@@c x x a\n@@J\n@@s\n@@c x x b\n") == "a\nb\n");
}

TEST_CASE("the separator directive holds for its block") {
    CHECK(STORED("@@s -\n@ a b\n@@S\n@ a b\n") == "a-b\nab\n");
}

TEST_CASE("column arithmetic combines the mask and the parameters") {
    CHECK(STORED("@@s ,\n@@m 10 \"@\" x\n@@+ 1 2 3 4\n@@- 1 2 3\n@@* 3 2\n@@+\n") ==
          "11,2,x3,4\n9,2,x3\n30,2,x\n10,,x\n");
    CHECK(STORED("@@+\n@@-\n@@*\n") == "\n\n\n");
}

TEST_CASE("the sum shows its parameters on the console too") {
    CHECK(SHOWN("@@m 10\n@@+ 1 2\n@@- 1 2\n") == ">>1<<\n>>2<<\n");
}

TEST_CASE("three columns are turned by the last entry of the mask") {
    // Half a turn about z as (0, 0, 0, 1): x and y change their signs.
    CHECK(STORED("@@s ,\n@@m \"@\" <0,0,0,1>\n@@r p 1 2 3 q r\n") == "p,-1 -2 3,q,r\n");
    CHECK(STORED("@@m <0,0,0>\n@@r 1 2 3 4\n") == "\n");
}

TEST_CASE("three columns are moved by one entry of the mask and turned by the next") {
    CHECK(STORED("@@s ,\n@@m <10,0,0> <0,0,0,1>\n@@t 1 2 3 q\n") == "-11 -2 3,q\n");
    CHECK(STORED("@@s ,\n@@m <10,0,0,1> <0,0,0,1>\n@@t 1 2 3 q\n") == "9 -2 3,q\n");
    CHECK(STORED("@@m 0 0\n@@t 1 2 3 4\n") == "\n");
}

TEST_CASE("the include directive puts a file's lines behind its own") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "first\nsecond\n");
    RUN_SCRIPT("store out\na\n@@i part\nb\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("out") == "a\nsecond\nb\n");
}

TEST_CASE("an include line in store writes the whole file") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "first\nsecond\n");
    RUN_SCRIPT("store out\na\ninclude part\nb\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("out") == "a\nfirst\nsecond\nb\n");
}
