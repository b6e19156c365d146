#include "script/file/file_table.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <random>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// What cells are made of: everything that a reader could take for something else.
constexpr std::string_view PIECES[] = {
    "a",    "B",  "0",    "-1.5", ",",    ";",  "\t", " ",  "  ",           "\"",
    "\"\"", "'",  "#",    "%",    "/",    "//", "|",  "\r", "\n",           "\r\n",
    "ä",    "µm", "\x1A", "\x01", "[mm]", "a,", ".",  "1e", "\xEF\xBB\xBF", "\xF0\x9F\x90\xAD"};
constexpr std::string_view SEPARATORS[] = {"\t", ",", ";", " ", "|", "#", "%", "/", "a", "\x01"};

class CELLS {
public:
    explicit CELLS(unsigned seed) : random(seed) {}
    NAT BELOW(NAT count) { return static_cast<NAT>(random() % static_cast<std::uint64_t>(count)); }
    UTF16 CELL() {
        std::string text;
        for (NAT left = BELOW(4); left > 0; --left)
            text += PIECES[BELOW(std::size(PIECES))];
        return GETUTF16(text);
    }
    void FILL(TFILETABLE &table) {
        const NAT width = 1 + BELOW(4), height = 1 + BELOW(4);
        REQUIRE(table.NEW(width, height));
        for (NAT y = 1; y <= height; ++y)
            for (NAT x = 1; x <= width; ++x)
                if (BELOW(5) > 0) REQUIRE(table.PUT(x, y, CELL()));
    }
    void SET(TFILETABLE &first, TFILETABLE &second) {
        const UTF16 separator = SEPARATORS[BELOW(std::size(SEPARATORS))];
        const bool isOwn = BELOW(4) > 0, join = BELOW(2) > 0;
        for (TFILETABLE *table : {&first, &second}) {
            if (isOwn) table->SETMETHOD(separator.GETCHAR(1));
            table->SETJOIN(join);
        }
    }

private:
    std::mt19937_64 random;
};

bool IS_EQUAL(const TFILETABLE &a, const TFILETABLE &b, bool transposed = false) {
    if (a.LENGTHX() != (transposed ? b.LENGTHY() : b.LENGTHX())) return false;
    if (a.LENGTHY() != (transposed ? b.LENGTHX() : b.LENGTHY())) return false;
    for (NAT y = 1; y <= a.LENGTHY(); ++y)
        for (NAT x = 1; x <= a.LENGTHX(); ++x)
            if (a.GETVIEW(x, y) != (transposed ? b.GETVIEW(y, x) : b.GETVIEW(x, y))) return false;
    return true;
}
} // namespace

TEST_CASE("tables of random cells are read back equal under every setting and name") {
    const morvane::CAPTURE console;
    const SCRATCH_FOLDER folder;
    CELLS cells(1); // the seed
    for (int run = 0; run < 3000; ++run) {
        TFILETABLE table, copy;
        cells.FILL(table);
        cells.SET(table, copy);
        const char *const name = cells.BELOW(2) > 0 ? "t.csv" : "t.txt";
        REQUIRE(table.SAVE(name));
        const bool comments = cells.BELOW(2) > 0;
        REQUIRE((comments ? copy.LOAD_COMMENT(name) : copy.LOAD(name)));
        CAPTURE(run);
        CAPTURE(folder.READ(name));
        REQUIRE(IS_EQUAL(table, copy));
        REQUIRE(table.SAVE_TRANSPOSE(name));
        REQUIRE((comments ? copy.LOAD_COMMENT(name) : copy.LOAD(name)));
        REQUIRE(IS_EQUAL(table, copy, true));
    }
}

TEST_CASE("whatever bytes a table is read from, it is written and read back equal") {
    CELLS cells(2);
    for (int run = 0; run < 20000; ++run) {
        std::string bytes;
        for (NAT left = cells.BELOW(12); left > 0; --left)
            bytes += cells.BELOW(8) > 0 ? std::string(PIECES[cells.BELOW(std::size(PIECES))])
                                        : std::string(1, static_cast<char>(cells.BELOW(256)));
        TFILETABLE table, copy;
        cells.SET(table, copy);
        table.LOADBYTES(bytes, cells.BELOW(2) > 0);
        CAPTURE(run);
        CAPTURE(bytes);
        CAPTURE(table.SAVEBYTES());
        copy.LOADBYTES(table.SAVEBYTES(), cells.BELOW(2) > 0);
        REQUIRE(IS_EQUAL(table, copy));
    }
}
