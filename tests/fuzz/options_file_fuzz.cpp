#include "fuzz_folder.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "script/option/parameter.hpp"
#include "script/option/update.hpp"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

// The command line and the options file: the first line of the bytes holds arguments parted by
// tabs, the rest is the file. Whatever they hold, an argument beats the file, and the last word
// without a name is one of the arguments.
namespace {
using namespace morvane;

void Discard(std::string_view, void *) {}

void StartAnew() {
    SETSINK(Discard, nullptr);
    INTERACTION = false;
    UPDATE_PROGRAM = "none";
}

std::vector<std::string> Arguments(std::string_view line, const char *optionsFile) {
    std::vector<std::string> arguments{"/bin/morvane", optionsFile};
    while (!line.empty()) {
        const std::string_view word = line.substr(0, line.find('\t'));
        arguments.emplace_back(word);
        line.remove_prefix(word.size() < line.size() ? word.size() + 1 : word.size());
    }
    return arguments;
}

void Read(TPARAMETER &options) {
    if (options.INIT("Morvane", "Author", 2017, "https://maker.invalid")) std::abort();
    options.USAGE("morvane [<options>]");
}

// Every way to ask for an option of this name.
void Ask(const TPARAMETER &options, const UTF16 &name) {
    const NAT limited = options.GETNAT(name, 5, 0, 100, "limited");
    if (limited < 0 || limited > 100) std::abort();
    options.GETVECTOR(name, {1, 2, 3}, "vector");
    options.GETBOOLEAN(name, true, "switch");
    options.GETFLAG(name, "switch that is off");
    options.GETLASTSTRING(name, "standard", "last");
}

void Compare(const TPARAMETER &both, const TPARAMETER &alone) {
    UTF16 name, value;
    NAT count = 0;
    for (; both.GETPAIR(count + 1, name, value); ++count) {
        if (name.EMPTY()) std::abort();
        Ask(both, name);
    }
    if (count != both.PAIR_LENGTH() || count < alone.PAIR_LENGTH()) std::abort();
    // The first of the pairs names the options file, which is another one.
    for (NAT i = 2; alone.GETPAIR(i, name, value); ++i) {
        if (name == "optionsfile") continue;
        if (both.GETSTRING(name, "", "") != alone.GETSTRING(name, "", "")) std::abort();
    }
    if (both.GETUNKNOWN() != alone.GETUNKNOWN()) std::abort();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const FUZZ_FOLDER folder;
    StartAnew();
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    std::ofstream("fuzz.ini", std::ios::binary) << bytes.substr(std::min(line.size() + 1, size));
    TPARAMETER both(Arguments(line, "-optionsfile=fuzz.ini"));
    TPARAMETER alone(Arguments(line, "-optionsfile=none.ini"));
    Read(both);
    Read(alone);
    // The help shows the defaults, whether the arguments or the file ask for it.
    const bool isHelp = both.GETSTRING("optionsfile", "default", "") == "default";
    if (!isHelp) Compare(both, alone);
    if (both.DONE() != isHelp || both.PAIR_LENGTH() != 0) std::abort();
    static_cast<void>(alone.DONE());
    return 0;
}
