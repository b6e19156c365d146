#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a script prints its lines between the start and the end message") {
    SCRIPT_RUNNER runner;
    runner.RUN("print hello\n");
    CHECK(runner.console == "Script runs...\nhello\nScript ends.\n");
}

TEST_CASE("a first line that begins with an exclamation mark is dropped") {
    CHECK(RUN_SCRIPT("!nonsense\nprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("print a\n!nonsense\n") ==
          "a\nSyntax error (!nonsense) in line 2 (m)! Unknown procedure!\n");
}

TEST_CASE("lines that begin with a comment mark are dropped") {
    CHECK(RUN_SCRIPT("# note\n% note\n// note\n  \t# note\nprint a\n") == "a\n");
}

TEST_CASE("a comment begins at a blank before two slashes") {
    CHECK(RUN_SCRIPT("print a // b\nprint a//b\n") == "a\na//b\n");
}

TEST_CASE("blanks in front of a comment belong to it") {
    CHECK(RUN_SCRIPT("if 0\nthen break   // why\nprint a\n") ==
          "In line 2 (m).\nScript break. Terminate everything.\n");
    CHECK(RUN_SCRIPT("case 3\nof 3 \t // three\nprint three\nend\nprint behind\n") ==
          "three\nbehind\n");
}

TEST_CASE("a byte order mark in front of a script is passed over") {
    CHECK(RUN_SCRIPT("\xEF\xBB\xBFprint a\n") == "a\n");
    CHECK(RUN_SCRIPT("\xEF\xBB\xBF!/bin/sh\nprint a\n") == "a\n");
}

TEST_CASE("a comment mark inside a quoted text ends the line too") {
    CHECK(RUN_SCRIPT("print \"a // b\"\n") == "a\n");
}

TEST_CASE("blanks and tabs around a line and blanks behind its command do not count") {
    CHECK(RUN_SCRIPT(" \t print    a \t \n") == "a\n");
}

TEST_CASE("a tab does not end the command word") {
    CHECK(RUN_SCRIPT("print\ta\n") ==
          "Syntax error (print\ta) in line 1 (m)! Unknown procedure!\n  Nearest: print\n");
}

TEST_CASE("commands are compared in lower case") { CHECK(RUN_SCRIPT("PRINT Ab\n") == "Ab\n"); }

TEST_CASE("an unknown procedure stops the script with its line and file") {
    CHECK(RUN_SCRIPT("print a\n\nxyz 5\nprint b\n") ==
          "a\nSyntax error (xyz) in line 3 (m)! Unknown procedure!\n");
}

TEST_CASE("inline then takes the line when the flag is true") {
    CHECK(RUN_SCRIPT("if 1\nthen print yes\nelse print no\n") == "yes\n");
    CHECK(RUN_SCRIPT("if 0\nif.then print yes\nif.else print no\n") == "no\n");
    CHECK(RUN_SCRIPT("if 1\nif.true print yes\nif.false print no\n") == "yes\n");
}

TEST_CASE("then halt halts whatever the condition says") {
    for (const char *flag : {"0", "1"}) {
        SCRIPT_RUNNER runner;
        CHECK(runner.RUN("if " + std::string(flag) + "\nthen halt\nprint a\n") ==
              "In line 2 (m).\nScript & program halt. Terminate everything.\n");
        CHECK(SCRIPT_RUNNER::exitStatus == 0);
    }
}

TEST_CASE("then break and else break break whatever the condition says") {
    const std::string text = "In line 2 (m).\nScript break. Terminate everything.\n";
    CHECK(RUN_SCRIPT("if 0\nthen break\nprint a\n") == text);
    CHECK(RUN_SCRIPT("if 1\nelse break\nprint a\n") == text);
    CHECK(RUN_SCRIPT("if 0\nthen break 1\nprint a\n") == "a\n");
}

TEST_CASE("inline of compares the raw word with the case value") {
    CHECK(RUN_SCRIPT("b := 3\ncase 3\nof b print name\nof 3 print three\nof 4 print four\n") ==
          "three\n");
}

TEST_CASE("halt behind the value of an inline of acts without a match") {
    CHECK(RUN_SCRIPT("case 3\nof 4 break\nprint a\n") ==
          "In line 2 (m).\nScript break. Terminate everything.\n");
}

TEST_CASE("halt and break act inside skipped code") {
    CHECK(RUN_SCRIPT("if 0\nthen\nfor 2\nbreak\nend\nend\nprint a\n") ==
          "In line 4 (m).\nScript break. Terminate everything.\n");
    SCRIPT_RUNNER runner;
    CHECK(runner.RUN("ignore\nhalt 7\nend\nprint a\n") ==
          "In line 2 (m).\nScript & program halt. Terminate everything.\n");
    CHECK(SCRIPT_RUNNER::exitStatus == 7);
}

TEST_CASE("begin is an empty line that opens nothing") {
    CHECK(RUN_SCRIPT("for 2\nbegin\nprint for.count\nend\nprint a\n") == "1\n2\na\n");
}

TEST_CASE("end in the outermost block ends the script") {
    CHECK(RUN_SCRIPT("print a\nend\nprint b\n") == "a\n");
}

TEST_CASE("a block that the script's end leaves open keeps its scope") {
    SCRIPT_RUNNER runner;
    CHECK(runner.RUN("for 2\nprint for.count\nvar x\n") == "1\n2\n");
    CHECK(runner.engine.SCOPELEVEL() == 2);
    CHECK(runner.RUN("print a\n") == "a\n");
}

TEST_CASE("the test for an assignment knows nothing of quotes") {
    CHECK(RUN_SCRIPT("print \"a = b\"\nprint done\n") ==
          "Error (overloaded identifier: print) in line 1 (m)!\n");
}

TEST_CASE("an assignment needs its equals sign at the second place or later and more than it") {
    CHECK(RUN_SCRIPT("a = 5\n") == "Syntax error (a) in line 1 (m)! Unknown procedure!\n");
    CHECK(RUN_SCRIPT("a :=5\n") == "Syntax error (a) in line 1 (m)! Unknown procedure!\n");
    CHECK(RUN_SCRIPT("a :=\n") == "Syntax error (a) in line 1 (m)! Unknown procedure!\n");
    CHECK(RUN_SCRIPT("a := 5\nprint a\n") == "5\n");
}

TEST_CASE("an assignment joins its parameters without a separator") {
    CHECK(RUN_SCRIPT("b := 2\na := \"x \" b 3\nprint a\n") == "x 23\n");
}

TEST_CASE("the target of an assignment is replaced at its @ signs") {
    CHECK(RUN_SCRIPT("i := 2\na@i := 7\nprint a2\n") == "7\n");
}

TEST_CASE("a function is called behind := with the rest of the line") {
    CHECK(RUN_SCRIPT("a := sum 2 3\nprint a\nb := SUM a 1\nprint b\n") == "5\n6\n");
}

TEST_CASE("a function's name as the first parameter word is not called") {
    CHECK(RUN_SCRIPT("list sum 2\n") == "8[sum]1[2]\n");
}

TEST_CASE("a function that clears the target stores nothing") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTFUNCTION("copy", [](TMACRO *e) {
        e->COMMAND_RESULT = "lost";
        e->COMMAND_RESULT_VAR = {};
    });
    CHECK(runner.RUN("new := copy\nprint new\n") == "new\n");
}

TEST_CASE("the line hook is called before each line with the script") {
    static NAT calls = 0, length = 0;
    calls = 0;
    SCRIPT_RUNNER runner;
    runner.engine.lineHook = [](const TFILECOMMAND &script) {
        ++calls;
        length = script.LENGTH();
    };
    runner.RUN("nop\n\n# note\nnop\n");
    CHECK(calls == 4);
    CHECK(length == 4);
}

TEST_CASE("SINGLERUN needs a script and a command, RUN only a script") {
    SCRIPT_RUNNER runner;
    CHECK(runner.RUN("") == "no run: ");
    TMACRO bare;
    bare.LOADTEXT("a := 1\n", "m");
    runner.console.clear();
    bare.SINGLERUN();
    CHECK(runner.console.empty());
    bare.verbose = false;
    bare.RUN();
    CHECK(runner.console == "Script runs...\nScript ends.\n");
}

TEST_CASE("a second run starts with the state after registration") {
    SCRIPT_RUNNER runner;
    CHECK(runner.RUN("a := 1\nprocedure p\nend\nxyz\n").starts_with("Syntax error"));
    CHECK(!runner.engine.STATUS.EMPTY());
    CHECK(runner.RUN("print a\np\n") == "a\nSyntax error (p) in line 2 (m)! Unknown procedure!\n");
    CHECK(runner.RUN("nop\n") == "");
    CHECK(runner.engine.STATUS.EMPTY());
}

TEST_CASE("the built-in constants stand at the start of a run") {
    CHECK(RUN_SCRIPT("list true false condition for.length for.rest for.count for.relative\n") ==
          "0[1]0[0]0[0]0[0]0[0]0[0]0[0]\n");
}

TEST_CASE("redo and undo lists stay empty") {
    SCRIPT_RUNNER runner;
    runner.RUN("nop\n");
    CHECK(runner.engine.REDOLENGTH() == 0);
    CHECK(runner.engine.UNDOLENGTH() == 0);
    CHECK(runner.engine.GETREDO(1).EMPTY());
    CHECK(runner.engine.GETUNDO(1).EMPTY());
}

TEST_CASE("the first line of an included file is not carried out") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "print first\nprint second\n");
    CHECK(RUN_SCRIPT("print a\ninclude part\nprint b\n")
              .ends_with("Syntax error (include) in line 1 (part)! Unknown procedure!\n"));
}

TEST_CASE("an include in skipped code goes on behind the inserted lines") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "x\nend\nprint behind\n");
    SCRIPT_RUNNER runner;
    const std::string shown = runner.RUN("ignore\ninclude part\nprint own\nxyz\nend\n");
    CHECK(shown.ends_with("behind\nown\nSyntax error (xyz) in line 4 (m)! Unknown procedure!\n"));
}

TEST_CASE("a missing include file is told and the line goes on as a procedure") {
    CHECK(RUN_SCRIPT("include none\n") ==
          "  Include file (none) not found!\n"
          "Syntax error (include) in line 1 (m)! Unknown procedure!\n");
    CHECK(RUN_SCRIPT("ignore\ninclude none\nend\nprint a\n") ==
          "  Include file (none) not found!\na\n");
    CHECK(RUN_SCRIPT("include\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
}
