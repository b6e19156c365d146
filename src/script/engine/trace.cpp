#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"

#include <string>

namespace morvane {
namespace {
constexpr std::string_view GREEN = "\033[32m", YELLOW = "\033[33m", BLUE = "\033[34m";
constexpr std::string_view LIGHT_RED = "\033[91m", PLAIN = "\033[0m";

std::string Coloured(std::string_view colour, const UTF16 &text) {
    if (colour.empty() || !COLOURS()) return GETUTF8(text);
    return std::string(colour) + GETUTF8(text) + std::string(PLAIN);
}

// Numbers and lists, strings, and names of functions and lambdas have their colours.
std::string_view ColourOf(BYTE kind) {
    switch (kind) {
    case 1:
    case 3: return BLUE;
    case 2: return LIGHT_RED;
    case 8:
    case 9: return GREEN;
    default: return {};
    }
}

std::string Head(const UTF16 &command, TMACRO::TRACE_COLOUR colour) {
    return "  " + Coloured(colour == TMACRO::TRACE_COLOUR::PROCEDURE ? GREEN : YELLOW, command) +
           "|";
}
} // namespace

void TMACRO::_TRACE(const UTF16 &command, TRACE_COLOUR colour) const {
    if (!verbose) return;
    std::string line = Head(command, colour);
    for (const PARAMETER_VALUE &parameter : parameters)
        line += Coloured(ColourOf(parameter.kind), parameter.text) + "|";
    WRITELN(line);
}

void TMACRO::_TRACE(const UTF16 &command, TRACE_COLOUR colour, const UTF16 &text) const {
    if (!verbose) return;
    WRITELN(Head(command, colour) + (text.EMPTY() ? std::string() : GETUTF8(text) + "|"));
}
} // namespace morvane
