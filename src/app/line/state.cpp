#include "app/line/line_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Counts, copies and names of the line cloud in use.
namespace morvane {
void LINE_OBJECTS_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LINES.CURRENT().GETOBJECTLENGTH());
}

void LINE_LINES_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LINES.CURRENT().GETLINELENGTH());
}

void LINE_POINTS_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LINES.CURRENT().GETPOINTLENGTH());
}

void LINE_CLEAR(TMACRO *) { LINES.CURRENT().INIT(); }

namespace {
// Factors of x, y, z and t: one number for the space, three with t kept, or four.
HYPER GetScaling(const UTF16 &text) {
    NAT separators = 0;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        separators += unit.high == 0 && (unit.low == ',' || unit.low == ';');
    }
    if (text.EMPTY()) return HNORM;
    HYPER factor = GETHYPER(text);
    if (separators == 0) factor.y = factor.z = factor.x;
    if (separators < 3) factor.w = 1;
    return factor;
}
} // namespace

// new := line.copy [factor | <fx, fy, fz> | <fx, fy, fz, ft>]
void LINE_COPY_REF(TMACRO *engine) {
    TCLOUD *target = LINES.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    target->REPLACE(LINES.CURRENT());
    target->MUL(GetScaling(engine->GETPARAMETER_ERRORFREE(1)));
    engine->COMMAND_RESULT_VAR = UTF16();
}

// object.name [number] name
void LINE_OBJECT_NAME(TMACRO *engine) {
    TCLOUD &cloud = LINES.CURRENT();
    if (engine->PARAMETERLENGTH() == 1)
        cloud.PUTNAME(cloud.GETOBJECTLENGTH(), engine->GETPARAMETER(1));
    else if (engine->PARAMETERLENGTH() == 2)
        cloud.PUTNAME(GETNAT(engine->GETPARAMETER(1)), engine->GETPARAMETER(2));
    else
        engine->PARAMETERERROR(2);
}

// a := line.object.name [number]
void LINE_OBJECT_NAME_REF(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 1) return engine->PARAMETERERROR(1);
    const TCLOUD &cloud = LINES.CURRENT();
    const NAT object =
        engine->PARAMETERLENGTH() == 0 ? cloud.GETOBJECTLENGTH() : GETNAT(engine->GETPARAMETER(1));
    engine->COMMAND_RESULT = cloud.GETNAME(object);
}
} // namespace morvane
