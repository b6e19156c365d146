#include "app/line/line_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_formats_table.hpp"
#include "script/engine/macro.hpp"

// Files of line clouds. The readers and writers tell their own failures; the line counts as done.
namespace morvane {
// load file [percent]: all lines, or about that share of them drawn at random.
void LINE_LOAD(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1 || count > 2) return engine->PARAMETERERROR(1);
    const UTF16 file = engine->GETPARAMETER(1);
    if (file.EMPTY()) return;
    if (count == 1) {
        static_cast<void>(LINES.CURRENT().LOAD(file));
        return;
    }
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    static_cast<void>(LINES.CURRENT().LOAD(file, GETREAL(engine->GETPARAMETER(2)), random));
}

namespace {
// Calls save(cloud, name); an empty cloud or name saves nothing.
template <class SAVE> void SaveWith(TMACRO *engine, SAVE &&save) {
    TCLOUD &cloud = LINES.CURRENT();
    const UTF16 file = engine->GETPARAMETER(1);
    if (file.EMPTY() || cloud.GETLINELENGTH() < 1) return;
    static_cast<void>(save(cloud, file));
}
} // namespace

void LINE_SAVE(TMACRO *engine) { SaveWith(engine, SAVE_LINES); }
void LINE_SAVE_DXF(TMACRO *engine) { SaveWith(engine, SAVE_DXF); }
void LINE_SAVE_OBJ(TMACRO *engine) { SaveWith(engine, SAVE_OBJ); }
void LINE_SAVE_VTK(TMACRO *engine) { SaveWith(engine, SAVE_VTK); }
void LINE_SAVE_TRACKVIS(TMACRO *engine) { SaveWith(engine, SAVE_TRACKVIS); }
void LINE_SAVE_MV3D(TMACRO *engine) { SaveWith(engine, SAVE_MV3D); }
void LINE_SAVE_SWC(TMACRO *engine) { SaveWith(engine, SAVE_SWC); }

void LINE_SAVE_MAYA(TMACRO *engine) {
    SaveWith(engine, [](TCLOUD &cloud, const UTF16 &file) { return cloud.SAVE_MEL(file); });
}

void LINE_SAVE_TXT(TMACRO *engine) {
    SaveWith(engine, [](TCLOUD &cloud, const UTF16 &file) { return cloud.SAVE(file); });
}
} // namespace morvane
