#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/nearest.hpp"

#include <string>

namespace morvane {
namespace {
constexpr std::string_view RED = "\033[91m", PLAIN = "\033[0m";

std::string Coloured(std::string_view text) {
    return std::string(RED) + std::string(text) + std::string(PLAIN);
}
} // namespace

// One line behind the report of an unknown name: what the name is when it was used as another kind,
// else the nearest names of the kinds that were looked for.
void TMACRO::TellNearest(const UTF16 &name, unsigned groups) {
    unsigned others = 0;
    std::vector<std::string> texts;
    const std::string wanted = GETUTF8(LOWERCASE(name));
    for (NAT i = 1; i <= commands.LENGTH(); ++i) {
        const COMMAND_ENTRY &entry = commands.GET(i);
        const unsigned group = 1U << entry.GROUP();
        if ((groups & group) == 0 && !(entry.TEXT() == LOWERCASE(name))) continue;
        if ((groups & group) == 0)
            others |= group;
        else
            texts.push_back(GETUTF8(entry.TEXT()));
    }
    if (others != 0) return WRITELN("  " + OTHER_KIND_TEXT(wanted, others));
    std::vector<std::string_view> known(texts.begin(), texts.end());
    if (groups == PROCEDURES)
        for (const KEYWORD &keyword : KEYWORDS())
            known.push_back(keyword.word);
    constexpr std::size_t MOST_NAMES = 3;
    const std::string line = NEAREST_LINE(NEAREST_NAMES(wanted, known, MOST_NAMES));
    if (!line.empty()) WRITELN(line);
}

UTF16 TMACRO::LINEPLACE() const {
    return UTF16(std::to_string(script.GETREALLINE(currentLine))) + " (" +
           script.GETREALFILE(currentLine) + ")";
}

// The colour covers the first words, or the whole line; STATUS keeps the plain form.
void TMACRO::Fail(std::string_view first, const UTF16 &text, std::string_view tail,
                  bool wholeLine) {
    const std::string rest =
        " (" + GETUTF8(text) + ") in line " + GETUTF8(LINEPLACE()) + "!" + std::string(tail);
    const std::string line = std::string(first) + rest;
    STATUS = line;
    stop = true;
    if (!COLOURS())
        WRITELN(line);
    else
        WRITELN(wholeLine ? Coloured(line) : Coloured(first) + rest);
}

void TMACRO::ERROR(const UTF16 &text) { Fail("Error", text, "", false); }
void TMACRO::SYNTAXERROR(const UTF16 &text) { Fail("Syntax error", text, "", true); }

void TMACRO::SYNTAX_PROCEDURE_ERROR(const UTF16 &text) {
    Fail("Syntax error", text, " Unknown procedure!", true);
    TellNearest(text, PROCEDURES);
}

void TMACRO::SYNTAX_BLOCK_ERROR(const UTF16 &text) {
    Fail("Syntax error", text, " Unknown block!", true);
}

void TMACRO::SYNTAX_AT_ERROR(const UTF16 &text) {
    Fail("Syntax error", text, " Unknown @ command!", true);
}

void TMACRO::SYNTAX_FUNCTION_ERROR(const UTF16 &text) {
    Fail("Syntax error", text, " Unknown function!", true);
    const NAT sign = INVPOS(" := ", text);
    TellNearest(sign > 0 ? COPY(text, sign + 4, text.LENGTH()) : text, FUNCTIONS);
}

void TMACRO::SYNTAX_LAMBDA_ERROR(const UTF16 &text) {
    Fail("Syntax error", text, " Unknown variable λ function!", true);
    TellNearest(text, LAMBDAS);
}

void TMACRO::FailCount(std::string_view text, bool withPlace) {
    constexpr std::string_view FIRST = "Parameter error!";
    std::string rest = " " + std::string(text);
    if (withPlace) rest += " in line " + GETUTF8(LINEPLACE()) + ".";
    STATUS = std::string(FIRST) + rest;
    stop = true;
    WRITELN((COLOURS() ? Coloured(FIRST) : std::string(FIRST)) + rest);
}

void TMACRO::PARAMETERERROR(NAT count) {
    if (count == 0) return FailCount("No parameter needed.", false);
    FailCount(count == 1 ? "Please use one parameter"
                         : "Please use " + std::to_string(count) + " parameters",
              true);
}

void TMACRO::MIN_PARAMETERERROR(NAT count) {
    // Deliberate: a minimum below one prints nothing and stops the script all the same.
    if (count < 1) {
        stop = true;
        return;
    }
    FailCount(count == 1 ? "Please use min. one parameter"
                         : "Please use min. " + std::to_string(count) + " parameters",
              true);
}

void TMACRO::MAX_PARAMETERERROR(NAT count) {
    FailCount(count == 1 ? "Please use max. one parameter"
                         : "Please use max. " + std::to_string(count) + " parameters",
              true);
}

void TMACRO::STOPSCRIPT(const UTF16 &text) {
    WRITELN("In line " + LINEPLACE() + ".");
    WRITELN(text);
    stop = true;
}

UTF16 TMACRO::GETPARAMETER(NAT index) {
    if (index >= 1 && index <= PARAMETERLENGTH())
        return parameters[static_cast<std::size_t>(index - 1)].text;
    FailCount("Please at least " + std::to_string(index) + " parameters", true);
    return {};
}

UTF16 TMACRO::GETPARAMETER_RAW(NAT index) {
    const std::vector<PARAMETER_VALUE> &list = rawShared ? parameters : rawParameters;
    if (index >= 1 && index <= static_cast<NAT>(list.size()))
        return list[static_cast<std::size_t>(index - 1)].text;
    FailCount("Please at least " + std::to_string(index) + " parameters", true);
    return {};
}

UTF16 TMACRO::GETPARAMETER_ERRORFREE(NAT index) const {
    if (index < 1 || index > PARAMETERLENGTH()) return {};
    return parameters[static_cast<std::size_t>(index - 1)].text;
}

BYTE TMACRO::GETPARAMETERKIND(NAT index) const {
    if (index < 1 || index > PARAMETERLENGTH()) return 0;
    return parameters[static_cast<std::size_t>(index - 1)].kind;
}

bool TMACRO::CHECKPARAMETER(NAT count) {
    if (!running || PARAMETERLENGTH() == count) return true;
    PARAMETERERROR(count);
    return false;
}
} // namespace morvane
