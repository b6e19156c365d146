#include "field3d/format/sample_codec.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace morvane {
namespace {
__extension__ typedef __int128 WIDE; // holds every filtered 64-bit sample

template <class VOXEL> constexpr NAT BITS_OF = std::is_same_v<VOXEL, bool> ? 1 : sizeof(VOXEL) * 8;
template <class VOXEL> constexpr NAT TOP = (NAT{1} << BITS_OF<VOXEL>)-1;
template <class VOXEL> using OUT_OF = typename CODEC_OUT<VOXEL>::TYPE;

// Sample kinds: BYTES in the file, LOAD from memory without any alignment.
template <class T> struct WHOLE {
    using VALUE = T;
    static constexpr NAT BYTES = sizeof(T);
    static T LOAD(const BYTE *p) {
        T value;
        std::memcpy(&value, p, sizeof value);
        return value;
    }
};
template <class T> struct FLOATING : WHOLE<T> {};
// The 80-bit format: 64 bits of mantissa with its leading one, 15 of exponent, a sign.
struct EXTENDED {
    using VALUE = REAL;
    static constexpr NAT BYTES = 10;
    static REAL LOAD(const BYTE *p) {
        const auto mantissa = WHOLE<std::uint64_t>::LOAD(p);
        const WORD top = WHOLE<WORD>::LOAD(p + 8);
        const int exponent = top & 0x7FFF;
        REAL value = 0;
        if (exponent == 0x7FFF)
            value = (mantissa << 1) == 0 ? REALMAX : std::numeric_limits<REAL>::quiet_NaN();
        else
            value = std::ldexp(static_cast<REAL>(mantissa), exponent - 16383 - 63);
        return (top & 0x8000) != 0 ? -value : value;
    }
};
// CHANNELS numbers of T, of which the first three count.
template <class T, NAT CHANNELS> struct COLOUR {
    using CHANNEL = T;
    static constexpr NAT BYTES = CHANNELS * static_cast<NAT>(sizeof(T));
    static NAT LOAD(const BYTE *p) {
        return NAT{WHOLE<T>::LOAD(p)} + WHOLE<T>::LOAD(p + sizeof(T)) +
               WHOLE<T>::LOAD(p + 2 * sizeof(T));
    }
};

template <class S> struct IS_FLOAT : std::false_type {};
template <class T> struct IS_FLOAT<FLOATING<T>> : std::true_type {};
template <> struct IS_FLOAT<EXTENDED> : std::true_type {};
template <class S> struct IS_COLOUR : std::false_type {};
template <class T, NAT N> struct IS_COLOUR<COLOUR<T, N>> : std::true_type {};

// f(sample kind) for a type code; a default result for an unknown one.
template <class F> auto BY_CODE(NAT code, F f) {
    using RESULT = decltype(f(WHOLE<BYTE>{}));
    switch (code) {
    case 8: return f(WHOLE<BYTE>{});
    case -8: return f(WHOLE<std::int8_t>{});
    case 16: return f(WHOLE<WORD>{});
    case -16: return f(WHOLE<std::int16_t>{});
    case 32: return f(WHOLE<std::uint32_t>{});
    case -32: return f(WHOLE<std::int32_t>{});
    case 64: return f(WHOLE<std::uint64_t>{});
    case -64: return f(WHOLE<std::int64_t>{});
    case 1032: return f(FLOATING<float>{});
    case 1064: return f(FLOATING<double>{});
    case 1080: return f(EXTENDED{});
    case 2024: return f(COLOUR<BYTE, 3>{});
    case 2032: return f(COLOUR<BYTE, 4>{});
    case 3024: return f(COLOUR<WORD, 3>{});
    case 3032: return f(COLOUR<WORD, 4>{});
    default: return RESULT();
    }
}

template <SAMPLE_RULE RULE> WIDE FILTERED(WIDE value, const SAMPLE_MAP &map) {
    constexpr WIDE most = (WIDE{1} << 64) - 1; // times a factor still within 128 bits
    const WIDE sum = value + map.offset;
    if constexpr (RULE == SAMPLE_RULE::ADD)
        return sum;
    else if constexpr (RULE == SAMPLE_RULE::DIVIDE)
        return sum / -WIDE{map.factor};
    else
        return std::clamp(sum, -most, most) * map.factor;
}

template <SAMPLE_RULE RULE> REAL FILTERED_REAL(REAL value, const SAMPLE_MAP &map) {
    const REAL sum = value + static_cast<REAL>(map.offset);
    if constexpr (RULE == SAMPLE_RULE::ADD)
        return sum;
    else if constexpr (RULE == SAMPLE_RULE::DIVIDE)
        return sum / -static_cast<REAL>(map.factor);
    else
        return sum * static_cast<REAL>(map.factor);
}

template <class T, class VOXEL, SAMPLE_RULE RULE>
OUT_OF<VOXEL> CONVERT_WHOLE(T value, const SAMPLE_MAP &map) {
    using UNSIGNED = std::make_unsigned_t<T>;
    constexpr bool isSigned = std::is_signed_v<T>;
    constexpr NAT bits = static_cast<NAT>(sizeof(T)) * 8;
    // Half of the unsigned range parts the voxels of one bit, zero the signed one.
    constexpr UNSIGNED half = static_cast<UNSIGNED>(UNSIGNED{1} << (bits - 1));
    constexpr WIDE threshold = isSigned ? WIDE{0} : static_cast<WIDE>(half) - 1;
    if constexpr (RULE != SAMPLE_RULE::SCALE) {
        const WIDE result = FILTERED<RULE>(value, map);
        if constexpr (std::is_same_v<VOXEL, bool>)
            return result > threshold ? 1 : 0;
        else
            return static_cast<VOXEL>(std::clamp<WIDE>(result, 0, TOP<VOXEL>));
    } else if constexpr (std::is_same_v<VOXEL, bool>) {
        return static_cast<BYTE>(isSigned ? value > 0 : static_cast<UNSIGNED>(value) >= half);
    } else {
        constexpr NAT shift = bits > BITS_OF<VOXEL> ? bits - BITS_OF<VOXEL> : 0;
        const auto shifted = isSigned ? static_cast<UNSIGNED>(static_cast<UNSIGNED>(value) ^ half)
                                      : static_cast<UNSIGNED>(value);
        return static_cast<VOXEL>(shifted >> shift);
    }
}

template <class VOXEL, SAMPLE_RULE RULE>
OUT_OF<VOXEL> CONVERT_REAL(REAL value, const SAMPLE_MAP &map) {
    constexpr REAL top = static_cast<REAL>(TOP<VOXEL>);
    if (std::isnan(value)) return 0;
    if constexpr (RULE == SAMPLE_RULE::SCALE) {
        const NAT mapped = MINMAX_NAT(value, map.range.min, map.range.max, 0, top);
        return static_cast<OUT_OF<VOXEL>>(mapped);
    } else if constexpr (std::is_same_v<VOXEL, bool>) {
        return FILTERED_REAL<RULE>(value, map) > 0 ? 1 : 0;
    } else {
        return static_cast<VOXEL>(
            LIMIT(ROUND(FILTERED_REAL<RULE>(value, map)), NAT{0}, TOP<VOXEL>));
    }
}

template <class S, class VOXEL> OUT_OF<VOXEL> CONVERT_COLOUR(NAT sum) {
    constexpr bool words = sizeof(typename S::CHANNEL) > 1;
    const NAT grey = std::min<NAT>(words ? sum / 768 : sum / 3, 255);
    // Deliberate: a colour file loads into a 1-bit field as all false.
    if constexpr (std::is_same_v<VOXEL, bool>)
        return grey > 3 * 127 ? 1 : 0;
    else if constexpr (std::is_same_v<VOXEL, BYTE>)
        return static_cast<BYTE>(grey);
    else
        return static_cast<WORD>(words ? sum / 3 : sum);
}

template <class S, class VOXEL, SAMPLE_RULE RULE>
void CODEC(const BYTE *samples, NAT count, OUT_OF<VOXEL> *voxels, const SAMPLE_MAP &map) {
    for (NAT i = 0; i < count; ++i) {
        const auto value = S::LOAD(samples + i * S::BYTES);
        if constexpr (IS_COLOUR<S>::value)
            voxels[i] = CONVERT_COLOUR<S, VOXEL>(value);
        else if constexpr (IS_FLOAT<S>::value)
            voxels[i] = CONVERT_REAL<VOXEL, RULE>(static_cast<REAL>(value), map);
        else
            voxels[i] = CONVERT_WHOLE<typename S::VALUE, VOXEL, RULE>(value, map);
    }
}

template <class S, class T> void DECODE(const BYTE *samples, NAT count, T *values) {
    for (NAT i = 0; i < count; ++i) {
        const auto value = S::LOAD(samples + i * S::BYTES);
        if constexpr (std::is_same_v<T, REAL>)
            values[i] = static_cast<REAL>(value);
        else if constexpr (IS_FLOAT<S>::value)
            values[i] = ROUND(static_cast<REAL>(value));
        else
            values[i] = static_cast<NAT>(std::clamp<WIDE>(value, NATMIN, NATMAX));
    }
}
} // namespace

SAMPLE_RULE GETRULE(NAT filterOffset, NAT filterFactor) {
    if (filterFactor > 0) return SAMPLE_RULE::MULTIPLY;
    if (filterFactor < 0) return SAMPLE_RULE::DIVIDE;
    return filterOffset != 0 ? SAMPLE_RULE::ADD : SAMPLE_RULE::SCALE;
}

template <class VOXEL> SAMPLE_CODEC<OUT_OF<VOXEL>> *GETCODEC(NAT code, SAMPLE_RULE rule) {
    return BY_CODE(code, [rule](auto kind) -> SAMPLE_CODEC<OUT_OF<VOXEL>> * {
        using S = decltype(kind);
        if constexpr (!IS_COLOUR<S>::value) {
            if (rule == SAMPLE_RULE::ADD) return &CODEC<S, VOXEL, SAMPLE_RULE::ADD>;
            if (rule == SAMPLE_RULE::MULTIPLY) return &CODEC<S, VOXEL, SAMPLE_RULE::MULTIPLY>;
            if (rule == SAMPLE_RULE::DIVIDE) return &CODEC<S, VOXEL, SAMPLE_RULE::DIVIDE>;
        }
        return &CODEC<S, VOXEL, SAMPLE_RULE::SCALE>;
    });
}
template SAMPLE_CODEC<BYTE> *GETCODEC<bool>(NAT, SAMPLE_RULE);
template SAMPLE_CODEC<BYTE> *GETCODEC<BYTE>(NAT, SAMPLE_RULE);
template SAMPLE_CODEC<WORD> *GETCODEC<WORD>(NAT, SAMPLE_RULE);

template <class T> SAMPLE_DECODER<T> *GETDECODER(NAT code) {
    return BY_CODE(code,
                   [](auto kind) -> SAMPLE_DECODER<T> * { return &DECODE<decltype(kind), T>; });
}
template SAMPLE_DECODER<REAL> *GETDECODER(NAT);
template SAMPLE_DECODER<NAT> *GETDECODER(NAT);

NAT GETSAMPLEBYTES(NAT code) {
    return BY_CODE(code, [](auto kind) { return decltype(kind)::BYTES; });
}

NAT GETCODEBYTES(NAT code) { return std::abs(code) % 1000 / 8; }

bool ISFLOAT(NAT code) { return code == 1032 || code == 1064 || code == 1080; }

void SWAPSAMPLES(NAT code, BYTE *samples, NAT count) {
    const NAT bytes = GETSAMPLEBYTES(code);
    const NAT width = code / 1000 == 2 ? 1 : code / 1000 == 3 ? 2 : bytes;
    if (width < 2) return;
    for (BYTE *p = samples, *end = samples + count * bytes; p < end; p += width)
        std::reverse(p, p + width);
}

void WIDEN(NAT code, const BYTE *samples, NAT count, RANGE &range) {
    BY_CODE(code, [&](auto kind) {
        using S = decltype(kind);
        for (NAT i = 0; i < count; ++i) {
            const auto value = static_cast<REAL>(S::LOAD(samples + i * S::BYTES));
            if (!std::isfinite(value)) continue;
            range.min = std::min(range.min, value);
            range.max = std::max(range.max, value);
        }
        return true;
    });
}

UTF16 GETFAMILY(NAT code) {
    const NAT bits = std::abs(code) % 1000;
    if (ISFLOAT(code)) return GETSTRING(bits) + UTF16("Float");
    if (code > 2000) {
        const char *const channels = bits == 32 ? "RGBA" : "RGB";
        return UTF16(code > 3000 ? "Full" : "") + UTF16(channels);
    }
    const UTF16 sign(code < 0 ? "-" : "");
    if (bits == 8) return sign + UTF16("Grey");
    if (bits == 16) return sign + UTF16("Fullgrey");
    return sign + GETSTRING(bits) + UTF16("Grey");
}
} // namespace morvane
