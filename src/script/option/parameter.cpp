#include "script/option/parameter.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/base/time.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/log.hpp"
#include "foundation/console/paths.hpp"
#include "foundation/thread/processor.hpp"
#include "script/option/build.hpp"
#include "script/option/build_words.hpp"
#include "script/option/update.hpp"

namespace morvane {
bool TPARAMETER::INIT(const UTF16 &name, const UTF16 &author, NAT firstYear, const UTF16 &address) {
    UTF16 date(BUILDDATE);
    year = morvane::GETNAT(SPLIT(date, "/"));
    month = morvane::GETNAT(SPLIT(date, "/"));
    day = morvane::GETNAT(date);
    programName = name;
    makerAddress = address;
    version = BUILDVERSION(firstYear);
    titleLine = name + UTF16(BUILDWORDS) + version.GET() + " for " + BUILDPLATFORM();
    makerLine =
        morvane::GETSTRING(firstYear) + "-" + morvane::GETSTRING(GETDATE().year) + " " + author;
    programPath = UTF16(arguments.empty() ? std::string() : arguments.front());
    currentDirectory = GETCURRENTDIR();

    WRITELN();
    WRITELN(titleLine.GET());
    WRITELN(makerLine.GET());
    WRITELN();
    WRITELN(programPath.GET());
    WRITELN(currentDirectory.GET());
    WRITELN();
    const std::string first = arguments.size() > 1 ? arguments[1] : std::string();
    if (first == "-strict") INTERACTION = false;
    const UTF16 file = GETFILE(programPath), download = address + BUILDFOLDER() + file;
    WRITELN("  -update : Load a new version from " + download);
    if (first != "-update") return false;
    UPDATE(download, file);
    return true;
}

void TPARAMETER::USAGE(const UTF16 &line) {
    WRITELN();
    WRITELN("Usage: " + line);
    WRITELN();
    _READARGUMENTS();
    _READHELPFLAGS();
    _STANDARDOPTIONS(); // with help these show their defaults too, so that it is never silent
}

void TPARAMETER::_READHELPFLAGS() {
    isHelp = isWaiting = _ISASKED("?");
    if (_ISASKED("h") || _ISASKED("help") || _ISASKED("hilfe")) isHelp = true;
}

// The options that every program has, read behind the arguments and before its own.
void TPARAMETER::_STANDARDOPTIONS() {
    const UTF16 file = GETSTRING("optionsfile", _OPTIONSFILE(), "#");
    if (!isHelp) {
        _READOPTIONSFILE(file);
        _READHELPFLAGS(); // the file may ask for it too
    }
    _LOGOPTION();
    WRITELN("  : " + UTF16(GETSIMD()));
    WRITELN("  : " + UTF16(GETCORES()));
    VERBOSE = GETBOOLEAN("verbose", true, "verbose");
}

void TPARAMETER::_LOGOPTION() {
    if (!GETBOOLEAN("logfile", false, "log")) return CLOSELOGFILE();
    OPENLOGFILE();
    for (const UTF16CHARS7 *line : {&titleLine, &makerLine, &programPath, &currentDirectory})
        WRITELOG(GETUTF8(line->GET()) + "\n");
    WRITELOG("\n");
}

bool TPARAMETER::DONE() {
    const bool isEnd = isHelp;
    pairs.clear();
    if (!isEnd) WRITELN();
    return isEnd;
}

void TPARAMETER::TOPIC(const UTF16 &text) {
    _WAIT();
    WRITELN();
    WRITELN(text + ":");
}

void TPARAMETER::LEGEND(const UTF16 &text) const {
    if (isHelp) WRITELN("      " + text);
}

void TPARAMETER::EXAMPLE(const UTF16 &text) {
    _WAIT();
    WRITELN();
    WRITELN("  -? : show this help");
    WRITELN("  -h : shows this help without waiting");
    if (!isHelp) return;
    WRITELN();
    WRITELN("Example: " + text);
}

UTF16 TPARAMETER::GETSTRING(const UTF16 &name, const UTF16 &standard, const UTF16 &legend) const {
    const PAIR *pair = isHelp ? nullptr : _SEARCH(name);
    const UTF16 value = pair ? pair->value.GET() : standard;
    _PRINTLINE("  -", name, legend, value);
    return value;
}

UTF16 TPARAMETER::GETLASTSTRING(const UTF16 &name, const UTF16 &standard,
                                const UTF16 &legend) const {
    const bool isPositional = !isHelp && !_SEARCH(name) && !GETUNKNOWN().EMPTY();
    return GETSTRING(name, isPositional ? GETUNKNOWN() : standard, legend);
}

NAT TPARAMETER::GETNAT(const UTF16 &name, NAT standard, NAT min, NAT max,
                       const UTF16 &legend) const {
    const PAIR *pair = isHelp ? nullptr : _SEARCH(name);
    const NAT value = LIMIT(pair ? morvane::GETNAT(pair->value) : standard, min, max);
    const UTF16 range = " (" + morvane::GETSTRING(min) + "-" + morvane::GETSTRING(max) + ")";
    _PRINTLINE("  -", name, legend + range, morvane::GETSTRING(value));
    return value;
}

VECTOR TPARAMETER::GETVECTOR(const UTF16 &name, const VECTOR &standard, const UTF16 &legend) const {
    const PAIR *pair = isHelp ? nullptr : _SEARCH(name);
    const VECTOR value = pair ? morvane::GETVECTOR(pair->value) : standard;
    _PRINTLINE("  -", name, legend, morvane::GETSTRING(value));
    return value;
}

bool TPARAMETER::GETBOOLEAN(const UTF16 &name, bool standard, const UTF16 &legend) const {
    const PAIR *pair = isHelp ? nullptr : _SEARCH(name);
    const bool value = pair ? morvane::GETBOOLEAN(pair->value) : standard;
    _PRINTLINE("  +/-", name, legend, value ? "on" : "off");
    return value;
}

bool TPARAMETER::GETFLAG(const UTF16 &name, const UTF16 &legend) const {
    const PAIR *pair = isHelp ? nullptr : _SEARCH(name);
    const bool value = pair && (pair->bare || morvane::GETBOOLEAN(pair->value));
    _PRINTLINE("  +/-", name, legend, value ? "on" : "off");
    return value;
}

NAT TPARAMETER::PAIR_LENGTH() const {
    NAT count = 0;
    for (const PAIR &pair : pairs)
        count += !pair.name.EMPTY();
    return count;
}

bool TPARAMETER::GETPAIR(NAT index, UTF16 &name, UTF16 &value) const {
    for (const PAIR &pair : pairs) {
        if (pair.name.EMPTY() || --index != 0) continue;
        name = pair.name;
        value = pair.value;
        return true;
    }
    return false;
}

UTF16 TPARAMETER::GETUNKNOWN() const {
    for (auto pair = pairs.rbegin(); pair != pairs.rend(); ++pair)
        if (pair->name.EMPTY()) return pair->value;
    return {};
}

const TPARAMETER::PAIR *TPARAMETER::_SEARCH(const UTF16 &name) const {
    const UTF16CHARS7 wanted = name;
    for (const PAIR &pair : pairs)
        if (!pair.name.EMPTY() && pair.name == wanted) return &pair;
    return nullptr;
}

bool TPARAMETER::_ISAMONG(const UTF16 &name, std::size_t count) const {
    const UTF16CHARS7 wanted = name;
    for (std::size_t i = 0; i < count; ++i)
        if (pairs[i].name == wanted) return true;
    return false;
}

bool TPARAMETER::_ISASKED(const UTF16 &name) const {
    const PAIR *pair = _SEARCH(name);
    return pair && !pair->value.EMPTY();
}

void TPARAMETER::_PRINTLINE(std::string_view head, const UTF16 &name, const UTF16 &legend,
                            const UTF16 &value) const {
    WRITELN(UTF16(head) + name + " : " + legend + " = " + value);
}

void TPARAMETER::_WAIT() const {
    if (!isWaiting) return;
    WRITELN();
    WRITE("*** press enter ***");
    READLN();
}
} // namespace morvane
