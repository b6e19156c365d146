#include "script/option/parameter.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/time.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"
#include "foundation/thread/processor.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
#if defined(__linux__) && defined(__x86_64__)
const std::string FOLDER = "x86_64-linux";
#elif defined(__linux__) && defined(__aarch64__)
const std::string FOLDER = "aarch64-linux";
#endif

// A command line that was read, and the console's text since then.
struct READ_LINE {
    CAPTURE console;
    TPARAMETER options;

    explicit READ_LINE(std::vector<std::string> arguments) : options(Joined(arguments)) {
        options.USAGE("morvane [<options>]");
        console.CLEAR();
    }
    std::string VALUE(const char *name) {
        return GETUTF8(options.GETSTRING(name, "none", "legend"));
    }
    std::string LAST() const { return GETUTF8(options.GETUNKNOWN()); }

private:
    static std::vector<std::string> Joined(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "/bin/morvane");
        return arguments;
    }
};
} // namespace

TEST_CASE("the version is made of the years since the first, the month and the day") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    CHECK(GETUTF8(options.GETVERSION()) == "9.4.8");
}

TEST_CASE("the banner holds title, maker, program path and current directory") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    const std::string year = GETUTF8(GETSTRING(GETDATE().year));
    const std::string tail =
        "\n2017-" + year + " Author\n\n/bin/morvane\n" + GETUTF8(GETCURRENTDIR()) + "\n\n" +
        "  -update : Load a new version from https://maker.invalid/" + FOLDER + "/morvane\n";
    CHECK(console.TEXT().starts_with("\nMorvane - "));
    CHECK(console.CONTAINS("ersion 9.4.8 for "));
    CHECK(console.TEXT().ends_with(tail));
}

#if defined(__linux__) && defined(__x86_64__)
TEST_CASE("the title names the build at hand") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    CHECK(console.CONTAINS(" 9.4.8 for Linux (x86_64 LE)\n"));
}
#endif

TEST_CASE("-strict as the first argument ends interaction") {
    CAPTURE console;
    INTERACTION = true;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane", "-strict"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    CHECK_FALSE(INTERACTION);
}

TEST_CASE("-strict counts only as the first argument") {
    CAPTURE console;
    INTERACTION = true;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane", "-x=1", "-strict"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    CHECK(INTERACTION);
}

TEST_CASE("behind the usage line stand options file, log, processor and -verbose, in this order") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane"});
    CHECK_FALSE(options.INIT("Morvane", "Author", 2017, "https://maker.invalid"));
    console.CLEAR();
    options.USAGE("morvane [<options>]");
    CHECK(console.TEXT() == "\nUsage: morvane [<options>]\n\n  -optionsfile : # = morvane.ini\n"
                            "  +/-logfile : log = off\n  : " +
                                GETSIMD() + "\n  : " + GETCORES() +
                                "\n  +/-verbose : verbose = on\n");
}

TEST_CASE("-verbose=off silences the console") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane", "-verbose=off"});
    options.USAGE("morvane");
    CHECK_FALSE(VERBOSE);
}

TEST_CASE("the help is printed even with -verbose=off") {
    CAPTURE console;
    TPARAMETER options(std::vector<std::string>{"/bin/morvane", "-verbose=off", "-h"});
    options.USAGE("morvane");
    CHECK(console.CONTAINS("  +/-verbose : verbose = on\n"));
    CHECK(VERBOSE);
}

TEST_CASE("-x 5, -x=5 and --x=5 are one thing") {
    CHECK(READ_LINE({"-x", "5"}).VALUE("x") == "5");
    CHECK(READ_LINE({"-x=5"}).VALUE("x") == "5");
    CHECK(READ_LINE({"--x=5"}).VALUE("x") == "5");
    CHECK(READ_LINE({"--x", "5"}).VALUE("x") == "5");
}

TEST_CASE("-x followed by a word takes the word as its value, not as a positional one") {
    READ_LINE line({"-x", "word"});
    CHECK(line.VALUE("x") == "word");
    CHECK(line.LAST() == "");
}

TEST_CASE("the value of -x=5 is not replaced by a word behind it") {
    READ_LINE line({"-x=5", "word"});
    CHECK(line.VALUE("x") == "5");
    CHECK(line.LAST() == "word");
}

TEST_CASE("-x -y leaves both at false") {
    READ_LINE line({"-x", "-y"});
    CHECK(line.VALUE("x") == "false");
    CHECK(line.VALUE("y") == "false");
}

TEST_CASE("+x is true and takes no word") {
    READ_LINE line({"+x", "word"});
    CHECK(line.VALUE("x") == "true");
    CHECK(line.LAST() == "word");
}

TEST_CASE("a value with a blank inside a quoted argument stays whole") {
    CHECK(READ_LINE({"-x=\"a b\""}).VALUE("x") == "a b");
    CHECK(READ_LINE({"-x", "'a b'"}).VALUE("x") == "a b");
    CHECK(READ_LINE({"-x=a b"}).VALUE("x") == "a b");
    CHECK(READ_LINE({"-x", "two words"}).VALUE("x") == "two words");
}

TEST_CASE("a doubled quote inside a quoted value becomes one") {
    CHECK(READ_LINE({"-x=\"say \"\"hi\"\"\""}).VALUE("x") == "say \"hi\"");
    CHECK(READ_LINE({"'it''s'"}).LAST() == "it's");
}

TEST_CASE("quoted arguments are positional values without their quotes") {
    CHECK(READ_LINE({"\"-x\""}).LAST() == "-x");
}

TEST_CASE("brackets keep their blanks and signs") {
    CHECK(READ_LINE({"-v=<1, 2, 3>"}).VALUE("v") == "<1, 2, 3>");
}

TEST_CASE("an empty argument is dropped") {
    READ_LINE line({"", "  ", "word"});
    CHECK(line.LAST() == "word");
    CHECK(line.options.PAIR_LENGTH() == 0);
}

TEST_CASE("option names are matched exactly") {
    READ_LINE line({"-Macro=a"});
    CHECK(line.VALUE("macro") == "none");
    CHECK(line.VALUE("Macro") == "a");
}

TEST_CASE("of two options of one name the first counts") {
    CHECK(READ_LINE({"-x=1", "-x=2"}).VALUE("x") == "1");
}

TEST_CASE("a string option prints its line with name, legend and value") {
    READ_LINE line({"-file=a.nii"});
    line.options.GETSTRING("file", "b.nii", "the file");
    line.options.GETSTRING("other", "b.nii", "another");
    CHECK(line.console.TEXT() == "  -file : the file = a.nii\n  -other : another = b.nii\n");
}

TEST_CASE("GETLASTSTRING takes the last positional value when the option is not given") {
    CHECK(GETUTF8(READ_LINE({"a", "b"}).options.GETLASTSTRING("macro", "m", "l")) == "b");
    CHECK(GETUTF8(READ_LINE({"a", "-macro=c"}).options.GETLASTSTRING("macro", "m", "l")) == "c");
    CHECK(GETUTF8(READ_LINE({}).options.GETLASTSTRING("macro", "m", "l")) == "m");
}

TEST_CASE("a number option is limited to its range, which the line shows") {
    READ_LINE line({"-mesh.split=500", "-low=-3", "-bad=abc"});
    CHECK(line.options.GETNAT("mesh.split", 0, 0, 100, "how much biggest objects") == 100);
    CHECK(line.options.GETNAT("low", 5, 0, 100, "low") == 0);
    CHECK(line.options.GETNAT("bad", 5, 0, 100, "bad") == 0);
    CHECK(line.options.GETNAT("none", 5, 0, 100, "none") == 5);
    CHECK(line.console.TEXT().starts_with(
        "  -mesh.split : how much biggest objects (0-100) = 100\n"));
}

TEST_CASE("a vector option prints its value as a vector") {
    READ_LINE line({"-v=<1,2,3>"});
    CHECK(line.options.GETVECTOR("v", VZERO, "rotate") == VECTOR{1, 2, 3});
    CHECK(line.options.GETVECTOR("w", VNORM, "scale") == VNORM);
    CHECK(line.console.TEXT() == "  -v : rotate = <1, 2, 3>\n  -w : scale = <1, 1, 1>\n");
}

TEST_CASE("a switch prints on or off") {
    READ_LINE line({"-a=yes", "-b=0", "+c"});
    CHECK(line.options.GETBOOLEAN("a", false, "first"));
    CHECK_FALSE(line.options.GETBOOLEAN("b", true, "second"));
    CHECK(line.options.GETBOOLEAN("c", false, "third"));
    CHECK_FALSE(line.options.GETBOOLEAN("d", false, "fourth"));
    CHECK(line.console.TEXT() == "  +/-a : first = on\n  +/-b : second = off\n  +/-c : third = on\n"
                                 "  +/-d : fourth = off\n");
}

TEST_CASE("a switch with a minus alone is off, with a plus it is on") {
    CHECK_FALSE(READ_LINE({"-x"}).options.GETBOOLEAN("x", true, "l"));
    CHECK(READ_LINE({"+x"}).options.GETBOOLEAN("x", false, "l"));
}

TEST_CASE("-verbose alone silences the console") {
    const READ_LINE line({"-verbose"});
    CHECK_FALSE(VERBOSE);
    VERBOSE = true;
}

TEST_CASE("a flag given alone is on, with =off it is off") {
    CHECK(READ_LINE({"-first"}).options.GETFLAG("first", "l"));
    CHECK(READ_LINE({"+first"}).options.GETFLAG("first", "l"));
    CHECK(READ_LINE({"-first=on"}).options.GETFLAG("first", "l"));
    CHECK_FALSE(READ_LINE({"-first=off"}).options.GETFLAG("first", "l"));
    CHECK_FALSE(READ_LINE({"-first", "off"}).options.GETFLAG("first", "l"));
    CHECK_FALSE(READ_LINE({"-second"}).options.GETFLAG("first", "l"));
}

TEST_CASE("a flag prints the line of a switch, in the help its default") {
    READ_LINE line({"-first"});
    CHECK(line.options.GETFLAG("first", "begin"));
    CHECK(line.console.TEXT() == "  +/-first : begin = on\n");
    READ_LINE help({"-first", "-h"});
    CHECK_FALSE(help.options.GETFLAG("first", "begin"));
    CHECK(help.console.TEXT() == "  +/-first : begin = off\n");
}

TEST_CASE("all named pairs can be walked, known or not") {
    READ_LINE line({"-x=3", "word", "+y"});
    UTF16 name, value;
    CHECK(line.options.PAIR_LENGTH() == 2);
    REQUIRE(line.options.GETPAIR(2, name, value));
    CHECK(GETUTF8(name) == "y");
    CHECK(GETUTF8(value) == "true");
    CHECK_FALSE(line.options.GETPAIR(3, name, value));
    CHECK_FALSE(line.options.GETPAIR(0, name, value));
}

TEST_CASE("the last positional value is the unknown one") {
    CHECK(READ_LINE({"a", "b", "-x=1"}).LAST() == "b");
    CHECK(READ_LINE({"-x=1"}).LAST() == "");
}

TEST_CASE("a topic stands behind an empty line and ends with a colon") {
    READ_LINE line({});
    line.options.TOPIC("Input Options");
    CHECK(line.console.TEXT() == "\nInput Options:\n");
}

TEST_CASE("without help no legend is printed") {
    READ_LINE line({});
    line.options.LEGEND("PNG");
    CHECK(line.console.TEXT() == "");
}

TEST_CASE("with -h every option shows its default and legends are printed") {
    READ_LINE line({"-h", "-x=5", "-b=on", "-n=7", "-v=<1,1,1>", "word"});
    CHECK(line.VALUE("x") == "none");
    CHECK_FALSE(line.options.GETBOOLEAN("b", false, "b"));
    CHECK(line.options.GETNAT("n", 1, 0, 9, "n") == 1);
    CHECK(line.options.GETVECTOR("v", VZERO, "v") == VZERO);
    CHECK(GETUTF8(line.options.GETLASTSTRING("macro", "m", "l")) == "m");
    line.console.CLEAR();
    line.options.LEGEND("PNG");
    CHECK(line.console.TEXT() == "      PNG\n");
}

TEST_CASE("help, hilfe and ? ask for help too, a value makes no difference") {
    for (const char *name : {"-h", "-help", "--help", "-hilfe", "-?", "-h=no"}) {
        CAPTURE console;
        TPARAMETER options(std::vector<std::string>{"/bin/morvane", name});
        options.USAGE("morvane");
        CHECK(options.DONE());
    }
}

TEST_CASE("a help option with an empty value does not count") {
    READ_LINE line({"-h="});
    CHECK_FALSE(line.options.DONE());
    CHECK(line.console.TEXT() == "\n");
}

TEST_CASE("-? waits for the enter key at every topic and before the example") {
    READ_LINE line({"-?"});
    line.options.TOPIC("Input Options");
    line.options.EXAMPLE("morvane -x");
    CHECK(line.console.TEXT() == "\n*** press enter ***\nInput Options:\n"
                                 "\n*** press enter ***\n  -? : show this help\n"
                                 "  -h : shows this help without waiting\n\nExample: morvane -x\n");
}

TEST_CASE("the listing closes with the help options, in the help with an example") {
    READ_LINE plain({});
    plain.options.EXAMPLE("morvane -x");
    CHECK(plain.console.TEXT() ==
          "\n  -? : show this help\n  -h : shows this help without waiting\n");
}

TEST_CASE("without help DONE prints an empty line and forgets the arguments") {
    READ_LINE line({"-x=1", "word"});
    CHECK_FALSE(line.options.DONE());
    CHECK(line.console.TEXT() == "\n");
    CHECK(line.options.PAIR_LENGTH() == 0);
    CHECK(line.LAST() == "");
}

TEST_CASE("every cut of a strange command line is read without harm") {
    const std::string strange = "-=\"'<([{+-\t --x=\"\"'' =+\x80\xff";
    for (std::size_t length = 0; length <= strange.size(); ++length) {
        READ_LINE line({strange.substr(0, length), strange.substr(length)});
        CHECK(line.options.PAIR_LENGTH() <= 8);
    }
}
