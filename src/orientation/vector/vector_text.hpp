#pragma once

#include "field3d/format/read_raw.hpp"
#include "foundation/console/files.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <string>
#include <string_view>

// What the text formats of vector fields share.
namespace morvane {
class TFILEREADTEXT;

// "  3DVector with (XxYxZ)": the progress line of readers and writers; 3DVector32 of whole numbers.
UTF16 VECTOR_LABEL(const T3D_VECTOR_ANALYSIS &field);
// Frame of a header file into the field; false: there is none, which has been told.
bool READ_VECTOR_FRAME(const UTF16 &name, T3D_VECTOR_ANALYSIS &field);

// The shortest text that reads back as the same number, with a point whatever FORMAT says.
void APPEND_NUMBER(std::string &text, REAL value);
void APPEND_NUMBER(std::string &text, REAL value, int decimals);
void APPEND_VECTOR(std::string &text, const VECTOR &value); // <1, 2, 3>
// Global positions of the first and the last voxel on each axis, without the rotation:
// x minimum, x maximum, y minimum and so on.
std::array<REAL, 6> EXTENTS_OF(const T3D_VECTOR_ANALYSIS &field);

// The text layout. Line 1 is "size: <X, Y, Z>", line 2 "offset: <x, y, z>", line 3 "matrix: " and
// its rows; then one line "<x, y, z> <vx, vy, vz>" for each vector that is not zero: position in
// voxels and vector. Without the first lines the largest positions make the size; a line that
// starts with # is a comment, lines with fewer than six numbers are passed over.
// A field of more than `freeBytes` needs a byte of text for each 1024 voxels: some bytes may claim
// any size. False: the field is empty and a line has told why.
bool READ_VECTOR_TEXT(T3D_VECTOR_ANALYSIS &field, BYTE tag, const TFILEREADTEXT &text,
                      NAT freeBytes = SHORT_FIELD_BYTES);

// Lines on their way into a file, in blocks.
class TEXT_WRITER {
public:
    explicit TEXT_WRITER(FILE_WRITE &target) : file(target) {}
    std::string buffer; // what is to be written
    void CHECK() {      // call after each line
        if (buffer.size() >= BLOCK) FLUSH();
    }
    void FLUSH() {
        file.WRITE(std::string_view(buffer));
        buffer.clear();
    }

private:
    static constexpr std::size_t BLOCK = 1 << 16;
    FILE_WRITE &file;
};
} // namespace morvane
