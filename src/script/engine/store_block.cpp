#include "script/engine/store_block.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/quaternion.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>

namespace morvane {
namespace {
// 0 outside the text and for a character outside the 8-bit range.
char CharacterAt(const UTF16 &text, NAT index) {
    const UTF16 unit = COPY(text, index, 1);
    return unit.PLAIN() && !unit.EMPTY() ? unit.LOWBYTES.VIEW().front() : '\0';
}
bool IsZero(const HYPER &h) { return h.x == 0 && h.y == 0 && h.z == 0 && h.w == 0; }

bool IsNumber(const UTF16 &text, REAL &value) {
    NAT code = 1;
    VAL(text, value, code);
    return !text.EMPTY() && code == 0;
}
} // namespace

NAT DIRECTIVE_MINIMUM(char directive) {
    switch (directive >= 'A' && directive <= 'Z' ? static_cast<char>(directive + 32) : directive) {
    case '!':
    case '?': return 2;
    case 'c': return 3;
    case 'i':
    case 'm': return 1;
    case 'j':
    case 's':
    case '+':
    case '-':
    case '*':
    case 'r':
    case 't': return 0;
    default: return directive >= '0' && directive <= '9' ? 2 : -1;
    }
}

STORE_BLOCK::STORE_BLOCK(TMACRO &macro) : engine(macro), separator(macro.outputSeparator) {}

void STORE_BLOCK::Write(const UTF16 &text) {
    FILE_TEXT &file = engine.OUTPUTFILE();
    file.WRITE(GETUTF8(text) + "\n");
}

void STORE_BLOCK::WRITELINE(NAT line) {
    const UTF16 text = engine.SCRIPT().GET(line);
    if (!text.IS(1, '@')) return Write(text);
    if (text.IS(2, '@')) return Directive(text, line);
    engine._GETPARAMETER_WITH_CONSTANTS(COPY(text, 2, text.LENGTH()));
    if (!engine.stop) Write(engine._JOINPARAMETERS(1, separator));
}

void STORE_BLOCK::Directive(UTF16 text, NAT line) {
    if (!marker.EMPTY()) REPLACE(text, "@@" + marker, "@@$");
    if (text.LENGTH() <= 2) return;
    char directive = CharacterAt(text, 3);
    if (directive == ' ') return;
    if (directive >= 'A' && directive <= 'Z') directive = static_cast<char>(directive + 32);
    const NAT minimum = DIRECTIVE_MINIMUM(directive);
    if (minimum < 0) return engine.SYNTAX_AT_ERROR(COPY(text, 1, 3));
    engine._GETPARAMETER_WITH_CONSTANTS(COPY(text, 4, text.LENGTH()));
    if (engine.stop) return;
    if (engine.PARAMETERLENGTH() < minimum) return engine.MIN_PARAMETERERROR(minimum);
    const UTF16 first = engine.GETPARAMETER_ERRORFREE(1);
    const UTF16 second = engine.GETPARAMETER_ERRORFREE(2);
    switch (directive) {
    case '!':
        if (GETNAT(first) < 1) Write(engine._JOINPARAMETERS(2, separator));
        break;
    case '?':
        if (GETNAT(first) >= 1) Write(engine._JOINPARAMETERS(2, separator));
        break;
    case 'c':
        if (first == second) Write(engine._JOINPARAMETERS(3, separator));
        break;
    case 'i': engine._INCLUDE(line, first); break;
    case 'j': marker = KILLSPACE(first); break;
    case 'm':
        mask.clear();
        for (NAT i = 1; i <= engine.PARAMETERLENGTH(); ++i)
            mask.push_back(engine.GETPARAMETER(i));
        break;
    case 's': separator = first; break;
    case 'r': WriteRotated(); break;
    case 't': WriteMoved(); break;
    case '+':
    case '-':
    case '*': WriteColumns(directive); break;
    default: // a digit
        if (first == UTF16(UTF16CHAR{static_cast<BYTE>(directive), 0}))
            Write(engine._JOINPARAMETERS(2, separator));
    }
}

UTF16 STORE_BLOCK::Mask(NAT index) const {
    if (index < 1 || index > static_cast<NAT>(mask.size())) return {};
    return mask[static_cast<std::size_t>(index - 1)];
}

// A number in the mask is combined with the parameter, "@" is the parameter alone, and any other
// text stands in front of it.
UTF16 STORE_BLOCK::Column(NAT index, char operation) const {
    const UTF16 parameter = engine.GETPARAMETER_ERRORFREE(index), entry = Mask(index);
    REAL value = 0;
    if (entry == "@") return parameter;
    if (!IsNumber(entry, value)) return entry + parameter;
    const REAL number = GETREAL(parameter);
    if (operation == '*') return GETSTRING(value * number);
    return GETSTRING(operation == '-' ? value - number : value + number);
}

void STORE_BLOCK::WriteColumns(char operation) {
    const NAT count = engine.PARAMETERLENGTH(),
              last = std::max(count, static_cast<NAT>(mask.size()));
    UTF16 joined;
    for (NAT i = 1; i <= last; ++i) {
        if (i > 1) joined += separator;
        joined += Column(i, operation);
        if (operation == '+' && i <= count) WRITELN(">>" + engine.GETPARAMETER(i) + "<<");
    }
    Write(joined);
}

VECTOR STORE_BLOCK::Triple(NAT first) const {
    const auto number = [&](NAT index) { return GETREAL(engine.GETPARAMETER_ERRORFREE(index)); };
    return {number(first), number(first + 1), number(first + 2)};
}

// The columns with "x y z" in the place of three of them.
void STORE_BLOCK::WriteWithTriple(NAT first, const VECTOR &triple) {
    const NAT last = std::max(engine.PARAMETERLENGTH(), static_cast<NAT>(mask.size()));
    UTF16 joined;
    for (NAT i = 1; i <= last; ++i) {
        if (i > 1) joined += separator;
        if (i != first) {
            joined += Column(i, '+');
            continue;
        }
        joined += GETSTRING(triple.x) + " " + GETSTRING(triple.y) + " " + GETSTRING(triple.z);
        i += 2;
    }
    Write(joined);
}

// The last entry of the mask turns the three columns that begin at its place.
void STORE_BLOCK::WriteRotated() {
    const NAT k = static_cast<NAT>(mask.size());
    if (k < 1 || engine.PARAMETERLENGTH() <= k + 2) return WriteColumns('*');
    const HYPER turn = GETHYPER(Mask(k));
    if (IsZero(turn)) return Write({});
    WriteWithTriple(k, TRANSFORM(Triple(k), turn));
}

// The last two entries of the mask move and turn the three columns that begin at the first of
// them; a fourth value of 1 or more in the move turns first.
void STORE_BLOCK::WriteMoved() {
    const NAT k = static_cast<NAT>(mask.size());
    if (k < 2 || engine.PARAMETERLENGTH() <= k + 1) return WriteColumns('*');
    const HYPER move = GETHYPER(Mask(k - 1)), turn = GETHYPER(Mask(k));
    if (IsZero(move) && IsZero(turn)) return Write({});
    const VECTOR way{move.x, move.y, move.z};
    const auto turned = [&](const VECTOR &v) { return IsZero(turn) ? v : TRANSFORM(v, turn); };
    const VECTOR triple = Triple(k - 1);
    WriteWithTriple(k - 1, move.w >= 1 ? turned(triple) + way : turned(triple + way));
}
} // namespace morvane
