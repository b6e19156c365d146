#include "app/options_table.hpp"

#include "app/program_run.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/thread/processor.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("-h prints the listing with the defaults and ends with status 1") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "print never\n");
    const PROGRAM_RUN run({"-h", "-image.input=a.ppm", "-mesh.split=7"});
    CHECK(run.status == 1);
    CHECK(run.CONTAINS("  -image.input : inputfile(s) (image) = image.ppm\n"
                       "      PNM (PBM, PGM, PPM)\n      BMP (DIB)\n"));
    CHECK(run.CONTAINS("  -mesh.split : how much biggest objects (0-100) = 0\n"));
    CHECK(run.CONTAINS("\nExample: morvane -image.input=*.ppm -image.type=png\n"));
    CHECK_FALSE(run.CONTAINS("Script runs..."));
}

TEST_CASE("the listing names every option in its order, with its topics") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.macro", "nop\n");
    const PROGRAM_RUN run({"-seed=1"});
    const std::string &text = run.console.TEXT();
    const std::size_t begin = text.find("  +/-first"), end = text.find("  -? : ");
    REQUIRE(begin != std::string::npos);
    REQUIRE(end != std::string::npos);
    CHECK(text.substr(begin, end - begin) ==
          "  +/-first : Write first macro file example = off\n"
          "  -macro : macro file = morvane.macro\n"
          "\nInput Options:\n"
          "  -image.input : inputfile(s) (image) = image.ppm\n"
          "  -scalar.input : inputfile(s) (scalar field) = scalar.nii.gz\n"
          "  -vector.input : inputfile(s) (vector field) = vector.nii.gz\n"
          "  -tensor.input : inputfile(s) (tensor field) = tensor.nii.gz\n"
          "  -mesh.input : inputfile (meshes) = input.obj\n"
          "\nImage options:\n"
          "\nTransformation Options:\n"
          "  -mesh.split : how much biggest objects (0-100) = 0\n"
          "  -mesh.smooth : how much smooth passes (0-100) = 0\n"
          "  -mesh.rotate : rotate object (rad) = <0, 0, 0>\n"
          "  -mesh.transform : translate object = <0, 0, 0>\n"
          "  -mesh.scale : scale object = <1, 1, 1>\n"
          "\nOutput Options:\n"
          "  -image.type : output filetype (image) = png\n"
          "  -scalar.type : output filetype (scalar stack) = nii.gz\n"
          "  -vector.type : output filetype (vector stack) = nii.gz\n"
          "  -tensor.type : output filetype (tensor stack) = nii.gz\n"
          "  -mesh.type : output filetype (meshes) = obj\n"
          "\nRun Options:\n"
          "  +/-status : exit status 1 when the script fails = off\n"
          "  -seed : random seed (0-9223372036854775807) = 1\n\n");
}

TEST_CASE("an unknown option and a bare word reach the script, the word is its name too") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("word", "debug.no\nprint parameter.x\nprint parameter.last\n");
    CHECK(PROGRAM_RUN({"-x=3", "word"}).SCRIPT() == "  debug.no|\n3\nword\n");
}

TEST_CASE("-macro wins over a bare word, which stays parameter.last") {
    CHECK(PRINTED("parameter.last", {"word"}) == "word\n");
}

TEST_CASE("quotes around the script's name are removed") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("a b.macro", "nop\n");
    CHECK(PROGRAM_RUN({"-macro=\"'a b.macro'\""}).SCRIPT() == "  nop|\n");
}

TEST_CASE("the option mesh.transform reaches the script as the constant mesh.translate") {
    CHECK(PRINTED("mesh.translate", {"-mesh.transform=<1,2,3>"}) == "<1, 2, 3>\n");
    CHECK(PRINTED("parameter.mesh.transform", {"-mesh.transform=<1,2,3>"}) == "<1,2,3>\n");
}

TEST_CASE("an option beyond its range is limited, its parameter is the text given") {
    CHECK(PRINTED("mesh.split", {"-mesh.split=500"}) == "100\n");
    CHECK(PRINTED("parameter.mesh.split", {"-mesh.split=500"}) == "500\n");
}

TEST_CASE("mesh.type is lowered, the other types are not") {
    CHECK(PRINTED("mesh.type", {"-mesh.type=OBJ"}) == "obj\n");
    CHECK(PRINTED("image.type", {"-image.type=PNG"}) == "PNG\n");
}

TEST_CASE("every option with a constant can be read by the script") {
    for (const OPTION_ROW &row : OPTIONS) {
        if (row.constant.empty()) continue;
        const std::string constant(row.constant);
        INFO(constant);
        CHECK(PRINTED(constant.c_str(), {}) != constant + "\n");
    }
}

TEST_CASE("thread.max is the number of usable threads, and a script may overwrite it") {
    CHECK(PRINTED("thread.max", {}) == GETUTF8(GETSTRING(GETTHREADS())) + "\n");
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "debug.no\nthread.max := 77\nprint thread.max\n");
    CHECK(PROGRAM_RUN({"test.macro"}).SCRIPT() == "  debug.no|\n77\n");
}

TEST_CASE("-seed fixes the random numbers of a run") {
    const std::string first = PRINTED("random4", {"-seed=5"});
    CHECK(first == PRINTED("random4", {"-seed=5"}));
    CHECK(first != PRINTED("random4", {"-seed=6"}));
    CHECK(PRINTED("random.seed", {"-seed=5"}) == "5\n");
}

TEST_CASE("without -seed two runs draw different numbers and show their seed") {
    CHECK(PRINTED("random4", {}) != PRINTED("random4", {}));
    const std::string shown = PRINTED("random.seed", {});
    CHECK(shown == GETUTF8(GETSTRING(RANDOM_SEED)) + "\n");
}

namespace {
// The lines of the help between one option's line and the next line that is no legend.
std::string LEGENDS_OF(const PROGRAM_RUN &run, const std::string &option) {
    const std::string &text = run.console.TEXT();
    std::size_t begin = text.find("  -" + option + " : ");
    REQUIRE(begin != std::string::npos);
    begin = text.find('\n', begin) + 1;
    std::size_t end = begin;
    while (text.compare(end, 6, "      ") == 0)
        end = text.find('\n', end) + 1;
    return text.substr(begin, end - begin);
}

// An image library that is there until the option switches it off.
bool isThere = true;
constexpr IMAGE_LIBRARY PRETENDED[] = {
    {OPTION_NEED::FREEIMAGE, [] { return isThere; }, [] { return UTF16("Free 1.2"); },
     [] { isThere = false; }},
    {OPTION_NEED::IMAGEMAGICK, [] { return isThere; }, [] { return UTF16("Magick 3.4"); },
     [] { isThere = false; }},
};
class WITH_LIBRARIES {
public:
    explicit WITH_LIBRARIES(std::span<const IMAGE_LIBRARY> libraries) {
        isThere = true;
        IMAGE_LIBRARIES = libraries;
    }
    ~WITH_LIBRARIES() { IMAGE_LIBRARIES = {}; }
    WITH_LIBRARIES(const WITH_LIBRARIES &) = delete;
    WITH_LIBRARIES &operator=(const WITH_LIBRARIES &) = delete;

private:
    SCRATCH_FOLDER folder;
};
} // namespace

TEST_CASE("the help names the formats of every input") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"-h"});
    const std::string nifti = "      HDR (IMG)           : Analyze 7.5\n"
                              "      NII                 : NIfTI\n"
                              "      gz NII              : gzip NIfTI\n";
    CHECK(LEGENDS_OF(run, "image.input") == "      PNM (PBM, PGM, PPM)\n      BMP (DIB)\n");
    CHECK(LEGENDS_OF(run, "scalar.input") ==
          nifti + "      PCR (VOL)           : PCR (PCA,PCP,PCT)\n"
                  "      MIF                 : MIF and MIFX\n"
                  "      AM                  : Amira\n"
                  "      VTK                 : Visualization Toolkit\n"
                  "      VGL                 : VGStudio\n"
                  "      RAW                 : Raw file format\n"
                  "      PNM (PBM, PGM, PPM) : Portable Anymap\n"
                  "      BMP (DIB)           : Windows Bitmap\n"
                  "      IMGF (FRO, FRE)     : GE MR Signa 5.x\n");
    CHECK(LEGENDS_OF(run, "vector.input") == nifti);
    CHECK(LEGENDS_OF(run, "tensor.input") == nifti);
    CHECK(LEGENDS_OF(run, "mesh.input") == "      OBJ        (3) : Wavefront\n"
                                           "      DXF        (4) : Autocad\n"
                                           "      VRML (WRL) (3) : Virtual Reality Meta Language\n"
                                           "      IV         (3) : Inventor\n"
                                           "      ANYSURF    (3) : Anybody\n"
                                           "      ASC        (1) : Ascii Pointclouds\n"
                                           "      CSV        (1) : Excel Pointclouds\n"
                                           "      PRN        (1) : Calc Pointclouds\n");
}

TEST_CASE("the help names the formats of every output") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"-h"});
    const std::string nifti = "      HDR\n      NII\n      gz NII\n";
    const std::string images = "      PNM (PBM, PGM, PPM)\n      BMP (DIB)\n      TGA\n      TIF\n";
    CHECK(LEGENDS_OF(run, "image.type") == images + "      PNG\n");
    CHECK(LEGENDS_OF(run, "scalar.type") == nifti + images);
    CHECK(LEGENDS_OF(run, "vector.type") == nifti + "      FLD\n      AM\n");
    CHECK(LEGENDS_OF(run, "tensor.type") == nifti + "      NHDR\n      NRRD\n");
    CHECK(LEGENDS_OF(run, "mesh.type") == "      OBJ   (3) : Wavefront\n"
                                          "      DXF   (4) : Autocad\n"
                                          "      ASC   (1) : Ascii Pointclouds\n"
                                          "      CSV   (1) : Excel Pointclouds\n"
                                          "      PRN   (1) : Calc Pointclouds\n"
                                          "      POV   (4) : Pov-Ray\n"
                                          "      INC   (4) : Pov-Ray include file\n"
                                          "      sPOV  (4) : Pov-Ray [smoothed vertex]\n"
                                          "      sINC  (4) : Pov-Ray [smoothed vertex]\n"
                                          "      nPOV  (4) : Pov-Ray [vertex with normals]\n"
                                          "      nINC  (4) : Pov-Ray [vertex with normals]\n");
}

TEST_CASE("-? waits for the enter key at every topic and before the example") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"-?"});
    CHECK(run.status == 1);
    const std::string &text = run.console.TEXT();
    std::size_t count = 0;
    for (std::size_t at = text.find("*** press enter ***"); at != std::string::npos;
         at = text.find("*** press enter ***", at + 1))
        ++count;
    CHECK(count == 6); // five topics and the example
}

TEST_CASE("without an image library its option and its legends are not listed") {
    const SCRATCH_FOLDER folder;
    const PROGRAM_RUN run({"-h"});
    CHECK(run.CONTAINS("\nImage options:\n\nTransformation Options:\n"));
    CHECK_FALSE(run.CONTAINS("ImageMagick"));
}

TEST_CASE("an image library that was found is listed with its name and version") {
    const WITH_LIBRARIES libraries(PRETENDED);
    const PROGRAM_RUN run({"-h"});
    CHECK(run.CONTAINS("\nImage options:\n  +/-freeimage : Free 1.2 = on\n"
                       "  +/-imagemagick : Magick 3.4 = on\n\nTransformation"));
    CHECK(LEGENDS_OF(run, "image.input") ==
          "      PNM (PBM, PGM, PPM)\n      BMP (DIB)\n      ImageMagick® ready!\n"
          "      It can read images in a variety of formats.\n");
    CHECK(LEGENDS_OF(run, "image.type") == "");
    CHECK(isThere);
}

TEST_CASE("an image library is switched off by its option") {
    const WITH_LIBRARIES libraries(std::span<const IMAGE_LIBRARY>(PRETENDED).subspan(1));
    const PROGRAM_RUN run({"-imagemagick=off"});
    CHECK(run.CONTAINS("  +/-imagemagick : Magick 3.4 = off\n"));
    CHECK_FALSE(run.CONTAINS("freeimage"));
    CHECK_FALSE(isThere);
}

TEST_CASE("of an option given twice the first counts, its parameter is the last") {
    CHECK(PRINTED("image.type", {"-image.type=png", "-image.type=bmp"}) == "png\n");
    CHECK(PRINTED("parameter.image.type", {"-image.type=png", "-image.type=bmp"}) == "bmp\n");
}

TEST_CASE("options of morvane.ini reach the script, arguments beat them") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "image.type = tif\nscalar.type = nii\nx = 3\ny = 4\n");
    folder.WRITE("test.macro", "debug.no\nprint image.type\nprint scalar.type\n"
                               "print parameter.x\nprint parameter.y\n");
    const PROGRAM_RUN run({"-scalar.type=hdr", "-y=5", "test.macro"});
    CHECK(run.SCRIPT() == "  debug.no|\ntif\nhdr\n3\n5\n");
}

TEST_CASE("the options file may name the script") {
    const SCRATCH_FOLDER folder;
    folder.WRITE("morvane.ini", "macro=\"a b.macro\"\n");
    folder.WRITE("a b.macro", "nop\n");
    CHECK(PROGRAM_RUN({}).SCRIPT() == "  nop|\n");
}
