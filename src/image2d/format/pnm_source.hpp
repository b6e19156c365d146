#pragma once

#include "foundation/console/files.hpp"

#include <vector>

namespace morvane {
// The bytes of a file from its beginning on: plain, or unpacked when the name ends in "gz".
class PNM_SOURCE {
public:
    bool OPEN(const UTF16 &name); // tells its line, or the failure
    UTF16 NEXT_WORD();            // of the header; empty at the end
    // Whether that many bytes follow; when not, that is told. A packed file is unpacked into memory
    // for the answer, which grows with what the file really holds.
    bool ENSURE(NAT count);
    NAT READ(void *target, NAT count); // bytes read; fewer at the end
    // No damage has been found; when all bytes were read, the checksum of a packed file counts too.
    // A damage is told.
    bool INTACT() const;

private:
    bool Unpack(NAT count);

    UTF16 name;
    FILE_READ plain;
    GZ_READ packed;
    std::vector<BYTE> memory; // unpacked ahead
    NAT taken = 0;            // of the memory
};

// The numbers of an ascii file, parted by white space; "#" starts a comment up to the end of its
// line.
class PNM_NUMBERS {
public:
    explicit PNM_NUMBERS(PNM_SOURCE &file) : source(file) {}
    // The next number, limited to 65535. `digits`: each digit is a number of its own. A failure is
    // told.
    bool NEXT(WORD &number, bool digits);

private:
    static constexpr NAT BUFFER_BYTES = 65536;
    int Byte(); // EOF at the end
    int Skip(); // the first byte that is neither white space nor in a comment

    PNM_SOURCE &source;
    std::vector<BYTE> buffer;
    std::size_t at = 0;
};
} // namespace morvane
