#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"

#include <cstdio>
#include <cstdlib>

namespace morvane {
namespace {
void ExitProcess(int status) {
    std::fflush(nullptr);
    std::exit(status);
}

template <class LIST> bool Inside(const LIST &list, NAT index) {
    return index >= 1 && index <= static_cast<NAT>(list.size());
}
constexpr std::size_t Offset(NAT index) { return static_cast<std::size_t>(index - 1); }
} // namespace

void (*TMACRO::EXIT)(int status) = ExitProcess;

TMACRO::TMACRO() {
    loopNames.forLength = names.INTERN("for.length");
    loopNames.forRest = names.INTERN("for.rest");
    loopNames.forCount = names.INTERN("for.count");
    loopNames.forRelative = names.INTERN("for.relative");
    loopNames.forRelativ = names.INTERN("for.relativ");
    loopNames.parallelLength = names.INTERN("parallel.length");
    loopNames.parallelCount = names.INTERN("parallel.count");
    loopNames.parallelRelativ = names.INTERN("parallel.relativ");
    loopNames.condition = names.INTERN("condition");
    loopNames.parameter = names.INTERN("parameter");
}

TMACRO::~TMACRO() { DONE(); }

void TMACRO::INIT() {
    DONE();
    CLEAR();
    commands.CUT(0);
    constants.CUT(0);
    verbose = true;
    lineHook = nullptr;
    parallelPosition = {0, 0};
    outputSeparator = {};
}

void TMACRO::DONE() {
    outputs.clear();
    script.DONE();
    lines.CLEAR();
}

bool TMACRO::LOAD(const UTF16 &file) {
    if (running) return false; // the lines in progress stay
    lines.CLEAR();
    return script.LOAD(file);
}

bool TMACRO::LOADTEXT(std::string_view utf8, const UTF16 &name) {
    if (running) return false;
    lines.CLEAR();
    return script.LOADBYTES(utf8, name);
}

void TMACRO::SINGLERUN() {
    if (commands.LENGTH() > 0) RUN();
}

void TMACRO::RUN() {
    if (script.LENGTH() > 0) Run();
}

void TMACRO::CLEAR() {
    scopeLevel = 0;
    scopeKinds.clear();
    NAMESPACE = {};
    commands.CUT(1);
    std::erase_if(modules, [](const COMPLEXNAT &entry) { return entry.y >= 1; });
    constants.CUT(1);
    outputs.clear();
    withs.clear();
    parameters.clear();
    rawParameters.clear();
    rawShared = false;
    redo.clear();
    undo.clear();
    running = false;
    stop = false;
    STATUS = {};
}

void TMACRO::Run() {
    CLEAR();
    WRITELN("Script runs...");
    running = true;
    includes = 0;
    linesLeft = switches.LINES > 0 ? switches.LINES + 1 : 0;
    PUTCONSTANT("true", "1");
    for (const char *name :
         {"false", "condition", "for.length", "for.rest", "for.count", "for.relative"})
        PUTCONSTANT(name, "0");
    _RUNBLOCK(0, true);
    LEAVESCOPE();
    running = false;
    WRITELN("Script ends.");
    parameters.clear();
    rawParameters.clear();
}

// Every table is cut from its first entry of this scope on; what stood before the run stays.
void TMACRO::LEAVESCOPE() {
    const NAT scope = std::max<NAT>(1, scopeLevel);
    commands.CUT(scope);
    while (!modules.empty() && modules.back().y >= scope)
        modules.pop_back();
    constants.CUT(scope);
    while (!withs.empty() && withs.back().scope >= scope)
        withs.pop_back();
    while (!outputs.empty() && outputs.back().scope >= scope)
        outputs.pop_back();
    if (scopeLevel > 0) --scopeLevel;
    if (static_cast<std::size_t>(scopeLevel) < scopeKinds.size())
        scopeKinds[static_cast<std::size_t>(scopeLevel)] = {};
}

void TMACRO::_OPENBLOCK(std::string_view kind) {
    const std::size_t level = static_cast<std::size_t>(scopeLevel);
    if (scopeKinds.size() <= level) scopeKinds.resize(level + 1);
    scopeKinds[level] = kind;
}

UTF16 TMACRO::GETSCOPEKIND(NAT level) const {
    if (level < 0 || level >= static_cast<NAT>(scopeKinds.size())) return {};
    return scopeKinds[static_cast<std::size_t>(level)];
}

COMPLEXNAT TMACRO::GETMODULE(NAT index) const {
    return Inside(modules, index) ? modules[Offset(index)] : COMPLEXNAT{};
}

void TMACRO::PUTMODULE() { modules.push_back({constants.LENGTH(), scopeLevel + 1}); }

UTF16 TMACRO::GETREDO(NAT index) const {
    return Inside(redo, index) ? redo[Offset(index)] : UTF16();
}
UTF16 TMACRO::GETUNDO(NAT index) const {
    return Inside(undo, index) ? undo[Offset(index)] : UTF16();
}

void TMACRO::PUTWITH(const UTF16 &name) { withs.push_back({CUT_TEXT(name), scopeLevel + 1}); }

UTF16 TMACRO::GETWITH(NAT index) const {
    return Inside(withs, index) ? withs[Offset(index)].name : UTF16();
}

NAT TMACRO::GETWITHSCOPE(NAT index) const {
    return Inside(withs, index) ? withs[Offset(index)].scope : 0;
}

UTF16 TMACRO::GETALLWITH(NAT count) const {
    if (!Inside(withs, count)) return {};
    UTF16 joined = withs[0].name;
    for (NAT i = 2; i <= count; ++i)
        joined += "." + withs[Offset(i)].name;
    return joined;
}

bool TMACRO::PUTOUTPUT(const UTF16 &name, bool append) {
    const UTF16 file = CUT_TEXT(name);
    for (const OUTPUT_SLOT &slot : outputs)
        if (slot.name == file) {
            WRITELN("Attention file is open! (" + file + ")");
            return false;
        }
    if (outputs.size() >= 255) {
        WRITELN("To much open files! (" + file + ")");
        return false;
    }
    if (!switches.FILES) return false;
    auto opened = std::make_unique<FILE_TEXT>();
    if (!(append ? ASSIGNAPPEND(*opened, file) : ASSIGNWRITE(*opened, file))) return false;
    outputs.push_back({file, scopeLevel + 1, std::move(opened)});
    return true;
}

FILE_TEXT &TMACRO::OUTPUTFILE() { return outputs.empty() ? noOutput : *outputs.back().file; }

UTF16 TMACRO::GETOUTPUT(NAT index) const {
    return Inside(outputs, index) ? outputs[Offset(index)].name : UTF16();
}

NAT TMACRO::GETOUTPUTSCOPE(NAT index) const {
    return Inside(outputs, index) ? outputs[Offset(index)].scope : 0;
}
} // namespace morvane
