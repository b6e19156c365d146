#pragma once

#include "foundation/base/records.hpp"

#include <string>
#include <string_view>

namespace morvane {
enum class VENDOR_CODE : NAT {
    UNKNOWN = 0,
    AMD = 10,
    INTEL = 20,
    COMPATIBLE = 30,
    VIRTUAL = 90,
    POWERPC = 100,
    SPARC = 200,
    ARM = 300
};

// What this process may use of the processor. Filled once; on processors without cpuid every
// instruction set is "not there". A set counts only when the system keeps its registers too.
struct PROCESSOR_RECORD {
    VENDOR_CODE VENDOR = VENDOR_CODE::UNKNOWN;
    NAT CPUCORES = 1, CPUTHREADS = 1; // their product, doubled below, is the usable threads
    bool IS_HYPERTHREADING = false;   // two hardware threads a core

    bool IS_MMX = false, IS_MMX_EXT = false;
    bool IS_3DNOW = false, IS_3DNOW_EXT = false, IS_3DNOW_PREFETCH = false;
    bool IS_SSE = false, IS_SSE2 = false, IS_SSE3 = false, IS_SSSE3 = false, IS_SSE41 = false;
    bool IS_SSE4A = false, IS_SSE42 = false;
    bool IS_AVX = false, IS_F16C = false, IS_XOP = false, IS_FMA = false, IS_BMI1 = false;
    bool IS_BMI2 = false, IS_AVX2 = false, IS_ADX = false;
    bool IS_AVX512F = false, IS_AVX512CD = false, IS_AVX512VL = false, IS_AVX512DQ = false;
    bool IS_AVX512BW = false, IS_AVX512IFMA = false, IS_AVX512VBMI = false;
    bool IS_AVX512VBMI2 = false, IS_AVX512VNNI = false, IS_AVX512BITALG = false;
    bool IS_AVX512VPOPCNTDQ = false, IS_AVX512BF16 = false, IS_AVX512FP16 = false;
    bool IS_AMX = false, IS_AMX_INT8 = false, IS_AMX_BF16 = false, IS_AMX_FP16 = false;
    bool IS_AMX_COMPLEX = false, IS_AMX_FP8 = false, IS_AMX_TF32 = false;

    // The highest version of a family: 1, 2, 3, 3.1 (SSSE3), 4.1, 4.2 for SSE, 1, 2, 512 for AVX,
    // 1 or 2 (with extensions) for MMX and 3DNow; 0 when it is not there.
    REAL GET_MMX_VERSION = 0, GET_3DNOW_VERSION = 0, GET_SSE_VERSION = 0, GET_AVX_VERSION = 0;
};

const PROCESSOR_RECORD &PROCESSOR();

// Hardware threads that this process may really use: its affinity mask, limited by the processor
// quota of its control groups (a part of a processor counts as one); at least 1.
NAT GETTHREADS();
std::string
GETCORES(const PROCESSOR_RECORD &processor = PROCESSOR()); // "Intel cores 4*1 (4 threads)"
std::string GETSIMD(const PROCESSOR_RECORD &processor = PROCESSOR()); // "mmx+ext,sse+2+3,avx+2"

void EMMS();  // empties the MMX state
void FEMMS(); // the same

// Whole processors of a control group's quota, rounded up; 0: no limit. `cpuMax` is "quota period"
// in microseconds, where the quota may be "max" or negative.
NAT CPUQUOTA(std::string_view cpuMax);
} // namespace morvane
