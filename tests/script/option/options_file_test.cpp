#include "script/option/parameter.hpp"

#include "foundation/base/number_text.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A command line read in the current directory by a program that is called Morvane.
struct READ_HERE {
    CAPTURE console;
    TPARAMETER options;
    std::string listing;
    bool isVerbose = true;

    explicit READ_HERE(std::vector<std::string> arguments = {}) : options(Joined(arguments)) {
        CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
        console.CLEAR();
        options.USAGE("morvane [<options>]");
        listing = console.TEXT();
        console.CLEAR();
        isVerbose = VERBOSE;
        VERBOSE = true;
    }
    std::string VALUE(const char *name) {
        return GETUTF8(options.GETSTRING(name, "none", "legend"));
    }
    // All named pairs as "name=value;".
    std::string PAIRS() const {
        std::string text;
        UTF16 name, value;
        for (NAT i = 1; options.GETPAIR(i, name, value); ++i)
            text += GETUTF8(name) + "=" + GETUTF8(value) + ";";
        return text;
    }

private:
    static std::vector<std::string> Joined(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "/bin/morvane");
        return arguments;
    }
};

// The pairs of an options file with this text.
std::string PAIRS_OF(std::string_view text) {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", text);
    return READ_HERE().PAIRS();
}
} // namespace

TEST_CASE("every line of morvane.ini that is not empty is one option") {
    CHECK(PAIRS_OF("x=1\n\n   \ny=2\n") == "x=1;y=2;");
    CHECK(PAIRS_OF("x=1\r\ny=2\r\n") == "x=1;y=2;");
    CHECK(PAIRS_OF("x=1\ny=2") == "x=1;y=2;");
}

TEST_CASE("a line is cut at the first equals sign, without one at the first blank") {
    CHECK(PAIRS_OF("x=a=b\n") == "x=a=b;");
    CHECK(PAIRS_OF("x a b\n") == "x=a b;");
    CHECK(PAIRS_OF("x a=b\n") == "x a=b;");
    CHECK(PAIRS_OF("alone\n") == "alone=;");
}

TEST_CASE("leading minus signs of a name in the file are removed") {
    CHECK(PAIRS_OF("-x=1\n--y=2\n-z 3\n") == "x=1;y=2;z=3;");
}

TEST_CASE("blanks and tabs around name and value do not count") {
    CHECK(PAIRS_OF("  image.type = png  \n\ty=2\t\n") == "image.type=png;y=2;");
}

TEST_CASE("a value of the file may stand in quotes") {
    CHECK(PAIRS_OF("macro=\"a b.macro\"\n") == "macro=a b.macro;");
}

TEST_CASE("a plus sign alone before a name switches on, as among the arguments") {
    CHECK(PAIRS_OF("+status\n") == "status=true;");
}

TEST_CASE("lines of the file that begin with # are comments") {
    CHECK(PAIRS_OF("# a note = 1\nx=1\n") == "x=1;");
}

TEST_CASE("a byte order mark before the first line of the file does not count") {
    CHECK(PAIRS_OF("\xEF\xBB\xBFx=1\n") == "x=1;");
}

TEST_CASE("a line of the file without a name is no positional value") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "=word\n-=word\n");
    const READ_HERE line;
    CHECK(line.PAIRS() == "");
    CHECK(line.options.GETUNKNOWN().EMPTY());
}

TEST_CASE("arguments beat the options file") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "x=file\ny=file\n");
    READ_HERE line({"-x=argument"});
    CHECK(line.VALUE("x") == "argument");
    CHECK(line.VALUE("y") == "file");
    CHECK(line.PAIRS() == "x=argument;y=file;");
}

TEST_CASE("an option that stands twice in the file has its first value") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "x=1\nx=2\n");
    READ_HERE line;
    CHECK(line.VALUE("x") == "1");
    CHECK(line.PAIRS() == "x=1;x=2;");
}

TEST_CASE("a missing options file is passed over without a word") {
    const SCRATCH_FOLDER folder;
    const READ_HERE line({"-optionsfile=none.ini"});
    CHECK(line.listing.find("  -optionsfile : # = none.ini\n  +/-logfile") != std::string::npos);
    CHECK(line.PAIRS() == "optionsfile=none.ini;");
}

TEST_CASE("a folder of the options file's name is passed over") {
    const SCRATCH_FOLDER folder;
    std::filesystem::create_directory("morvane.ini");
    CHECK(READ_HERE().PAIRS() == "");
}

TEST_CASE("Morvane.ini is read when there is no morvane.ini") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("Morvane.ini", "x=upper\n");
    READ_HERE upper;
    CHECK(upper.VALUE("x") == "upper");
    CHECK(upper.listing.find("  -optionsfile : # = Morvane.ini\n") != std::string::npos);
    folder.WRITE("morvane.ini", "x=lower\n");
    READ_HERE lower;
    CHECK(lower.VALUE("x") == "lower");
    CHECK(lower.listing.find("  -optionsfile : # = morvane.ini\n") != std::string::npos);
}

TEST_CASE("-optionsfile names another file") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "x=standard\n");
    folder.WRITE("study.txt", "x=study\n");
    CHECK(READ_HERE({"-optionsfile=study.txt"}).VALUE("x") == "study");
}

TEST_CASE("the reading of the options file is told like that of every file") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "x=1\n");
    CHECK(READ_HERE().listing.find("# = morvane.ini\nRead file (morvane.ini) with size (4 B).\n") !=
          std::string::npos);
}

TEST_CASE("the options file may silence the console and may ask for help") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "verbose=off\n");
    CHECK_FALSE(READ_HERE().isVerbose);
    folder.WRITE("morvane.ini", "help=yes\n");
    CHECK(READ_HERE().options.DONE());
}

TEST_CASE("with -h the options file is not read") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "x=1\n");
    READ_HERE line({"-h"});
    CHECK(line.listing.find("Read file") == std::string::npos);
    CHECK(line.VALUE("x") == "none");
}

TEST_CASE("every cut of a strange options file is read without harm") {
    const std::string strange = "\xEF\xBB\xBF-=\"'\n+\n= =\n\t#\n+=\"\"\n\xff\x80=\r\r--\n";
    for (std::size_t length = 0; length <= strange.size(); ++length) {
        const SCRATCH_FOLDER folder;
        folder.WRITE("morvane.ini", strange.substr(0, length));
        CHECK(READ_HERE().options.PAIR_LENGTH() <= 4);
    }
}
