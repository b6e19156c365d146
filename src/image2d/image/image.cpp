#include "image2d/image/image.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/filter/resize.hpp"

#include <utility>

namespace morvane {
void TIMAGE::Construct(BYTE tag) {
    switch (tag) {
    case IMAGE_GRAY: storage.emplace<TGRAY>(); break;
    case IMAGE_FULLGRAY: storage.emplace<TFULLGRAY>(); break;
    case IMAGE_RGB: storage.emplace<TRGB>(); break;
    case IMAGE_RGBA: storage.emplace<TRGBA>(); break;
    case IMAGE_ZRGB: storage.emplace<TZRGB>(); break;
    default: return;
    }
    kind = tag;
}

void TIMAGE::INIT(BYTE tag) {
    DONE();
    Construct(tag);
}

void TIMAGE::INIT(BYTE tag, NAT width, NAT height) {
    INIT(tag);
    _DISPATCH([&](auto &canvas) { canvas.INIT(width, height); });
}

bool TIMAGE::CLONE(const TIMAGE &other) {
    if (this == &other) return true;
    INIT(other.kind);
    frame = other.frame;
    NAME = other.NAME;
    return _DISPATCH([&](auto &canvas) {
               using CANVAS_TYPE = std::remove_reference_t<decltype(canvas)>;
               return canvas.CLONE(*std::get_if<CANVAS_TYPE>(&other.storage));
           }) ||
           kind == 0;
}

void TIMAGE::TAKE(TIMAGE &other) {
    if (this == &other) return;
    storage = std::move(other.storage);
    kind = other.kind;
    other.kind = 0;
    other.storage.emplace<std::monostate>();
}

void TIMAGE::RESIZE(NAT width, NAT height) {
    _ALLPLANES([&](auto &plane) { morvane::RESIZE(plane, width, height); });
}

void TIMAGE::CLEANUP() {
    const BYTE tag = kind;
    _PREDONE();
    Construct(tag);
    NAME = UTF16CHARS7();
}

void TIMAGE::_PREDONE() {
    storage.emplace<std::monostate>();
    kind = 0;
}

void TIMAGE::DONE() {
    _PREDONE();
    frame.RESET();
    NAME = UTF16CHARS7();
    copyMethod = 1;
    subMethod = 2;
    diffusionMethod = 0;
    fullScan = false;
    diffusionAngle = 5 * PI / 180;
    diffusionMax = 0.25;
    diffusionAxial = false;
}

namespace {
template <class PIXEL> COMPLEXNAT SizeOf(const CANVAS<PIXEL> &canvas) {
    return {canvas.WIDTH, canvas.HEIGHT};
}
template <class IMAGE> COMPLEXNAT SizeOf(const IMAGE &image) {
    return {image.WIDTH(), image.HEIGHT()};
}
} // namespace

COMPLEXNAT TIMAGE::SIZE() const {
    return _DISPATCH([](const auto &canvas) { return SizeOf(canvas); });
}

NAT TIMAGE::PIXELMAX() const {
    if (kind == 0) return 0;
    return kind == IMAGE_FULLGRAY ? TFULLGRAY::MAXIMUM : TGRAY::MAXIMUM;
}

TRGB *TIMAGE::_RGB() {
    if (TRGB *rgb = std::get_if<TRGB>(&storage)) return rgb;
    if (TRGBA *rgba = _RGBA()) return &rgba->rgb;
    if (TZRGB *zrgb = _ZRGB()) return &zrgb->rgb;
    return nullptr;
}

NAT TIMAGE::COORD(REAL position, NAT axis) const {
    return morvane::COORD(position, axis == 1 ? SIZEX() : SIZEY());
}

COMPLEXNAT TIMAGE::COORD(const COMPLEX &position) const {
    return {COORD(position.x, 1), COORD(position.y, 2)};
}
} // namespace morvane
