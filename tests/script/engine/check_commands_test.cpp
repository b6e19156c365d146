#include "script/engine/check_setup.hpp"

#include <algorithm>
#include <chrono>

#include <doctest/doctest.h>

using namespace morvane;
using check_setup::FOUND;

TEST_CASE("a sound script has no findings") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("!/usr/bin/env morvane\n// note\n\na := 5\nprint a // why\nfor 3\nprint for.count\n"
                "end\nx := max 1 2\nprint random scalar.size\nscalar.scale <1, 2, 3>\n"
                "y := scalar.scale\nnew := scalar.copy\n")
              .empty());
    CHECK(FOUND("").empty());
    CHECK(FOUND("\n").empty());
}

TEST_CASE("an unknown command is found with its place and the nearest names") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("print 1\n  prnt 5\n") == "2:3: unknown procedure prnt; nearest: print\n");
    CHECK(FOUND("scalar.smoth\n") ==
          "1:1: unknown procedure scalar.smoth; nearest: scalar.smooth\n");
    CHECK(FOUND("if 1\nthen prnt 5\n") == "2:6: unknown procedure prnt; nearest: print\n");
    CHECK(FOUND("case 1\nof 1 prnt 5\n") == "2:6: unknown procedure prnt; nearest: print\n");
    CHECK(FOUND("xyz\n") == "1:1: unknown procedure xyz\n");
    CHECK(FOUND("xyz\tabc\n") ==
          "1:1: unknown procedure xyz\tabc; only a blank parts a command from its parameters\n");
    CHECK(FOUND("fro 3\nnop\n").starts_with("1:1: unknown procedure fro; nearest: for\n"));
}

TEST_CASE("a command of another kind is found as what it is") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("scalar.copy 2\n") ==
          "1:1: unknown procedure scalar.copy; scalar.copy is a function: name := scalar.copy\n");
    CHECK(FOUND("scalar.size\n") ==
          "1:1: unknown procedure scalar.size; scalar.size is a value: print scalar.size\n");
    CHECK(FOUND("a := scalar.smooth 3\n") ==
          "1:6: scalar.smooth is a procedure, not a function: this line stores its name\n");
}

TEST_CASE("English number forms name the same command") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("prints a\nscalar.inverts\nx := maxs 1 2\n").empty());
    CHECK(FOUND("scalar.inverts 5\n") == "1:1: scalar.invert takes no parameter\n");
}

TEST_CASE("a wrong count of parameters is found where the row has a plain rule") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("wait\n") == "1:1: wait needs exactly 1 parameter\n");
    CHECK(FOUND("wait 1 2\n") == "1:1: wait needs exactly 1 parameter\n");
    CHECK(FOUND("scalar.invert 1\n") == "1:1: scalar.invert takes no parameter\n");
    CHECK(FOUND("scalar.mix a\n") == "1:1: scalar.mix needs at least 2 parameters\n");
    CHECK(FOUND("scalar.smooth 1 2\n") == "1:1: scalar.smooth takes at most 1 parameter\n");
    CHECK(FOUND("a := max\n") == "1:1: max needs at least 1 parameter\n");
    CHECK(FOUND("a := scalar.count 1\n") == "1:1: scalar.count needs exactly 2 parameters\n");
    CHECK(FOUND("scalar.scale\n") == "1:1: scalar.scale needs exactly 1 parameter\n");
}

TEST_CASE("a getter has no count rule") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("a := scalar.scale\nb := scalar.scale 1 2\n").empty());
}

TEST_CASE("parameters are counted as the line is cut when it runs") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("wait <1, 2>\nwait (a b)\nwait \"a b\"\nwait [1 2]\nwait 1 // 2 3\n").empty());
    CHECK(FOUND("wait \"\"\n") == "1:1: wait needs exactly 1 parameter\n");
    CHECK(FOUND("wait ()\n") == "1:1: wait needs exactly 1 parameter\n");
    CHECK(FOUND("wait \"\" 1\n").empty());
    CHECK(FOUND("wait \"a // b\" 2\n").empty()); // the comment cuts the second one off
}

TEST_CASE("an empty variable is one parameter, and an @ may be any number of them") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("var a\nwait a\n").empty());
    CHECK(FOUND("var a\nwait a a\n") == "2:1: wait needs exactly 1 parameter\n");
    CHECK(FOUND("a := 5\nwait @a 2\nwait\n") == "3:1: wait needs exactly 1 parameter\n");
    // The run agrees: an empty variable counts as one.
    CHECK(RUN_SCRIPT("var a\nlist a\n") == "0[]\n");
}

TEST_CASE("the script's own commands count wherever they are declared") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("later 5\nprocedure later\nend\nsub mine\nend\nmine\nfunction f\nend\nx := f 1\n")
              .empty());
    CHECK(FOUND("procedure measure.all\nend\nmeasure.al\n") ==
          "3:1: unknown procedure measure.al; nearest: measure.all\n");
    CHECK(FOUND("laters\nprocedure later\nend\n").empty());
    CHECK(FOUND("function f\nend\nf 5\n") ==
          "3:1: unknown procedure f; f is a function: name := f\n");
}

TEST_CASE("a command of the script in the place of a built-in one has no count rule") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("procedure wait\nend\nwait 1 2 3\n").empty());
}

TEST_CASE("inside with the prefix stands before every procedure") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("with scalar\nsmooth\ninvert\nx := count 1 2\ny := max 1\nend\n").empty());
    CHECK(FOUND("with scalar\nprint 5\nend\n") ==
          "2:1: unknown procedure scalar.print; nearest: print\n");
    CHECK(FOUND("with scalar\nsmooth 1 2\nx := count 1\nend\n") ==
          "2:1: scalar.smooth takes at most 1 parameter\n"
          "3:1: scalar.count needs exactly 2 parameters\n");
    CHECK(FOUND("with \"scalar\"\nsmooth\nend\nsmooth\n") ==
          "4:1: unknown procedure smooth; nearest: scalar.smooth\n");
    CHECK(FOUND("p := scalar\nwith p\nsmooth\nanything\nend\nwith @p\nsmooth\nend\n").empty());
    CHECK(FOUND("with\nprint 5\nend\n").empty());
}

TEST_CASE("a body may get the prefix of its caller") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("function f\nsmooth\nend\nwith scalar\nx := f\nend\n").empty());
    CHECK(FOUND("function f\nsmooth\nend\nx := f\n") ==
          "2:1: unknown procedure smooth; nearest: scalar.smooth\n");
}

TEST_CASE("behind := a word under a namespace of the program that is no function is found") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("a := scalar.median\n") ==
          "1:6: unknown function scalar.median: this line stores its name\n");
    CHECK(FOUND("a := scalar.median 3\n") ==
          "1:6: unknown function scalar.median: this line stores its name\n");
    CHECK(FOUND("a := \"scalar.median\"\nb := study.median\nc := median.scalar\nd := .scalar\n"
                "scalar.median := 3\ne := scalar.median\n")
              .empty());
}

TEST_CASE("behind := a word is a text unless it misses a function by a letter or two") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("a := scalar.cout 1 2\n") ==
          "1:6: unknown function scalar.cout; nearest: scalar.count\n");
    CHECK(FOUND("a := scalr.size\n") == "1:6: unknown function scalr.size; nearest: scalar.size\n");
    CHECK(FOUND("a := cout\nb := scalar.nii\nc := size.txt\nd := 5.5\ne := scalar.input\n"
                "f := \"scalar.cout\"\ng := scalar.size\nh := parameter.x\ni := for.count\n")
              .empty());
    CHECK(FOUND("scalar.cout := 5\na := scalar.cout\n").empty()); // a variable
    CHECK(FOUND("local scalar.cout 5\na := scalar.cout\n").empty());
}

TEST_CASE("a command's name is no variable") {
    const SCRATCH_FOLDER folder;
    const std::string taken = "overloaded identifier: print is a command\n";
    CHECK(FOUND("print := 1\n") == "1:1: " + taken);
    CHECK(FOUND("print[2] := 1\n") == "1:1: " + taken);
    CHECK(FOUND("print += 1\n") == "1:1: " + taken);
    CHECK(FOUND("print := max 1\n") == "1:1: " + taken);
    CHECK(FOUND("var a print\n") == "1:7: " + taken);
    CHECK(FOUND("local print 5\n") == "1:7: " + taken);
    CHECK(FOUND("global print print\n") == "1:8: " + taken);
    CHECK(FOUND("local a print\n").empty());
    CHECK(FOUND("process\nminimize 0 1 5 print\nresult := 1\nend\n") == "2:16: " + taken);
    // The target of a function that makes a field is the field's name, and may be any.
    CHECK(FOUND("print := scalar.copy\n").empty());
}

TEST_CASE("a keyword's name is no variable, and neither is a word that begins with var") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("case := 1\n") == "1:1: overloaded identifier: case is a keyword\n");
    CHECK(FOUND("variance := 1\n") ==
          "1:1: variance is read as var: every word that begins so is\n");
    CHECK(FOUND("variance += 1\n") ==
          "1:1: variance is read as var: every word that begins so is\n");
    CHECK(FOUND("locality := 1\n") ==
          "1:1: locality is read as local: every word that begins so is\n");
    CHECK(FOUND("import := 1\nprint import\n").empty());
}

TEST_CASE("a procedure of the script is no variable behind its declaration") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("mine := 1\nprocedure mine\nend\nmine := 2\nMINE += 1\n") ==
          "4:1: overloaded identifier: mine is a command\n"
          "5:1: overloaded identifier: mine is a command\n");
    CHECK(FOUND("process\nprocedure mine\nend\nend\nmine := 2\n").empty()); // gone by then
    CHECK(RUN_SCRIPT("mine := 1\nprocedure mine\nend\nmine := 2\n") ==
          "Error (overloaded identifier: mine) in line 4 (m)!\n");
}

TEST_CASE("a declaration with a sign for assignment is found") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("var a := 5\n") == "1:1: var takes names alone, and no value\n");
    CHECK(FOUND("local a := 5\n") == "1:1: local takes a name and its value without a sign\n");
    CHECK(FOUND("global a += 5\n") == "1:1: global takes a name and its value without a sign\n");
    CHECK(FOUND("var a b\nlocal a 5\nlocal a \":=\"\n").empty());
    CHECK(RUN_SCRIPT("local a := 5\nprint a\n") == ":=5\n");
}

TEST_CASE("an equal sign and a blank make an assignment, in quotes too") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("print \"a = \" 5\n") ==
          "1:1: \"= \" makes this line an assignment to print, in a quoted text too\n");
    CHECK(FOUND("title a= 5\n") == "1:1: unknown operator a=\n");
    CHECK(FOUND("a = 5\n") == "1:1: unknown procedure a; an assignment is written name := value\n");
    CHECK(FOUND("a:=5\n") ==
          "1:1: unknown procedure a:=5; an assignment is written name := value\n");
    CHECK(FOUND("a :=\n") == "1:1: unknown procedure a; an assignment is written name := value\n");
}

TEST_CASE("operators that need parameters are found without them") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("a r= x y z\na += 1\na |= x\na != x\na %= 1\n").empty());
    CHECK(FOUND("a r= x y\n") == "1:1: r= needs at least 3 parameters\n");
    CHECK(FOUND("a != \"\"\n") == "1:1: != needs at least 1 parameter\n");
}

TEST_CASE("keywords with too few or too many parameters are found") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("if\n") == "1:1: if needs at least 1 parameter\n");
    CHECK(FOUND("ifequal 1\n") == "1:1: ifequal needs at least 2 parameters\n");
    CHECK(FOUND("ifempty\nifsame\nifempty \"\"\n").empty());
    CHECK(FOUND("case 1 2\n") == "1:1: case takes at most 1 parameter\n");
    CHECK(FOUND("ifzero.filesize a b\n") == "1:1: ifzero.filesize takes at most 1 parameter\n");
    CHECK(FOUND("for\nend\n") == "1:1: for needs at least 1 parameter\n");
    CHECK(FOUND("for 1 2 3 4\nend\n") == "1:1: for takes at most 3 parameters\n");
    CHECK(FOUND("for 1\nend\nfor 1 2\nend\nfor 1 2 3\nend\nparallel 1 2 3\nend\n").empty());
    CHECK(FOUND("while\nend\n") == "1:1: while needs at least 1 parameter\n");
    CHECK(FOUND("var\n") == "1:1: var needs at least 1 parameter\n");
    CHECK(FOUND("procedure\nend\n") == "1:1: procedure needs at least 1 parameter\n");
    CHECK(FOUND("process\nminimize 0 1 5\nend\n") == "2:1: minimize needs at least 4 parameters\n");
    CHECK(FOUND("a := 1\nif @a\nfor @a\nend\n").empty());
}

TEST_CASE("ten thousand lines of distinct unknown commands take less than a second") {
    const SCRATCH_FOLDER folder;
    std::string script;
    for (int i = 0; i < 10'000; ++i)
        script += "scalar.smoth" + std::to_string(i) + " 5\n";
    const auto start = std::chrono::steady_clock::now();
    const std::string found = FOUND(script);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    CHECK(std::count(found.begin(), found.end(), '\n') == 10'000);
    CHECK(time.count() < 10); // slow machines and sanitizers; the aim is one second
}
