#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a procedure reads its parameters from the constant parameter") {
    CHECK(RUN_SCRIPT(
              "procedure p\nlist parameter[1] parameter[2] parameter[0]\nend\np a \"b c\"\np\n") ==
          "4[a]4[b c]4[2]\n4[]4[]4[1]\n");
}

TEST_CASE("control comes back behind the call") {
    CHECK(RUN_SCRIPT("sub p\nprint in\nend\nprint a\np\nprint b\np\n") == "a\nin\nb\nin\n");
}

TEST_CASE("a procedure without a body's end runs off the script and comes back") {
    CHECK(RUN_SCRIPT("ignore\nend\nprocedure p\nend\np\nprint a\n") == "a\n");
}

TEST_CASE("a procedure declared in a block is gone when the block ends") {
    CHECK(RUN_SCRIPT("process\nprocedure p\nprint in\nend\np\nend\np\n") ==
          "in\nSyntax error (p) in line 7 (m)! Unknown procedure!\n");
}

TEST_CASE("a procedure is unknown above its declaration") {
    CHECK(RUN_SCRIPT("p\nprocedure p\nend\n") ==
          "Syntax error (p) in line 1 (m)! Unknown procedure!\n");
}

TEST_CASE("procedure and function without a name skip their body, sub needs one") {
    CHECK(RUN_SCRIPT("procedure\nprint no\nend\nfunction\nprint no\nend\nprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("sub\nend\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
}

TEST_CASE("a second declaration in one scope is told and the first one stays") {
    CHECK(RUN_SCRIPT("procedure p\nprint 1\nend\nprocedure P\nprint 2\nend\np\n") ==
          "Attention double syntax member in this scope! (p)\n1\n");
}

TEST_CASE("a script function gives the value of result") {
    CHECK(RUN_SCRIPT(
              "function f\nresult := parameter[2]\nend 5\na := f 1 2\nprint a\nb := f\nlist b\n") ==
          "2\n0[]\n");
}

TEST_CASE("a script function returns through the constant result, one entry for all depths") {
    CHECK(RUN_SCRIPT("function g\nresult := inner\nend\nfunction f\nresult := mine\nx := g\nend\n"
                     "a := f\nprint a result\n") == "innerinner\n");
}

TEST_CASE("a procedure may call itself") {
    CHECK(RUN_SCRIPT("procedure p\nn := parameter[1]\nprint n\nifbigger n 1\nn -= n 1\nthen p "
                     "n\nend\np 3\n") == "3\n2\n1\n");
}

TEST_CASE("inside with every procedure gets the prefix, also one that is known without it") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("image.show", [](TMACRO *) { WRITELN("shown"); });
    runner.engine.PUTPROCEDURE("image.raw.show", [](TMACRO *) { WRITELN("raw"); });
    CHECK(runner.RUN("with image\nshow\nwith raw\nshow\nend\nshow\nend\nprint a\n") ==
          "shown\nraw\nshown\na\n");
    CHECK(runner.RUN("with image\nprint a\nend\n") ==
          "Syntax error (image.print) in line 2 (m)! Unknown procedure!\n  Nearest: print\n");
}

TEST_CASE("inside with a function is tried bare and then with the prefix") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTFUNCTION("image.mean", [](TMACRO *e) { e->COMMAND_RESULT = "7"; });
    runner.engine.PUTPROCEDURE("image.print", [](TMACRO *e) { WRITELN(e->GETPARAMETER(1)); });
    CHECK(runner.RUN("with image\na := sum 1 2\nprint a\na := mean\nprint a\nend\n") == "3\n7\n");
}

TEST_CASE("with without a parameter adds no prefix") {
    CHECK(RUN_SCRIPT("with\nprint a\nend\n") == "a\n");
}

TEST_CASE("the with list can be read") {
    SCRIPT_RUNNER runner;
    static std::string seen;
    seen.clear();
    runner.engine.PUTPROCEDURE("a.b.look", [](TMACRO *e) {
        seen = std::to_string(e->WITHLENGTH()) + GETUTF8(e->GETALLWITH(1)) +
               GETUTF8(e->GETALLWITH(2)) + GETUTF8(e->GETALLWITH(3)) + GETUTF8(e->GETALLWITH(0)) +
               GETUTF8(e->GETWITH(2)) + std::to_string(e->GETWITHSCOPE(2));
    });
    runner.RUN("with a\nwith b\nlook\nend\nend\n");
    CHECK(seen == "2aa.bb3");
}

TEST_CASE("process runs its block in a scope of its own") {
    CHECK(RUN_SCRIPT("process\na := 1\nprint a\nend\nprint a\n") == "1\na\n");
}

TEST_CASE("ignore skips its block with nested blocks") {
    CHECK(RUN_SCRIPT("ignore\nfor 2\nprint no\nend\nprint no\nend\nprint a\n") == "a\n");
}

TEST_CASE("module runs its block") {
    CHECK(RUN_SCRIPT("module\nprint a\nend\nprint b\n") == "a\nb\n");
}

TEST_CASE("halt ends the process with the status of its parameter") {
    SCRIPT_RUNNER runner;
    CHECK(runner.RUN("x := 3\nhalt x\nprint no\n") ==
          "In line 2 (m).\nScript & program halt. Terminate everything.\n");
    CHECK(SCRIPT_RUNNER::exitStatus == 3);
}

TEST_CASE("execute runs a program between its two lines") {
    const SCRATCH_FOLDER folder;
    CHECK(RUN_SCRIPT("execute /usr/bin/touch made \"a b\"\n") ==
          ">>>> Sub program (/usr/bin/touch)\n\n<<<<< End of sub program\n");
    CHECK(SCRATCH_FOLDER::TEXT("made").empty());
    CHECK(RUN_SCRIPT("execute\n") == "Parameter error! Please use one parameter in line 1 (m).\n");
}

TEST_CASE("execute hands a Windows program to wine64") {
    const std::string shown = RUN_SCRIPT("execute none.exe a\n");
    CHECK(shown.starts_with(">>>> Sub program (wine64)\n"));
    CHECK(shown.ends_with("\n<<<<< End of sub program\n"));
}

TEST_CASE("execute can be switched off") {
    SCRIPT_RUNNER runner;
    runner.engine.switches.EXECUTE = false;
    CHECK(runner.RUN("execute /bin/true\n") == "Error (execute is switched off) in line 1 (m)!\n");
}
