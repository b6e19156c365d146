#include "script/engine/check_setup.hpp"

#include <doctest/doctest.h>

#include <sys/stat.h>

using namespace morvane;
using check_setup::FOUND;

TEST_CASE("a block without end is found at its head") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("for 2\nprint 1\n") == "1:1: for has no end\n");
    CHECK(FOUND("for 2\nif 1\n  then\nprint 1\nend\n") == "1:1: for has no end\n");
    CHECK(FOUND("procedure p\nwhile 0\n") == "1:1: procedure has no end\n2:1: while has no end\n");
    CHECK(FOUND("store out\ntext\n") == "1:1: store has no end\n");
}

TEST_CASE("an end without a block is found") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("print 1\nend\n") == "2:1: end closes no block; the script ends here\n");
    CHECK(FOUND("for 2\nend\nuntil 1\n") == "3:1: until closes no block; the script ends here\n");
}

TEST_CASE("every block word is closed by an end or an until") {
    const SCRATCH_FOLDER folder;
    for (const char *head : {"for 2",
                             "for.part 9 1 3",
                             "for.random 3",
                             "parallel 2",
                             "while 0",
                             "process",
                             "module",
                             "ignore",
                             "with scalar",
                             "procedure p",
                             "function f",
                             "sub s",
                             "then",
                             "else",
                             "of 1",
                             "ofnot 1",
                             "store out",
                             "append out",
                             "output.store out",
                             "output.append out"})
        CHECK_MESSAGE(FOUND(std::string(head) + "\nuntil 1\nprint 1\n").empty(), head);
    CHECK(FOUND("repeat\nuntil 1\n").empty());
    CHECK(FOUND("begin\nprint 1\n").empty());
}

TEST_CASE("a repeat needs a value at its end") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("repeat\nend\n") ==
          "2:1: the end of repeat of line 1 needs at least 1 parameter\n");
    CHECK(FOUND("a := 1\nrepeat\nend a\n").empty());
}

TEST_CASE("an inline of with a value and a command opens no block") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("case 1\nof 1 print one\nof 2\nprint two\nend\n").empty());
}

TEST_CASE("text in a store block is no command") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("store out\nno command\n@ a b\n@@? 1 yes\nprint := 1\nimport none\nend\n").empty());
    CHECK(FOUND("append out\nno command\nend\nprnt\n") ==
          "4:1: unknown procedure prnt; nearest: print\n");
    CHECK(FOUND("output.store out\nprnt\nend\n") ==
          "2:1: unknown procedure prnt; nearest: print\n");
    CHECK(FOUND("ignore\nno command\nend\n").empty());
}

TEST_CASE("a line of text that begins with a block word opens a block there") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("store out\nwith kind regards\nend\n") ==
          "1:1: store has no end\n"
          "2:1: with begins a line of text and opens a block there\n");
    CHECK(FOUND("append out\nfor 2\nnot written\nend\nend\n").empty());
    CHECK(FOUND("store out\nthen it rains\nof all things\nend\n").empty()); // dropped lines
}

TEST_CASE("directives of a store block are looked at") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("store out\n@@q 1\nend\n") == "2:1: unknown directive @@q\n");
    CHECK(FOUND("store out\n@@c 1 2\nend\n") == "2:1: @@c needs at least 3 parameters\n");
    CHECK(FOUND("store out\n@@\n@@ text\n@@C 1 1 x\n@@5 5 x\n@@m 1\n@@+ 1\nend\n").empty());
    CHECK(FOUND("store out\n@@? @a\n  @@q\nend\n").empty()); // not at the beginning
    CHECK(FOUND("store out\n@@j x\n@@x 1\nend\n").empty());  // the marker changes them
    CHECK(FOUND("ignore\n@@q 1\nend\n").empty());
}

TEST_CASE("halt and break are found where passing over them does not help") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("if 0\nthen halt\n") ==
          "2:6: halt is carried out whatever the condition says; stop is not\n");
    CHECK(FOUND("if 0\nthen\nbreak\nend\n") ==
          "3:1: break is carried out even where the then of line 2 is passed over; stop is not\n");
    CHECK(FOUND("procedure p\nhalt 1\nend\n") ==
          "2:1: halt is carried out even where the procedure of line 1 is passed over; stop is "
          "not\n");
    CHECK(FOUND("store out\nbreak\nend\n") ==
          "2:1: break is carried out in the text of the store of line 1 too\n");
    CHECK(FOUND("if 0\nthen halt 3\nelse stop\nfor 2\nbreak\nend\nhalt\n").empty());
}

TEST_CASE("words that do not nest in passed-over code are found there") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("procedure p\nfor.random 3\nprint 1\nend\nend\n") ==
          "2:1: for.random does not nest where code is passed over: its end closes the procedure "
          "of line 1\n");
    CHECK(FOUND("while 0\nfor\nfor.part 9 1 3\nend\nend 1\nend\n") ==
          "2:1: for needs at least 1 parameter\n"
          "3:1: for.part does not nest where code is passed over: its end closes the while of line "
          "1\n");
    CHECK(
        FOUND("if 1\nthen\nsub s\nend\nend\n") ==
        "3:1: sub does not nest where code is passed over: its end closes the then of line 2 when "
        "that is not carried out\n");
    CHECK(
        FOUND("for 0\nofnot 1\nend\nend\n") ==
        "2:1: ofnot does not nest where code is passed over: its end closes the for of line 1 when "
        "that is not carried out\n");
    CHECK(FOUND("for 2\nofnot 1\nend\nend\n").empty());
    CHECK(FOUND("for.random 3\nprint 1\nend\nprocess\nofnot 1\nend\nend\n").empty());
}

TEST_CASE("a block behind a condition on its line is found") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("if 1\nthen for 3\nprint 1\nend\n") ==
          "2:6: for behind a word of its line: when the condition fails its block is not passed "
          "over and its end closes the block around it\n");
}

TEST_CASE("the end of a search closes the block around it, too") {
    const SCRATCH_FOLDER folder;
    const std::string search = "minimize 0 1 5 x\nresult := 1\nend\n";
    CHECK(FOUND(search).empty()); // the script ends there anyhow
    CHECK(FOUND(search + "print 1\nprint 2\n") ==
          "4:1: is not carried out: the end of minimize of line 1 ends the script\n");
    // Written for the engine's count: one end for both.
    CHECK(FOUND("process\n" + search + "print 1\n").empty());
    // Written as it looks: the second end goes one further.
    CHECK(
        FOUND("process\n" + search + "end\nprint 1\n") ==
        "5:1: closes a block more than it seems: the end of minimize of line 2 has closed process "
        "of line 1\n");
}

TEST_CASE("imported lines are checked under their own names") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "!/bin/morvane\nprint 1\n prnt\nprocedure mine\nend\n");
    CHECK(FOUND("import part\nmine\nxyz\n") ==
          "part:3:2: unknown procedure prnt; nearest: print\n3:1: unknown procedure xyz\n");
    CHECK(FOUND("import part\nimport part\n") ==
          "part:3:2: unknown procedure prnt; nearest: print\n");
    ::mkdir("deep", 0700);
    SCRATCH_FOLDER::WRITE_TEXT("deep/a", "import b\n");
    SCRATCH_FOLDER::WRITE_TEXT("deep/b", "xyz\n");
    CHECK(FOUND("import deep/a\n") == "deep/b:1:1: unknown procedure xyz\n");
}

TEST_CASE("a block may be closed in another file") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("open", "for 2\nprint 1\n");
    CHECK(FOUND("import open\nend\n").empty());
    CHECK(FOUND("import open\n") == "open:1:1: for has no end\n");
    CHECK(FOUND("repeat\nimport open\nend\nend\n") ==
          "4:1: the end of repeat of line 1 needs at least 1 parameter\n");
}

TEST_CASE("missing, circular and conditional imports are found") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("a", "import b\n");
    SCRATCH_FOLDER::WRITE_TEXT("b", "print 1\nimport a\n");
    SCRATCH_FOLDER::WRITE_TEXT("self", "import m\n");
    CHECK(FOUND("import  none\nfrom.it\n") == "1:9: import file not found: none\n");
    CHECK(FOUND("import a\n") == "b:2:1: import in a circle: a > b > a\n");
    CHECK(FOUND("import self\n") == "self:1:1: import in a circle: m > self > m\n");
    CHECK(FOUND("if 1\nthen import a\n") ==
          "2:6: import stands alone on its line; put it into a block\n");
    CHECK(FOUND("import\n") == "1:1: import needs at least 1 parameter\n");
    CHECK(FOUND("ignore\nimport none\nend\n").empty());
}

TEST_CASE("a file of lines that a line above makes or tests for is not missing") {
    const SCRATCH_FOLDER folder;
    const std::string missing = ": import file not found: part.macro\n";
    CHECK(FOUND("store part.macro\nprint 1\nend\nimport part.macro\nfrom.it\n").empty());
    CHECK(FOUND("ifexists part.macro\nthen\nimport part.macro\nend\n").empty());
    CHECK(FOUND("execute make\nimport part.macro\n").empty());
    CHECK(FOUND("procedure p\nimport part.macro\nend\nstore part.macro\nend\np\n").empty());
    CHECK(FOUND("import part.macro\nstore part.macro\nend\n") == "1:8" + missing);
    CHECK(FOUND("import part.macro\nimport part.macro\n") == "1:8" + missing + "2:8" + missing);
    CHECK(FOUND("store part\nend\nignore\ninclude part\nend\n").empty());
}

TEST_CASE("behind an import that only the run knows any command may be known") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("f := part\nimport f\nfrom.it 5\nx := scalar.cout\n").empty());
    CHECK(FOUND("n := 1\nimport \"part.@n\"\nfrom.it 5\nwait\n") ==
          "4:1: wait needs exactly 1 parameter\n");
}

TEST_CASE("an include that runs is found, and one that is passed over is read") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("part", "for 2\nend\nprint 1\n");
    const std::string stops = ": include stops the script here; import does not\n";
    CHECK(FOUND("include part\n") ==
          "1:1" + stops + "part:2:1: end closes no block; the script ends here\n");
    CHECK(FOUND("include none\n") == "1:1" + stops + "1:9: include file not found: none\n");
    // The first line is not seen, so its `end` closes the block of the including file.
    CHECK(FOUND("ignore\ninclude part\nprint 1\n").empty());
    CHECK(FOUND("ignore\ninclude none\nend\n") == "2:9: include file not found: none\n");
    CHECK(FOUND("store out\n@@i none\nend\n") == "2:5: include file not found: none\n");
}

TEST_CASE("an unreadable script is told as such") {
    const SCRATCH_FOLDER folder;
    CHECK_FALSE(CHECK_MACRO("none", {check_setup::SETS, {}}).read);
    ::mkdir("folder", 0700);
    CHECK_FALSE(CHECK_MACRO("folder", {check_setup::SETS, {}}).read);
}

TEST_CASE("a missing input file is found unless the script may make it") {
    const SCRATCH_FOLDER folder;
    SCRATCH_FOLDER::WRITE_TEXT("here.nii", "x");
    const std::string missing = ": file not found: none.nii\n";
    CHECK(FOUND("scalar.load here.nii\nscalar.load scalar.input\nscalar.save out.nii\n").empty());
    CHECK(FOUND("scalar.load none.nii\n") == "1:13" + missing);
    CHECK(FOUND("scalar.load \"none.nii\"\n") == "1:14" + missing);
    CHECK(FOUND("with scalar\nload none.nii\nend\n") == "2:6" + missing);
    CHECK(FOUND("scalar.load none.nii\nscalar.save none.nii\n") == "1:13" + missing);
    CHECK(FOUND("scalar.save none.nii\nscalar.load none.nii\n").empty());
    CHECK(FOUND("store none.nii\nend\nscalar.load none.nii\n").empty());
    CHECK(FOUND("ifexists none.nii\nthen scalar.load none.nii\n").empty());
    CHECK(FOUND("execute make\nscalar.load none.nii\n").empty());
    CHECK(FOUND("n := x\nscalar.save n\nscalar.load none.nii\n").empty());
    CHECK(FOUND("n := a.nii\nscalar.load n\nscalar.load \"@n\"\nscalar.load *.nii\n").empty());
    CHECK(FOUND("scalar.load none\n").empty()); // may be a beginning of names
}

TEST_CASE("a writer of several files makes those that go on behind the name with no letter") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("scalar.save bone.nii\nscalar.load bone-mean.nii\nscalar.load bone_03.nii\n"
                "scalar.load data/bone7.nii\n")
              .empty());
    CHECK(FOUND("scalar.save bone.nii\nscalar.load bones.nii\n") ==
          "2:13: file not found: bones.nii\n");
    CHECK(FOUND("print bone.nii\nscalar.load bone-mean.nii\n") ==
          "2:13: file not found: bone-mean.nii\n");
    CHECK(FOUND("scalar.load bone-mean.nii\nscalar.save bone.nii\n") ==
          "1:13: file not found: bone-mean.nii\n");
}

TEST_CASE("in a body the order of the lines says nothing about files") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("procedure p\nscalar.load none.nii\nend\nscalar.save none.nii\np\n").empty());
}

TEST_CASE("findings stand in the order of the lines, each once") {
    const SCRATCH_FOLDER folder;
    CHECK(FOUND("for 2\nxyz\nscalar.load none.nii extra\n") ==
          "1:1: for has no end\n2:1: unknown procedure xyz\n"
          "3:1: scalar.load takes at most 1 parameter\n3:13: file not found: none.nii\n");
}
