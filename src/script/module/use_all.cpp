#include "script/module/use_all.hpp"

#include "script/engine/macro.hpp"

namespace morvane {
namespace {
const COMMAND_SET *const SETS[] = {&CORE_SET, &RANDOM_SET, &CLOCK_SET};
} // namespace

std::span<const COMMAND_SET *const> MODULE_SETS() { return SETS; }

void TMACRO::USE_CORE() {
    REGISTER(CORE_SET);
    REGISTER(RANDOM_SET);
}

void TMACRO::USE_CLOCK() { REGISTER(CLOCK_SET); }

void TMACRO::USE_ALL() {
    USE_CORE();
    USE_CLOCK();
}
} // namespace morvane
