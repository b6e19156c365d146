#include "app/options_table.hpp"

#include "image2d/format/external.hpp"

namespace morvane {
namespace {
constexpr OPTION_ROW TOPIC(std::string_view text) { return {OPTION_KIND::TOPIC, text, "", "", ""}; }
constexpr OPTION_ROW LEGEND(std::string_view text) {
    return {OPTION_KIND::LEGEND, text, "", "", ""};
}
constexpr OPTION_ROW LEGEND(std::string_view text, OPTION_NEED need) {
    return {OPTION_KIND::LEGEND, text, "", "", "", 0, 0, need};
}
constexpr OPTION_ROW LIBRARY(std::string_view name, OPTION_NEED need) {
    return {OPTION_KIND::LIBRARY, name, "", "", "", 0, 0, need};
}
constexpr OPTION_ROW STRING(std::string_view name, std::string_view standard,
                            std::string_view legend) {
    return {OPTION_KIND::STRING, name, standard, legend, name};
}
constexpr OPTION_ROW LOWERSTRING(std::string_view name, std::string_view standard,
                                 std::string_view legend) {
    return {OPTION_KIND::LOWERSTRING, name, standard, legend, name};
}
constexpr OPTION_ROW NATURAL(std::string_view name, std::string_view standard, NAT min, NAT max,
                             std::string_view legend) {
    return {OPTION_KIND::NATURAL, name, standard, legend, name, min, max};
}
constexpr OPTION_ROW VECTOR_OPTION(std::string_view name, std::string_view standard,
                                   std::string_view legend, std::string_view constant) {
    return {OPTION_KIND::VECTOR, name, standard, legend, constant};
}

constexpr OPTION_ROW ROWS[] = {
    TOPIC("Input Options"),
    STRING("image.input", "image.ppm", "inputfile(s) (image)"),
    LEGEND("PNM (PBM, PGM, PPM)"),
    LEGEND("BMP (DIB)"),
    LEGEND("ImageMagick® ready!", OPTION_NEED::IMAGEMAGICK),
    LEGEND("It can read images in a variety of formats.", OPTION_NEED::IMAGEMAGICK),
    STRING("scalar.input", "scalar.nii.gz", "inputfile(s) (scalar field)"),
    LEGEND("HDR (IMG)           : Analyze 7.5"),
    LEGEND("NII                 : NIfTI"),
    LEGEND("gz NII              : gzip NIfTI"),
    LEGEND("PCR (VOL)           : PCR (PCA,PCP,PCT)"),
    LEGEND("MIF                 : MIF and MIFX"),
    LEGEND("AM                  : Amira"),
    LEGEND("VTK                 : Visualization Toolkit"),
    LEGEND("VGL                 : VGStudio"),
    LEGEND("RAW                 : Raw file format"),
    LEGEND("PNM (PBM, PGM, PPM) : Portable Anymap"),
    LEGEND("BMP (DIB)           : Windows Bitmap"),
    LEGEND("IMGF (FRO, FRE)     : GE MR Signa 5.x"),
    STRING("vector.input", "vector.nii.gz", "inputfile(s) (vector field)"),
    LEGEND("HDR (IMG)           : Analyze 7.5"),
    LEGEND("NII                 : NIfTI"),
    LEGEND("gz NII              : gzip NIfTI"),
    STRING("tensor.input", "tensor.nii.gz", "inputfile(s) (tensor field)"),
    LEGEND("HDR (IMG)           : Analyze 7.5"),
    LEGEND("NII                 : NIfTI"),
    LEGEND("gz NII              : gzip NIfTI"),
    STRING("mesh.input", "input.obj", "inputfile (meshes)"),
    LEGEND("OBJ        (3) : Wavefront"),
    LEGEND("DXF        (4) : Autocad"),
    LEGEND("VRML (WRL) (3) : Virtual Reality Meta Language"),
    LEGEND("IV         (3) : Inventor"),
    LEGEND("ANYSURF    (3) : Anybody"),
    LEGEND("ASC        (1) : Ascii Pointclouds"),
    LEGEND("CSV        (1) : Excel Pointclouds"),
    LEGEND("PRN        (1) : Calc Pointclouds"),

    TOPIC("Image options"),
    LIBRARY("freeimage", OPTION_NEED::FREEIMAGE),
    LIBRARY("imagemagick", OPTION_NEED::IMAGEMAGICK),

    TOPIC("Transformation Options"),
    NATURAL("mesh.split", "0", 0, 100, "how much biggest objects"),
    NATURAL("mesh.smooth", "0", 0, 100, "how much smooth passes"),
    VECTOR_OPTION("mesh.rotate", "<0,0,0>", "rotate object (rad)", "mesh.rotate"),
    // Deliberate: the option mesh.transform reaches the script as the constant mesh.translate.
    VECTOR_OPTION("mesh.transform", "<0,0,0>", "translate object", "mesh.translate"),
    VECTOR_OPTION("mesh.scale", "<1,1,1>", "scale object", "mesh.scale"),

    TOPIC("Output Options"),
    STRING("image.type", "png", "output filetype (image)"),
    LEGEND("PNM (PBM, PGM, PPM)", OPTION_NEED::NO_LIBRARY),
    LEGEND("BMP (DIB)", OPTION_NEED::NO_LIBRARY),
    LEGEND("TGA", OPTION_NEED::NO_LIBRARY),
    LEGEND("TIF", OPTION_NEED::NO_LIBRARY),
    LEGEND("PNG", OPTION_NEED::NO_LIBRARY),
    STRING("scalar.type", "nii.gz", "output filetype (scalar stack)"),
    LEGEND("HDR"),
    LEGEND("NII"),
    LEGEND("gz NII"),
    LEGEND("PNM (PBM, PGM, PPM)"),
    LEGEND("BMP (DIB)"),
    LEGEND("TGA"),
    LEGEND("TIF"),
    STRING("vector.type", "nii.gz", "output filetype (vector stack)"),
    LEGEND("HDR"),
    LEGEND("NII"),
    LEGEND("gz NII"),
    LEGEND("FLD"),
    LEGEND("AM"),
    STRING("tensor.type", "nii.gz", "output filetype (tensor stack)"),
    LEGEND("HDR"),
    LEGEND("NII"),
    LEGEND("gz NII"),
    LEGEND("NHDR"),
    LEGEND("NRRD"),
    LOWERSTRING("mesh.type", "obj", "output filetype (meshes)"),
    LEGEND("OBJ   (3) : Wavefront"),
    LEGEND("DXF   (4) : Autocad"),
    LEGEND("ASC   (1) : Ascii Pointclouds"),
    LEGEND("CSV   (1) : Excel Pointclouds"),
    LEGEND("PRN   (1) : Calc Pointclouds"),
    LEGEND("POV   (4) : Pov-Ray"),
    LEGEND("INC   (4) : Pov-Ray include file"),
    LEGEND("sPOV  (4) : Pov-Ray [smoothed vertex]"),
    LEGEND("sINC  (4) : Pov-Ray [smoothed vertex]"),
    LEGEND("nPOV  (4) : Pov-Ray [vertex with normals]"),
    LEGEND("nINC  (4) : Pov-Ray [vertex with normals]"),

    TOPIC("Run Options"),
    {OPTION_KIND::STATUS, "status", "", "exit status 1 when the script fails", ""},
    LEGEND("Without it the exit status is 0 and the console tells of the failure."),
    {OPTION_KIND::SEED, "seed", "", "random seed", "random.seed", 0, NATMAX},
    LEGEND("The same seed gives the same random numbers, whatever thread.max is."),
};

constexpr IMAGE_LIBRARY LIBRARIES[] = {
    {OPTION_NEED::FREEIMAGE, FREEIMAGE, FREEIMAGE_VERSION, FORBID_FREEIMAGE},
    {OPTION_NEED::IMAGEMAGICK, IMAGEMAGICK, IMAGEMAGICK_VERSION, FORBID_IMAGEMAGICK},
};
} // namespace

const std::span<const OPTION_ROW> OPTIONS(ROWS);
std::span<const IMAGE_LIBRARY> IMAGE_LIBRARIES(LIBRARIES);

const IMAGE_LIBRARY *ANSWERING_LIBRARY(OPTION_NEED need) {
    for (const IMAGE_LIBRARY &library : IMAGE_LIBRARIES)
        if (library.need == need && library.answers()) return &library;
    return nullptr;
}

bool OPTION_IS_THERE(const OPTION_ROW &row) {
    switch (row.need) {
    case OPTION_NEED::NOTHING: return true;
    case OPTION_NEED::NO_LIBRARY:
        return !ANSWERING_LIBRARY(OPTION_NEED::FREEIMAGE) &&
               !ANSWERING_LIBRARY(OPTION_NEED::IMAGEMAGICK);
    default: return ANSWERING_LIBRARY(row.need) != nullptr;
    }
}
} // namespace morvane
