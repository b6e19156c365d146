// Any bytes as a text of vectors: no crash, no allocation that the bytes do not justify, and a
// field that can be read and written, or none.

#include "foundation/console/console.hpp"
#include "orientation/vector/vector_text.hpp"
#include "script/file/file_text.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace morvane;

namespace {
constexpr NAT FREE_BYTES = 1 << 20; // small fields: the reader is looked at, not the memory
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    VERBOSE = false;
    TFILEREADTEXT text;
    text.LOADBYTES({reinterpret_cast<const char *>(data), size});
    for (const BYTE kind : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field;
        if (!READ_VECTOR_TEXT(field, kind, text, FREE_BYTES)) {
            if (field.ISNOTEMPTY()) std::abort();
            continue;
        }
        const VECTORNAT last = field.SIZE();
        field.PUT(last.x, last.y, last.z, VECTOR{1, 2, 3});
        if (!(field.GET(last.x, last.y, last.z) == VECTOR{1, 2, 3})) std::abort();
    }
    return 0;
}
