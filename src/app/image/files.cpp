#include "image2d/image/files.hpp"
#include "app/image/image_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Files of images. A loaded image has the pixel kind in force. The readers and writers tell their
// own failures; the line counts as done.
namespace morvane {
namespace {
template <auto READER> void Load(TMACRO *engine) {
    static_cast<void>(READER(IMAGES.CURRENT(), IMAGES.DEFAULTKIND, engine->GETPARAMETER(1)));
}
} // namespace

void IMAGE_LOAD(TMACRO *engine) { Load<&LOAD>(engine); }
void IMAGE_LOADPNM(TMACRO *engine) { Load<&LOADPNM>(engine); }
void IMAGE_LOADBMP(TMACRO *engine) { Load<&LOADBMP>(engine); }
void IMAGE_LOADIMGF(TMACRO *engine) { Load<&LOADIMGF>(engine); }
void IMAGE_LOADRGB(TMACRO *engine) { Load<&LOADRGB>(engine); }

// loadraw file header width height
void IMAGE_LOADRAW(TMACRO *engine) {
    const NAT header = GETNAT(engine->GETPARAMETER(2)), width = GETNAT(engine->GETPARAMETER(3)),
              height = GETNAT(engine->GETPARAMETER(4));
    static_cast<void>(LOADRAW(IMAGES.CURRENT(), IMAGES.DEFAULTKIND, engine->GETPARAMETER(1), width,
                              height, header));
}

void IMAGE_SAVE(TMACRO *engine) {
    static_cast<void>(SAVE(IMAGES.CURRENT(), engine->GETPARAMETER(1)));
}
} // namespace morvane
