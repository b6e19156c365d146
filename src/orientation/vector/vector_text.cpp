#include "orientation/vector/vector_text.hpp"

#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/space.hpp"
#include "orientation/vector/vector_formats_table.hpp"
#include "script/file/file_text.hpp"

#include <algorithm>
#include <array>
#include <charconv>

// Vectors as lines of text.
namespace morvane {
namespace {
constexpr NAT VOXELS_A_BYTE = 1024; // a text of n bytes may tell of n * 1024 voxels
constexpr NAT LARGEST_POSITION = NAT{1} << 31;

bool StartsNumber(char c) {
    return (c >= '0' && c <= '9') || c == '-' || c == '.' || c == 'n' || c == 'i';
}

// The next number of a line, removed from it; false: there is none.
bool NextNumber(std::string_view &line, REAL &value) {
    while (!line.empty()) {
        if (StartsNumber(line.front())) {
            const auto [end, code] = std::from_chars(line.data(), line.data() + line.size(), value);
            // Out of range is a number too, read as 0.
            if (code == std::errc::result_out_of_range) value = 0;
            if (code != std::errc::invalid_argument) {
                line.remove_prefix(static_cast<std::size_t>(end - line.data()));
                return true;
            }
        }
        line.remove_prefix(1);
    }
    return false;
}

template <std::size_t N> bool Numbers(std::string_view &line, std::array<REAL, N> &values) {
    for (REAL &value : values)
        if (!NextNumber(line, value)) return false;
    return true;
}

// Three whole numbers, exact also above 2^53; false when one has a fraction or an exponent.
bool WholeNumbers(std::string_view line, VECTORNAT &v) {
    for (NAT *part : {&v.x, &v.y, &v.z}) {
        while (!line.empty() && !StartsNumber(line.front()))
            line.remove_prefix(1);
        const auto [end, code] = std::from_chars(line.data(), line.data() + line.size(), *part);
        if (code != std::errc()) return false;
        line.remove_prefix(static_cast<std::size_t>(end - line.data()));
        if (!line.empty() && (line.front() == '.' || line.front() == 'e')) return false;
    }
    return true;
}

bool CutKey(std::string_view &line, std::string_view key) {
    if (!line.starts_with(key)) return false;
    line.remove_prefix(key.size());
    return true;
}

struct VOXEL_LINE {
    VECTORNAT position;
    VECTOR value;
    std::string_view text; // of the value
};

// False for a line that holds no voxel.
bool ReadVoxel(std::string_view line, VOXEL_LINE &voxel) {
    std::array<REAL, 3> p{}, v{};
    if (line.empty() || line.front() == '#' || !Numbers(line, p)) return false;
    voxel.text = line;
    if (!Numbers(line, v)) return false;
    voxel.position = ROUND(VECTOR{p[0], p[1], p[2]});
    voxel.value = {v[0], v[1], v[2]};
    return INTO(voxel.position, VNORMNAT, VECTORNAT{} + LARGEST_POSITION);
}

// What the first lines tell, and what the positions ask for.
struct TEXT_HEADER {
    VECTORNAT size;
    FRAME frame;
    bool sized = false;
};

TEXT_HEADER ReadTextHeader(const TFILEREADTEXT &text) {
    TEXT_HEADER header;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        std::string_view line = text.GETVIEW(i);
        std::array<REAL, 3> v{};
        std::array<REAL, 9> m{};
        VOXEL_LINE voxel;
        if (CutKey(line, "size:")) {
            header.sized = Numbers(line, v);
            if (header.sized) header.size = ROUND(VECTOR{v[0], v[1], v[2]});
        } else if (CutKey(line, "offset:") && Numbers(line, v)) {
            header.frame.SETMOVE({v[0], v[1], v[2]});
        } else if (CutKey(line, "matrix:") && Numbers(line, m)) {
            header.frame.SETMATRIX(
                {{{{m[0], m[1], m[2]}, {m[3], m[4], m[5]}, {m[6], m[7], m[8]}}}});
        } else if (!header.sized && ReadVoxel(line, voxel)) {
            header.size = MAX(header.size, voxel.position);
        }
    }
    return header;
}

bool IsPlausible(const VECTORNAT &size, const TFILEREADTEXT &text, NAT freeBytes) {
    if (!INTO(size, VNORMNAT, VECTORNAT{} + LARGEST_POSITION)) return false;
    const NAT small = freeBytes / static_cast<NAT>(sizeof(VECTOR));
    return VOXEL_COUNT(size.x, size.y, size.z) <= std::max(small, text.SIZE() * VOXELS_A_BYTE);
}

bool Fail(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &text) {
    WRITELN(text);
    field.INIT(tag);
    return false;
}

void AppendWhole(std::string &text, const VECTORNAT &v) {
    text +=
        " <" + std::to_string(v.x) + ", " + std::to_string(v.y) + ", " + std::to_string(v.z) + ">";
}

bool WriteText(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name, const VECTOR *scale) {
    if (!field.ISNOTEMPTY()) return false;
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    const VECTORNAT size = field.SIZE();
    const MATRIX3 &matrix = field.GETFRAME().MATRIX();
    const UTF16 label = "Save vectorfield";
    TEXT_WRITER text(file);
    const auto put = [&](const char *before, const VECTOR &v) {
        text.buffer += before;
        APPEND_VECTOR(text.buffer, v);
    };
    put("size: ", TO_REAL(size));
    put("\noffset: ", field.GETFRAME().MOVE());
    put("\nmatrix: ", matrix[0]);
    put(" ", matrix[1]);
    put(" ", matrix[2]);
    text.buffer += '\n';
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                const VECTOR v = field.GET(x, y, z);
                if (v == VZERO) continue;
                put("", TO_REAL(VECTORNAT{x, y, z}));
                if (!scale && field._GETID() == VECTOR_INTEGER)
                    AppendWhole(text.buffer, field.GETNAT(x, y, z));
                else
                    put(" ", scale ? v * *scale : v);
                text.buffer += '\n';
                text.CHECK();
            }
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
    text.FLUSH();
    return file.COMMIT();
}
} // namespace

void APPEND_NUMBER(std::string &text, REAL value) {
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof digits, value == 0 ? 0.0 : value);
    text.append(digits, result.ptr);
}

void APPEND_NUMBER(std::string &text, REAL value, int decimals) {
    char digits[400];
    const auto result =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, decimals);
    text.append(digits, result.ptr);
}

void APPEND_VECTOR(std::string &text, const VECTOR &value) {
    text += '<';
    APPEND_NUMBER(text, value.x);
    text += ", ";
    APPEND_NUMBER(text, value.y);
    text += ", ";
    APPEND_NUMBER(text, value.z);
    text += '>';
}

bool READ_VECTOR_TEXT(T3D_VECTOR_ANALYSIS &field, BYTE tag, const TFILEREADTEXT &text,
                      NAT freeBytes) {
    field.INIT(tag);
    if (field._GETID() == 0) return false;
    const TEXT_HEADER header = ReadTextHeader(text);
    if (header.size == VZERONAT) return Fail(field, tag, "  No vectors found! Create empty field.");
    if (!IsPlausible(header.size, text, freeBytes))
        return Fail(field, tag,
                    "  Bad dim size " + GETSTRING(header.size) + "! Create empty field.");
    field.INIT(tag, header.size.x, header.size.y, header.size.z);
    if (!field.ISNOTEMPTY()) return false;
    field.SETFRAME(header.frame);
    VOXEL_LINE voxel;
    VECTORNAT whole;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        if (!ReadVoxel(text.GETVIEW(i), voxel)) continue;
        const VECTORNAT &p = voxel.position;
        if (tag == VECTOR_INTEGER && WholeNumbers(voxel.text, whole))
            field.PUT(p.x, p.y, p.z, whole);
        else
            field.PUT(p.x, p.y, p.z, voxel.value);
    }
    return true;
}

bool READ_VECTOR_TXT(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name) {
    TFILEREADTEXT text;
    field.INIT(tag);
    return field._GETID() != 0 && text.LOAD(name) && READ_VECTOR_TEXT(field, tag, text);
}

bool WRITE_VECTOR_TXT(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    return WriteText(field, name, nullptr);
}

bool T3D_VECTOR_ANALYSIS::SAVETXT(const UTF16 &name, const VECTOR &scale) const {
    return WriteText(*this, name, &scale);
}
} // namespace morvane
