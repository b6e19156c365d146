#include "script/module/math_parameters.hpp"

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
} // namespace morvane
