#include "field3d/format/nifti_info.hpp"

#include "field3d/format/file_base.hpp"
#include "field3d/format/nifti_source.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace morvane {
namespace {
enum class INFO_KIND { PLAIN, ZIPPED, OTHER, GZ, MIF, PCR };
struct INFO_ROW {
    std::string_view extension;
    INFO_KIND kind;
};
constexpr INFO_ROW ROWS[] = {
    {"nii.gz", INFO_KIND::ZIPPED}, {"hdr.gz", INFO_KIND::ZIPPED}, {"img.gz", INFO_KIND::ZIPPED},
    {"am", INFO_KIND::OTHER},      {"vtk", INFO_KIND::OTHER},     {"mdf", INFO_KIND::MIF},
    {"mif", INFO_KIND::MIF},       {"mifx", INFO_KIND::MIF},      {"pcr", INFO_KIND::PCR},
};

INFO_KIND KIND_OF(const UTF16 &file) {
    const std::string extension = GETUTF8(GETEXTENSION(file));
    for (const INFO_ROW &row : ROWS)
        if (row.extension == extension) return row.kind;
    const bool zipped = extension == "gz" || extension.ends_with(".gz");
    return zipped ? INFO_KIND::GZ : INFO_KIND::PLAIN;
}

bool READ_HEADER(const UTF16 &file, TNIFTI &header, bool zipped) {
    const UTF16 extension = GETEXTENSION(file);
    UTF16 name = file;
    if (COPY(extension, 1, 3) == UTF16("img"))
        name = GETBASENAME(file) + UTF16(zipped ? ".hdr.gz" : ".hdr");
    BYTE_SOURCE source;
    header = TNIFTI();
    if (!source.OPEN(name, zipped)) return false;
    bool swapped = false;
    const HEADER_STATE state = READNIFTI(source, header, swapped);
    // The report of a wrong size shows it with its bytes swapped.
    if (state == HEADER_STATE::VERSION2 && !swapped) SWAPNIFTI(header);
    if (state == HEADER_STATE::GOOD) return true;
    WRITELN(UTF16("Error (Header size = ") + GETSTRING(NAT{header.sizeof_hdr}) +
            UTF16(")! Not a nifti file format!"));
    return false;
}

// A list of lines made from texts and numbers.
class LINES {
public:
    std::vector<UTF16> ALL;
    template <class... PARTS> void ADD(const PARTS &...parts) {
        ALL.push_back((UTF16() + ... + TEXT(parts)));
    }

private:
    static UTF16 TEXT(const char *text) { return UTF16(text); }
    static UTF16 TEXT(const UTF16 &text) { return text; }
    static UTF16 TEXT(float value) { return GETSTRING(static_cast<REAL>(value)); }
    static UTF16 TEXT(std::integral auto value) { return GETSTRING(static_cast<NAT>(value)); }
};

UTF16 FIXED_TEXT(const char *text, std::size_t capacity) {
    const std::string_view all(text, capacity);
    return UTF16(ASCIICLEAN_HARD(all.substr(0, all.find('\0'))));
}

void ADD_TITLE(LINES &lines, const TNIFTI &h) {
    const UTF16 version(UTF16CHAR{static_cast<BYTE>(h.magic[2]), 0});
    if (h.magic[0] != 'n')
        lines.ADD("Nifti header - HDR");
    else if (h.magic[1] != '+')
        lines.ADD("Nifti header - NII Version ", version);
    else
        lines.ADD("Nifti header of one file - NII Version ", version);
    lines.ADD("==================");
}

void ADD_FRAME(LINES &lines, const TNIFTI &h) {
    lines.ADD("Affine transformtion (", h.sform_code, ").");
    for (const float *row : {h.srow_x, h.srow_y, h.srow_z})
        lines.ADD("  [", row[0], "\t", row[1], "\t", row[2], "\t", row[3], "]");
    lines.ADD("Quaternion (", h.qform_code, ").");
    lines.ADD("  [a,b,c,d] = [sqrt(1.0-(b*b+c*c+d*d)), ", h.quatern_b, ", ", h.quatern_c, ", ",
              h.quatern_d, "]");
    lines.ADD("  offset = [", h.qoffset_x, " ", h.qoffset_y, " ", h.qoffset_z, "]");
}

LINES DUMP(const TNIFTI &h) {
    LINES lines;
    ADD_TITLE(lines, h);
    lines.ADD("Slices.");
    lines.ADD("  Slice order: ", static_cast<BYTE>(h.dim_info), " Timing order: ", h.slice_code);
    lines.ADD("  Slice start: ", h.slice_start, " End: ", h.slice_end);
    lines.ADD("  Slice offset: ", h.scl_inter, " Slope: ", h.scl_slope);
    lines.ADD("  Time offset: ", h.toffset, "  Duration: ", h.slice_duration);
    ADD_FRAME(lines, h);
    lines.ADD("Data array dimensions (", h.bitpix, " bits & ", h.datatype, " (",
              GETNIFTITYPE(static_cast<WORD>(h.datatype)), ") data type).");
    for (int i = 0; i < 8; ++i)
        lines.ADD("  Dim[", i, "] = ", h.dim[i]);
    lines.ADD("Grid spacings.");
    lines.ADD("  Pixdim[0] = qfac = ", h.pixdim[0]);
    const UTF16 units = GETNIFTIUNITS(h.xyzt_units);
    for (int i = 1; i < 8; ++i)
        lines.ADD("  Pixdim[", i, "] = ", h.pixdim[i], units.EMPTY() ? "" : " ", units);
    const UTF16 name = FIXED_TEXT(h.intent_name, sizeof h.intent_name);
    lines.ADD("Data (", h.intent_code,
              " Meaning: ", GETNIFTIINTENT(static_cast<WORD>(h.intent_code)),
              name.EMPTY() ? "" : " - ", name, ").");
    if (h.intent_p1 != 0 || h.intent_p2 != 0 || h.intent_p3 != 0)
        lines.ADD("  Parameters: ", h.intent_p1, " ", h.intent_p2, " ", h.intent_p3);
    lines.ADD("  Min intensity: ", h.cal_min, " Max intensity: ", h.cal_max);
    lines.ADD("  Data offset: ", h.vox_offset);
    return lines;
}

// Reads the header that a dump needs; false: there is none, which has been told.
bool FIND_HEADER(const UTF16 &file, TNIFTI &header, bool toFile) {
    const UTF16 base = GETBASENAME(file);
    switch (KIND_OF(file)) {
    case INFO_KIND::PLAIN: return INFO_NII_VAR(file, header);
    case INFO_KIND::ZIPPED: return INFO_NII_GZ_VAR(file, header);
    case INFO_KIND::GZ: WRITELN("Zipped file not provided!"); return false;
    case INFO_KIND::MIF:
        if (toFile) WRITELN(UTF16("Header file inside (") + base + UTF16(".m?f*)!"));
        break;
    case INFO_KIND::PCR:
        if (toFile) WRITELN(UTF16("Header file inside (") + base + UTF16(".pcr)!"));
        break;
    case INFO_KIND::OTHER: toFile = false; break;
    }
    if (!toFile) WRITELN("Not provided!");
    return false;
}
} // namespace

bool INFO_NII_VAR(const UTF16 &file, TNIFTI &header) { return READ_HEADER(file, header, false); }

bool INFO_NII_GZ_VAR(const UTF16 &file, TNIFTI &header) { return READ_HEADER(file, header, true); }

bool INFO_NII_TXT(const UTF16 &file) {
    TNIFTI header;
    if (!FIND_HEADER(file, header, false)) return false;
    for (const UTF16 &line : DUMP(header).ALL)
        WRITELN(line);
    return true;
}

bool INFO_NII_FILE(const UTF16 &file, const UTF16 &target) {
    TNIFTI header;
    if (!FIND_HEADER(file, header, true)) return false;
    FILE_WRITE output;
    if (!ASSIGNWRITE(output, target)) return false;
    for (const UTF16 &line : DUMP(header).ALL)
        output.WRITELN(line);
    return output.COMMIT();
}

UTF16 INFO_NII(const UTF16 &file) {
    TNIFTI header;
    const INFO_KIND kind = KIND_OF(file);
    if (kind == INFO_KIND::ZIPPED ? !INFO_NII_GZ_VAR(file, header)
                                  : kind != INFO_KIND::PLAIN || !INFO_NII_VAR(file, header))
        header = TNIFTI();
    const NAT code = static_cast<WORD>(header.datatype) + (header.intent_code == 1007 ? 30000 : 0) +
                     (header.intent_code == 1005 ? 60000 : 0);
    const std::int16_t *const dim = header.dim;
    const UTF16 tab("\t");
    return GETSTRING(code) + tab + GETSTRING(VECTORNAT{dim[1], dim[2], dim[3]}) + tab +
           GETSTRING(NAT{dim[4]}) + tab + GETSTRING(VECTORNAT{dim[5], dim[6], dim[7]});
}
} // namespace morvane
