#pragma once

#include "image2d/chart/graph.hpp"
#include "image2d/chart/label_places.hpp"
#include "image2d/chart/scale_steps.hpp"

namespace morvane {
// Where the parts of a chart stand, worked out from its captions, ranges and curves, and their
// drawing as shapes of the chart. Used by TGRAPH alone.
class GRAPH_LAYOUT {
public:
    enum SIDE { LEFT, RIGHT, BOTTOM, UP };
    explicit GRAPH_LAYOUT(TGRAPH &graph);

    const PICTURE_AREA &FRAME() const { return frame; }
    const RANGE &AXIS(SIDE side) const { return scales[side].range; }
    void DRAW();               // everything
    void DRAWSCALE(SIDE side); // line, steps, numbers, caption

private:
    // Picture units in a picture of 640x480: lengths of the steps, gap between what stands beside.
    static constexpr REAL TICK = 6, SMALL_TICK = 3, GAP = 3;
    struct SCALE {
        bool isShown = false;
        RANGE range;
        SCALE_STEPS steps;
        UTF16 caption, power; // power: the power of ten that its numbers share, in words
    };
    using CURVE = TGRAPH::LINE_OF_POINTS;

    void SetRanges();
    void SetCaption(SCALE &scale);
    void ArrangeAcross(REAL top, REAL bottom);
    void Arrange();
    COMPLEX Map(const COMPLEX &world, bool isLeft, bool isBottom) const;
    std::vector<std::vector<COMPLEX>> Lines(const CURVE &curve) const;
    REAL Crisp(REAL coordinate) const;
    PICTURE_AREA Picture() const;
    void Stroke(const COMPLEX &a, const COMPLEX &b, REAL lineWidth, const HYPERNAT &colour);
    void Text(const COMPLEX &at, const UTF16 &text, TEXT_ANCHOR anchor, bool isUpwards = false);
    static UTF16 Caption(const SCALE &scale, REAL letters);
    void Captions(SIDE side);
    void Step(SIDE side, REAL value, REAL length);
    void DrawFill(const CURVE &curve, const std::vector<COMPLEX> &line);
    void DrawDot(const CURVE &curve, const COMPLEX &at);
    void DrawCurves(LABEL_PLACES &places);
    void DrawMarks(LABEL_PLACES &places);
    std::vector<COMPLEX> DrawSpots(LABEL_PLACES &places);
    void DrawLabels(LABEL_PLACES &places, const std::vector<COMPLEX> &spots);
    bool DrawLegend(LABEL_PLACES &places);
    std::vector<const CURVE *> Named() const;
    void LegendEntry(const CURVE &curve, const COMPLEX &at, NAT letters);
    void LegendAbove();
    NAT LegendColumns() const;

    TGRAPH &graph;
    REAL unit = 1; // lengths are made for a picture of 640x480 and multiplied by this
    bool hasText = true, hasCaptions = true;
    PICTURE_AREA frame;
    SCALE scales[4];
};
} // namespace morvane
