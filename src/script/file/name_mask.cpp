#include "script/file/name_mask.hpp"

namespace morvane {
namespace {
// From the last "*" on, a part that does not fit starts again one character later; so the work is
// at most the product of both lengths.
bool Fits(const UTF16 &name, const UTF16 &mask) {
    NAT n = 1, m = 1, star = 0, retry = 0;
    while (n <= name.LENGTH()) {
        if (mask.IS(m, '*')) {
            star = m++;
            retry = n;
        } else if (m <= mask.LENGTH() && (mask.IS(m, '?') || mask.GETCHAR(m) == name.GETCHAR(n))) {
            ++m;
            ++n;
        } else if (star > 0) {
            m = star + 1;
            n = ++retry;
        } else {
            return false;
        }
    }
    while (mask.IS(m, '*'))
        ++m;
    return m > mask.LENGTH();
}
} // namespace

bool HAS_WILDCARD(const UTF16 &name) { return POS("*", name) > 0 || POS("?", name) > 0; }

bool FITS_MASK(const UTF16 &name, const UTF16 &mask) {
    if (!HAS_WILDCARD(mask)) return name == mask;
    if (name.IS(1, '.') && !mask.IS(1, '.')) return false;
    if (name == UTF16(".") || name == UTF16("..")) return false;
    return Fits(name, mask);
}
} // namespace morvane
