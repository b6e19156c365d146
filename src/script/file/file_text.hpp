#pragma once

#include "script/file/file.hpp"

#include <vector>

namespace morvane {
// A file with an index of its lines, which start at 1; the bytes stay as they are in the file. A
// line ends with a line feed, a carriage return, or both in that order; a last line without an end
// counts when it has characters. A file of fewer than 2 bytes has no lines.
class TFILEREADTEXT : public TFILE {
public:
    bool LOAD(const UTF16 &name); // a failure is told and leaves no lines
    bool LOADBYTES(std::string_view bytes);
    void DONE();

    NAT LENGTH() const { return static_cast<NAT>(lines.size()); } // count of lines
    UTF16 GET(NAT line) const;                // decoded; empty outside 1..LENGTH
    std::string_view GETVIEW(NAT line) const; // the same as raw UTF-8 bytes, valid until a change
    NAT POSGET(NAT line) const;               // byte position, from 1, of its start; 0 outside

    // Little-endian values at a byte position from 1; 0 where the file does not hold all of it.
    BYTE GETBYTE(NAT position) const;
    std::int32_t GETINT(NAT position) const;
    float GETSINGLE(NAT position) const;
    HYPERNAT GETRGBA(NAT position) const;          // four bytes
    std::string_view GETPCHAR(NAT position) const; // up to a zero byte or the end of the file

protected:
    struct LINE {
        NAT start, length; // offset from 0, bytes without the line end
    };
    bool IndexLines(); // of the buffer as it is; false when memory runs out
    std::vector<LINE> lines;
};

// A text file cut into lines in place: every byte of a line end is a zero byte.
class TFILETEXT : public TFILEREADTEXT {
public:
    bool LOAD(const UTF16 &name);
    bool LOADBYTES(std::string_view bytes);

protected:
    void CutLines(); // zero bytes for the line ends of the index
};
} // namespace morvane
