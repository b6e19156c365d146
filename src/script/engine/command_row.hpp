#pragma once

#include "foundation/base/records.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// A command of the language is one row. Registration, the reference file, the help, the generated
// documents and the tests are all made from the rows; nothing about a command is written twice.
namespace morvane {
class TMACRO;
using HANDLER = void (*)(TMACRO *engine);

enum class COMMAND_KIND : BYTE { BLOCK = 1, PROCEDURE = 2, FUNCTION = 3, LAMBDA = 4, PROPERTY = 5 };

// How many parameters a line may have. A wrong count of a plain rule is reported by the engine
// before the handler runs (PARAMETERERROR, MIN_..., MAX_...); OWN leaves the test to the handler.
struct COUNT_RULE {
    enum class KIND : BYTE { OWN, EXACT, LEAST, MOST } kind = KIND::OWN;
    NAT count = 0;
};
constexpr COUNT_RULE OWN_COUNT{};
constexpr COUNT_RULE EXACTLY(NAT n) { return {COUNT_RULE::KIND::EXACT, n}; }
constexpr COUNT_RULE AT_LEAST(NAT n) { return {COUNT_RULE::KIND::LEAST, n}; }
constexpr COUNT_RULE AT_MOST(NAT n) { return {COUNT_RULE::KIND::MOST, n}; }

struct COMMAND_ROW {
    COMMAND_KIND kind;
    std::string_view name; // without namespace, lower case, no blanks
    HANDLER handler;       // a property's setter
    HANDLER getter;        // a property's getter, else null
    COUNT_RULE count;      // of the procedure, function or setter
    // The parameters in order, as "name: kind [unit]" parted by ", "; optional ones in [ ].
    // Kinds: text, file, name, number, real, flag, vector, point, range, pair, hyper.
    std::string_view parameters;
    std::string_view usage; // one line that works as it stands in a script
    std::string_view note;  // what it does, in a few words
};

constexpr COMMAND_ROW PROCEDURE(std::string_view name, HANDLER handler, COUNT_RULE count,
                                std::string_view parameters, std::string_view usage,
                                std::string_view note) {
    return {COMMAND_KIND::PROCEDURE, name, handler, nullptr, count, parameters, usage, note};
}
constexpr COMMAND_ROW FUNCTION(std::string_view name, HANDLER handler, COUNT_RULE count,
                               std::string_view parameters, std::string_view usage,
                               std::string_view note) {
    return {COMMAND_KIND::FUNCTION, name, handler, nullptr, count, parameters, usage, note};
}
constexpr COMMAND_ROW LAMBDA(std::string_view name, HANDLER handler, std::string_view usage,
                             std::string_view note) {
    return {COMMAND_KIND::LAMBDA, name, handler, nullptr, OWN_COUNT, "", usage, note};
}
// One name as a procedure (setter, with `count`) and as a function (getter, its own count).
constexpr COMMAND_ROW PROPERTY(std::string_view name, HANDLER setter, HANDLER getter,
                               COUNT_RULE count, std::string_view parameters,
                               std::string_view usage, std::string_view note) {
    return {COMMAND_KIND::PROPERTY, name, setter, getter, count, parameters, usage, note};
}

// Lower case without blanks, a usage, and no name twice for one kind. Handlers are tested at run
// time: under the sanitizers GCC has no constant answer to whether a function's address is null.
template <std::size_t N> consteval bool ROWS_ARE_SOUND(const COMMAND_ROW (&rows)[N]) {
    std::array<std::pair<std::string_view, int>, 2 * N> names;
    std::size_t count = 0;
    for (const COMMAND_ROW &row : rows) {
        if (row.name.empty() || row.usage.empty() || row.note.empty()) return false;
        for (char c : row.name)
            if (c == ' ' || (c >= 'A' && c <= 'Z')) return false;
        const bool property = row.kind == COMMAND_KIND::PROPERTY;
        names[count++] = {row.name, property ? 2 : static_cast<int>(row.kind)};
        if (property) names[count++] = {row.name, 3};
    }
    std::sort(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(count));
    for (std::size_t i = 1; i < count; ++i)
        if (names[i] == names[i - 1]) return false;
    return true;
}

// A set of rows under one namespace ("" or "scalar."), in registration order.
struct COMMAND_SET {
    std::string_view nameSpace;
    std::span<const COMMAND_ROW> rows;
};
} // namespace morvane
