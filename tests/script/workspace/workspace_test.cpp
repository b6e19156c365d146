#include "script/workspace/workspace.hpp"

#include "foundation/base/number_text.hpp"
#include "script/workspace/setting_handlers.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A field as small as one can be: its kind and a size.
struct BOXFIELD {
    BYTE kind = 0;
    NAT size = 0;
    bool flag = false;
    VECTOR point;
    NAT threads = 0;

    void DOUBLE() { size *= 2; }
    void THREADED(NAT limit) { threads = limit; }
    NAT SIZE() const { return size; }
};

constexpr KIND_WORD KINDS[] = {{1, "small"}, {2, "large"}};

UTF16 SIZE_TEXT(const BOXFIELD &field) { return "(" + GETSTRING(field.size) + ")"; }

constexpr WORKSPACE_WORDS<BOXFIELD> BOX_WORDS = {
    .name = "box",
    .dump = "boxes",
    .current = "Box",
    .list = "Boxlist",
    .field = "boxfield",
    .kind = 2,
    .init = [](BOXFIELD &field, BYTE kind) { field.kind = kind; },
    .describe =
        [](const BOXFIELD &field) { return DESCRIBE_KIND(KINDS, field.kind, SIZE_TEXT(field)); },
    .size = SIZE_TEXT,
    .notEmpty = [](const BOXFIELD &field) { return field.size > 0; },
    .same = [](const BOXFIELD &a, const BOXFIELD &b) { return a.size == b.size; }};

constexpr WORKSPACE_WORDS<BOXFIELD> SILENT_WORDS = {
    .name = "pile",
    .dump = "pile",
    .current = "Pile",
    .list = "Pilelist",
    .field = "pile",
    .kind = 0,
    .init = [](BOXFIELD &field, BYTE kind) { field.kind = kind; },
    .describe = [](const BOXFIELD &) { return UTF16("pile()"); },
    .size = nullptr,
    .notEmpty = [](const BOXFIELD &field) { return field.size > 0; },
    .same = nullptr};

TWORKSPACE<BOXFIELD> BOXES(BOX_WORDS), PILES(SILENT_WORDS);

void BOX_RESULT(TMACRO *engine) {
    BOXFIELD *target = BOXES.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    target->size = 7;
    engine->COMMAND_RESULT_VAR = UTF16();
}
void BOX_ADD(TMACRO *engine) {
    const BOXFIELD *operand = BOXES.ASSIGN_WITH(engine, engine->GETPARAMETER_ERRORFREE(1));
    if (operand) BOXES.CURRENT().size += operand->size;
}

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("use", USE_HANDLER<&BOXES>, OWN_COUNT, "name: name", "box.use a", "use"),
    PROCEDURE("swap", SWAP_HANDLER<&BOXES>, OWN_COUNT, "a: name, b: name", "box.swap a b", "swap"),
    PROCEDURE("name", NAME_HANDLER<&BOXES>, OWN_COUNT, "name: name", "box.name a", "name"),
    PROCEDURE("dump", DUMP_HANDLER<&BOXES>, OWN_COUNT, "", "box.dump", "dump"),
    PROCEDURE("small", (KIND_HANDLER<&BOXES, 1>), OWN_COUNT, "", "box.small", "kind"),
    FUNCTION("result", BOX_RESULT, OWN_COUNT, "", "a := box.result", "result"),
    PROCEDURE("add", BOX_ADD, OWN_COUNT, "[operand: name]", "box.add a", "add"),
    PROPERTY("size", (SETTING<&BOXES, &BOXFIELD::size>), (SETTING_REF<&BOXES, &BOXFIELD::size>),
             EXACTLY(1), "size: number", "box.size 3", "size"),
    PROPERTY("flag", (SETTING<&BOXES, &BOXFIELD::flag>), (SETTING_REF<&BOXES, &BOXFIELD::flag>),
             EXACTLY(1), "flag: flag", "box.flag on", "flag"),
    PROPERTY("point", (SETTING<&BOXES, &BOXFIELD::point>), (SETTING_REF<&BOXES, &BOXFIELD::point>),
             EXACTLY(1), "point: point", "box.point <1,2,3>", "point"),
    PROCEDURE("double", (ACTION<&BOXES, &BOXFIELD::DOUBLE>), OWN_COUNT, "", "box.double", "twice"),
    PROCEDURE("threaded", (ACTION<&BOXES, &BOXFIELD::THREADED>), OWN_COUNT, "", "box.threaded",
              "parallel"),
    LAMBDA("volume", (QUERY<&BOXES, &BOXFIELD::SIZE>), "print box.volume", "size"),
};
constexpr COMMAND_ROW PILE_ROWS[] = {
    PROCEDURE("use", USE_HANDLER<&PILES>, OWN_COUNT, "name: name", "pile.use a", "use"),
};

// A fresh list, an engine with the commands above, and the console's text of a script.
struct SCRIPT_RUN {
    CAPTURE console;
    TMACRO engine;

    SCRIPT_RUN() {
        BOXES.RESETKIND();
        BOXES.INIT();
        PILES.INIT();
        engine.INIT();
        engine.REGISTER(COMMAND_SET{"box.", ROWS});
        engine.REGISTER(COMMAND_SET{"pile.", PILE_ROWS});
        engine.verbose = false;
        // Constants from before a run outlive it, so that a test can read what a script stored.
        for (const char *name : {"v1", "v2", "v3"})
            engine.PUTCONSTANT(name, "untouched");
    }
    ~SCRIPT_RUN() {
        BOXES.DONE();
        PILES.DONE();
    }
    // What the script printed between its first and its last line.
    std::string RUN(std::string_view script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
        std::string text = console.TEXT();
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        if (text.starts_with(begin)) text.erase(0, begin.size());
        if (text.ends_with(end)) text.erase(text.size() - end.size());
        return text;
    }
};

// A list with an entry whose field could not be made.
struct LIST_WITH_NIL : TWORKSPACE<BOXFIELD> {
    LIST_WITH_NIL() : TWORKSPACE<BOXFIELD>(BOX_WORDS) {
        INIT();
        entries.push_back({"LOST", nullptr});
    }
};
} // namespace

TEST_CASE("a list starts with one empty field DEFAULT, which is current") {
    const SCRIPT_RUN run;
    CHECK(BOXES.LENGTH() == 1);
    CHECK(BOXES.CURRENTINDEX() == 1);
    CHECK(GETUTF8(BOXES.GETNAME(1)) == "DEFAULT");
    CHECK(BOXES.CURRENT().kind == 2);
}

TEST_CASE("use makes a field of the default kind and prints its size") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use noise\n") == "Use box: NOISE (0)\n");
    CHECK(BOXES.CURRENTINDEX() == 2);
    CHECK(BOXES.CURRENT().kind == 2);
}

TEST_CASE("a second use finds the field in any case and makes none") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use a\nbox.size 3\nbox.use default\nbox.use A\n") ==
          "Use box: A (0)\nUse box: DEFAULT (0)\nUse box: A (3)\n");
    CHECK(BOXES.LENGTH() == 2);
}

TEST_CASE("use and swap report a wrong count") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use\n") ==
          "Parameter error! Please use one parameter in line 1 (test.macro).\n");
    CHECK(run.RUN("box.swap a\n") ==
          "Parameter error! Please use 2 parameters in line 1 (test.macro).\n");
    CHECK(BOXES.LENGTH() == 1);
}

TEST_CASE("use of a list without sizes prints nothing") {
    SCRIPT_RUN run;
    CHECK(run.RUN("pile.use a\n") == "");
    CHECK(PILES.CURRENTINDEX() == 2);
}

TEST_CASE("after a swap the current field is unchanged and answers to the other name") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use a\nbox.size 1\nbox.use b\nbox.size 2\nbox.use a\nbox.swap a b\n") ==
          "Use box: A (0)\nUse box: B (0)\nUse box: A (1)\n");
    CHECK(BOXES.CURRENT().size == 1);
    CHECK(GETUTF8(BOXES.GETNAME(BOXES.CURRENTINDEX())) == "B");
}

TEST_CASE("a swap with a missing name is told and the script goes on") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use a\nbox.swap a missing\nbox.swap missing a\nbox.size 4\n") ==
          "Use box: A (0)\n  Not swapped (A) <-> ()!\n  Not swapped () <-> (A)!\n");
    CHECK(BOXES.CURRENT().size == 4);
}

TEST_CASE("name stores its first parameter upper case, whatever follows") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.name first second\n") == "");
    CHECK(GETUTF8(BOXES.GETNAME(1)) == "FIRST");
}

TEST_CASE("name without a parameter is a parameter report, on an empty list nothing") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.name\n") ==
          "Parameter error! Please use one parameter in line 1 (test.macro).\n");
    BOXES.DONE();
    CHECK(run.RUN("box.name\n") == "");
}

TEST_CASE("two fields may share a name, the first one wins every search") {
    SCRIPT_RUN run;
    run.RUN("box.use a\nbox.name default\nbox.use default\n");
    CHECK(BOXES.CURRENTINDEX() == 1);
}

TEST_CASE("dump lists the fields between its frame lines") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.size 5\nbox.small\nbox.use a\nbox.dump\n") ==
          "Use box: A (0)\n***** dump.boxes *****\n  Box (2) in use: A\n"
          "  (1):large(5):DEFAULT\n  (2):small(0):A\n***** dump.boxes end *****\n");
}

TEST_CASE("dump of an empty list says so") {
    SCRIPT_RUN run;
    BOXES.DONE();
    CHECK(run.RUN("box.dump\n") ==
          "***** dump.boxes *****\n  Boxlist empty!\n***** dump.boxes end *****\n");
}

TEST_CASE("a kind without a word dumps as unknown, a field that is not there as nil") {
    const CAPTURE console;
    LIST_WITH_NIL list;
    list.CURRENT().kind = 9;
    list.DUMP();
    CHECK(console.TEXT() == "***** dump.boxes *****\n  Box (1) in use: DEFAULT\n"
                            "  (1):unknown:DEFAULT\n  (2):nil:LOST\n***** dump.boxes end *****\n");
}

TEST_CASE("a result goes into a new field under the target's name and stores no constant") {
    SCRIPT_RUN run;
    CHECK(run.RUN("v1 := box.result\nbox.use \"v1\"\n") == "Use box: V1 (7)\n");
    CHECK(GETUTF8(run.engine.GETCONSTANTVALUE("v1")) == "untouched");
}

TEST_CASE("a function never writes into the field that it reads") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.use a\na := box.result\nbox.size 3\n") ==
          "Use box: A (0)\nSyntax error (Same illegal assigment (boxfield[A] := function "
          "boxfield[A])!) in line 2 (test.macro)!\n");
    CHECK(BOXES.CURRENT().size == 0);
}

TEST_CASE("an empty target or operand means DEFAULT") {
    SCRIPT_RUN run;
    run.RUN("box.size 4\nbox.use a\nbox.add\n");
    CHECK(BOXES.CURRENT().size == 4);
    CHECK(BOXES.ASSIGN("") == BOXES.GET(1));
    CHECK(BOXES.ASSIGN_TO(&run.engine, "") == BOXES.GET(1));
}

TEST_CASE("a missing operand is reported and the script stops") {
    SCRIPT_RUN run;
    CHECK(run.RUN("box.add lost\nbox.size 9\n") ==
          "Error (Empty boxfield[lost]) in line 1 (test.macro)!\n");
    CHECK(BOXES.CURRENT().size == 0);
    CHECK(BOXES.LENGTH() == 1);
}

TEST_CASE("ASSIGN may give the current field") {
    const SCRIPT_RUN run;
    CHECK(BOXES.ASSIGN("default") == &BOXES.CURRENT());
    const BOXFIELD *made = BOXES.ASSIGN("new");
    CHECK(made == BOXES.GET(2));
}

TEST_CASE("references to a field stay valid while the list grows") {
    const SCRIPT_RUN run;
    const BOXFIELD *first = &BOXES.CURRENT();
    for (int i = 0; i < 100; ++i)
        BOXES.ASSIGN("field" + GETSTRING(i));
    CHECK(first == &BOXES.CURRENT());
    CHECK(first == BOXES.GET(1));
}

TEST_CASE("ISNOTEMPTY is false for no field and for an empty one") {
    const SCRIPT_RUN run;
    CHECK_FALSE(BOXES.ISNOTEMPTY(nullptr));
    CHECK_FALSE(BOXES.ISNOTEMPTY(&BOXES.CURRENT()));
    BOXES.CURRENT().size = 1;
    CHECK(BOXES.ISNOTEMPTY(&BOXES.CURRENT()));
}

TEST_CASE("IFSAME compares fields, and is false where nothing can be compared") {
    const SCRIPT_RUN run;
    const BOXFIELD a, b;
    CHECK(BOXES.IFSAME(a, b));
    CHECK_FALSE(PILES.IFSAME(a, b));
}

TEST_CASE("a setting stores its parameter by the type of the member and shows it") {
    SCRIPT_RUN run;
    run.RUN("box.flag on\nbox.point <1,2,3>\nbox.size 5\n"
            "v1 := box.flag\nv2 := box.point\nv3 := box.size\n");
    CHECK(GETUTF8(run.engine.GETCONSTANTVALUE("v1")) == "true");
    CHECK(GETUTF8(run.engine.GETCONSTANTVALUE("v2")) == "<1, 2, 3>");
    CHECK(GETUTF8(run.engine.GETCONSTANTVALUE("v3")) == "5");
    CHECK(BOXES.CURRENT().flag);
}

TEST_CASE("an action calls its method, one with a number gets the thread limit") {
    SCRIPT_RUN run;
    run.RUN("thread.max := 3\nbox.size 4\nbox.double\nbox.threaded\n");
    CHECK(BOXES.CURRENT().size == 8);
    CHECK(BOXES.CURRENT().threads == 3);
}

TEST_CASE("a thread limit of 0 or without a number counts as 1") {
    SCRIPT_RUN run;
    run.RUN("thread.max := 0\nbox.threaded\n");
    CHECK(BOXES.CURRENT().threads == 1);
    run.RUN("thread.max := many\nbox.threaded\n");
    CHECK(BOXES.CURRENT().threads == 1);
}
