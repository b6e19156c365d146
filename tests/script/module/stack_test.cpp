#include "script/module/stack.hpp"

#include "foundation/base/geometry.hpp"
#include "script/module/lists.hpp"
#include "script/module/math_run.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr REAL NEAR = 1e-15; // a few units in the last place of values around 1
} // namespace

TEST_CASE("words of the stack act on the numbers before them") {
    MATH_RUN run;
    CHECK(run.CALCULATE("1 2 +") == "3");
    CHECK(run.CALCULATE("5 3 -") == "2");
    CHECK(run.CALCULATE("6 7 *") == "42");
    CHECK(run.CALCULATE("6 3 /") == "2");
    CHECK(run.CALCULATE("5 ²") == "25");
    CHECK(run.CALCULATE("2 ³") == "8");
    CHECK(run.CALCULATE("2 10 ^") == "1024");
    CHECK(run.CALCULATE("25 0.5 ^") == "5");
    CHECK(run.CALCULATE("2 -2 ^") == "0.25");
    CHECK(run.CALCULATE("-2 3 ^") == "-8");
    CHECK(run.CALCULATE("-7 |") == "7");
    CHECK(run.CALCULATE("5 neg") == "-5");
    CHECK(run.CALCULATE("4 inv") == "0.25");
    CHECK(run.CALCULATE("3 8 min") == "3");
    CHECK(run.CALCULATE("3 8 max") == "8");
    CHECK(run.CALCULATE("7 3 mod") == "1");
    CHECK(run.CALCULATE("2 3 o") == "6");
    CHECK(run.CALCULATE("2 7 d") == "5");
    CHECK(run.CALCULATE("1 2 + 3 4 + *") == "21");
}

TEST_CASE("words of the stack act component by component") {
    MATH_RUN run;
    CHECK(run.CALCULATE("<1, 2, 3> <4, 5, 6> +") == "<5, 7, 9>");
    CHECK(run.CALCULATE("<1, 2, 3, 4> <1, 1, 1, 1> +") == "<2, 3, 4, 5>");
    CHECK(run.CALCULATE("<9, 8, 7> <1, 2, 3> -") == "<8, 6, 4>");
    CHECK(run.CALCULATE("<1, 2, 3> <2, 3, 4> *") == "<2, 6, 12>");
    CHECK(run.CALCULATE("<2, 9, 8> <1, 3, 2> /") == "<2, 3, 4>");
    CHECK(run.CALCULATE("<1, 2, 3, 4> ²") == "<1, 4, 9, 16>");
    CHECK(run.CALCULATE("<1, 2, 3, 4> ³") == "<1, 8, 27, 64>");
    CHECK(run.CALCULATE("<2, 3, 4> <3, 2, 1> ^") == "<8, 9, 4>");
    CHECK(run.CALCULATE("<-1, 2, -3, -4> |") == "<1, 2, 3, 4>");
    CHECK(run.CALCULATE("<1, -2, 3> neg") == "<-1, 2, -3>");
    CHECK(run.CALCULATE("<1, 2, 4, 5> inv") == "<1, 0.5, 0.25, 0.2>");
    CHECK(run.CALCULATE("<50, 25> %") == "<0.5, 0.25>");
    CHECK(run.CALCULATE("<1, 5, 3> <3, 2, 3> min") == "<1, 2, 3>");
    CHECK(run.CALCULATE("<1, 5, 3> <3, 2, 3> max") == "<3, 5, 3>");
    CHECK(run.CALCULATE("<7, 8, 9> <4, 3, 5> mod") == "<3, 2, 4>");
}

TEST_CASE("a number stays a number where the function of 0 is not 0") {
    MATH_RUN run;
    CHECK(run.CALCULATE("0 cos") == "1");
    CHECK(run.CALCULATE("<0, 0, 0> cos") == "1");
    CHECK(run.NUMBER("0 arccos") == doctest::Approx(PI / 2).epsilon(NEAR));
    CHECK(run.CALCULATE("1 arccos") == "0");
    // A zero before the last component that is not zero takes part.
    const HYPER two = GETHYPER(run.CALCULATE("<0, 60°> cos"));
    CHECK(two.x == 1);
    CHECK(two.y == doctest::Approx(0.5).epsilon(NEAR));
    CHECK(two.z == 0);
}

TEST_CASE("angles of the stack are in radians and ° makes them of degrees") {
    MATH_RUN run;
    CHECK(run.NUMBER("180 °") == PI);
    CHECK(run.NUMBER("90 ° sin") == 1);
    CHECK(run.NUMBER("30 ° sin") == doctest::Approx(0.5).epsilon(NEAR));
    CHECK(run.NUMBER("60 ° cos") == doctest::Approx(0.5).epsilon(NEAR));
    CHECK(run.NUMBER("45 ° tan") == doctest::Approx(1).epsilon(NEAR));
    CHECK(run.NUMBER("1 arcsin") == doctest::Approx(PI / 2).epsilon(NEAR));
    CHECK(run.NUMBER("0.5 arccos") == doctest::Approx(PI / 3).epsilon(NEAR));
    CHECK(run.NUMBER("1 arctan") == doctest::Approx(PI / 4).epsilon(NEAR));
    CHECK(run.NUMBER("50 %") == 0.5);
    // Outside -1..1 the fraction is taken.
    CHECK(run.NUMBER("1.5 arcsin") == doctest::Approx(PI / 6).epsilon(NEAR));
}

TEST_CASE("the logarithm of the stack has the base 10") {
    MATH_RUN run;
    CHECK(run.CALCULATE("1000 log") == "3");
    CHECK(run.CALCULATE("<10, 100, 0.001> log") == "<1, 2, -3>");
    CHECK(run.CALCULATE("0 log") == "0");
    CHECK(run.CALCULATE("-100 log") == "-2");
}

TEST_CASE("a division by zero on the stack gives zero") {
    MATH_RUN run;
    CHECK(run.CALCULATE("5 0 /") == "0");
    CHECK(run.CALCULATE("<1, 2, 3> <2, 0, 4> /") == "<0.5, 0, 0.75>");
    CHECK(run.CALCULATE("0 inv") == "0");
    CHECK(run.CALCULATE("7 0 mod") == "7");
    CHECK(run.CALCULATE("7 0 /mod") == "0\n7");
    CHECK(run.CALCULATE("0 0 ^") == "0");
    CHECK(run.CALCULATE("0 -1 ^") == "0");
}

TEST_CASE("what has no finite value is zero on the stack") {
    MATH_RUN run;
    CHECK(run.CALCULATE("1e308 10 *") == "0");
    CHECK(run.CALCULATE("1e308 10 * 1 +") == "1");
    CHECK(run.CALCULATE("1000 1000 ^ 5 max") == "5");
}

TEST_CASE("mod is whole-numbered with the sign of the divisor and /mod leaves rest and quotient") {
    MATH_RUN run;
    CHECK(run.CALCULATE("-7 3 mod") == "2");
    CHECK(run.CALCULATE("7 -3 mod") == "-2");
    CHECK(run.CALCULATE("7.5 2 mod") == "1"); // the rest 1.5 is cut
    CHECK(run.CALCULATE("17 5 /mod") == "3\n2");
    CHECK(run.CALCULATE("-7 3 /mod") == "-3\n2");
    CHECK(run.CALCULATE("<17, 9> <5, 2> /mod") == "<3, 4>\n<2, 1>");
}

TEST_CASE("o is the scalar product, x the cross product and d the distance") {
    MATH_RUN run;
    CHECK(run.CALCULATE("<1, 2, 3> <4, 5, 6> o") == "32");
    CHECK(run.CALCULATE("<1, 2, 3, 4> <1, 1, 1, 1> o") == "10");
    CHECK(run.CALCULATE("<1, 0, 0> <0, 1, 0> x") == "<0, 0, 1>");
    CHECK(run.CALCULATE("<1, 2, 3, 9> <4, 5, 6, 9> x") == "<-3, 6, -3>"); // without the fourth
    CHECK(run.CALCULATE("<1, 2, 3> <1, 5, 7> d") == "5");
    CHECK(run.CALCULATE("<1, 1, 1, 1> 0 d") == "2");
}

TEST_CASE("statistics take the whole stack") {
    MATH_RUN run;
    CHECK(run.CALCULATE("1 2 3 4 sum") == "10");
    CHECK(run.CALCULATE("1 2 3 4 mean") == "2.5");
    CHECK(run.CALCULATE("2 4 6 var") == "4"); // sample variance, divisor n-1
    CHECK(run.CALCULATE("2 4 6 sd") == "2");
    CHECK(run.CALCULATE("5 var") == "0");
    CHECK(run.CALCULATE("5 sd") == "0");
    CHECK(run.CALCULATE("<1, 2> <3, 4> <5, 6> sum") == "<9, 12>");
    CHECK(run.CALCULATE("<1, 2, 0, 4> <3, 4, 0, 8> mean") == "<2, 3, 0, 6>");
    CHECK(run.CALCULATE("<1, 10> <2, 20> <3, 30> sd") == "<1, 10>");
}

TEST_CASE("dup, drop, swap, over and rot order the entries") {
    MATH_RUN run; // the top is shown first
    CHECK(run.CALCULATE("1 2 dup") == "2\n2\n1");
    CHECK(run.CALCULATE("1 2 drop") == "1");
    CHECK(run.CALCULATE("1 2 swap") == "1\n2");
    CHECK(run.CALCULATE("1 2 over") == "1\n2\n1");
    CHECK(run.CALCULATE("1 2 3 rot") == "1\n3\n2");
    CHECK(run.CALCULATE("1 2 3 §") == "1\n2\n3");
    CHECK(run.CALCULATE("1 2 : 3") == "3");
}

TEST_CASE("every word of the stack tells how many entries it needs") {
    MATH_RUN run;
    for (const STACK_WORD &word : STACK_WORDS()) {
        CAPTURE(word.word);
        std::string before;
        for (NAT i = 1; i < word.needs; ++i)
            before += "1 ";
        const std::string text = run.RUN("stack : " + before + std::string(word.word) + "\n");
        const std::string there =
            word.needs == 2 ? "there is 1" : "there are " + std::to_string(word.needs - 1);
        if (word.needs == 0)
            CHECK(text.empty());
        else
            CHECK(text == "Error (stack " + std::string(word.word) + " needs " +
                              std::to_string(word.needs) +
                              (word.needs == 1 ? " entry, " : " entries, ") + there +
                              ") in line 1 (test.macro)!\n");
        CHECK(STACK.LENGTH() == (word.needs == 0 ? 0 : word.needs - 1)); // nothing was taken
    }
}

TEST_CASE("every word of the stack leaves what its table says on enough entries") {
    for (const STACK_WORD &word : STACK_WORDS()) {
        CAPTURE(word.word);
        TSTACK stack;
        for (NAT i = 1; i <= word.needs; ++i)
            REQUIRE(stack.PUSH({static_cast<REAL>(i), 2, 3, 4}));
        CHECK(stack.APPLY(word));
        if (word.grows) CHECK(stack.LENGTH() == word.needs + 1);
        if (!word.grows) CHECK(stack.LENGTH() <= word.needs);
        for (NAT i = 1; i <= stack.LENGTH(); ++i)
            CHECK(std::isfinite(GETLENGTH(stack.GET(i))));
    }
}

TEST_CASE("a variable with the name of a word stands for its value") {
    MATH_RUN run;
    CHECK(run.RUN("x := 5\nstack : 2 x *\na := stack\nprint a\n") == "10\n");
    CHECK(run.RUN("op := \"+\"\nstack : 2 3 op\na := stack\nprint a\n") == "5\n");
}

TEST_CASE("words of the stack may be upper case and stand behind vectors with blanks") {
    MATH_RUN run;
    CHECK(run.CALCULATE("2 3 MAX") == "3");
    CHECK(run.CALCULATE("<1, 2, 3> <1, 1, 1> + dup o") == "29"); // 4 + 9 + 16
    CHECK(run.CALCULATE("(1, 2, 3) [4, 5, 6] {1; 1; 1} sum") == "<6, 8, 10>");
}

TEST_CASE("a text in angle brackets is a value even where it looks like a word") {
    MATH_RUN run;
    CHECK(run.CALCULATE("1 2 <x>") == "0\n2\n1");
    CHECK(run.CALCULATE("<1, 2, 3> <2, 0, 0> (+)") == "<3, 2, 3>");
}

TEST_CASE("what is no word and no number is pushed as 0") {
    MATH_RUN run;
    CHECK(run.CALCULATE("sinus") == "0");
}

TEST_CASE("reading the stack takes the top off and leaves trailing zeros out") {
    MATH_RUN run;
    CHECK(run.CALCULATE("<1, 2, 3, 4> <1, 2, 3> <1, 2> 1 <0, 0, 3> 0") ==
          "0\n<0, 0, 3>\n1\n<1, 2>\n<1, 2, 3>\n<1, 2, 3, 4>");
}

TEST_CASE("reading an empty stack is an error") {
    MATH_RUN run;
    CHECK(run.RUN("stack.clean\na := stack\nprint never\n") ==
          "Error (stack is empty) in line 2 (test.macro)!\n");
    CHECK(run.RUN("stack 1\na := stack 5\n") == "Parameter error! No parameter needed.\n");
    CHECK(run.RUN("stack\n") ==
          "Parameter error! Please use min. one parameter in line 1 (test.macro).\n");
}

TEST_CASE("a full stack refuses more entries and says so") {
    TSTACK stack;
    const STACK_WORD &dup = *FIND_STACK_WORD("dup"), &add = *FIND_STACK_WORD("+");
    for (NAT i = 1; i <= TSTACK::MOST; ++i)
        if (!stack.PUSH({1, 0, 0, 0})) FAIL("no memory");
    CHECK_FALSE(stack.PUSH({1, 0, 0, 0}));
    CHECK_FALSE(stack.APPLY(dup));
    CHECK(stack.LENGTH() == TSTACK::MOST);
    CHECK(stack.APPLY(add));
    CHECK(stack.POP() == HYPER{2, 0, 0, 0});
}

TEST_CASE("copies between the stack and the list in use replace what was there") {
    MATH_RUN run;
    run.RUN("list.clear\nlist.push 7 8\nstack : 1\nlist.to.stack\n");
    CHECK(STACK.LENGTH() == 2);
    CHECK(STACK.GET(2) == HYPER{8, 0, 0, 0});
    run.RUN("stack : 4 5 6\nstack.to.list\n");
    CHECK(LISTS.CURRENT().LENGTH() == 3);
    CHECK(LISTS.CURRENT().GETHYPER(3) == HYPER{6, 0, 0, 0});
    CHECK(STACK.LENGTH() == 3); // a copy
}

TEST_CASE("a list gets the kind that holds all entries of the stack") {
    MATH_RUN run;
    run.RUN("stack : 1 <2, 3, 4> <5, 6>\nstack.to.list\n");
    CHECK(LISTS.CURRENT().KIND() == LIST_VECTOR);
    CHECK(LISTS.CURRENT().GETHYPER(2) == HYPER{2, 3, 4, 0});
    run.RUN("stack : <1, 2, 3, 4>\nstack.to.list\n");
    CHECK(LISTS.CURRENT().KIND() == LIST_HYPER);
    run.RUN("stack : 1 2\nstack.to.list\n"); // a wider list stays
    CHECK(LISTS.CURRENT().KIND() == LIST_HYPER);
    CHECK(LISTS.CURRENT().GETHYPER(1) == HYPER{1, 0, 0, 0});
}

TEST_CASE("the modules begin with an empty stack") {
    MATH_RUN first;
    first.RUN("stack 1 2 3\n");
    const MATH_RUN second;
    CHECK(STACK.LENGTH() == 0);
}

TEST_CASE("words of the stack give the results of the manual") {
    struct ROW {
        const char *word, *number, *vector, *hyper;
    };
    const ROW rows[] = {
        {"+", "10", "<10, -6, 9>", "<10, -6, 9, 6>"},
        {"-", "2", "<2, -10, 9>", "<2, -10, 9, -4>"},
        {"*", "24", "<24, -16>", "<24, -16, 0, 5>"},
        {"/", "1.5", "<1.5, -4>", "<1.5, -4, 0, 0.2>"},
        {"^", "1296", "<1296, 64, 1>", "<1296, 64, 1, 1>"},
        {"min", "4", "<4, -8>", "<4, -8, 0, 1>"},
        {"max", "6", "<6, 2, 9>", "<6, 2, 9, 5>"},
        {"mod", "2", "<2, 0, 9>", "<2, 0, 9, 1>"},
        {"/mod", "1\n2", "<1, -4>\n<2, 0, 9>", "<1, -4>\n<2, 0, 9, 1>"},
        {"drop ²", "36", "<36, 64, 81>", "<36, 64, 81, 1>"},
        {"drop ³", "216", "<216, -512, 729>", "<216, -512, 729, 1>"},
        {"drop |", "6", "<6, 8, 9>", "<6, 8, 9, 1>"},
        {"drop %", "0.06", "<0.06, -0.08, 0.09>", "<0.06, -0.08, 0.09, 0.01>"},
        {"drop neg", "-6", "<-6, 8, -9>", "<-6, 8, -9, -1>"},
        {"o", "24", "8", "13"},
        {"x", "0", "<-18, 36, 44>", "<-18, 36, 44>"},
        {"sum", "10", "<10, -6, 9>", "<10, -6, 9, 6>"},
        {"mean", "5", "<5, -3, 4.5>", "<5, -3, 4.5, 3>"},
        {"var", "2", "<2, 50, 40.5>", "<2, 50, 40.5, 8>"},
    };
    MATH_RUN run;
    for (const ROW &row : rows) {
        CAPTURE(row.word);
        const std::string word = std::string(" ") + row.word;
        CHECK(run.CALCULATE("6 4" + word) == row.number);
        CHECK(run.CALCULATE("<6, -8, 9> <4, 2, 0>" + word) == row.vector);
        CHECK(run.CALCULATE("<6, -8, 9, 1> <4, 2, 0, 5>" + word) == row.hyper);
    }
    CHECK(run.NUMBER("<6, -8, 9> <4, 2, 0> d") == doctest::Approx(std::sqrt(185.0)));
    CHECK(run.NUMBER("<6, -8, 9, 1> <4, 2, 0, 5> d") == doctest::Approx(std::sqrt(201.0)));
}
