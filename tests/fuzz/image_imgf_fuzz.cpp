// Any bytes as an IMGF file, on canvases of both kinds that read it.
#include "image_fuzz.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    const auto load = [](auto &raster, const UTF16 &name) { return LOADIMGF(raster, name); };
    const std::string path = FOLDER() + "/a.imgf";
    PUT(path, data, size);
    LOAD_CHECKED<TGRAY>(path, load);
    LOAD_CHECKED<TFULLGRAY>(path, load);
    return 0;
}
