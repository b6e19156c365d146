// Any bytes as a NIfTI file of vectors, into fields of every kind.
#include "fuzz_files.hpp"
#include "orientation/vector/vector_analysis.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    if (size < 1 || !ISSMALL(data, size)) return 0;
    const std::string name = FOLDER() + "/v.nii";
    PUT(name, data, size);
    for (const BYTE kind : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field;
        if (field.LOADNII(kind, UTF16(name)) != field.ISNOTEMPTY()) std::abort();
        field.LOADNII_GZ(kind, UTF16(name));
        field.LOAD_PROPERTIES(UTF16(name));
    }
    return 0;
}
