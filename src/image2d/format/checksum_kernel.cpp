#include "image2d/format/checksum_kernel.hpp"

#include "foundation/thread/processor.hpp"

namespace morvane {
namespace {
bool HasCarrylessProduct() {
#if defined(__x86_64__)
    return __builtin_cpu_supports("pclmul");
#else
    return false;
#endif
}
} // namespace

const CHECKSUM_KERNEL &CHECKSUMS() {
    static const CHECKSUM_KERNEL &kernel =
        PROCESSOR().IS_AVX2 && HasCarrylessProduct() ? avx2::CHECKSUMS : plain::CHECKSUMS;
    return kernel;
}
} // namespace morvane
