#include "script/engine/nearest.hpp"

#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using LIST = std::vector<std::string>;

namespace {
constexpr std::string_view NAMES[] = {
    "print",       "print.red",        "scalar.smooth", "vector.smooth", "scalar.diffusion",
    "scalar.save", "scalar.size",      "scalar.load",   "vector.stream", "vector.stream.random",
    "line.save",   "vector.diffusion", "scalar.copy",   "for",           "end"};

LIST NEAR(std::string_view word, std::size_t count = 3) {
    return NEAREST_NAMES(word, NAMES, count);
}
} // namespace

TEST_CASE("the distance of spellings counts letters put in, taken out, exchanged and swapped") {
    CHECK(SPELLING_DISTANCE("print", "print", 3) == 0);
    CHECK(SPELLING_DISTANCE("prnt", "print", 3) == 1);
    CHECK(SPELLING_DISTANCE("priint", "print", 3) == 1);
    CHECK(SPELLING_DISTANCE("pront", "print", 3) == 1);
    CHECK(SPELLING_DISTANCE("pirnt", "print", 3) == 1);
    CHECK(SPELLING_DISTANCE("", "abc", 3) == 3);
    CHECK(SPELLING_DISTANCE("abcdef", "uvwxyz", 3) > 3);
    CHECK(SPELLING_DISTANCE(std::string(300, 'a'), "a", 3) > 3);
}

TEST_CASE("a slip of one letter finds its name") {
    CHECK(NEAR("prnt") == LIST{"print"});
    CHECK(NEAR("fro") == LIST{"for"});
    CHECK(NEAR("edn") == LIST{"end"});
    CHECK(NEAR("print.rd") == LIST{"print.red"});
    CHECK(NEAR("PRNT") == LIST{"print"});
}

TEST_CASE("a slip behind a namespace finds the namespace's own name first") {
    CHECK(NEAR("scalar.diffuson", 1) == LIST{"scalar.diffusion"});
    CHECK(NEAR("scalr.diffusion", 1) == LIST{"scalar.diffusion"});
}

TEST_CASE("a missing namespace gives the names that end so in their order") {
    CHECK(NEAR("smooth") == LIST{"scalar.smooth", "vector.smooth"});
    CHECK(NEAR("smoth") == LIST{"scalar.smooth", "vector.smooth"});
    CHECK(NEAR("smooth", 1) == LIST{"scalar.smooth"});
}

TEST_CASE("a word of several parts may lack its namespace, too") {
    CHECK(NEAR("stream.random", 1) == LIST{"vector.stream.random"});
    CHECK(NEAR("strem.random", 1) == LIST{"vector.stream.random"});
}

TEST_CASE("another or a needless namespace gives the name that ends so") {
    CHECK(NEAR("line.diffusion") == LIST{"scalar.diffusion", "vector.diffusion"});
    CHECK(NEAR("scalar.print") == LIST{"print"});
}

TEST_CASE("a beginning and a last part give the longer name") {
    CHECK(NEAR("scalar.diff") == LIST{"scalar.diffusion"});
    CHECK(NEAR("vector.random") == LIST{"vector.stream.random"});
}

TEST_CASE("another sign in the place of the point finds the name") {
    CHECK(NEAR("scalar_smooth", 1) == LIST{"scalar.smooth"});
    CHECK(NEAR("scalarsmooth", 1) == LIST{"scalar.smooth"});
}

TEST_CASE("a word that is near nothing gives nothing") {
    CHECK(NEAR("xyz").empty());
    CHECK(NEAR("").empty());
    CHECK(NEAR("a").empty());
    CHECK(NEAR("scalar.x").empty());
    CHECK(NEAR("scalar.").empty());
    CHECK(NEAR(".").empty());
    CHECK(NEAR("scalar.diffusion", 0).empty());
    CHECK(NEAREST_NAMES("print", {}, 3).empty());
}

TEST_CASE("a name that is the word itself is not its own neighbour") {
    constexpr std::string_view ONE[] = {"print", "print"};
    CHECK(NEAREST_NAMES("print", ONE, 3).empty());
    CHECK(NEAREST_NAMES("prnt", ONE, 3) == LIST{"print"});
}

TEST_CASE("very long words and names are compared without harm") {
    const std::string longName(1000, 'a');
    const std::string_view names[] = {longName, "print"};
    CHECK(NEAREST_NAMES(longName + "b", names, 3).empty());
    CHECK(NEAREST_NAMES("x." + longName, names, 3).empty());
}

TEST_CASE("an unknown procedure is told with the nearest commands and keywords") {
    const std::string head = "Syntax error (", tail = ") in line 1 (m)! Unknown procedure!\n";
    CHECK(RUN_SCRIPT("prnt 5\n") == head + "prnt" + tail + "  Nearest: print\n");
    CHECK(RUN_SCRIPT("fro 5\n") == head + "fro" + tail + "  Nearest: for\n");
    CHECK(RUN_SCRIPT("xyz 5\n") == head + "xyz" + tail);
}

TEST_CASE("names that the script declares are among the nearest") {
    CHECK(RUN_SCRIPT("procedure measure.all\nend\nmeasur.all\n")
              .ends_with("Unknown procedure!\n  Nearest: measure.all\n"));
}

TEST_CASE("a function or a value used as a procedure is told as what it is") {
    CHECK(RUN_SCRIPT("sum 1 2\n").ends_with("  sum is a function: name := sum\n"));
    CHECK(RUN_SCRIPT("tick\n").ends_with("  tick is a value: print tick\n"));
}

TEST_CASE("the status of the script holds the report without the nearest names") {
    SCRIPT_RUNNER runner;
    runner.RUN("prnt 5\n");
    CHECK(runner.engine.STATUS == "Syntax error (prnt) in line 1 (m)! Unknown procedure!");
}

TEST_CASE("a failed call of a function or a lambda names the nearest of its kind") {
    SCRIPT_RUNNER runner;
    runner.RUN("x := 1\n");
    runner.console.clear();
    runner.engine.SYNTAX_FUNCTION_ERROR("a := smu");
    CHECK(runner.console.ends_with("Unknown function!\n  Nearest: sum\n"));
    runner.console.clear();
    runner.engine.SYNTAX_LAMBDA_ERROR("tikc");
    CHECK(runner.console.ends_with("Unknown variable λ function!\n  Nearest: tick\n"));
    runner.console.clear();
    runner.engine.SYNTAX_FUNCTION_ERROR("a := print");
    CHECK(runner.console.ends_with("  print is a procedure: it stands first on its line\n"));
}

TEST_CASE("inside with a bare command is among the nearest of the longer name") {
    CHECK(RUN_SCRIPT("with scalar\nprint 5\nend\n")
              .ends_with("Syntax error (scalar.print) in line 2 (m)! Unknown procedure!\n"
                         "  Nearest: print\n"));
}
