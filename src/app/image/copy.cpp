#include "image2d/image/copy.hpp"

#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"

#include <algorithm>

// Copies and cuts of the image in use.
namespace morvane {
void IMAGE_CROP(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    const NAT value = GETNAT(engine->GETPARAMETER(1));
    WITH_MEMORY([&] { CROP(image, AREA_FROM(image, value)); });
}

// new := image.crop value; without a pixel of at least the value all is copied.
void IMAGE_CROP_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    const NAT value = GETNAT(engine->GETPARAMETER(1));
    WITH_TARGET(engine, [&](TIMAGE &target) {
        const PIXEL_AREA area = AREA_FROM(image, value);
        if (area.EMPTY()) return COPY(image, target);
        SUBIMAGE(image, area, target);
    });
}

namespace {
// One factor for both axes, or <sx, sy>; none: zero.
COMPLEX GetFactors(const UTF16 &text) {
    if (POS(",", text) > 0 || POS(";", text) > 0) return GETCOMPLEX(text);
    const REAL factor = GETREAL(text);
    return {factor, factor};
}
} // namespace

// new := image.copy [scale]: a scale of 0, or none, makes a plain copy.
void IMAGE_COPY_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    const COMPLEX factors = GetFactors(engine->GETPARAMETER_ERRORFREE(1));
    WITH_TARGET(engine, [&](TIMAGE &target) {
        if (factors == CZERO) return COPY(image, target);
        COPY_SCALED(image, factors, image.copyMethod, target);
    });
}

void IMAGE_COPY_LABEL_REF(TMACRO *engine) {
    const COMPLEX factors = GetFactors(engine->GETPARAMETER(1));
    WITH_TARGET(engine, [&](TIMAGE &target) { COPY_LABELS(IMAGES.CURRENT(), factors, target); });
}

void IMAGE_RESIZE_REF(TMACRO *engine) {
    const COMPLEXNAT size = GETCOMPLEXNAT(engine->GETPARAMETER(1));
    WITH_TARGET(engine, [&](TIMAGE &target) { COPY_RESIZED(IMAGES.CURRENT(), size, target); });
}

void IMAGE_SUBIMAGE_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    const COMPLEXNAT a = image.COORD(GETCOMPLEX(engine->GETPARAMETER(1)));
    const COMPLEXNAT b = image.COORD(GETCOMPLEX(engine->GETPARAMETER(2)));
    const PIXEL_AREA area{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                          std::max(a.y, b.y)};
    WITH_TARGET(engine, [&](TIMAGE &target) { SUBIMAGE(image, area, target); });
}

namespace {
// The last pixel of a piece that begins at `first`: a length below 1 is a share of the axis, and
// one that isn't above 0 reaches to the end. At least one pixel.
NAT LastPixel(NAT first, REAL length, NAT size) {
    if (length <= 0) return size;
    const NAT pixels = ROUND(length < 1 ? length * static_cast<REAL>(size) : length);
    return first + std::clamp<NAT>(pixels, 1, std::max<NAT>(size, 1)) - 1;
}
} // namespace

void IMAGE_SUBIMAGE_REL_REF(TMACRO *engine) {
    const TIMAGE &image = IMAGES.CURRENT();
    const COMPLEXNAT corner = image.COORD(GETCOMPLEX(engine->GETPARAMETER(1)));
    const COMPLEX length = GETCOMPLEX(engine->GETPARAMETER(2));
    const PIXEL_AREA area{corner.x, corner.y, LastPixel(corner.x, length.x, image.SIZEX()),
                          LastPixel(corner.y, length.y, image.SIZEY())};
    WITH_TARGET(engine, [&](TIMAGE &target) { SUBIMAGE(image, area, target); });
}
} // namespace morvane
