#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace morvane {
namespace {
static_assert(std::endian::native == std::endian::little); // records are written as they lie

constexpr std::size_t HEADER_SIZE = 1000;
constexpr NAT SCALARS = 0, PROPERTIES = 0; // floats of a point beside x, y, z; floats of a line

// The header, its fields appended in the order of the format.
class TRACK_HEADER {
public:
    template <class VALUE> void PUT(VALUE value) {
        std::memcpy(bytes.data() + used, &value, sizeof value);
        used += sizeof value;
    }
    void PUT_TEXT(std::string_view text, std::size_t width) {
        std::memcpy(bytes.data() + used, text.data(), text.size());
        used += width;
    }
    void SKIP(std::size_t count) { used += count; } // the bytes stay 0
    std::size_t USED() const { return used; }
    const char *DATA() const { return bytes.data(); }

private:
    std::array<char, HEADER_SIZE> bytes{};
    std::size_t used = 0;
};

template <class WHOLE> WHOLE LIMITED(REAL value) {
    return static_cast<WHOLE>(LIMIT(ROUND(value), NAT{std::numeric_limits<WHOLE>::min()},
                                    NAT{std::numeric_limits<WHOLE>::max()}));
}

TRACK_HEADER MAKE_HEADER(const TCLOUD &cloud) {
    TRACK_HEADER header;
    header.PUT_TEXT("TRACK", 6);
    for (const REAL size : {cloud.dimension.x, cloud.dimension.y, cloud.dimension.z})
        header.PUT(LIMITED<std::int16_t>(size));
    for (const REAL size : {cloud.scale.x, cloud.scale.y, cloud.scale.z})
        header.PUT(static_cast<float>(size));
    for (const REAL place : {cloud.offset.x, cloud.offset.y, cloud.offset.z})
        header.PUT(static_cast<float>(place));
    header.PUT(static_cast<std::int16_t>(SCALARS));
    header.SKIP(10 * 20); // scalar_name
    header.PUT(static_cast<std::int16_t>(PROPERTIES));
    header.SKIP(10 * 20);                                         // property_name
    header.SKIP(16 * sizeof(float));                              // vox_to_ras
    header.SKIP(444);                                             // reserved
    header.PUT_TEXT("LPS", 4);                                    // voxel_order
    header.PUT_TEXT("LPS", 4);                                    // pad2
    for (const float part : {1.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f}) // image_orientation_patient
        header.PUT(part);
    header.SKIP(2); // pad1
    header.SKIP(6); // invert_x to swap_zx
    header.PUT(LIMITED<std::int32_t>(static_cast<REAL>(cloud.GETLINELENGTH())));
    header.PUT(std::int32_t{2}); // version
    header.PUT(static_cast<std::int32_t>(HEADER_SIZE));
    return header;
}

void WRITE_TRACK(LINE_WRITER &out, std::span<const HYPER> points) {
    const auto count = static_cast<std::int32_t>(points.size());
    out.BYTES(&count, sizeof count);
    for (const HYPER &point : points) {
        const std::array<float, 3 + SCALARS> place = {
            static_cast<float>(point.x), static_cast<float>(point.y), static_cast<float>(point.z)};
        out.BYTES(place.data(), sizeof place);
    }
}
} // namespace

bool SAVE_TRACKVIS(const TCLOUD &cloud, const UTF16 &name) {
    LINE_WRITER out(name, "  Write Track-file");
    if (!out.OPEN()) return false;
    const TRACK_HEADER header = MAKE_HEADER(cloud);
    out.BYTES(header.DATA(), header.USED());
    const NAT lines = cloud.GETLINELENGTH();
    for (NAT line = 1; line <= lines; ++line) {
        WRITE_TRACK(out, cloud.GETSPAN(line));
        out.SHOW(line, lines);
    }
    return out.COMMIT();
}
} // namespace morvane
