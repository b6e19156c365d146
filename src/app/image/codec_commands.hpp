#pragma once

#include "script/engine/macro.hpp"

// Handlers that switch the image libraries on and off.
namespace morvane {
void IMAGEMAGICK_ENABLE(TMACRO *engine);
void IMAGEMAGICK_DISABLE(TMACRO *engine);
void FREEIMAGE_ENABLE(TMACRO *engine);
void FREEIMAGE_DISABLE(TMACRO *engine);
} // namespace morvane
