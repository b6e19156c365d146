#pragma once

#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <type_traits>

// The three stores seen alike, so that each operation is one loop per store without a test of the
// kind inside. Offsets count from 0, x fastest. NORMFACTOR is the length that NORM gives.
namespace morvane {
template <class VECTOR_POINTER> struct FLOAT_STORE {
    static constexpr bool IS_FLOAT = true, IS_BYTE = false;
    static constexpr REAL NORMFACTOR = 1;
    VECTOR_POINTER data;
    VECTOR _GET(NAT offset) const { return data[offset]; }
    void _PUT(NAT offset, const VECTOR &value) const { data[offset] = value; }
    void _NEGATE(NAT offset) const { data[offset] = -data[offset]; }
};

template <class VECTORNAT_POINTER> struct NAT_STORE {
    static constexpr bool IS_FLOAT = false, IS_BYTE = false;
    static constexpr REAL NORMFACTOR = 18446744073709551616.0; // 2^64
    VECTORNAT_POINTER data;
    VECTOR _GET(NAT offset) const { return TO_REAL(data[offset]); }
    void _PUT(NAT offset, const VECTOR &value) const { data[offset] = ROUND(value); }
    void _NEGATE(NAT offset) const {
        VECTORNAT &v = data[offset];
        v = {Negated(v.x), Negated(v.y), Negated(v.z)};
    }
    static NAT Negated(NAT value) { return value == NATMIN ? NATMAX : -value; }
};

template <class BYTE_POINTER> struct BYTE_STORE {
    static constexpr bool IS_FLOAT = false, IS_BYTE = true;
    static constexpr REAL NORMFACTOR = 255;
    BYTE_POINTER red, green, blue;
    VECTOR _GET(NAT offset) const {
        return {static_cast<REAL>(red[offset]), static_cast<REAL>(green[offset]),
                static_cast<REAL>(blue[offset])};
    }
    void _PUT(NAT offset, const VECTOR &value) const {
        red[offset] = Limited(value.x);
        green[offset] = Limited(value.y);
        blue[offset] = Limited(value.z);
    }
    void _NEGATE(NAT offset) const { _PUT(offset, -_GET(offset)); }
    static BYTE Limited(REAL value) {
        const NAT whole = ROUND(value);
        return static_cast<BYTE>(whole < 0 ? 0 : whole > 255 ? 255 : whole);
    }
};

// f(store) with the store in use; nothing (or a default result) without storage. The one switch
// over the kind.
template <class FIELD, class F> auto DISPATCH(FIELD &field, F &&f) {
    constexpr bool READONLY = std::is_const_v<FIELD>;
    using FLOATS = FLOAT_STORE<std::conditional_t<READONLY, const VECTOR *, VECTOR *>>;
    using NATS = NAT_STORE<std::conditional_t<READONLY, const VECTORNAT *, VECTORNAT *>>;
    using BYTES = BYTE_STORE<std::conditional_t<READONLY, const BYTE *, BYTE *>>;
    using RESULT = std::invoke_result_t<F, FLOATS>;
    switch (field._GETID()) {
    case VECTOR_FLOAT: return f(FLOATS{field.FLOATS()});
    case VECTOR_INTEGER: return f(NATS{static_cast<VECTORNAT *>(field._NATSTORE().DATA)});
    case VECTOR_24BIT: {
        auto &store = field._BYTESTORE();
        return f(BYTES{store.red.VOXELS(), store.green.VOXELS(), store.blue.VOXELS()});
    }
    default:
        if constexpr (!std::is_void_v<RESULT>) return RESULT{};
    }
}

// Every vector becomes f(vector).
template <class F> void MAP_VECTORS(T3D_VECTOR_ANALYSIS &field, F f) {
    DISPATCH(field, [&](const auto &store) {
        const NAT count = field._VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            store._PUT(offset, f(store._GET(offset)));
    });
}

// The vectors for which `test` holds become zero; the others are not touched.
template <class F> void ERASE_VECTORS(T3D_VECTOR_ANALYSIS &field, F test) {
    DISPATCH(field, [&](const auto &store) {
        const NAT count = field._VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            if (test(store._GET(offset))) store._PUT(offset, VZERO);
    });
}

// f(vector) of every vector, in the order of the voxels.
template <class F> void EACH_VECTOR(const T3D_VECTOR_ANALYSIS &field, F f) {
    DISPATCH(field, [&](const auto &store) {
        const NAT count = field._VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            f(store._GET(offset));
    });
}
} // namespace morvane
