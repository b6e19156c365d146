#pragma once

#include "script/engine/macro.hpp"

namespace morvane {
// The handler of a row that reaches files: at most MOST parameters, and nothing at all, with an
// empty result, while the engine's files are switched off.
template <HANDLER WORK, NAT MOST> void ON_DISK(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > MOST) return engine->MAX_PARAMETERERROR(MOST);
    if (engine->switches.FILES) WORK(engine);
}
} // namespace morvane
