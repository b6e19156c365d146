#include "foundation/base/rounding.hpp"
#include "foundation/console/paths.hpp"
#include "image2d/canvas/font.hpp"
#include "image2d/chart/coverage.hpp"
#include "image2d/chart/vector_drawing.hpp"
#include "image2d/format/formats.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT SMALLEST_SMOOTHED = 2; // letters of this many em and more have smooth corners

// A letter's pixels as a picture of twice the size, whose slanted steps are filled (Eric Johnston's
// rule of four neighbours, 1992).
struct LETTER {
    static constexpr NAT WIDE = 2 * GLYPH_WIDTH, TALL = 2 * GLYPH_HEIGHT;
    std::array<std::array<REAL, WIDE>, TALL> shares{};

    explicit LETTER(const GLYPH &glyph, bool isSmoothed) {
        const auto on = [&](NAT x, NAT y) {
            const bool isInside = x >= 0 && y >= 0 && x < GLYPH_WIDTH && y < GLYPH_HEIGHT;
            return isInside && (glyph.rows[static_cast<std::size_t>(y)] & (0x80 >> x));
        };
        for (NAT y = 0; y < TALL; ++y)
            for (NAT x = 0; x < WIDE; ++x) {
                const NAT px = x / 2, py = y / 2, sideX = x % 2 ? 1 : -1, sideY = y % 2 ? 1 : -1;
                const bool beside = on(px + sideX, py), away = on(px - sideX, py);
                const bool above = on(px, py + sideY), below = on(px, py - sideY);
                const bool isCorner =
                    isSmoothed && beside == above && beside != below && above != away;
                const bool isSoft = (glyph.soft[static_cast<std::size_t>(py)] & (0x80 >> px)) != 0;
                const bool isSet = isCorner ? beside : on(px, py);
                shares[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = isSet    ? 1
                                                                                   : isSoft ? 0.25
                                                                                            : 0;
            }
    }
};

void DrawLetter(COVERAGE &coverage, const SHAPE &shape, const COMPLEX &at, const LETTER &letter) {
    const REAL cell = shape.size / 2; // of the doubled letter
    for (NAT row = 0; row < LETTER::TALL; ++row)
        for (NAT column = 0; column < LETTER::WIDE; ++column) {
            const REAL share =
                letter.shares[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            if (share == 0) continue;
            const REAL u = static_cast<REAL>(column) * cell, v = static_cast<REAL>(row) * cell;
            if (shape.isUpwards)
                coverage.ADD({at.x + v, at.y - u - cell, at.x + v + cell, at.y - u}, share);
            else
                coverage.ADD({at.x + u, at.y + v, at.x + u + cell, at.y + v + cell}, share);
        }
}

void DrawText(COVERAGE &coverage, const SHAPE &shape) {
    const PICTURE_AREA area = GETBOUNDS(shape);
    COMPLEX at{static_cast<REAL>(ROUND(area.left)),
               static_cast<REAL>(ROUND(shape.isUpwards ? area.bottom : area.top))};
    const bool isSmoothed = shape.size >= static_cast<REAL>(SMALLEST_SMOOTHED);
    for (NAT i = 1; i <= shape.text.LENGTH(); ++i) {
        const UTF16CHAR unit = shape.text.GETCHAR(i);
        const NAT code = NAT{unit.low} + 256 * NAT{unit.high};
        const PICTURE_AREA cell{at.x, at.y - EM * shape.size, at.x + EM * shape.size,
                                at.y + EM * shape.size};
        if (code != ' ' && cell.MEETS(shape.clip))
            DrawLetter(coverage, shape, at, LETTER(GET_GLYPH(shape.font, code), isSmoothed));
        (shape.isUpwards ? at.y : at.x) += (shape.isUpwards ? -1 : 1) * LETTER_WIDTH * shape.size;
    }
}

void DrawBevel(COVERAGE &coverage, TRGBA &raster, const SHAPE &shape) {
    for (const SHAPE &edge : BEVELS(shape)) {
        coverage.FILL(GETOUTLINE(edge));
        coverage.APPLY(raster, edge.fill, shape.clip);
    }
}

void Draw(COVERAGE &coverage, TRGBA &raster, const SHAPE &shape) {
    if (shape.kind == SHAPE_KIND::TEXT) {
        DrawText(coverage, shape);
        return coverage.APPLY(raster, shape.fill, shape.clip);
    }
    const std::vector<COMPLEX> outline = GETOUTLINE(shape);
    if (shape.fill.w > 0) {
        coverage.FILL(outline);
        coverage.APPLY(raster, shape.fill, shape.clip);
    }
    if (shape.isBevelled) DrawBevel(coverage, raster, shape);
    if (shape.stroke.w == 0) return;
    const bool isOpen = shape.kind == SHAPE_KIND::LINE || shape.kind == SHAPE_KIND::POLYLINE ||
                        shape.kind == SHAPE_KIND::CURVE || shape.kind == SHAPE_KIND::ARC;
    coverage.STROKE(outline, shape.lineWidth, !isOpen);
    coverage.APPLY(raster, shape.stroke, shape.clip);
}
} // namespace

bool T2DVECTOR::RENDER(TRGBA &raster) {
    Prepare();
    raster.INIT(WIDTH(), HEIGHT());
    if (raster.EMPTY()) return false;
    raster.FILL(BACKGROUND);
    COVERAGE coverage;
    if (!coverage.INIT(WIDTH(), HEIGHT())) {
        raster.DONE();
        return false;
    }
    for (const SHAPE &shape : shapes)
        Draw(coverage, raster, shape);
    return true;
}

// The rendering on white.
bool T2DVECTOR::Flat(TRGB &image) {
    TRGBA raster;
    if (!RENDER(raster)) return false;
    for (NAT y = 1; BACKGROUND.w < 255 && y <= raster.HEIGHT(); ++y)
        for (NAT x = 1; x <= raster.WIDTH(); ++x) {
            const HYPERNAT colour = raster._GET(x, y);
            raster.PUT(x, y, {255, 255, 255, 255});
            raster.PUTOVER(x, y, colour);
        }
    return image.CLONE(raster.rgb);
}

bool T2DVECTOR::SAVEPBM(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVEPBM(image, name);
}
bool T2DVECTOR::SAVEPGM(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVEPGM(image, name);
}
bool T2DVECTOR::SAVEPPM(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVEPPM(image, name);
}
bool T2DVECTOR::SAVEBMP(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVEBMP(image, name);
}
bool T2DVECTOR::SAVETGA(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVETGA(image, name);
}
bool T2DVECTOR::SAVETIF(const UTF16 &name) {
    TRGB image;
    return Flat(image) && morvane::SAVETIF(image, name);
}
bool T2DVECTOR::SAVEPAM(const UTF16 &name) {
    TRGBA raster;
    return RENDER(raster) && morvane::SAVEPAM(raster, name);
}
bool T2DVECTOR::SAVEPNG(const UTF16 &name) {
    TRGBA raster;
    return RENDER(raster) && morvane::SAVEPNG(raster, name);
}

bool T2DVECTOR::SAVE(const UTF16 &name) {
    struct FORMAT_ROW {
        const char *extension;
        bool (T2DVECTOR::*save)(const UTF16 &);
    };
    static constexpr FORMAT_ROW FORMATS[] = {
        {"pbm", &T2DVECTOR::SAVEPBM},    {"pgm", &T2DVECTOR::SAVEPGM},
        {"ppm", &T2DVECTOR::SAVEPPM},    {"pnm", &T2DVECTOR::SAVEPPM},
        {"pam", &T2DVECTOR::SAVEPAM},    {"bmp", &T2DVECTOR::SAVEBMP},
        {"tga", &T2DVECTOR::SAVETGA},    {"tif", &T2DVECTOR::SAVETIF},
        {"tiff", &T2DVECTOR::SAVETIF},   {"png", &T2DVECTOR::SAVEPNG},
        {"svgz", &T2DVECTOR::SAVESVGZ},  {"pbm.gz", &T2DVECTOR::SAVEPBM},
        {"pgm.gz", &T2DVECTOR::SAVEPGM}, {"ppm.gz", &T2DVECTOR::SAVEPPM},
        {"pnm.gz", &T2DVECTOR::SAVEPPM}, {"pam.gz", &T2DVECTOR::SAVEPAM},
    };
    const UTF16 extension = LOWERCASE(GETFILEEXTENSION(name));
    for (const FORMAT_ROW &row : FORMATS)
        if (extension == row.extension) return (this->*row.save)(name);
    return SAVESVG(name);
}
} // namespace morvane
