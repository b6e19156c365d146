#include "image2d/format/raster_target.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>
#include <new>
#include <vector>

namespace morvane {
namespace {
constexpr NAT BATCH = NAT{1} << 19; // bytes written at once, more than a file under way buffers

// May throw for memory.
bool WriteBatches(FILE_WRITE &file, const FLAT_ROWS &rows) {
    const NAT most = std::clamp(BATCH / rows.bytes, NAT{1}, rows.count);
    std::vector<BYTE> batch(static_cast<std::size_t>(most * rows.bytes));
    for (NAT done = 0; done < rows.count;) {
        const NAT part = std::min(most, rows.count - done);
        for (NAT i = 1; i <= part; ++i) {
            const NAT y = rows.bottomUp ? rows.count + 1 - done - i : done + i;
            rows.fill(y, batch.data() + (i - 1) * rows.bytes);
        }
        if (!file.WRITE(batch.data(), part * rows.bytes)) return false;
        done += part;
    }
    return true;
}
} // namespace

UTF16 WITH_EXTENSION(const UTF16 &name, std::initializer_list<std::string_view> extensions,
                     bool zipped) {
    const std::string own = GETUTF8(LOWERCASE(GETFILEEXTENSION(name)));
    for (const std::string_view extension : extensions)
        if (own == extension || (zipped && own == std::string(extension) + ".gz")) return name;
    return name + UTF16("." + std::string(*extensions.begin()));
}

bool OPEN_RASTER(FILE_WRITE &file, const UTF16 &name) {
    const bool isPacked = LOWERCASE(COPY(name, name.LENGTH() - 2, 3)) == ".gz";
    return isPacked ? ASSIGNGZWRITE(file, name) : ASSIGNWRITE(file, name);
}

bool IS_WRITABLE(NAT width, NAT height, NAT longest) {
    if (width < 1 || height < 1) {
        WRITELN("  Empty image - not written!");
        return false;
    }
    return (width <= longest && height <= longest) || TELL_TOO_LARGE(width, height);
}

bool TELL_TOO_LARGE(NAT width, NAT height) {
    WRITELN("  Image (" + GETUTF8(GETSTRING(width)) + "x" + GETUTF8(GETSTRING(height)) +
            ") is too large for this format - not written!");
    return false;
}

bool WRITE_ROWS(FILE_WRITE &file, const FLAT_ROWS &rows) {
    try {
        return WriteBatches(file, rows);
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
}
} // namespace morvane
