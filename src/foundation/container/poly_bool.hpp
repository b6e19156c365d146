#pragma once

#include "foundation/container/poly.hpp"

namespace morvane {
// Eight flags a byte. The only list that counts from 0: flags 0..BITS-1. LENGTH counts bytes.
class TPOLYBOOL : public TPOLY {
public:
    NAT BITS = 0;         // the logical count of flags
    bool DEFAULT = false; // what a read outside 0..BITS-1 gives
    bool WRITE = true;    // true after INIT; the flag that PUT(i) writes

    TPOLYBOOL() = default;
    explicit TPOLYBOOL(NAT count) { INIT(count); }
    TPOLYBOOL(TPOLYBOOL &&other) noexcept;
    TPOLYBOOL &operator=(TPOLYBOOL &&other) noexcept;

    void INIT();          // empty and dynamic
    void INIT(NAT count); // static, all flags false when the list had another length
    void DONE();
    void NEWLENGTH(NAT count); // counts flags; new ones are false
    void RESIZE(NAT count) { NEWLENGTH(count); }

    bool GET(NAT index) const { return index >= 0 && index < BITS ? _GET(index) : DEFAULT; }
    bool _GET(NAT index) const { return (BYTES()[index >> 3] >> (index & 7) & 1) != 0; }
    void PUT(NAT index, bool value); // behind the end a dynamic list grows
    void PUT(NAT index) { PUT(index, WRITE); }
    void _PUT(NAT index, bool value) {
        const BYTE mask = static_cast<BYTE>(1 << (index & 7));
        BYTE &target = BYTES()[index >> 3];
        target = static_cast<BYTE>(value ? target | mask : target & ~mask);
    }
    void PUSH(bool value) { PUT(BITS, value); }
    void FILL(bool value);
    bool ALLTRUE() const; // an empty list gives true
    NAT COUNT() const;    // flags that are set
    void REPLACE(const TPOLYBOOL &other);

protected:
    BYTE *BYTES() { return static_cast<BYTE *>(DATA); }
    const BYTE *BYTES() const { return static_cast<const BYTE *>(DATA); }
};
} // namespace morvane
