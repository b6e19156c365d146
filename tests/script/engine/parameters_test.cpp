#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the first character decides the kind of a parameter") {
    CHECK(RUN_SCRIPT("list word 5 -5 \"text\" 'text' #65 (1) <1> [1] {1} $f %1 .5 /x\n") ==
          "0[word]1[5]1[-5]2[text]2[text]2[A]3[1]3[1]3[1]3[1]3[15]3[1]0[.5]0[/x]\n");
}

TEST_CASE("a quoted text with a blank and a word are two parameters") {
    CHECK(RUN_SCRIPT("b := 5\nlist \"a b\" b c\n") == "2[a b]0[5]0[c]\n");
}

TEST_CASE("two quotes with nothing between them give no parameter") {
    CHECK(RUN_SCRIPT("list \"\" '' () <> [] {} a\n") == "0[a]\n");
}

TEST_CASE("a lone quote or bracket is a text of one character") {
    CHECK(RUN_SCRIPT("list \"\n") == "2[\"]\n");
    CHECK(RUN_SCRIPT("list '\n") == "2[']\n");
    CHECK(RUN_SCRIPT("list (\n") == "3[(]\n");
    CHECK(RUN_SCRIPT("list $ %\n") == "3[$]3[%]\n");
}

TEST_CASE("doubled quotes collapse in the text behind the token, not in the token") {
    CHECK(RUN_SCRIPT("list \"a\"\"b\" \"c\"\"d\"\n") == "2[a\"\"b]2[c\"d]\n");
    CHECK(RUN_SCRIPT("list 'a''b' 'c''d'\n") == "2[a''b]2[c'd]\n");
}

TEST_CASE("a blank inside quotes or brackets does not part parameters") {
    CHECK(RUN_SCRIPT("list (a b) <1, 2> [x y] {p q} 'it \" is' \"it ' is\"\n") ==
          "3[a b]3[1,2]3[x y]3[p q]2[it \" is]2[it ' is]\n");
}

TEST_CASE("a tab does not part parameters") { CHECK(RUN_SCRIPT("list a\tb\n") == "0[a\tb]\n"); }

TEST_CASE("lists are stored without delimiters and blanks around their elements") {
    CHECK(RUN_SCRIPT("x := <1, 2, 3>\nlist x\n") == "0[1,2,3]\n");
    CHECK(RUN_SCRIPT("a := 1\nb := 2\nlist <a, b, 3> (a; b ;c)\n") == "3[1,2,3]3[1;2;c]\n");
}

TEST_CASE("empty elements of a list are dropped") {
    CHECK(RUN_SCRIPT("list <1, , 2,> (,a;)\n") == "3[1,2]3[a]\n");
}

TEST_CASE("hexadecimal and binary numbers are read from the end, other characters passed over") {
    CHECK(RUN_SCRIPT("x := $ff\nlist x\nx := %101\nlist x\nlist $1.F %1_0 $A0\n") ==
          "0[255]\n0[5]\n3[31]3[2]3[160]\n");
}

TEST_CASE("a number sign gives one character by its code") {
    CHECK(RUN_SCRIPT("x := #65\nlist x\nlist #955\n") == "0[A]\n2[λ]\n");
}

TEST_CASE("a word is replaced by its value, without regard to case") {
    CHECK(RUN_SCRIPT("a := 5\nlist a A ab\n") == "0[5]0[5]0[ab]\n");
}

TEST_CASE("a value that names an older constant is replaced further") {
    CHECK(RUN_SCRIPT("b := 5\na := \"b\"\nlist a\n") == "0[5]\n");
    CHECK(RUN_SCRIPT("a := \"b\"\nb := 5\nlist a\n") == "0[b]\n");
}

TEST_CASE("numbers and quoted texts are not replaced") {
    CHECK(RUN_SCRIPT("a := 5\nlocal 7 8\nlist 7 \"a\" 'a' -a\n") == "1[7]2[a]2[a]1[-a]\n");
}

TEST_CASE("an element is read by its number or by the value of its index") {
    CHECK(RUN_SCRIPT("a[1] := x\na[2] := y\ni := 2\nlist a[1] a[i] a[ i ] a[3] a[0] b[0] A[2]\n") ==
          "4[x]4[y]4[y]4[]4[2]4[1]4[y]\n");
}

TEST_CASE("a negative index leaves the word as it stands") {
    CHECK(RUN_SCRIPT("a[1] := x\nlist a[-1] b]\n") == "4[a[-1]]4[b]]\n");
}

TEST_CASE("@ replaces a name everywhere, quotes included") {
    CHECK(RUN_SCRIPT("a := 5\nlist \"x @a y\" @a z@a @A\n") == "2[x 5 y]1[5]0[z5]1[5]\n");
}

TEST_CASE("@ before an unknown name stays") {
    CHECK(RUN_SCRIPT("list @a \"@b c\"\n") == "0[@a]2[@b c]\n");
}

TEST_CASE("@ replaces lower-case and upper-case names but no mixture") {
    CHECK(RUN_SCRIPT("ab := 5\nlist @ab @AB @Ab\n") == "1[5]1[5]0[@Ab]\n");
}

TEST_CASE("a plain replacement in the order of the table, newest first, quotes included") {
    CHECK(RUN_SCRIPT("a := 1\nab := 2\nlist \"@ab\"\n") == "2[2]\n");
    CHECK(RUN_SCRIPT("ab := 2\na := 1\nlist \"@ab\"\n") == "2[1b]\n");
}

TEST_CASE("a value with an @ sign is replaced by older names only") {
    CHECK(RUN_SCRIPT("a := \"@b\"\nb := 5\nlist \"@a\"\n") == "2[@b]\n");
    CHECK(RUN_SCRIPT("b := 5\nc := \"@\"\nlist \"@cb\"\n") == "2[5]\n");
}

TEST_CASE("the raw list is evaluated too, so a lambda is called twice") {
    CHECK(RUN_SCRIPT("print tick\nprint tick\nraw tick\n") == "1\n3\n[6]\n");
}

TEST_CASE("a lambda gives its value and kind 9") {
    CHECK(RUN_SCRIPT("list tick a\na := tick\nprint a\n") == "9[1]0[a]\n3\n");
}

TEST_CASE("the raw rules leave angle brackets alone") {
    CHECK(RUN_SCRIPT("raw <1,2> a <b\nlist <1,2>\n") == "[<1,2>][a][<b]\n3[1,2]\n");
    CHECK(RUN_SCRIPT("raw3 <1, 2> +\n") == "[<1,][2>][+]\n");
}

TEST_CASE("raw words are replaced by values too") {
    CHECK(RUN_SCRIPT("a := 5\nraw3 a < b\nraw a b\n") == "[5][<][b]\n[5][b]\n");
}

TEST_CASE("a parameter keeps its first 254 units") {
    CHECK(RUN_SCRIPT("print " + std::string(300, 'x') + "\n") == std::string(254, 'x') + "\n");
}

TEST_CASE("reading behind the list is a failure with an empty result") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("third", [](TMACRO *e) { WRITELN(e->GETPARAMETER(3) + "."); });
    CHECK(runner.RUN("third 1 2\nprint a\n") ==
          "Parameter error! Please at least 3 parameters in line 1 (m).\n.\n");
    CHECK(runner.engine.STATUS == "Parameter error! Please at least 3 parameters in line 1 (m).");
    runner.engine.PUTPROCEDURE("rawthird",
                               [](TMACRO *e) { WRITELN(e->GETPARAMETER_RAW(3) + "."); });
    CHECK(runner.RUN("rawthird 1 2\nprint a\n") ==
          "Parameter error! Please at least 3 parameters in line 1 (m).\n.\n");
}

TEST_CASE("GETPARAMETER_ERRORFREE is empty outside the list without a failure") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("third",
                               [](TMACRO *e) { WRITELN(e->GETPARAMETER_ERRORFREE(3) + "."); });
    CHECK(runner.RUN("third 1 2\nthird 1 2 3\n") == ".\n3.\n");
}

TEST_CASE("CHECKPARAMETER tests the count while a script runs") {
    SCRIPT_RUNNER runner;
    runner.engine.PUTPROCEDURE("one", [](TMACRO *e) {
        if (e->CHECKPARAMETER(1)) WRITELN("one");
    });
    CHECK(runner.engine.CHECKPARAMETER(5));
    CHECK(runner.RUN("one 1\none 1 2\n") ==
          "one\nParameter error! Please use one parameter in line 2 (m).\n");
}

TEST_CASE("a prepared line sees the values and commands of each pass") {
    CHECK(RUN_SCRIPT("for 3\na := for.count\nlist a <a> a[1]\nend\n") ==
          "0[1]3[1]4[1]\n0[2]3[2]4[2]\n0[3]3[3]4[3]\n");
    CHECK(RUN_SCRIPT("for 2\nx := p\nprint x\nprocess\nfunction p\nresult := f\nend\n"
                     "x := p\nprint x\nend\nend\n") == "p\nf\np\nf\n");
}
