#include "app/image/codec_commands.hpp"

#include "image2d/format/external.hpp"

namespace morvane {
void IMAGEMAGICK_ENABLE(TMACRO *) { ENABLE_IMAGEMAGICK(); }
void IMAGEMAGICK_DISABLE(TMACRO *) { DISABLE_IMAGEMAGICK(); }
void FREEIMAGE_ENABLE(TMACRO *) { ENABLE_FREEIMAGE(); }
void FREEIMAGE_DISABLE(TMACRO *) { DISABLE_FREEIMAGE(); }
} // namespace morvane
