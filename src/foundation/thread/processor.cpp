#include "foundation/thread/processor.hpp"

#include "foundation/thread/usable_threads.hpp"

#include <array>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#endif

namespace morvane {
namespace {
#if defined(__x86_64__) || defined(__i386__)
// One answer of the processor; zero where it has none.
struct LEAF {
    unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
    LEAF(unsigned number, unsigned part = 0) {
        __get_cpuid_count(number, part, &eax, &ebx, &ecx, &edx);
    }
};

bool Bit(unsigned word, int number) { return (word >> number & 1U) != 0; }

// The register sets that the system saves, by the bits of XCR0.
std::uint32_t SavedRegisters(const LEAF &features) {
    if (!Bit(features.ecx, 27)) return 0;
    std::uint32_t low = 0, high = 0;
    __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return low;
}

VENDOR_CODE Vendor(const LEAF &features) {
    const LEAF first(0);
    std::array<char, 12> text{};
    std::memcpy(text.data(), &first.ebx, 4);
    std::memcpy(text.data() + 4, &first.edx, 4);
    std::memcpy(text.data() + 8, &first.ecx, 4);
    const std::string_view name(text.data(), text.size());
    if (name == "AuthenticAMD") return VENDOR_CODE::AMD;
    if (name == "GenuineIntel") return VENDOR_CODE::INTEL;
    return Bit(features.ecx, 31) ? VENDOR_CODE::VIRTUAL : VENDOR_CODE::COMPATIBLE;
}

void ReadOldSets(PROCESSOR_RECORD &p, const LEAF &features) {
    const LEAF extended(0x80000001U);
    p.IS_MMX = Bit(features.edx, 23);
    p.IS_MMX_EXT = p.IS_MMX && (Bit(extended.edx, 22) || Bit(features.edx, 25));
    p.IS_3DNOW = Bit(extended.edx, 31);
    p.IS_3DNOW_EXT = Bit(extended.edx, 30);
    p.IS_3DNOW_PREFETCH = Bit(extended.ecx, 8);
    p.IS_SSE = Bit(features.edx, 25);
    p.IS_SSE2 = Bit(features.edx, 26);
    p.IS_SSE3 = Bit(features.ecx, 0);
    p.IS_SSSE3 = Bit(features.ecx, 9);
    p.IS_SSE41 = Bit(features.ecx, 19);
    p.IS_SSE42 = Bit(features.ecx, 20);
    p.IS_SSE4A = Bit(extended.ecx, 6);
}

void ReadAvx(PROCESSOR_RECORD &p, const LEAF &features) {
    const LEAF extended(0x80000001U), seven(7);
    p.IS_BMI1 = Bit(seven.ebx, 3); // these three work on the plain registers
    p.IS_BMI2 = Bit(seven.ebx, 8);
    p.IS_ADX = Bit(seven.ebx, 19);
    p.IS_AVX = Bit(features.ecx, 28);
    p.IS_F16C = Bit(features.ecx, 29);
    p.IS_FMA = Bit(features.ecx, 12);
    p.IS_XOP = Bit(extended.ecx, 11);
    p.IS_AVX2 = Bit(seven.ebx, 5);
}

void ReadAvx512(PROCESSOR_RECORD &p) {
    const LEAF seven(7), sevenOne(7, 1);
    p.IS_AVX512F = Bit(seven.ebx, 16);
    p.IS_AVX512DQ = Bit(seven.ebx, 17);
    p.IS_AVX512IFMA = Bit(seven.ebx, 21);
    p.IS_AVX512CD = Bit(seven.ebx, 28);
    p.IS_AVX512BW = Bit(seven.ebx, 30);
    p.IS_AVX512VL = Bit(seven.ebx, 31);
    p.IS_AVX512VBMI = Bit(seven.ecx, 1);
    p.IS_AVX512VBMI2 = Bit(seven.ecx, 6);
    p.IS_AVX512VNNI = Bit(seven.ecx, 11);
    p.IS_AVX512BITALG = Bit(seven.ecx, 12);
    p.IS_AVX512VPOPCNTDQ = Bit(seven.ecx, 14);
    p.IS_AVX512FP16 = Bit(seven.edx, 23);
    p.IS_AVX512BF16 = Bit(sevenOne.eax, 5);
}

void ReadAmx(PROCESSOR_RECORD &p) {
    const LEAF seven(7), sevenOne(7, 1), tiles(0x1E, 1);
    p.IS_AMX_BF16 = Bit(seven.edx, 22);
    p.IS_AMX = Bit(seven.edx, 24);
    p.IS_AMX_INT8 = Bit(seven.edx, 25);
    p.IS_AMX_FP16 = Bit(sevenOne.eax, 21);
    p.IS_AMX_COMPLEX = Bit(sevenOne.edx, 8);
    p.IS_AMX_FP8 = Bit(tiles.eax, 4);
    p.IS_AMX_TF32 = Bit(tiles.eax, 6);
}

void ReadProcessor(PROCESSOR_RECORD &p) {
    constexpr std::uint32_t AVX_STATE = 0x6, AVX512_STATE = 0xE6, AMX_STATE = 0x60000;
    const LEAF features(1);
    const std::uint32_t saved = SavedRegisters(features);
    p.VENDOR = Vendor(features);
    ReadOldSets(p, features);
    if ((saved & AVX_STATE) == AVX_STATE) ReadAvx(p, features);
    if ((saved & AVX512_STATE) == AVX512_STATE) ReadAvx512(p);
    if ((saved & AMX_STATE) == AMX_STATE) ReadAmx(p);
}

// Two hardware threads a core, as the processor's topology tells.
bool HasTwoThreadsPerCore() { return (LEAF(0xB, 0).ebx & 0xFFFFU) == 2; }
#else
void ReadProcessor(PROCESSOR_RECORD &p) {
#if defined(__powerpc__) || defined(__powerpc64__)
    p.VENDOR = VENDOR_CODE::POWERPC;
#elif defined(__sparc__)
    p.VENDOR = VENDOR_CODE::SPARC;
#elif defined(__arm__) || defined(__aarch64__)
    p.VENDOR = VENDOR_CODE::ARM;
#else
    static_cast<void>(p);
#endif
}

bool HasTwoThreadsPerCore() { return false; }
#endif

REAL SseVersion(const PROCESSOR_RECORD &p) {
    if (p.IS_SSE42) return 4.2;
    if (p.IS_SSE41) return 4.1;
    if (p.IS_SSSE3) return 3.1;
    if (p.IS_SSE3) return 3;
    if (p.IS_SSE2) return 2;
    return p.IS_SSE ? 1 : 0;
}

REAL AvxVersion(const PROCESSOR_RECORD &p) {
    if (p.IS_AVX512F) return 512;
    if (p.IS_AVX2) return 2;
    return p.IS_AVX ? 1 : 0;
}

PROCESSOR_RECORD MakeRecord() {
    PROCESSOR_RECORD p;
    ReadProcessor(p);
    p.GET_MMX_VERSION = p.IS_MMX_EXT ? 2 : (p.IS_MMX ? 1 : 0);
    p.GET_3DNOW_VERSION = p.IS_3DNOW_EXT ? 2 : (p.IS_3DNOW ? 1 : 0);
    p.GET_SSE_VERSION = SseVersion(p);
    p.GET_AVX_VERSION = AvxVersion(p);
    const NAT usable = USABLE_THREADS();
    p.IS_HYPERTHREADING = usable % 2 == 0 && HasTwoThreadsPerCore();
    p.CPUCORES = p.IS_HYPERTHREADING ? usable / 2 : usable;
    return p;
}

NAT TotalThreads(const PROCESSOR_RECORD &p) {
    return p.CPUCORES * p.CPUTHREADS * (p.IS_HYPERTHREADING ? 2 : 1);
}

const char *VendorWord(VENDOR_CODE vendor) {
    switch (vendor) {
    case VENDOR_CODE::AMD: return "AMD ";
    case VENDOR_CODE::INTEL: return "Intel ";
    case VENDOR_CODE::COMPATIBLE: return "Like AMD or Intel ";
    case VENDOR_CODE::VIRTUAL: return "Virtual ";
    case VENDOR_CODE::POWERPC: return "PowerPC ";
    case VENDOR_CODE::SPARC: return "Sparc ";
    case VENDOR_CODE::ARM: return "ARM ";
    default: return "CPU ";
    }
}

// A set of instructions that the list of a family names.
struct EXTENSION {
    bool PROCESSOR_RECORD::*there;
    const char *text;
};

using P = PROCESSOR_RECORD;
constexpr EXTENSION MMX_LIST[] = {{&P::IS_MMX, "mmx"}, {&P::IS_MMX_EXT, "+ext"}};
constexpr EXTENSION NOW_LIST[] = {
    {&P::IS_3DNOW, "3dnow"}, {&P::IS_3DNOW_EXT, "+ext"}, {&P::IS_3DNOW_PREFETCH, "+prefetch"}};
constexpr EXTENSION SSE_LIST[] = {
    {&P::IS_SSE, "sse"},   {&P::IS_SSE2, "+2"},   {&P::IS_SSE3, "+3"},  {&P::IS_SSSE3, "+s3"},
    {&P::IS_SSE41, "+41"}, {&P::IS_SSE4A, "+4a"}, {&P::IS_SSE42, "+42"}};
constexpr EXTENSION AVX_LIST[] = {
    {&P::IS_AVX, "avx"},    {&P::IS_F16C, "+f16c"}, {&P::IS_XOP, "+xop"}, {&P::IS_FMA, "+fma"},
    {&P::IS_BMI1, "+bmi1"}, {&P::IS_BMI2, "+bmi2"}, {&P::IS_AVX2, "+2"},  {&P::IS_ADX, "+adx"}};
constexpr EXTENSION AVX512_LIST[] = {
    {&P::IS_AVX512F, "avx512"},       {&P::IS_AVX512F, "+f"},
    {&P::IS_AVX512CD, "+cd"},         {&P::IS_AVX512VL, "+vl"},
    {&P::IS_AVX512DQ, "+dq"},         {&P::IS_AVX512BW, "+bw"},
    {&P::IS_AVX512IFMA, "+ifma"},     {&P::IS_AVX512VBMI, "+vbmi"},
    {&P::IS_AVX512VBMI2, "+vbmi2"},   {&P::IS_AVX512VNNI, "+vnni"},
    {&P::IS_AVX512BITALG, "+bitalg"}, {&P::IS_AVX512VPOPCNTDQ, "+vpopcntdq"},
    {&P::IS_AVX512BF16, "+bf16"},     {&P::IS_AVX512FP16, "+fp16"}};
constexpr EXTENSION AMX_LIST[] = {
    {&P::IS_AMX, "amx"},        {&P::IS_AMX_INT8, "+int8"},       {&P::IS_AMX_BF16, "+bf16"},
    {&P::IS_AMX_FP16, "+fp16"}, {&P::IS_AMX_COMPLEX, "+complex"}, {&P::IS_AMX_FP8, "+fp8"},
    {&P::IS_AMX_TF32, "+tf32"}};

// Adds a family, when its first entry is there, with those of its extensions that are.
template <std::size_t COUNT>
void AddFamily(std::string &list, const P &processor, const EXTENSION (&family)[COUNT]) {
    if (!(processor.*family[0].there)) return;
    if (!list.empty()) list += ",";
    for (const EXTENSION &extension : family)
        if (processor.*extension.there) list += extension.text;
}
} // namespace

const PROCESSOR_RECORD &PROCESSOR() {
    static const PROCESSOR_RECORD record = MakeRecord();
    return record;
}

NAT GETTHREADS() { return TotalThreads(PROCESSOR()); }

std::string GETCORES(const PROCESSOR_RECORD &processor) {
    const std::string total = std::to_string(TotalThreads(processor)) + " threads)";
    return VendorWord(processor.VENDOR) + ("cores " + std::to_string(processor.CPUCORES)) + "*" +
           std::to_string(processor.CPUTHREADS) + (processor.IS_HYPERTHREADING ? "+htt (" : " (") +
           total;
}

std::string GETSIMD(const PROCESSOR_RECORD &processor) {
    std::string list;
    AddFamily(list, processor, MMX_LIST);
    AddFamily(list, processor, NOW_LIST);
    AddFamily(list, processor, SSE_LIST);
    AddFamily(list, processor, AVX_LIST);
    AddFamily(list, processor, AVX512_LIST);
    AddFamily(list, processor, AMX_LIST);
    return list;
}

void EMMS() {
#if defined(__x86_64__) || defined(__i386__)
    __asm__ volatile("emms" ::: "memory");
#endif
}

void FEMMS() { EMMS(); }
} // namespace morvane
