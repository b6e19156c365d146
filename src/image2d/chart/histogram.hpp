#pragma once

#include "image2d/chart/graph.hpp"

namespace morvane {
// A chart of one list or two. Captions and title are set before, HISTOGRAM draws, SAVE writes.
// Values that are no number are left out; an empty list gives an empty frame that says so.
class THISTOGRAM : public TGRAPH {
public:
    static constexpr NAT KIND = 195;
    REAL LOGBASE = 0; // the values drawn are the logarithms to this base; 0: the values themselves

    THISTOGRAM() = default;
    THISTOGRAM(NAT width, NAT height) { INIT(width, height); }
    void INIT(NAT width, NAT height);

    // Bins as filled steps; `first` is the place of bin 1 on the bottom axis, 0 for grey values.
    // Of more than 256 bins those from the first to the last one with a count are shown.
    void HISTOGRAM(const TPOLYNAT &bins, REAL first = 0);
    // Values by their position as a curve; `first` is the place of position 1.
    void HISTOGRAM(const TPOLYREAL &values, REAL first = 1);
    // Two such curves, such as the smallest and the largest values. LEGENDS names them.
    void HISTOGRAM(const TPOLYREAL &a, const TPOLYREAL &b, REAL first = 1);
    // Pairs of a place and its count in ascending order, as filled steps; places between are 0.
    void HISTOGRAM(const TPOLYCOMPLEXNAT &pairs);
    void LEGENDS(const UTF16 &a, const UTF16 &b);

    // The value as it is drawn: its logarithm when LOGBASE is set.
    REAL DRAWN(REAL value) const;
    // Sets both ranges, the left one through the logarithm and with room above, and draws the
    // frame.
    void _MHISTO(const RANGE &bottom, const RANGE &left);
    // Adds the values as a curve in the frame that stands.
    void _MADDHISTO(const TPOLYREAL &values, REAL first = 1);

private:
    void Curves(std::span<const TPOLYREAL *const> lists, REAL first);
    void Steps(const TPOLYCOMPLEX &steps);
    UTF16 legends[2];
};
} // namespace morvane
