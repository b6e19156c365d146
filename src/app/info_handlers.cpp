#include "app/info_handlers.hpp"

#include "field3d/format/nifti_info.hpp"
#include "script/engine/macro.hpp"

namespace morvane {
void INFO_SHOW(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1) return engine->MIN_PARAMETERERROR(1);
    if (count > 2) return engine->MAX_PARAMETERERROR(2);
    const UTF16 file = engine->GETPARAMETER(1);
    if (count == 1)
        static_cast<void>(INFO_NII_TXT(file));
    else
        static_cast<void>(INFO_NII_FILE(file, engine->GETPARAMETER(2)));
}

void INFO_SHOW_REF(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() != 1) return engine->PARAMETERERROR(1);
    engine->COMMAND_RESULT = INFO_NII(engine->GETPARAMETER(1));
}
} // namespace morvane
