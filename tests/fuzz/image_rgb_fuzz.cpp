// Any bytes as an rgb file, and behind 6 bytes as raw colour of a size and header that these give.
#include "image_fuzz.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    const auto load = [](auto &raster, const UTF16 &name) { return LOADRGB(raster, name); };
    const std::string path = FOLDER() + "/a.rgb";
    PUT(path, data, size);
    LOAD_CHECKED<TRGB>(path, load);
    LOAD_CHECKED<TRGBA>(path, load);
    std::int16_t numbers[3];
    if (size < sizeof numbers) return 0;
    std::memcpy(numbers, data, sizeof numbers);
    const auto raw = [&](auto &raster, const UTF16 &name) {
        return LOADRAW(raster, name, numbers[0], numbers[1], numbers[2]);
    };
    LOAD_CHECKED<TRGB>(path, raw);
    LOAD_CHECKED<TRGBA>(path, raw);
    return 0;
}
