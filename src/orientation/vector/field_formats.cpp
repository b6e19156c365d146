#include "field3d/format/file_base.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_formats_table.hpp"
#include "orientation/vector/vector_store.hpp"
#include "orientation/vector/vector_text.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

// Formats that are written only: AVS field, AmiraMesh text, numbered lines.
namespace morvane {
namespace {
void AppendNat(std::string &text, NAT value) { text += std::to_string(value); }

// Values joined by a blank.
template <class LIST> void AppendJoined(std::string &text, const LIST &values) {
    bool first = true;
    for (const REAL value : values) {
        if (!first) text += ' ';
        APPEND_NUMBER(text, value);
        first = false;
    }
}

std::string SizeText(const VECTORNAT &size) {
    return std::to_string(size.x) + "x" + std::to_string(size.y) + "x" + std::to_string(size.z);
}

// f(x, y, z) of every voxel in file order, with progress.
template <class F> void EachVoxel(const T3D_VECTOR_ANALYSIS &field, F f) {
    const VECTORNAT size = field.SIZE();
    const UTF16 label = VECTOR_LABEL(field);
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x)
                f(x, y, z);
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
}

template <class NUMBER> void AppendBytes(std::string &text, NUMBER value) {
    char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    text.append(bytes, sizeof bytes);
}

// One component as 32 bits: a float, or a whole number limited to that range.
void AppendComponent(std::string &text, REAL value, bool isFloat) {
    constexpr NAT LOW = std::numeric_limits<std::int32_t>::min();
    constexpr NAT HIGH = std::numeric_limits<std::int32_t>::max();
    if (isFloat)
        AppendBytes(text, static_cast<float>(value));
    else
        AppendBytes(text, static_cast<std::int32_t>(LIMIT(ROUND(value), LOW, HIGH)));
}

std::string AvsHeader(const T3D_VECTOR_ANALYSIS &field) {
    const VECTORNAT size = field.SIZE();
    const std::array<REAL, 6> e = EXTENTS_OF(field);
    std::string text = "# AVS field file\nndim=3\n";
    text += "dim1=" + std::to_string(size.x) + "\ndim2=" + std::to_string(size.y) +
            "\ndim3=" + std::to_string(size.z) + "\nnspace=3\nveclen=3\n";
    text += field._GETID() == VECTOR_FLOAT ? "data=float\n" : "data=integer\n";
    text += "field=uniform\nmin_ext=";
    AppendJoined(text, std::array{e[0], e[2], e[4]});
    text += "\nmax_ext=";
    AppendJoined(text, std::array{e[1], e[3], e[5]});
    return text + "\n\f\f"; // the two bytes part the text from the data
}
} // namespace

UTF16 VECTOR_LABEL(const T3D_VECTOR_ANALYSIS &field) {
    const UTF16 kind = field._GETID() == VECTOR_FLOAT ? "  3DVector with (" : "  3DVector32 with (";
    return kind + SizeText(field.SIZE()) + ")";
}

std::array<REAL, 6> EXTENTS_OF(const T3D_VECTOR_ANALYSIS &field) {
    const VECTOR low = field.GETFRAME().MOVE();
    const VECTOR high = low + (TO_REAL(field.SIZE()) - 1) * field._GETSCALE();
    return {low.x, high.x, low.y, high.y, low.z, high.z};
}

bool WRITE_VECTOR_FLD(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    constexpr std::size_t BLOCK = 8180 * 4; // flushed from so many values on
    if (!field.ISNOTEMPTY()) return false;
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, WITHEXTENSION(name, "fld"))) return false;
    file.WRITE(AvsHeader(field));
    const bool isFloat = field._GETID() == VECTOR_FLOAT;
    std::string buffer;
    EachVoxel(field, [&](NAT x, NAT y, NAT z) {
        const VECTOR v = field.GET(x, y, z);
        AppendComponent(buffer, v.x, isFloat);
        AppendComponent(buffer, v.y, isFloat);
        AppendComponent(buffer, v.z, isFloat);
        if (buffer.size() < BLOCK) return;
        file.WRITE(std::string_view(buffer));
        buffer.clear();
    });
    for (const REAL extent : EXTENTS_OF(field))
        AppendBytes(buffer, static_cast<float>(extent));
    file.WRITE(std::string_view(buffer));
    return file.COMMIT();
}

bool WRITE_VECTOR_AM(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    if (!field.ISNOTEMPTY()) return false;
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, WITHEXTENSION(name, "am"))) return false;
    const VECTORNAT size = field.SIZE();
    TEXT_WRITER text(file);
    text.buffer = "# AmiraMesh 3D ASCII 2.0\ndefine Lattice " + std::to_string(size.x) + " " +
                  std::to_string(size.y) + " " + std::to_string(size.z) +
                  "\nParameters {\n    Content \"" + SizeText(size) +
                  " float[3], uniform coordinates\",\n    BoundingBox ";
    AppendJoined(text.buffer, EXTENTS_OF(field));
    text.buffer += ",\n    CoordType \"uniform\"\n}\nLattice { float[3] Data } @1\n"
                   "# Data section follows\n@1\n";
    EachVoxel(field, [&](NAT x, NAT y, NAT z) {
        const VECTOR v = field.GET(x, y, z);
        AppendJoined(text.buffer, std::array{v.x, v.y, v.z});
        text.buffer += '\n';
        text.CHECK();
    });
    text.FLUSH();
    return file.COMMIT();
}

// number, x, y, z, vx, vy, vz: the voxel's global position and its vector.
bool WRITE_VECTOR_LIMBERT(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    if (!field.ISNOTEMPTY()) return false;
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, WITHEXTENSION(name, "limbert"))) return false;
    TEXT_WRITER text(file);
    NAT number = 0;
    EachVoxel(field, [&](NAT x, NAT y, NAT z) {
        const VECTOR p = field.GETFRAME().L2G(TO_REAL(VECTORNAT{x, y, z})), v = field.GET(x, y, z);
        AppendNat(text.buffer, ++number);
        for (const REAL value : {p.x, p.y, p.z, v.x, v.y, v.z}) {
            text.buffer += ", ";
            APPEND_NUMBER(text.buffer, value, 5);
        }
        text.buffer += '\n';
        text.CHECK();
    });
    text.FLUSH();
    return file.COMMIT();
}
} // namespace morvane
