#include "script/module/math_parameters.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/constant_table.hpp"
#include "script/engine/macro.hpp"

namespace morvane {
NAT COUNT_NUMBERS(const UTF16 &text, NAT most) {
    UTF16 rest = text;
    NAT count = 0;
    while (count < most && ISDIGIT(rest)) {
        CUTREAL(rest);
        ++count;
    }
    return count;
}

std::vector<UTF16> ALL_PARAMETERS(TMACRO *engine) {
    std::vector<UTF16> texts;
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        texts.push_back(engine->GETPARAMETER(i));
    return texts;
}

UTF16 JOIN_RESULTS(const std::vector<UTF16> &results) {
    UTF16 joined;
    for (std::size_t i = 0; i < results.size(); ++i) {
        const UTF16 longer = i == 0 ? results[i] : joined + " " + results[i];
        if (i > 0 && longer.LENGTH() > LONGEST_TEXT) {
            WRITELN("  A value holds only " + UTF16(std::to_string(i)) + " of " +
                    std::to_string(results.size()) + " results!");
            break;
        }
        joined = longer;
    }
    return joined;
}
} // namespace morvane
