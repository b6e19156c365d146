#include "app/help.hpp"

#include "app/help_entries.hpp"
#include "app/help_layout.hpp"
#include "app/program.hpp"
#include "app/program_run.hpp"

#include <algorithm>
#include <set>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string HELP_OF(const std::vector<std::string> &words) {
    const CAPTURE console;
    HELP(words);
    return console.TEXT();
}

bool CONTAINS(const std::string &text, std::string_view part) {
    return text.find(part) != std::string::npos;
}
} // namespace

TEST_CASE("the help without words lists every part with its count and what it is for") {
    const std::string text = HELP_OF({});
    for (const HELP_GROUP &group : HELP_GROUPS()) {
        const auto count = std::ranges::count(HELP_ENTRIES(), group.name, &HELP_ENTRY::group);
        if (count == 0) continue;
        INFO(std::string(group.name));
        const std::string digits = std::to_string(count);
        const std::string blanks(16 - group.name.size() - digits.size(), ' ');
        CHECK(CONTAINS(text, "\n  " + std::string(group.name) + blanks + digits + "  "));
        CHECK(CONTAINS(text, std::string(group.note) + "\n"));
    }
}

TEST_CASE("every command belongs to a part that has a note") {
    for (const HELP_ENTRY &entry : HELP_ENTRIES()) {
        INFO(entry.name);
        const auto group = std::ranges::find(HELP_GROUPS(), entry.group, &HELP_GROUP::name);
        REQUIRE(group != HELP_GROUPS().end());
        CHECK_FALSE(group->note.empty());
    }
}

TEST_CASE("the page of a command has its note, usage, kind, parameters and example") {
    CHECK(HELP_OF({"scalar.diffusion.dump"}) ==
          "scalar.diffusion.dump\n"
          "  Note        all scan lines of one voxel as text\n"
          "  Usage       scalar.diffusion.dump report [radius point shift]\n"
          "  Kind        procedure: stands first on its line\n"
          "  Parameters  report  file name\n"
          "              radius  whole number  in voxels, may be left out\n"
          "              point   <x,y,z>       in voxels, may be left out\n"
          "              shift   <x,y,z>       in voxels, may be left out\n"
          "  Example     scalar.diffusion.dump dump.txt 16 <32,32,32>\n");
}

TEST_CASE("the page of a command names its other names in the same set") {
    CHECK(HELP_OF({"wait"}) == "wait\n"
                               "  Note        wait some seconds\n"
                               "  Usage       wait time\n"
                               "  Kind        procedure: stands first on its line\n"
                               "  Parameters  time  number  in s\n"
                               "  Example     wait 0.01\n"
                               "  Also        sleep, delay\n");
}

TEST_CASE("a function is shown behind its assignment") {
    const std::string text = HELP_OF({"minmax"});
    CHECK(CONTAINS(text, "  Usage       a := minmax value low high\n"));
    CHECK(
        CONTAINS(text, "  Kind        function: stands behind := and gives a value or a field\n"));
    CHECK(CONTAINS(text, "  Example     a := minmax 300 0 255\n"));
}

TEST_CASE("the page of a keyword shows its block") {
    CHECK(HELP_OF({"for"}).starts_with(
        "for\n"
        "  Note        a block for 1 to n, for a to b, or for a to b by a step in the middle; see "
        "for.count\n"
        "  Usage       for count | first last | first step last\n"
        "              ...\n"
        "              end\n"
        "  Kind        keyword with a block\n"
        "  Parameters  count  whole number\n"
        "              or\n"
        "              first  whole number\n"
        "              last   whole number\n"
        "              or\n"
        "              first  number\n"
        "              step   number\n"
        "              last   number\n"
        "  Example     for 3\n"));
    CHECK(CONTAINS(HELP_OF({"then"}),
                   "  Usage       then [command ...]\n"
                   "              or alone, with a block\n"
                   "              then\n              ...\n              end\n"));
    CHECK(CONTAINS(HELP_OF({"repeat"}), "              until number ...\n"));
}

TEST_CASE("the page of a condition names what reads it, and its other names") {
    const std::string text = HELP_OF({"if"});
    CHECK(CONTAINS(text, "  See         then, else\n  Also        ifall, ifand\n"));
    CHECK(CONTAINS(text, "  Kind        keyword\n"));
}

TEST_CASE("every command and every keyword has a page") {
    for (const HELP_ENTRY &entry : HELP_ENTRIES()) {
        INFO(entry.name);
        const std::string text = HELP_OF({entry.name});
        CHECK(text.starts_with(entry.name + "\n  Note        "));
        CHECK(CONTAINS(text, "  Example     " + std::string(entry.usage) + "\n"));
    }
}

TEST_CASE("a name that is several things has a page for each") {
    const std::string text = HELP_OF({"scalar.origin"});
    CHECK(CONTAINS(text, "  Kind        procedure"));
    CHECK(CONTAINS(text, "\n\nscalar.origin\n"));
}

TEST_CASE("the help on a part lists all its names with their notes") {
    for (const char *word : {"line", "line.", "LINE"}) {
        const std::string text = HELP_OF({word});
        CHECK(text.starts_with("line: "));
        const auto lines = LINES_OF(text);
        for (const HELP_ENTRY &entry : HELP_ENTRIES()) {
            if (entry.group != "line") continue;
            INFO(entry.name);
            CHECK(CONTAINS(text, "\n  " + entry.name + " "));
        }
    }
    CHECK(CONTAINS(HELP_OF({"keywords"}), "\n  while "));
    CHECK(CONTAINS(HELP_OF({"core"}), "\n  print.red "));
}

TEST_CASE("the help on the beginning of names lists them") {
    const std::string text = HELP_OF({"scalar.diffusion.adaptive."});
    CHECK(LINES_OF(text).size() == 5);
    CHECK(CONTAINS(text, "  scalar.diffusion.adaptive.x5  every fifth voxel"));
    CHECK(CONTAINS(HELP_OF({"print"}), "names begin with print.: morvane help print.\n"));
}

TEST_CASE("words of a name may stand apart") {
    CHECK(HELP_OF({"line", "save"}) == HELP_OF({"line.save"}));
}

TEST_CASE("any other word is looked for in names and notes") {
    const std::string text = HELP_OF({"Skeleton"});
    CHECK(CONTAINS(text, "hold \"skeleton\"\n"));
    CHECK(CONTAINS(text, "  scalar.getskeleton"));
    const std::string both = HELP_OF({"seconds", "wait"});
    CHECK(CONTAINS(both, "  sleep"));
    CHECK_FALSE(CONTAINS(both, "skeleton"));
}

TEST_CASE("in notes only the beginning of a word counts, in names any part of three letters") {
    CHECK_FALSE(CONTAINS(HELP_OF({"econd"}), "  sleep"));
    CHECK(CONTAINS(HELP_OF({"secon"}), "  sleep"));
    CHECK(CONTAINS(HELP_OF({"keleton"}), "  scalar.getskeleton"));
    CHECK_FALSE(CONTAINS(HELP_OF({"el"}), "  scalar.getskeleton"));
}

TEST_CASE("an unknown word is told, with up to three nearest names") {
    const std::string text = HELP_OF({"scalar.lod"});
    CHECK(text.starts_with("There is no help on \"scalar.lod\".\n"));
    CHECK(CONTAINS(text, "scalar.load"));
    CHECK(HELP_OF({"qqqqqqqqqqqqqqq"}) == "There is no help on \"qqqqqqqqqqqqqqq\".\n");
}

TEST_CASE("no line of the overview and of the lists is wider than 100 columns") {
    std::vector<std::vector<std::string>> calls = {{}};
    for (const HELP_GROUP &group : HELP_GROUPS())
        calls.push_back({std::string(group.name) + "."});
    for (const auto &call : calls)
        for (const std::string &line : LINES_OF(HELP_OF(call))) {
            INFO(line);
            CHECK(TEXT_WIDTH(line) <= 100);
        }
}

TEST_CASE("the help has colours on a terminal and none in a pipe") {
    CHECK_FALSE(CONTAINS(HELP_OF({"wait"}), "\x1b"));
    const CAPTURE console;
    INTERACTION = true;
    SETTERMINAL(true);
    HELP(std::vector<std::string>{"wait"});
    RESETTERMINAL();
    if (!std::getenv("NO_COLOR")) CHECK(console.CONTAINS("\x1b[1mwait\x1b[0m\n"));
}

TEST_CASE("letters beyond ASCII are one column wide") {
    CHECK(TEXT_WIDTH("λ²") == 2);
    CHECK(WRAP("ab λ² cd", 5) == std::vector<std::string>{"ab λ²", "cd"});
    CHECK(WRAP("abcdefgh ij", 5) == std::vector<std::string>{"abcdefgh", "ij"});
    CHECK(WRAP("", 5) == std::vector<std::string>{""});
}
