#include "image2d/canvas/canvas.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/container/memory_block.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace morvane {
namespace {
constexpr NAT LAST_FONT = 52;

// Pixels of a diagonal that one pixel of line width stands for.
constexpr REAL LINE_SHARE = 1000;
} // namespace

template <class PIXEL> void CANVAS<PIXEL>::INIT(NAT width, NAT height) {
    DONE();
    const bool isEmpty = width < 1 || height < 1;
    const NAT count = isEmpty ? 0 : BLOCK_SIZE(width, height);
    if (count < 1) return;
    block.INIT(count, static_cast<NAT>(sizeof(PIXEL)));
    if (block.LENGTH != count) return; // no memory, which has been told
    WIDTH = width;
    HEIGHT = height;
    const REAL diagonal = std::hypot(static_cast<REAL>(width), static_cast<REAL>(height));
    LINEWIDTH = std::max<NAT>(1, static_cast<NAT>(diagonal / LINE_SHARE));
    CENTER = {(static_cast<REAL>(width) + 1) / 2, (static_cast<REAL>(height) + 1) / 2};
    WINDOW();
}

template <class PIXEL> void CANVAS<PIXEL>::DONE() {
    SCANLEFT.DONE();
    SCANRIGHT.DONE();
    block.DONE();
    WIDTH = HEIGHT = 0;
    BACKGROUND = 0;
    VALUE = std::numeric_limits<PIXEL>::max();
    window = {};
    LINEWIDTH = 1;
    CENTER = {};
    font = 0;
}

template <class PIXEL> void CANVAS<PIXEL>::SWAP(CANVAS &other) noexcept {
    std::swap(block, other.block);
    std::swap(SCANLEFT, other.SCANLEFT);
    std::swap(SCANRIGHT, other.SCANRIGHT);
    std::swap(WIDTH, other.WIDTH);
    std::swap(HEIGHT, other.HEIGHT);
    std::swap(BACKGROUND, other.BACKGROUND);
    std::swap(VALUE, other.VALUE);
    std::swap(window, other.window);
    std::swap(LINEWIDTH, other.LINEWIDTH);
    std::swap(CENTER, other.CENTER);
    std::swap(font, other.font);
}

template <class PIXEL> void CANVAS<PIXEL>::REPLACE(CANVAS &other) {
    const PIXEL background = BACKGROUND, value = VALUE;
    const NAT oldFont = font;
    SWAP(other);
    other.DONE();
    BACKGROUND = background;
    VALUE = value;
    font = oldFont;
}

template <class PIXEL> bool CANVAS<PIXEL>::CLONE(const CANVAS &other) {
    if (this == &other) return true;
    INIT(other.WIDTH, other.HEIGHT);
    if (COUNT() != other.COUNT()) return false;
    if (!EMPTY())
        std::memcpy(DATA(), other.DATA(), static_cast<std::size_t>(COUNT()) * sizeof(PIXEL));
    BACKGROUND = other.BACKGROUND;
    VALUE = other.VALUE;
    window = other.window;
    font = other.font;
    return true;
}

template <class PIXEL> void CANVAS<PIXEL>::FILL(PIXEL value) {
    std::fill_n(DATA(), COUNT(), value);
}

template <class PIXEL> void CANVAS<PIXEL>::WINDOW(NAT x1, NAT y1, NAT x2, NAT y2) {
    window = LIMITED({x1, y1, x2, y2});
}

template <class PIXEL> PIXEL_AREA CANVAS<PIXEL>::LIMITED(const PIXEL_AREA &area) const {
    if (EMPTY()) return {};
    return {LIMIT(area.left, NAT{1}, WIDTH), LIMIT(area.top, NAT{1}, HEIGHT),
            LIMIT(area.right, NAT{1}, WIDTH), LIMIT(area.bottom, NAT{1}, HEIGHT)};
}

template <class PIXEL> void CANVAS<PIXEL>::SETFONT(NAT number) {
    if (number >= 0 && number <= LAST_FONT) font = number;
}

template class CANVAS<BYTE>;
template class CANVAS<WORD>;
} // namespace morvane
