#include "app/program.hpp"

#include "app/first_run.hpp"
#include "app/options_table.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/time.hpp"
#include "foundation/thread/processor.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::string_view FIRST_MESSAGE =
    "This is your first run of the program, please specify the file morvane.macro!\n";

// One run of the program, its exit status and its console text.
struct PROGRAM_RUN {
    CAPTURE console;
    int status = -1;

    explicit PROGRAM_RUN(const std::vector<const char *> &options) {
        std::vector<const char *> arguments = {"morvane"};
        for (const char *option : options)
            arguments.push_back(option);
        status = RUN_PROGRAM(static_cast<int>(arguments.size()), arguments.data());
        VERBOSE = true;
    }
    bool CONTAINS(std::string_view part) const { return console.CONTAINS(part); }
    // The lines that the script printed.
    std::string SCRIPT() const {
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        const std::string &text = console.TEXT();
        const std::size_t first = text.find(begin), last = text.rfind(end);
        if (first == std::string::npos || last == std::string::npos) return "(no run)";
        return text.substr(first + begin.size(), last - first - begin.size());
    }
};

// What a script prints for `word`, started with these options.
std::string PRINTED(const char *word, std::vector<const char *> options) {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "debug.no\nprint " + std::string(word) + "\n");
    options.push_back("-macro=test.macro");
    std::string text = PROGRAM_RUN(options).SCRIPT();
    const std::string trace = "  debug.no|\n";
    return text.starts_with(trace) ? text.substr(trace.size()) : text;
}

std::vector<std::string> LINES_OF(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
} // namespace

TEST_CASE("without arguments and without morvane.macro the reference is written, nothing runs") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    CHECK(run.status == 0);
    CHECK(folder.HAS("morvane.macro"));
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
    CHECK(folder.FILES() == 1);
}

TEST_CASE("the reference opens with its fixed lines") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    const std::vector<std::string> lines = LINES_OF(folder.READ("morvane.macro"));
    REQUIRE(lines.size() > 12);
    CHECK(lines[0] == "//!./morvane // Version: 9.4.8");
    CHECK(lines[1] == "// This is a list of morvane commands - you can use this macro like a "
                      "programing language");
    CHECK(lines[2].starts_with("// https://"));
    CHECK(lines[3].starts_with("// 2017-" + GETUTF8(GETSTRING(GETDATE().year)) + " "));
    CHECK(lines[4] == "io.file.remove \"morvane.macro\" // remove old command list");
    CHECK(lines[5] == "execute ./morvane // make new command list");
    CHECK(lines[6] == "halt // Do not interpret the rest");
    CHECK(lines[7].find("*****") != std::string::npos);
    CHECK(lines[8] == "// @variable denotes builtin variables.");
    CHECK(lines[9] == "// Assignment := are only used if the stack type is the same (image := "
                      "image.func) or a result (10 := image.func).");
}

TEST_CASE("the reference holds one line for every row, in the order of registration") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({});
    const std::vector<std::string> lines = LINES_OF(folder.READ("morvane.macro"));
    std::vector<std::string> rows;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows)
            rows.push_back(std::string(row.usage) + " // " + std::string(row.note));
    REQUIRE(lines.size() == rows.size() + 12);
    CHECK(std::vector<std::string>(lines.begin() + 10, lines.end() - 2) == rows);
    CHECK(lines[lines.size() - 2] == "// For more line commands, look at Skein2!");
    CHECK(lines.back() == "");
}

TEST_CASE("every line of the reference is cut to its usage as the line loop cuts comments") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            INFO(std::string(row.usage));
            CHECK(row.usage.find("//") == std::string_view::npos);
            CHECK(row.usage.find('\n') == std::string_view::npos);
            CHECK(row.note.find('\n') == std::string_view::npos);
        }
}

TEST_CASE("every usage names its own command") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name);
            INFO(name);
            CHECK(row.usage.find(name) != std::string_view::npos);
        }
}

TEST_CASE("every row has a handler, and a property alone a getter") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            INFO(std::string(row.name));
            CHECK((row.handler != nullptr));
            CHECK((row.getter != nullptr) == (row.kind == COMMAND_KIND::PROPERTY));
        }
}

TEST_CASE("no command is registered twice") {
    std::set<std::string> names;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name) + " ";
            INFO(name);
            if (row.kind == COMMAND_KIND::PROPERTY) {
                CHECK(names.insert(name + "2").second);
                CHECK(names.insert(name + "3").second);
            } else {
                CHECK(names.insert(name + std::to_string(static_cast<int>(row.kind))).second);
            }
        }
    const SCRATCH_FOLDER folder;
    CHECK_FALSE(PROGRAM_RUN({}).CONTAINS("Attention double syntax member"));
}

TEST_CASE("sets are registered modules first, then all lists, then kind by kind") {
    std::vector<std::string> order;
    for (const COMMAND_SET *set : COMMAND_SETS())
        if (!set->nameSpace.empty()) order.emplace_back(set->nameSpace);
    const std::vector<std::string> wanted = {"image.",  "scalar.", "vector.",
                                             "tensor.", "mesh.",   "line."};
    CHECK(order == wanted);
}

TEST_CASE("-first rewrites the reference and runs nothing, even when -macro names a script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "print old\n");
    folder.WRITE("other.macro", "print other\n");
    const PROGRAM_RUN run({"-first", "-macro=other.macro"});
    CHECK(run.status == 0);
    CHECK(folder.READ("morvane.macro").starts_with("//!./morvane // Version: 9.4.8\n"));
    CHECK(run.CONTAINS("  +/-first : Write first macro file example = on\n"));
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
}

TEST_CASE("-first=off runs the script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "nop\n");
    const PROGRAM_RUN run({"-first=off"});
    CHECK(run.SCRIPT() == "  nop|\n");
    CHECK_FALSE(run.CONTAINS(FIRST_MESSAGE));
}

TEST_CASE("a missing script is the first run, the reference gets its own name") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"missing.macro"});
    CHECK(run.status == 0);
    CHECK(folder.HAS("morvane.macro"));
    CHECK_FALSE(folder.HAS("missing.macro"));
}

TEST_CASE("when the reference cannot be written the message is printed all the same") {
    const SCRATCH_FOLDER folder;
    std::filesystem::create_directory("morvane.macro");
    const PROGRAM_RUN run({"-first"});
    CHECK(run.status == 0);
    CHECK(run.CONTAINS(FIRST_MESSAGE));
    CHECK(folder.FILES() == 1);
}

TEST_CASE("-h prints the listing with the defaults and ends with status 1") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "print never\n");
    const PROGRAM_RUN run({"-h", "-image.input=a.ppm", "-mesh.split=7"});
    CHECK(run.status == 1);
    CHECK(run.CONTAINS("  -image.input : inputfile(s) (image) = image.ppm\n"
                       "      PNM (PBM, PGM, PPM)\n      BMP (DIB)\n"));
    CHECK(run.CONTAINS("  -mesh.split : how much biggest objects (0-100) = 0\n"));
    CHECK(run.CONTAINS("\nExample: morvane -image.input=*.ppm -image.type=png\n"));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
}

TEST_CASE("the listing names every option in its order, with its topics") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "nop\n");
    const PROGRAM_RUN run({"-seed=1"});
    const std::string &text = run.console.TEXT();
    const std::size_t begin = text.find("  +/-first"), end = text.find("  -? : ");
    REQUIRE(begin != std::string::npos);
    REQUIRE(end != std::string::npos);
    CHECK(text.substr(begin, end - begin) ==
          "  +/-first : Write first macro file example = off\n"
          "  -macro : macro file = morvane.macro\n"
          "\nInput Options:\n"
          "  -image.input : inputfile(s) (image) = image.ppm\n"
          "  -scalar.input : inputfile(s) (scalar field) = scalar.nii.gz\n"
          "  -vector.input : inputfile(s) (vector field) = vector.nii.gz\n"
          "  -tensor.input : inputfile(s) (tensor field) = tensor.nii.gz\n"
          "  -mesh.input : inputfile (meshes) = input.obj\n"
          "\nImage options:\n"
          "\nTransformation Options:\n"
          "  -mesh.split : how much biggest objects (0-100) = 0\n"
          "  -mesh.smooth : how much smooth passes (0-100) = 0\n"
          "  -mesh.rotate : rotate object (rad) = <0, 0, 0>\n"
          "  -mesh.transform : translate object = <0, 0, 0>\n"
          "  -mesh.scale : scale object = <1, 1, 1>\n"
          "\nOutput Options:\n"
          "  -image.type : output filetype (image) = png\n"
          "  -scalar.type : output filetype (scalar stack) = nii.gz\n"
          "  -vector.type : output filetype (vector stack) = nii.gz\n"
          "  -tensor.type : output filetype (tensor stack) = nii.gz\n"
          "  -mesh.type : output filetype (meshes) = obj\n"
          "\nRun Options:\n"
          "  -seed : random seed (0-9223372036854775807) = 1\n\n");
}

TEST_CASE("an unknown option and a bare word reach the script, the word is its name too") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("word", "debug.no\nprint parameter.x\nprint parameter.last\n");
    CHECK(PROGRAM_RUN({"-x=3", "word"}).SCRIPT() == "  debug.no|\n3\nword\n");
}

TEST_CASE("-macro wins over a bare word, which stays parameter.last") {
    CHECK(PRINTED("parameter.last", {"word"}) == "word\n");
}

TEST_CASE("quotes around the script's name are removed") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("a b.macro", "nop\n");
    CHECK(PROGRAM_RUN({"-macro=\"'a b.macro'\""}).SCRIPT() == "  nop|\n");
}

TEST_CASE("the option mesh.transform reaches the script as the constant mesh.translate") {
    CHECK(PRINTED("mesh.translate", {"-mesh.transform=<1,2,3>"}) == "<1, 2, 3>\n");
    CHECK(PRINTED("parameter.mesh.transform", {"-mesh.transform=<1,2,3>"}) == "<1,2,3>\n");
}

TEST_CASE("an option beyond its range is limited, its parameter is the text given") {
    CHECK(PRINTED("mesh.split", {"-mesh.split=500"}) == "100\n");
    CHECK(PRINTED("parameter.mesh.split", {"-mesh.split=500"}) == "500\n");
}

TEST_CASE("mesh.type is lowered, the other types are not") {
    CHECK(PRINTED("mesh.type", {"-mesh.type=OBJ"}) == "obj\n");
    CHECK(PRINTED("image.type", {"-image.type=PNG"}) == "PNG\n");
}

TEST_CASE("every option with a constant can be read by the script") {
    for (const OPTION_ROW &row : OPTIONS) {
        if (row.kind == OPTION_KIND::TOPIC || row.kind == OPTION_KIND::LEGEND) continue;
        const std::string constant(row.constant);
        INFO(constant);
        CHECK(PRINTED(constant.c_str(), {}) != constant + "\n");
    }
}

TEST_CASE("thread.max is the number of usable threads, and a script may overwrite it") {
    CHECK(PRINTED("thread.max", {}) == GETUTF8(GETSTRING(GETTHREADS())) + "\n");
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "debug.no\nthread.max := 77\nprint thread.max\n");
    CHECK(PROGRAM_RUN({"test.macro"}).SCRIPT() == "  debug.no|\n77\n");
}

TEST_CASE("-seed fixes the random numbers of a run") {
    const std::string first = PRINTED("random4", {"-seed=5"});
    CHECK(first == PRINTED("random4", {"-seed=5"}));
    CHECK(first != PRINTED("random4", {"-seed=6"}));
    CHECK(PRINTED("random.seed", {"-seed=5"}) == "5\n");
}

TEST_CASE("without -seed two runs draw different numbers and show their seed") {
    CHECK(PRINTED("random4", {}) != PRINTED("random4", {}));
    const std::string shown = PRINTED("random.seed", {});
    CHECK(shown == GETUTF8(GETSTRING(RANDOM_SEED)) + "\n");
}

TEST_CASE("a script that fails ends the program with status 0") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nonsense\n");
    const PROGRAM_RUN run({"-strict", "-macro=test.macro"});
    CHECK(run.status == 0);
    CHECK(run.SCRIPT() == "Syntax error (nonsense) in line 1 (test.macro)! Unknown procedure!\n");
}

TEST_CASE("a script without lines runs nothing, not even its start message") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "");
    const PROGRAM_RUN run({"test.macro"});
    CHECK(run.status == 0);
    CHECK_FALSE(run.CONTAINS("Script runs..."));
    CHECK_FALSE(run.CONTAINS(FIRST_MESSAGE));
}

TEST_CASE("-strict in front of a bare word takes it as its value, so the default script is run") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nop\n");
    CHECK(PROGRAM_RUN({"-strict", "test.macro"}).CONTAINS(FIRST_MESSAGE));
    CHECK(PROGRAM_RUN({"-strict", "+verbose", "test.macro"}).SCRIPT() == "  nop|\n");
}

TEST_CASE("the program ends with the closing line of its console") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "nop\n");
    const PROGRAM_RUN run({"test.macro"});
    CHECK(run.CONTAINS("\nDone ("));
    CHECK(run.console.TEXT().ends_with(").\n"));
}
