#pragma once

#include "image2d/canvas/canvas.hpp"
#include "image2d/chart/shape.hpp"

namespace morvane {
// What of a picture is taken, so that labels and legends keep clear: texts and marks as rectangles,
// curves as cells of a coarse grid. Picture units.
class LABEL_PLACES {
public:
    // Labels stay inside `frame`; `unit` is the size of an em divided by 16.
    LABEL_PLACES(NAT width, NAT height, const PICTURE_AREA &frame, REAL unit);

    void TAKE(const PICTURE_AREA &area) { taken.push_back(area); }
    void TAKELINE(const std::vector<COMPLEX> &points);
    // A place for a label of that size around a marked point: inside the frame, on nothing that is
    // taken, off the curves if that can be had, near the point. False when there is none.
    bool PLACE(const COMPLEX &point, REAL width, REAL height, PICTURE_AREA &place) const;
    // A place for a box along the frame's border that covers no curve, corners first. False when
    // there is none.
    bool PLACEBOX(REAL width, REAL height, PICTURE_AREA &place) const;

private:
    bool IsFree(const PICTURE_AREA &area) const;
    NAT CurveCells(const PICTURE_AREA &area) const;
    NAT Cell(REAL coordinate) const;

    PICTURE_AREA frame;
    REAL unit;
    TGRAY cells; // 255 where a curve runs; empty without memory, then curves are not avoided
    std::vector<PICTURE_AREA> taken;
};
} // namespace morvane
