#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/base/utf16chars7.hpp"

namespace morvane {
// The kinds of a tensor field; any other tag byte means "no storage".
inline constexpr BYTE TENSOR_FLOAT = 88;   // six doubles a voxel
inline constexpr BYTE TENSOR_INTEGER = 89; // six signed 64-bit integers

// One symmetric tensor a voxel on the grid of a FRAME. Coordinates start at 1, x runs fastest.
class T3D_TENSOR_ANALYSIS {
public:
    UTF16CHARS7 NAME; // the file last loaded

    T3D_TENSOR_ANALYSIS() = default;
    explicit T3D_TENSOR_ANALYSIS(BYTE tag) { INIT(tag); }
    ~T3D_TENSOR_ANALYSIS() { DONE(); }
    T3D_TENSOR_ANALYSIS(const T3D_TENSOR_ANALYSIS &) = delete;
    T3D_TENSOR_ANALYSIS &operator=(const T3D_TENSOR_ANALYSIS &) = delete;

    void INIT(BYTE tag); // an empty field of that kind; of an unknown one without storage
    void DONE();         // no storage; INIT may follow

    BYTE ID() const { return kind; } // 88, 89, or 0
    NAT SIZEX() const { return size.x; }
    NAT SIZEY() const { return size.y; }
    NAT SIZEZ() const { return size.z; }

    const FRAME &GETFRAME() const { return frame; }
    void SETFRAME(const FRAME &value) { frame = value; }

private:
    FRAME frame;
    BYTE kind = 0;
    VECTORNAT size = VZERONAT;
};
} // namespace morvane
