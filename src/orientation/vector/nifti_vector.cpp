#include "field3d/format/file_base.hpp"
#include "field3d/format/nifti.hpp"
#include "field3d/format/nifti_info.hpp"
#include "field3d/format/read_raw.hpp"
#include "field3d/format/stats.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"
#include "orientation/vector/vector_formats_table.hpp"
#include "orientation/vector/vector_store.hpp"
#include "orientation/vector/vector_text.hpp"

#include <algorithm>
#include <initializer_list>
#include <type_traits>

// NIfTI files of vectors: the plane of all x components, then y, then z. A 24-bit field is stored
// as colours.
namespace morvane {
namespace {
constexpr NAT COMPONENTS = 3;
constexpr NIFTI_KIND NIFTI_VECTOR_24BIT{128, 24, 3, 0, 0};

template <class RECORD> auto &PartOf(RECORD &v, NAT component) {
    return component == 1 ? v.x : component == 2 ? v.y : v.z;
}

bool Fail(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &text) {
    WRITELN(text);
    field.INIT(tag);
    return false;
}

// One slice of one component, kept in the type of the store so that whole numbers stay exact.
template <class NUMBER>
bool ReadPlane(NIFTI_SOURCE &source, T3D_VECTOR_ANALYSIS &field, NAT component, NAT z,
               TPOLY_OF<NUMBER> &plane) {
    const bool complete = source.READSLICE(component, z, plane.ELEMENTS());
    NAT index = 0;
    for (NAT y = 1; y <= field._GETSIZEY(); ++y)
        for (NAT x = 1; x <= field._GETSIZEX(); ++x)
            field.PUT(x, y, z, static_cast<BYTE>(component), plane._GET(++index));
    return complete;
}

template <class NUMBER> bool ReadComponents(NIFTI_SOURCE &source, T3D_VECTOR_ANALYSIS &field) {
    const VECTORNAT size = field.SIZE();
    const UTF16 label = VECTOR_LABEL(field);
    TPOLY_OF<NUMBER> plane(size.x * size.y);
    bool complete = plane.LENGTH > 0;
    PROGRESS(label, 0);
    for (NAT component = 1; component <= COMPONENTS && complete; ++component)
        for (NAT z = 1; z <= size.z && complete; ++z) {
            complete = ReadPlane(source, field, component, z, plane);
            PROGRESS(label, static_cast<REAL>(z + size.z * (component - 1)) /
                                static_cast<REAL>(size.z * COMPONENTS));
        }
    PROGRESS();
    return complete;
}

bool ReadColours(NIFTI_SOURCE &source, T3D_VECTOR_ANALYSIS &field, NAT channels) {
    const VECTORNAT size = field.SIZE();
    TPOLYBYTE row(size.x * channels);
    if (row.LENGTH < 1 || !source.SOURCE.SEEK(source.START)) return false;
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y) {
            if (source.SOURCE.READ(row.ELEMENTS(), row.LENGTH) != row.LENGTH) return false;
            for (NAT x = 1; x <= size.x; ++x) {
                const BYTE *v = row.ELEMENTS() + (x - 1) * channels;
                field.PUT(x, y, z, VECTORNAT{v[0], v[1], v[2]});
            }
        }
    return true;
}

bool ReadNifti(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name, bool zipped) {
    if (name.EMPTY()) return false;
    field.INIT(tag);
    if (field._GETID() == 0) return false;
    NIFTI_SOURCE source;
    const bool opened = source.OPEN(name, 1, zipped);
    if (!opened) return Fail(field, tag, source.PROBLEM);
    const NAT channels = source.CODE == 2024 ? 3 : source.CODE == 2032 ? 4 : 0;
    const bool colours = channels > 0 && source.STACKS() == 1;
    if (!colours && source.STACKS() != COMPONENTS)
        return Fail(field, tag, "  Bad dim values! Create empty field.");
    if (source.LACKS(source.STACKS()))
        return Fail(field, tag, "  Wrong file size! Create empty field.");
    const VECTORNAT size = source.SIZE();
    field.INIT(tag, size.x, size.y, size.z);
    if (!field.ISNOTEMPTY()) return false;
    field.SETFRAME(source.GETFRAME());
    const bool complete = colours               ? ReadColours(source, field, channels)
                          : tag == VECTOR_FLOAT ? ReadComponents<REAL>(source, field)
                                                : ReadComponents<NAT>(source, field);
    if (!complete) WRITELN("  Wrong file size! The missing vectors are zero.");
    WRITE_FRAME("  Transformation: ", field.GETFRAME());
    return true;
}

// One component of one slice, as it goes into the file.
template <class NUMBER, class STORE>
void GatherPlane(const STORE &store, NAT first, NAT component, TPOLY_OF<NUMBER> &plane) {
    for (NAT i = 1; i <= plane.LENGTH; ++i) {
        auto v = store.data[first + i - 1];
        plane._PUT(i, PartOf(v, component));
    }
}

template <class STORE>
bool WriteComponents(NIFTI_TARGET &target, const T3D_VECTOR_ANALYSIS &field, const STORE &store) {
    using NUMBER = std::conditional_t<STORE::IS_FLOAT, REAL, NAT>;
    const NAT plane = field._GETSIZEX() * field._GETSIZEY();
    TPOLY_OF<NUMBER> buffer(plane);
    if (buffer.LENGTH != plane) return false;
    for (NAT component = 1; component <= COMPONENTS; ++component)
        for (NAT z = 0; z < field._GETSIZEZ(); ++z) {
            GatherPlane(store, z * plane, component, buffer);
            if (!target.WRITE(VECTOR_LABEL(field), buffer.ELEMENTS(), plane * 8)) return false;
        }
    return true;
}

template <class STORE>
bool WriteColours(NIFTI_TARGET &target, const T3D_VECTOR_ANALYSIS &field, const STORE &store) {
    const NAT plane = field._GETSIZEX() * field._GETSIZEY();
    TPOLYBYTE buffer(plane * COMPONENTS);
    if (buffer.LENGTH != plane * COMPONENTS) return false;
    for (NAT z = 0; z < field._GETSIZEZ(); ++z) {
        BYTE *to = buffer.ELEMENTS();
        for (NAT offset = z * plane; offset < (z + 1) * plane; ++offset) {
            *to++ = store.red[offset];
            *to++ = store.green[offset];
            *to++ = store.blue[offset];
        }
        if (!target.WRITE(VECTOR_LABEL(field), buffer.ELEMENTS(), buffer.LENGTH)) return false;
    }
    return true;
}

const NIFTI_KIND &KindOf(const T3D_VECTOR_ANALYSIS &field) {
    if (field._GETID() == VECTOR_24BIT) return NIFTI_VECTOR_24BIT;
    return field._GETID() == VECTOR_FLOAT ? NIFTI_VECTOR_REAL : NIFTI_VECTOR_NAT;
}

bool WriteNifti(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name, const char *extension) {
    if (!field.ISNOTEMPTY()) return false;
    NIFTI_TARGET target;
    const UTF16 file = WITHEXTENSION(name, extension);
    if (!target.OPEN(file, KindOf(field), field.SIZE(), field.GETFRAME())) return false;
    const bool written = DISPATCH(field, [&](const auto &store) {
        using STORE = std::remove_cvref_t<decltype(store)>;
        if constexpr (STORE::IS_BYTE)
            return WriteColours(target, field, store);
        else
            return WriteComponents(target, field, store);
    });
    return written && target.DONE();
}

// A header that can be read alone; formats without one are left alone.
bool ReadHeader(const UTF16 &name, TNIFTI &header) {
    const UTF16 extension = LOWERCASE(GETFILEEXTENSION(name));
    for (const char *other : {"mdf", "mif", "mifx", "pcr", "vtk", "gz"})
        if (extension == UTF16(other)) return false;
    const UTF16 tail = COPY(extension, extension.LENGTH() - 1, 2);
    const bool zipped = tail == UTF16("gz");
    if (zipped ? INFO_NII_GZ_VAR(name, header) : INFO_NII_VAR(name, header)) return true;
    if (header.sizeof_hdr == 540)
        WRITELN("  Nifti-2 currently not supported!");
    else if (header.sizeof_hdr != 0)
        WRITELN("  Wrong header!");
    return false;
}

void TakeFrame(const TNIFTI &header, T3D_VECTOR_ANALYSIS &field) {
    MATRIX3 matrix;
    VECTOR offset;
    GETNIFTI_TRANSFORM(header, matrix, offset);
    field._SETMATRIX(matrix);
    field._SETMOVE(offset);
}
} // namespace

bool READ_VECTOR_NII(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name) {
    return ReadNifti(field, tag, name, false);
}
bool READ_VECTOR_NII_GZ(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name) {
    return ReadNifti(field, tag, name, true);
}
bool WRITE_VECTOR_NII(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    return WriteNifti(field, name, "nii");
}
bool WRITE_VECTOR_NII_GZ(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    return WriteNifti(field, name, "nii.gz");
}
bool WRITE_VECTOR_HDR(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name) {
    return WriteNifti(field, name, "hdr");
}

bool READ_VECTOR_FRAME(const UTF16 &name, T3D_VECTOR_ANALYSIS &field) {
    TNIFTI header;
    if (!ReadHeader(name, header)) return false;
    TakeFrame(header, field);
    return true;
}

bool T3D_VECTOR_ANALYSIS::LOAD_PROPERTIES(const UTF16 &name) {
    TNIFTI header;
    if (sizeX < 1 || !ReadHeader(name, header)) return false;
    if (header.dim[1] + header.dim[2] + header.dim[3] + header.dim[4] < 1) return false;
    TakeFrame(header, *this);
    WRITE_FRAME("  Transformation: ", frame);
    return true;
}

bool T3D_VECTOR_ANALYSIS::LOAD_FRAMEWORK(BYTE tag, const UTF16 &name) {
    TNIFTI header;
    if (!ReadHeader(name, header)) return false;
    if (header.dim[1] + header.dim[2] + header.dim[3] + header.dim[4] < 1) return false;
    // A header alone can claim any size: no more is made of it than of a file that is too short.
    const NAT voxels = NAT{header.dim[1]} * header.dim[2] * header.dim[3];
    if (voxels > SHORT_FIELD_BYTES / NAT{sizeof(VECTOR)}) {
        WRITELN("  Couldn't make field (" + GETSTRING(header.dim[1]) + "x" +
                GETSTRING(header.dim[2]) + "x" + GETSTRING(header.dim[3]) +
                ") from a header! Create empty field.");
        INIT(tag);
        return false;
    }
    INIT(tag, header.dim[1], header.dim[2], header.dim[3]);
    if (sizeX < 1) return false;
    TakeFrame(header, *this);
    WRITE_FRAME("  Transformation: ", frame);
    return true;
}

bool T3D_VECTOR_ANALYSIS::SAVE_PROPERTIES(const UTF16 &name) const {
    constexpr NAT LARGEST = 32767; // sizes are 16-bit numbers in the header
    if (sizeX < 1 || std::max({sizeX, sizeY, sizeZ}) > LARGEST) return false;
    const TNIFTI header = MAKENIFTI(KindOf(*this), SIZE(), frame, false);
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, WITHEXTENSION(name, "hdr"))) return false;
    file.WRITE(&header, sizeof header);
    return file.COMMIT();
}
} // namespace morvane
