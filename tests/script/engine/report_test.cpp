#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

#include <functional>

using namespace morvane;

namespace {
// What a report prints from the second line of a script; STATUS must hold the same.
std::string REPORT(const std::function<void(TMACRO &)> &report) {
    static std::function<void(TMACRO &)> current;
    current = report;
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("fail", [](TMACRO *e) { current(*e); });
    const std::string shown = runner.RUN("nop\nfail\nprint behind\n");
    CHECK(GETUTF8(runner.engine.STATUS) + (shown.empty() ? "" : "\n") == shown);
    CHECK(runner.engine.stop);
    return shown;
}
} // namespace

TEST_CASE("the reports have their exact words") {
    CHECK(REPORT([](TMACRO &e) { e.ERROR("x"); }) == "Error (x) in line 2 (m)!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAXERROR("x"); }) == "Syntax error (x) in line 2 (m)!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAX_PROCEDURE_ERROR("x"); }) ==
          "Syntax error (x) in line 2 (m)! Unknown procedure!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAX_BLOCK_ERROR("x"); }) ==
          "Syntax error (x) in line 2 (m)! Unknown block!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAX_AT_ERROR("x"); }) ==
          "Syntax error (x) in line 2 (m)! Unknown @ command!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAX_FUNCTION_ERROR("x"); }) ==
          "Syntax error (x) in line 2 (m)! Unknown function!\n");
    CHECK(REPORT([](TMACRO &e) { e.SYNTAX_LAMBDA_ERROR("x"); }) ==
          "Syntax error (x) in line 2 (m)! Unknown variable λ function!\n");
}

TEST_CASE("the parameter reports have their exact words") {
    CHECK(REPORT([](TMACRO &e) { e.PARAMETERERROR(0); }) ==
          "Parameter error! No parameter needed.\n");
    CHECK(REPORT([](TMACRO &e) { e.PARAMETERERROR(1); }) ==
          "Parameter error! Please use one parameter in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.PARAMETERERROR(2); }) ==
          "Parameter error! Please use 2 parameters in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.MIN_PARAMETERERROR(1); }) ==
          "Parameter error! Please use min. one parameter in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.MIN_PARAMETERERROR(2); }) ==
          "Parameter error! Please use min. 2 parameters in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.MAX_PARAMETERERROR(1); }) ==
          "Parameter error! Please use max. one parameter in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.MAX_PARAMETERERROR(2); }) ==
          "Parameter error! Please use max. 2 parameters in line 2 (m).\n");
    CHECK(REPORT([](TMACRO &e) { e.MAX_PARAMETERERROR(0); }) ==
          "Parameter error! Please use max. 0 parameters in line 2 (m).\n");
}

TEST_CASE("a minimum below one prints nothing and stops the script all the same") {
    CHECK(REPORT([](TMACRO &e) { e.MIN_PARAMETERERROR(0); }).empty());
}

TEST_CASE("stop prints its place and ends the script") {
    CHECK(RUN_SCRIPT("print a\nstop\nprint b\n") == "a\nIn line 2 (m).\nScript stop.\n");
}

TEST_CASE("a failure inside loops and calls ends them all") {
    CHECK(RUN_SCRIPT("procedure p\nxyz\nprint no\nend\nfor 3\nwhile 1\np\nend\nend\nprint no\n") ==
          "Syntax error (xyz) in line 2 (m)! Unknown procedure!\n");
}

TEST_CASE("an unknown function is told with its target") {
    SCRIPT_RUNNER runner;
    runner.RUN("nop\n");
    runner.engine.COMMAND_RESULT_VAR = "a";
    CHECK(!runner.engine._FUNCTION_CHECK_LISTE("f"));
    CHECK(runner.engine.STATUS == "Syntax error (a := f) in line 1 (m)! Unknown function!");
}

TEST_CASE("an unknown lambda is told by its name") {
    SCRIPT_RUNNER runner;
    runner.RUN("nop\n");
    CHECK(!runner.engine._LAMBDA_CHECK_LISTE("l"));
    CHECK(runner.engine.STATUS == "Syntax error (l) in line 1 (m)! Unknown variable λ function!");
}

TEST_CASE("a lambda that fails stops the line before its command") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTLAMBDA("bad", [](TMACRO *e) { e->ERROR("no value"); });
    CHECK(runner.RUN("a := 1\nprint bad bad\nprint no\n") == "Error (no value) in line 2 (m)!\n");
}

TEST_CASE("a failed parameter starts no program and opens no file") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("kept", "old\n");
    SCRIPT_RUNNER runner;
    runner.engine.PUTLAMBDA("bad", [](TMACRO *e) { e->ERROR("no value"); });
    CHECK(runner.RUN("execute touch made bad\n") == "Error (no value) in line 1 (m)!\n");
    CHECK(SCRATCH_FOLDER::TEXT("made") == "no file");
    runner.RUN("store kept bad\nnew\nend\n");
    CHECK(SCRATCH_FOLDER::TEXT("kept") == "old\n");
}

TEST_CASE("a report in an included part names the part's own line and file") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "first\nend\nxyz\n");
    CHECK(RUN_SCRIPT("ignore\ninclude part\nprint own\n")
              .ends_with("Syntax error (xyz) in line 3 (part)! Unknown procedure!\n"));
}

namespace {
// Standard input from a file for the life of the object, with prompts allowed.
class TYPED_LINES {
public:
    explicit TYPED_LINES(const std::string &text) : before(dup(STDIN_FILENO)) {
        SCRATCH_FOLDER::WRITE_TEXT("typed", text);
        if (!freopen("typed", "r", stdin)) std::abort();
        INTERACTION = true;
    }
    ~TYPED_LINES() {
        INTERACTION = false;
        dup2(before, STDIN_FILENO);
        close(before);
    }
    TYPED_LINES(const TYPED_LINES &) = delete;
    TYPED_LINES &operator=(const TYPED_LINES &) = delete;

private:
    int before;
};

const std::string QUESTION = "Would you like to change the whole command line?\n"
                             "  leave blank – reload command (with the same line numbering!)\n"
                             "  ... – new comannd (without parameters)\n"
                             "  nop – for ignore it\n"
                             "  stop, break, halt – for a stop with ascending enforcement\n"
                             ">> ";
} // namespace

TEST_CASE("an unknown procedure is repaired by a typed line") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    const TYPED_LINES typed("print changed // note\n");
    CHECK(runner.RUN("xyz 5\n") ==
          "Syntax error (xyz) in line 1 (m)!\nxyz 5\n" + QUESTION + "  print|changed|\nchanged\n");
}

TEST_CASE("nop as the answer passes over the line") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    const TYPED_LINES typed("nop\n");
    CHECK(runner.RUN("xyz 5\nprint a\n") ==
          "Syntax error (xyz) in line 1 (m)!\nxyz 5\n" + QUESTION + "  nop|\n  print|a|\na\n");
}

TEST_CASE("a second unknown name after the question stops the script") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    const TYPED_LINES typed("abc\n");
    CHECK(runner.RUN("xyz 5\nprint a\n") ==
          "Syntax error (xyz) in line 1 (m)!\nxyz 5\n" + QUESTION +
              "Syntax error (abc) in line 1 (m)! Unknown procedure!\n");
}

TEST_CASE("after the question only an exact name is found") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    const TYPED_LINES typed("prints a\n");
    CHECK(runner.RUN("xyz 5\nprint a\n")
              .ends_with("Syntax error (prints) in line 1 (m)! Unknown procedure!\n"
                         "  Nearest: print\n"));
}

TEST_CASE("halt as the answer ends the process with the status of its parameter") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    const TYPED_LINES typed("halt 4\n");
    CHECK(runner.RUN("xyz 5\nprint a\n") ==
          "Syntax error (xyz) in line 1 (m)!\nxyz 5\n" + QUESTION +
              "In line 1 (m).\nScript & program halt. Terminate everything.\n");
    CHECK(SCRIPT_RUNNER::exitStatus == 4);
}

TEST_CASE("break and stop as the answer end the script") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.verbose = true;
    {
        const TYPED_LINES typed("break\n");
        CHECK(runner.RUN("xyz 5\nprint a\n")
                  .ends_with(">> In line 1 (m).\nScript break. Terminate everything.\n"));
    }
    const TYPED_LINES typed("stop\n");
    CHECK(runner.RUN("xyz 5\nprint a\n").ends_with("In line 1 (m).\nScript stop.\n"));
    CHECK(SCRIPT_RUNNER::exitStatus == -1);
}

TEST_CASE("an empty answer takes the line as it is on the disk now") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    SCRATCH_FOLDER::WRITE_TEXT("script", "trace\nxyz 5\n");
    runner.engine.LOAD("script");
    SCRATCH_FOLDER::WRITE_TEXT("script", "trace\nprint repaired\n");
    const TYPED_LINES typed("\n");
    runner.console.clear();
    runner.engine.SINGLERUN();
    CHECK(runner.console.ends_with("  print|repaired|\nrepaired\nScript ends.\n"));
}

TEST_CASE("the question is not asked without the trace or without interaction") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    {
        const TYPED_LINES typed("nop\n");
        CHECK(runner.RUN("xyz\n") == "Syntax error (xyz) in line 1 (m)! Unknown procedure!\n");
    }
    runner.engine.verbose = true;
    CHECK(runner.RUN("xyz\n") == "Syntax error (xyz) in line 1 (m)! Unknown procedure!\n");
}

TEST_CASE("a repaired command gets the with prefixes") {
    const SCRATCH_FOLDER folder;
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("image.show", [](TMACRO *) { WRITELN("shown"); });
    runner.engine.verbose = true;
    const TYPED_LINES typed("show\n");
    CHECK(runner.RUN("with image\nxyz\nend\n").ends_with(">>   image.show|\nshown\n"));
}
