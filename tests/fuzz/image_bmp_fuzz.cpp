// Any bytes as a bitmap, on canvases of every kind.
#include "image_fuzz.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    const auto load = [](auto &raster, const UTF16 &name) { return LOADBMP(raster, name); };
    const std::string path = FOLDER() + "/a.bmp";
    PUT(path, data, size);
    LOAD_CHECKED<TGRAY>(path, load);
    LOAD_CHECKED<TFULLGRAY>(path, load);
    LOAD_CHECKED<TRGB>(path, load);
    LOAD_CHECKED<TRGBA>(path, load);
    return 0;
}
