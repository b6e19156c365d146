#include "foundation/console/console.hpp"
#include "geometry/format/line_text.hpp"
#include "geometry/model/cloud.hpp"
#include "script/file/file_text.hpp"

#include <cstdint>
#include <cstdlib>

// The reader of line texts: any bytes load without harm, and the lists of the cloud fit together.
// The first byte chooses between a full load and a random share.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace morvane;
    if (size < 1) return 0;
    VERBOSE = false;
    TFILETEXT text;
    text.LOADBYTES({reinterpret_cast<const char *>(data + 1), size - 1});
    RANDOM_STREAM random(1, 1);
    const LINE_SHARE share{static_cast<REAL>(data[0]), random};
    TCLOUD cloud;
    READ_LINE_TEXT(cloud, text, "fuzz.txt", data[0] < 128 ? &share : nullptr);

    NAT points = 0, lines = 0;
    for (NAT object = 1; object <= cloud.GETOBJECTLENGTH(); ++object)
        for (NAT line = 1; line <= cloud.GETOBJECTLINELENGTH(object); ++line, ++lines)
            points += cloud.GETLINEPOINTLENGTH(object, line);
    if (points != cloud.GETPOINTLENGTH() || lines != cloud.GETLINELENGTH()) std::abort();
    return 0;
}
