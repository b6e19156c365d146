#pragma once

#include "image2d/canvas/rgb.hpp"
#include "image2d/chart/shape.hpp"

namespace morvane {
// The share of each pixel that a shape covers, gathered piece by piece and then laid on an image
// in one colour, so that pieces of one shape that meet leave no seam. Picture units.
class COVERAGE {
public:
    // False without memory, which is told.
    bool INIT(NAT width, NAT height);
    // A closed polygon by its exact area in each pixel. One that crosses itself covers what it
    // winds around once.
    void FILL(const std::vector<COMPLEX> &points);
    // A line of that width with round joints; its ends are cut straight on rows and columns and
    // round else. An upright or level piece covers its exact area.
    void STROKE(const std::vector<COMPLEX> &points, REAL lineWidth, bool isClosed);
    // A rectangle covered by `share`, added to what is there.
    void ADD(const PICTURE_AREA &area, REAL share);
    // Lays the colour on the image where something is covered and forgets it.
    void APPLY(TRGBA &image, const HYPERNAT &colour, const PICTURE_AREA &clip);

private:
    struct RANGES {
        NAT left, top, right, bottom; // pixels from 0, the ends not included
    };
    RANGES Pixels(const PICTURE_AREA &area) const;
    void Segment(const COMPLEX &a, const COMPLEX &b, REAL lineWidth);
    void Edge(const COMPLEX &a, const COMPLEX &b);
    void Touch(const RANGES &pixels);
    REAL *Row(NAT y) { return covered._INDEX(y * width + 1); }
    REAL *AreaRow(NAT y) { return areas._INDEX(y * (width + 2) + 1); }

    NAT width = 0, height = 0;
    TPOLY_OF<REAL> covered; // shares of 0..1
    TPOLY_OF<REAL> areas;   // changes of the filled area along a row, two more a row
    RANGES touched{};
};
} // namespace morvane
