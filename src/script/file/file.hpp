#pragma once

#include "foundation/base/utf16.hpp"

#include <memory>

namespace morvane {
// A whole file in one byte buffer. A name ending in gz is unpacked on loading and packed on saving.
class TFILE {
public:
    TFILE() = default;
    TFILE(const TFILE &) = delete;
    TFILE &operator=(const TFILE &) = delete;

    // Frees what was held and reads the file; a failure is told and leaves an empty buffer.
    bool LOAD(const UTF16 &name);
    // The same from memory, without a file and without a line on the console.
    bool LOADBYTES(std::string_view bytes);
    bool SAVE(const UTF16 &name) const; // beside the target, then renamed; a failure is told
    void DONE();                        // empty and ready for LOAD

    NAT SIZE() const { return size; } // bytes
    std::string_view VIEW() const { return {block.get(), static_cast<std::size_t>(size)}; }
    // Position, from 1, of a text at or behind `start`; 0: not found.
    NAT SEARCHPOS(std::string_view text, NAT start = 1) const;

protected:
    char *Bytes() { return block.get(); }
    bool Reserve(NAT capacity); // an unset block, SIZE 0; told when memory runs out
    void SetSize(NAT count);    // bytes of the block that are filled
    void Swap(TFILE &other);

private:
    bool Grow(NAT &capacity);
    bool _LOADHELP(const UTF16 &name);
    bool _LOADGZ(const UTF16 &name);
    bool _SAVEHELP(const UTF16 &name) const;
    bool _SAVEGZ(const UTF16 &name) const;

    std::unique_ptr<char[]> block;
    NAT size = 0;
};
} // namespace morvane
