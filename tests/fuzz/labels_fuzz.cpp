// Any bytes as a file of labels: in the table and the plain form, and as an atlas.
#include "field3d/field/scalar_analysis.hpp"
#include "fuzz_files.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    const std::string table = FOLDER() + "/a.labels", atlas = FOLDER() + "/b.atlas.xml";
    PUT(table, data, size);
    PUT(atlas, data, size);
    for (const BYTE tag : {TAG_MONO, TAG_GRAY, TAG_FULLGRAY}) {
        T3D_SCALAR_ANALYSIS field(tag, 1, 1, 1);
        field.LABELS_LOAD(UTF16(table));
        for (NAT value = 0; value < 300; ++value)
            field.LABELS_GET(value);
        field.LABELS_SAVE(UTF16(FOLDER() + "/c.labels"));
        field.LABELS_LOAD(UTF16(FOLDER() + "/b.nii"));
    }
    return 0;
}
