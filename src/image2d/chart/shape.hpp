#pragma once

#include "foundation/base/utf16.hpp"

#include <vector>

// The drawing commands that a vector drawing keeps. Lengths are picture units: (0, 0) is the left
// upper corner of the picture, y runs downwards, a unit is a pixel of the rendering.
namespace morvane {
enum class SHAPE_KIND : BYTE {
    LINE,      // points: from, to
    CURVE,     // start, then pairs of a control point and an end: quadratic arcs
    POLYLINE,  // two points or more
    POLYGON,   // three points or more, closed
    RECTANGLE, // two corners; `radius` rounds them
    CIRCLE,    // centre; `radius`
    ELLIPSE,   // centre, then the two radii as a point; `angle` turns it
    ARC,       // centre; `radius`; from `angle` to `angleEnd`
    SECTOR,    // the same with both ends joined to the centre
    TEXT,      // where the baseline starts, has its middle or ends
};
enum class TEXT_ANCHOR : BYTE { START, MIDDLE, END };

// A rectangle of the picture; empty when an end lies before its beginning.
struct PICTURE_AREA {
    REAL left = 0, top = 0, right = 0, bottom = 0;

    REAL WIDTH() const { return right - left; }
    REAL HEIGHT() const { return bottom - top; }
    bool MEETS(const PICTURE_AREA &other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool HOLDS(const PICTURE_AREA &other) const {
        return left <= other.left && other.right <= right && top <= other.top &&
               other.bottom <= bottom;
    }
    friend bool operator==(const PICTURE_AREA &, const PICTURE_AREA &) = default;
};

// One drawing command. Colours are red, green, blue, alpha of 0..255; alpha 0 draws nothing.
struct SHAPE {
    SHAPE_KIND kind = SHAPE_KIND::LINE;
    bool isBevelled = false; // a rectangle with a lighter upper and a darker lower edge
    bool isUpwards = false;  // a text turned by 90 degrees against the clock
    TEXT_ANCHOR anchor = TEXT_ANCHOR::START;
    NAT font = 0;                     // number of a bitmap font, see canvas/font.hpp
    HYPERNAT stroke, fill;            // a text is written in `fill`
    REAL lineWidth = 1;               // picture units
    REAL radius = 0;                  // picture units
    REAL angle = 0, angleEnd = 0;     // radians from the x axis, against the clock as seen
    REAL size = 1;                    // of a text in em
    std::vector<COMPLEX> points = {}; // by kind
    UTF16 text = {};
    PICTURE_AREA clip = {}; // nothing is drawn outside
};

// An em of text: the bitmap letters' cell in the rendering, and the size of the letters that fill
// it in an SVG, whose usual proportional fonts are wider than the cell's 8 pixels at 16.
inline constexpr REAL EM = 16, LETTER_WIDTH = 8, BASELINE = 12, SVG_EM = 13;
inline constexpr HYPERNAT NO_COLOUR{0, 0, 0, 0};

// The picture area that a shape covers, line width included; a text's by the bitmap letters.
PICTURE_AREA GETBOUNDS(const SHAPE &shape);
// The parts of a polyline inside an area.
std::vector<std::vector<COMPLEX>> CLIP_LINE(const std::vector<COMPLEX> &points,
                                            const PICTURE_AREA &area);
// A polygon's part inside an area; parts may hang together along its border.
std::vector<COMPLEX> CLIP_POLYGON(const std::vector<COMPLEX> &points, const PICTURE_AREA &area);
// The lighter upper and the darker lower edge of a bevelled rectangle.
std::vector<SHAPE> BEVELS(const SHAPE &rectangle);
// The outline of a shape as points at most a few tenths of a unit apart from it; none of texts.
std::vector<COMPLEX> GETOUTLINE(const SHAPE &shape);
} // namespace morvane
