#include "app/line/line_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "geometry/mapping/line_draw.hpp"
#include "script/engine/macro.hpp"

// Drawing of the line cloud in use into the scalar field in use.
namespace morvane {
namespace {
DRAW_GREY drawGrey = DRAW_GREY::VALUE; // chosen by line.draw.value and its like
}

void LINE_DRAW_VALUE(TMACRO *) { drawGrey = DRAW_GREY::VALUE; }
void LINE_DRAW_VALUE_T(TMACRO *) { drawGrey = DRAW_GREY::VALUE_T; }
void LINE_DRAW_T(TMACRO *) { drawGrey = DRAW_GREY::T; }

void LINE_DRAW_POINT(TMACRO *) { DRAW_POINTS(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, false); }

void LINE_DRAW_POINT_SOLID(TMACRO *) {
    DRAW_POINTS(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, true);
}

void LINE_DRAW_SPHERE(TMACRO *engine) {
    DRAW_SPHERES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, GETREAL(engine->GETPARAMETER(1)),
                 false);
}

void LINE_DRAW_SPHERE_SOLID(TMACRO *engine) {
    DRAW_SPHERES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, GETREAL(engine->GETPARAMETER(1)),
                 true);
}

void LINE_DRAW_CUBE(TMACRO *engine) {
    DRAW_CUBES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, GETREAL(engine->GETPARAMETER(1)),
               false);
}

void LINE_DRAW_CUBE_SOLID(TMACRO *engine) {
    DRAW_CUBES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, GETREAL(engine->GETPARAMETER(1)),
               true);
}

void LINE_DRAW_LINE(TMACRO *) {
    DRAW_LINES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, false, false);
}

void LINE_DRAW_LINE_SOLID(TMACRO *) {
    DRAW_LINES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, false, true);
}

void LINE_DRAW(TMACRO *) { DRAW_LINES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, true, false); }

void LINE_DRAW_SOLID(TMACRO *) {
    DRAW_LINES(LINES.CURRENT(), SCALARS.CURRENT(), drawGrey, true, true);
}
} // namespace morvane
