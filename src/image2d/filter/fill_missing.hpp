#pragma once

#include "image2d/canvas/canvas.hpp"

#include <array>
#include <vector>

namespace morvane {
// Fills pixels by interpolation: each missing one becomes the mean of its 4 neighbours, all at
// once (the discrete Laplace equation), so that a plane is restored; pixels outside the image count
// not at all. Made once for a mask, used for each plane of an image. Throws bad_alloc without
// memory.
class MISSING_PIXELS {
public:
    explicit MISSING_PIXELS(const TCANVAS &missing); // 1: missing, 0: known
    // Nothing when all pixels are missing. Values are rounded.
    template <class PIXEL> void FILL(CANVAS<PIXEL> &canvas);
    NAT COUNT() const { return static_cast<NAT>(offsets.size()); }
    int ROUNDS() const { return rounds; } // of the last FILL until all were near enough

private:
    using INDEX = std::uint32_t; // of an unknown, from 1; 0: none
    // The unknowns of one level of the preconditioner, each standing for 2x2 of the level below.
    struct LEVEL {
        NAT width = 0, height = 0;
        std::vector<INDEX> places; // by pixel, only while the levels are made
        std::vector<std::array<INDEX, 4>> parents;
        std::vector<REAL> scales; // the inverse of each row's diagonal; all levels but the finest
        std::vector<REAL> rest, step;
        NAT count = 0;
    };
    void MakeParents(LEVEL &fine, LEVEL &coarse);
    void MakeScales();
    void Precondition();
    void Multiply(const std::vector<REAL> &x, std::vector<REAL> &product) const;
    void Solve(std::vector<REAL> &x, const std::vector<REAL> &sums);

    std::vector<NAT> offsets; // of the unknowns in the image, in scan order
    std::vector<std::array<INDEX, 4>> neighbours;
    std::vector<REAL> degrees; // neighbours within the image
    std::vector<LEVEL> levels;
    NAT pixelCount = 0, imageWidth = 0;
    int rounds = 0;
};
} // namespace morvane
