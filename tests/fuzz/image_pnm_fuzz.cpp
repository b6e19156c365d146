// Any bytes as a plain and as a packed PNM file, on canvases of every kind.
#include "image_fuzz.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    const auto load = [](auto &raster, const UTF16 &name) { return LOADPNM(raster, name); };
    // A name that ends in "gz" unpacks what is packed and takes the rest as it is.
    for (const char *name : {"/a.pnm", "/a.pnm.gz"}) {
        const std::string path = FOLDER() + name;
        PUT(path, data, size);
        LOAD_CHECKED<TGRAY>(path, load);
        LOAD_CHECKED<TFULLGRAY>(path, load);
        LOAD_CHECKED<TRGB>(path, load);
        LOAD_CHECKED<TRGBA>(path, load);
    }
    return 0;
}
