#include "script/module/list.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <bit>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TLIST ListOf(BYTE kind, std::initializer_list<const char *> values) {
    TLIST list;
    list.INIT(kind);
    for (const char *value : values)
        list.PUSH(UTF16(value));
    return list;
}

std::string Shown(const TLIST &list) {
    std::string text;
    for (NAT i = 1; i <= list.LENGTH(); ++i)
        text += (i > 1 ? "|" : "") + GETUTF8(list.GET(i));
    return text;
}

std::string Saved(const SCRATCH_FOLDER &folder, const TLIST &list) {
    CAPTURE console;
    CHECK(list.SAVE("list.txt"));
    return folder.READ("list.txt");
}

TLIST Loaded(BYTE kind, const char *name = "list.txt") {
    CAPTURE console;
    TLIST list;
    list.INIT(kind);
    CHECK(list.LOAD(name));
    return list;
}

// Reals that are hard to print: tiny, huge, with all digits in use, and any bits.
std::vector<REAL> HardReals() {
    std::vector<REAL> reals{0.1 + 0.2, 1e-20,   5e-324,  1.7976931348623157e308,
                            -1e-9,     1.0 / 3, 0,       -2.5e-7,
                            1e17,      -123.5,  REALMAX, -REALMAX,
                            1e22};
    RANDOM_STREAM random(1, 0);
    while (reals.size() < 200) {
        const REAL value = std::bit_cast<REAL>(random.NEXT64());
        if (std::isfinite(value)) reals.push_back(value);
    }
    return reals;
}

// FORMAT as it was, at the end of a test.
struct FORMAT_KEEPER {
    TFORMAT before = FORMAT;
    ~FORMAT_KEEPER() { FORMAT = before; }
};
} // namespace

TEST_CASE("SAVE writes one value a line") {
    const SCRATCH_FOLDER folder;
    CHECK(Saved(folder, ListOf(LIST_REAL, {"1.5", "-2"})) == "1.5\n-2\n");
    CHECK(Saved(folder, ListOf(LIST_NAT, {"1", "-2"})) == "1\n-2\n");
    CHECK(Saved(folder, ListOf(LIST_COMPLEX, {"1.5,2"})) == "<1.5, 2>\n");
    CHECK(Saved(folder, ListOf(LIST_VECTOR, {"1.5,2,-3"})) == "<1.5, 2, -3>\n");
    CHECK(Saved(folder, ListOf(LIST_HYPER, {"1.5,2,-3,4"})) == "<1.5, 2, -3, 4>\n");
    CHECK(Saved(folder, ListOf(LIST_CHARS, {"a b", "µ"})) == "a b\nµ\n");
    CHECK(Saved(folder, TLIST()) == "");
}

TEST_CASE("a number that the usual text would cut is saved with all its digits") {
    const SCRATCH_FOLDER folder;
    TLIST list = ListOf(LIST_VECTOR, {"1e-20,2,-3e-9"});
    CHECK(Saved(folder, list) == "1e-20, 2, -3e-09\n");
}

TEST_CASE("what is saved loads equal") {
    const SCRATCH_FOLDER folder;
    const FORMAT_KEEPER keeper;
    const std::vector<REAL> reals = HardReals();
    for (const bool decimal : {true, false})
        for (const bool scientific : {true, false})
            for (const BYTE kind : {LIST_REAL, LIST_COMPLEX, LIST_VECTOR, LIST_HYPER}) {
                FORMAT.DECIMAL = decimal;
                FORMAT.SCIENTIFIC = scientific;
                TLIST list;
                list.INIT(kind);
                for (std::size_t i = 0; i < reals.size(); ++i)
                    list.PUSH(HYPER{reals[i], reals[(i + 7) % reals.size()],
                                    reals[(i + 19) % reals.size()],
                                    reals[(i + 31) % reals.size()]});
                Saved(folder, list);
                const TLIST back = Loaded(kind);
                REQUIRE(back.LENGTH() == list.LENGTH());
                for (NAT i = 1; i <= list.LENGTH(); ++i)
                    CHECK(back.GETHYPER(i) == list.GETHYPER(i));
            }
}

TEST_CASE("whole numbers load equal while their digits are grouped on the console") {
    const SCRATCH_FOLDER folder;
    const FORMAT_KEEPER keeper;
    FORMAT.DIGIT = true;
    const TLIST list = ListOf(LIST_NAT, {"1234567", "-9223372036854775807", "9223372036854775807"});
    CHECK(Saved(folder, list) == "1234567\n-9223372036854775807\n9223372036854775807\n");
    CHECK(Shown(Loaded(LIST_NAT)) == Shown(list));
}

TEST_CASE("what is no number is saved as the 0 that it is shown as") {
    const SCRATCH_FOLDER folder;
    const REAL none = std::numeric_limits<REAL>::quiet_NaN();
    TLIST list;
    list.PUSH(HYPER{none, 0, 0, 0});
    list.PUSH(HYPER{-none, 0, 0, 0});
    CHECK(Shown(list) == "0|0");
    CHECK(Saved(folder, list) == "0\n0\n");
    TLIST pairs(LIST_COMPLEX);
    pairs.PUSH(HYPER{none, 2.5, 0, 0});
    CHECK(Saved(folder, pairs) == "0, 2.5\n");
}

TEST_CASE("texts load equal, empty ones and blanks too") {
    const SCRATCH_FOLDER folder;
    for (const auto &list :
         {ListOf(LIST_CHARS, {""}), ListOf(LIST_CHARS, {"a"}), ListOf(LIST_CHARS, {"", ""}),
          ListOf(LIST_CHARS, {" x ", "", "a\tb", "ä€", ""})}) {
        Saved(folder, list);
        const TLIST back = Loaded(LIST_CHARS);
        CHECK(back.LENGTH() == list.LENGTH());
        CHECK(Shown(back) == Shown(list));
    }
}

TEST_CASE("a line end inside a text is saved as a blank and told") {
    const SCRATCH_FOLDER folder;
    const TLIST list = ListOf(LIST_CHARS, {"a\nb", "c\r\nd", "e"});
    CAPTURE console;
    CHECK(list.SAVE("list.txt"));
    CHECK(folder.READ("list.txt") == "a b\nc  d\ne\n");
    CHECK(console.TEXT().find("  Texts with a line end, saved as a blank: 2\n") !=
          std::string::npos);
}

TEST_CASE("a name that ends in gz is packed and unpacked") {
    const SCRATCH_FOLDER folder;
    CAPTURE console;
    CHECK(ListOf(LIST_NAT, {"4", "5"}).SAVE("list.txt.gz"));
    CHECK(folder.READ("list.txt.gz").substr(0, 2) == "\x1f\x8b");
    CHECK(Shown(Loaded(LIST_NAT, "list.txt.gz")) == "4|5");
}

TEST_CASE("LOAD reads every line as the kind of the list") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("list.txt", "area 1.5\r\n<2, 3>\rword\n50%");
    CHECK(Shown(Loaded(LIST_REAL)) == "1.5|2|0|0.5");
    CHECK(Shown(Loaded(LIST_COMPLEX)) == "<1.5, 0>|<2, 3>|<0, 0>|<0.5, 0>");
    CHECK(Shown(Loaded(LIST_CHARS)) == "area 1.5|<2, 3>|word|50%");
}

TEST_CASE("LOAD passes over blank lines in numbers and keeps them in texts") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("list.txt", "1\n\n \t\n2\n\n");
    CHECK(Shown(Loaded(LIST_NAT)) == "1|2");
    CHECK(Shown(Loaded(LIST_CHARS)) == "1|| \t|2|");
}

TEST_CASE("LOAD replaces what the list held") {
    const SCRATCH_FOLDER folder;
    CAPTURE console;
    folder.WRITE("list.txt", "7\n");
    TLIST list = ListOf(LIST_NAT, {"1", "2"});
    list.LAST();
    list.SETBACKGROUND("-1");
    CHECK(list.LOAD("list.txt"));
    CHECK(Shown(list) == "7");
    CHECK(list.POSITION() == 1);
    CHECK(list.BACKGROUND() == UTF16("-1"));
}

TEST_CASE("a list that cannot be loaded is empty") {
    const SCRATCH_FOLDER folder;
    CAPTURE console;
    TLIST list = ListOf(LIST_NAT, {"1", "2"});
    CHECK_FALSE(list.LOAD("missing.txt"));
    CHECK(list.LENGTH() == 0);
    CHECK(console.TEXT().find("missing.txt") != std::string::npos);
}

TEST_CASE("a list that cannot be saved tells so") {
    const SCRATCH_FOLDER folder;
    CAPTURE console;
    CHECK_FALSE(ListOf(LIST_NAT, {"1"}).SAVE("missing/list.txt"));
    CHECK(console.TEXT().find("missing/list.txt") != std::string::npos);
    CHECK(folder.FILES() == 0);
}

TEST_CASE("bytes that are no text load without harm") {
    const SCRATCH_FOLDER folder;
    std::string bytes;
    for (int i = 0; i < 1000; ++i)
        bytes += static_cast<char>((i * 37 + i / 256) & 255);
    for (std::size_t length = 0; length < bytes.size(); length += 13) {
        folder.WRITE("list.txt", bytes.substr(0, length));
        for (const BYTE kind : {LIST_REAL, LIST_NAT, LIST_HYPER, LIST_CHARS})
            CHECK(Loaded(kind).LENGTH() <= static_cast<NAT>(length));
    }
}

TEST_CASE("SAVE_TABLE writes lists side by side under their names") {
    const SCRATCH_FOLDER folder;
    CAPTURE console;
    const TLIST areas = ListOf(LIST_REAL, {"1.5", "2", "1e-20"}),
                names = ListOf(LIST_CHARS, {"a", "b\tc"});
    const LIST_COLUMN columns[] = {{"AREAS", &areas}, {"NAMES", &names}};
    CHECK(SAVE_TABLE("table.txt", columns));
    CHECK(folder.READ("table.txt") == "AREAS\tNAMES\n1.5\ta\n2\tb c\n1e-20\t\n");
    CHECK(console.TEXT().find("  Texts with a tab or a line end, saved as a blank: 1\n") !=
          std::string::npos);
}
