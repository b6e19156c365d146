#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "image2d/image/levels.hpp"
#include "script/engine/macro.hpp"

// The image in use: queries, making, pen and background, frame.
namespace morvane {
void IMAGE_IFIMAGE_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(IMAGES.CURRENT().ISNOTEMPTY());
}

void IMAGE_IFPLAIN_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(IFPLAIN(IMAGES.CURRENT()));
}

void IMAGE_SIZE_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(IMAGES.CURRENT().SIZE());
}

void IMAGE_CENTER_LAMD(TMACRO *engine) {
    const COMPLEXNAT size = IMAGES.CURRENT().SIZE();
    engine->COMMAND_RESULT =
        GETSTRING(COMPLEX{static_cast<REAL>(size.x) / 2, static_cast<REAL>(size.y) / 2});
}

namespace {
// A value, <r, g, b>, or <r, g, b> and alpha; without alpha a colour is opaque.
template <class GREY, class COLOUR>
void ReadColour(TMACRO *engine, const GREY &grey, const COLOUR &colour) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1) return engine->MIN_PARAMETERERROR(1);
    if (count > 2) return engine->MAX_PARAMETERERROR(2);
    const UTF16 text = engine->GETPARAMETER(1);
    const bool isColour = count == 2 || POS(",", text) > 0 || POS(";", text) > 0;
    if (!isColour) return grey(GETNAT(text));
    const VECTORNAT rgb = GETCOLOUR(text);
    colour(HYPERNAT{rgb.x, rgb.y, rgb.z, count == 2 ? GETNAT(engine->GETPARAMETER(2)) : 255});
}

// A value of a grey image, <r, g, b> of a colour one, <r, g, b, alpha> where there is alpha.
UTF16 ShowColour(const TIMAGE &image, const HYPERNAT &colour) {
    if (!image.ISCOLOUR()) return GETSTRING(colour.x);
    if (image.ID() == IMAGE_RGB) return GETSTRING(VECTORNAT{colour.x, colour.y, colour.z});
    return GETSTRING(colour);
}
} // namespace

void IMAGE_VALUE(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    ReadColour(
        engine, [&](NAT value) { image._SETVALUE(value); },
        [&](const HYPERNAT &colour) { image._SETRGBAVALUE(colour); });
}

void IMAGE_VALUE_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    engine->COMMAND_RESULT = ShowColour(image, image._GETRGBAVALUE());
}

void IMAGE_BACKGROUND(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    ReadColour(
        engine, [&](NAT value) { image._SETBACKGROUND(value); },
        [&](const HYPERNAT &colour) { image._SETRGBABACKGROUND(colour); });
}

void IMAGE_BACKGROUND_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    engine->COMMAND_RESULT = ShowColour(image, image._GETRGBABACKGROUND());
}

// new [x y | <x, y>]: zero pixels; without parameters of the size in use. A size below 1 makes an
// empty image. The frame is lost in every case.
// Deliberate: image.new keeps the pixel kind of the image; 8bit and its like count for images made
// by load or by the first use.
void IMAGE_NEW(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    if (count > 2) return engine->MAX_PARAMETERERROR(2);
    COMPLEXNAT size = image.SIZE();
    if (count == 1) size = GETCOMPLEXNAT(engine->GETPARAMETER(1));
    if (count == 2) size = {GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2))};
    image.NEW(size.x, size.y);
}

void IMAGE_CLEAN(TMACRO *) { IMAGES.CURRENT().NEW(); }

// offset := size * scale / -2 in the image's plane.
void IMAGE_OFFSET_CENTER(TMACRO *) {
    TIMAGE &image = IMAGES.CURRENT();
    FRAME frame = image.GETFRAME();
    const VECTOR scale = frame.SCALE();
    frame.SETMOVE({static_cast<REAL>(image.SIZEX()) * scale.x / -2,
                   static_cast<REAL>(image.SIZEY()) * scale.y / -2, 0});
    image.SETFRAME(frame);
}
} // namespace morvane
