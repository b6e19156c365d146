#include "image2d/format/fill_rows.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/memory_block.hpp"
#include "image2d/format/row_fill.hpp"

#include <new>
#include <vector>

namespace morvane {
namespace {
constexpr NAT SHOWN_MAGIC = 16; // characters

void SetName(TGRAY &, const UTF16 &) {}
void SetName(TFULLGRAY &, const UTF16 &) {}
void SetName(TRGB &raster, const UTF16 &name) { raster.NAME = name; }
void SetName(TRGBA &raster, const UTF16 &name) { raster.rgb.NAME = name; }

// May throw for memory.
template <class RASTER>
bool FillRows(RASTER &raster, const PICTURE &picture, const NEXT_ROW &next) {
    const NAT height = picture.height, count = picture.width * picture.channels;
    const UTF16 title =
        picture.title + GETSTRING(picture.width) + "x" + GETSTRING(picture.height) + ")";
    std::vector<WORD> samples(static_cast<std::size_t>(count));
    for (NAT y = 1; y <= height; ++y) {
        PROGRESS(title, static_cast<REAL>(y - 1) / static_cast<REAL>(height));
        if (!next(samples.data(), count)) return false;
        STORE_ROW(raster, picture.bottomUp ? height + 1 - y : y,
                  {samples.data(), picture.channels, picture.deep});
    }
    PROGRESS();
    return true;
}
} // namespace

template <class RASTER>
bool FILL_ROWS(RASTER &raster, const UTF16 &name, const PICTURE &picture, const NEXT_ROW &next) {
    raster.INIT(picture.width, picture.height);
    if (raster.EMPTY()) return false; // no memory, which has been told
    try {
        if (FillRows(raster, picture, next)) {
            SetName(raster, name);
            return true;
        }
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
    }
    raster.INIT();
    return false;
}

template bool FILL_ROWS(TGRAY &, const UTF16 &, const PICTURE &, const NEXT_ROW &);
template bool FILL_ROWS(TFULLGRAY &, const UTF16 &, const PICTURE &, const NEXT_ROW &);
template bool FILL_ROWS(TRGB &, const UTF16 &, const PICTURE &, const NEXT_ROW &);
template bool FILL_ROWS(TRGBA &, const UTF16 &, const PICTURE &, const NEXT_ROW &);

bool TELL_BAD_SIZE(const UTF16 &width, const UTF16 &height) {
    WRITELN("  Bad size (" + GETUTF8(COPY(width, 1, SHOWN_MAGIC)) + "x" +
            GETUTF8(COPY(height, 1, SHOWN_MAGIC)) + "). Empty image created!");
    return false;
}

bool TELL_BAD_SIZE(NAT width, NAT height) {
    return TELL_BAD_SIZE(GETSTRING(width), GETSTRING(height));
}

bool TELL_BAD_FILE_SIZE() {
    WRITELN("  Bad file size. Empty image created!");
    return false;
}

bool TELL_BAD_MAGIC(const UTF16 &magic) {
    WRITELN("  Bad Magic Identifier (" + ASCIICLEAN_HARD(GETUTF8(COPY(magic, 1, SHOWN_MAGIC))) +
            ")!");
    return false;
}

NAT BYTES_OF(NAT width, NAT height, NAT bytes) {
    if (width < 1 || height < 1 || bytes < 1) return NATMAX;
    const NAT pixels = BLOCK_SIZE(width, height);
    return pixels == NATMAX ? NATMAX : BLOCK_SIZE(pixels, bytes);
}
} // namespace morvane
