#pragma once

#include "foundation/container/poly_types.hpp"
#include "image2d/chart/vector_drawing.hpp"

namespace morvane {
// A chart: a frame with scales in round steps, captions, curves, marks, points with labels and a
// legend. Ranges and captions are set, then CREATE, then curves; the layout is made when the chart
// is rendered or written, so that labels and legend keep clear of one another and of the curves.
// Shapes drawn with the operations of T2DVECTOR after CREATE lie above it, in the world of the left
// and the bottom axis. A picture of 1280x960 or more has letters and lines of twice the size, and
// so on.
class TGRAPH : public T2DVECTOR {
public:
    NAT SCALE = 5; // steps that a scale aims at, 1 to 20

    TGRAPH() { prepare = Prepare; }
    TGRAPH(NAT width, NAT height) : TGRAPH() { INIT(width, height); }

    void INIT(NAT width, NAT height); // all defaults, without captions, ranges and curves
    void DONE();
    void CLEAR(); // no curves, marks and shapes; captions and ranges stay

    // Captions; UP is the title when the upper axis has no range.
    void LEFT(const UTF16 &text) { SetCaption(axes[0], text); }
    void RIGHT(const UTF16 &text) { SetCaption(axes[1], text); }
    void BOTTOM(const UTF16 &text) { SetCaption(axes[2], text); }
    void UP(const UTF16 &text) { SetCaption(axes[3], text); }
    // Ranges of the axes; an axis without one takes that of its curves, and right and up are not
    // drawn without either. Equal ends are moved apart; ends in falling order turn the axis round.
    void LEFT(REAL min, REAL max) { SetRange(axes[0], min, max); }
    void RIGHT(REAL min, REAL max) { SetRange(axes[1], min, max); }
    void BOTTOM(REAL min, REAL max) { SetRange(axes[2], min, max); }
    void UP(REAL min, REAL max) { SetRange(axes[3], min, max); }

    void CREATE(); // draws the frame with the captions and ranges set so far
    // Starts a curve on the left or right and the bottom or upper axis, with the next colour of a
    // palette that colour-blind readers can tell apart; VALUE and LINEWIDTH may be changed before
    // its first point. Without SELECT the first curve has the pen and its line width.
    void SELECT(bool left = true, bool bottom = true);
    void LEGEND(const UTF16 &text); // names the curve that SELECT started
    void FILL();                    // blends the area between that curve and zero
    using T2DVECTOR::CURVE;
    void CURVE(REAL x, REAL y);      // the next point of the polyline
    void HISTOCURVE(REAL x, REAL y); // the next point as a step: up to x the value before, then y
    using T2DVECTOR::VLINE;
    using T2DVECTOR::VVLINE;
    // A vertical mark from the axis up to y, in the axes of the last SELECT; plain or blended.
    void VLINE(REAL x, REAL y);
    void VVLINE(REAL x, REAL y);
    // A marked point with a label. A label stands where it covers no other, no curve if that can be
    // had, and stays inside the frame; one that finds no place is left out. Points come first that
    // were given first.
    void POI(REAL x, REAL y, const UTF16 &text);

    // Draw the scale of a side: line, steps, numbers and caption.
    void _LEFT_WRITE();
    void _RIGHT_WRITE();
    void _BOTTOM_WRITE();
    void _UP_WRITE();

protected:
    void NOTE(const UTF16 &text); // a text in the middle of the frame

private:
    friend class GRAPH_LAYOUT;
    struct AXIS {
        UTF16 caption;
        RANGE range{0, 1};
        bool isRanged = false;
    };
    struct LINE_OF_POINTS {
        bool isLeft = true, isBottom = true, isFilled = false;
        HYPERNAT colour;
        REAL lineWidth = 1;
        UTF16 legend;
        TPOLYCOMPLEX points; // world coordinates
    };
    struct POINT_OF_INTEREST {
        bool isLeft, isBottom;
        COMPLEX at;
        UTF16 text;
    };
    struct MARK {
        bool isLeft, isBottom, isBlended;
        HYPERNAT colour;
        REAL lineWidth;
        COMPLEX at;
    };
    void SetCaption(AXIS &axis, const UTF16 &text);
    void SetRange(AXIS &axis, REAL min, REAL max);
    static void Prepare(T2DVECTOR &drawing);
    void StartCurve();

    AXIS axes[4]; // left, right, bottom, up
    std::vector<LINE_OF_POINTS> curves;
    std::vector<MARK> marks;
    std::vector<POINT_OF_INTEREST> points;
    bool isLeft = true, isBottom = true, isCreated = false;
    UTF16 note;
    NAT selected = 0;         // curves started by SELECT
    NAT legendRows = 0;       // above the frame, when the legend has no place inside
    std::size_t prepared = 0; // shapes at the list's front that Prepare made
};
} // namespace morvane
