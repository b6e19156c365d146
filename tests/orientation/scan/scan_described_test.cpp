#include "foundation/base/geometry.hpp"
#include "foundation/base/record_operators.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_fields.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

// The whole scan once more, written from its description alone, with lists and a sort of its own.
namespace {
using LIST = std::vector<NAT>;
struct RANKED {
    NAT position = 0; // in the list of long directions, from 1
    REAL value = 0;
};

// Places 1 to `length`: the heap is built from the middle down, then its top goes to the end.
template <class T, class KEY> void SiftDown(std::vector<T> &list, NAT parent, NAT last, KEY key) {
    const auto at = [&](NAT place) -> T & { return list[static_cast<std::size_t>(place - 1)]; };
    while (2 * parent <= last) {
        NAT child = 2 * parent;
        if (child < last && key(at(child + 1)) > key(at(child))) ++child;
        if (!(key(at(child)) > key(at(parent)))) return;
        std::swap(at(child), at(parent));
        parent = child;
    }
}
template <class T, class KEY> void HeapSort(std::vector<T> &list, KEY key) {
    const NAT length = static_cast<NAT>(list.size());
    for (NAT parent = length / 2; parent >= 1; --parent)
        SiftDown(list, parent, length, key);
    for (NAT last = length; last >= 2; --last) {
        std::swap(list[0], list[static_cast<std::size_t>(last - 1)]);
        SiftDown(list, 1, last - 1, key);
    }
}

NAT Rounded(REAL value) { return static_cast<NAT>(std::nearbyint(value)); }

std::vector<VECTORNAT> Hemisphere(NAT radius) {
    const REAL r = static_cast<REAL>(radius);
    std::vector<VECTORNAT> raw, kept;
    const NAT n = Rounded(PI * r);
    for (NAT i = 0; i < n; ++i) {
        const REAL rr = std::sin(static_cast<REAL>(i) / r) * r;
        const NAT m = Rounded(PI * rr);
        for (NAT j = 0; j < m; ++j) {
            const REAL theta = static_cast<REAL>(i + 1) / r, phi = static_cast<REAL>(j + 1) / rr;
            raw.push_back({Rounded(r * std::sin(theta) * std::cos(phi)),
                           Rounded(r * std::sin(theta) * std::sin(phi)),
                           Rounded(r * std::cos(theta))});
        }
    }
    for (std::size_t i = 0; i + 1 < raw.size(); ++i)
        if (std::none_of(raw.begin() + static_cast<std::ptrdiff_t>(i) + 1, raw.end(),
                         [&](const VECTORNAT &v) { return v == raw[i] || v == -raw[i]; }))
            kept.push_back(raw[i]);
    HeapSort(kept, [](const VECTORNAT &v) { return v.z; });
    return kept;
}

LIST Line(const T3D_SCALAR_ANALYSIS &field, const VECTORNAT &p1, const VECTORNAT &p2) {
    const VECTORNAT way = p2 - p1;
    const NAT n =
        Rounded(std::sqrt(static_cast<REAL>(way.x * way.x + way.y * way.y + way.z * way.z)));
    LIST line;
    if (n <= 0) return line;
    const auto step = [n](NAT d) {
        return Rounded(static_cast<REAL>(d) / static_cast<REAL>(n) * 65535.0);
    };
    const auto read = [&](const VECTORNAT &p, NAT i) {
        const auto whole = [i](NAT start, NAT move) { // floor: below 1 is outside
            return static_cast<NAT>(
                std::floor(static_cast<REAL>(start * 65536 + i * move) / 65536));
        };
        return field.GET(whole(p.x, step(way.x)), whole(p.y, step(way.y)), whole(p.z, step(way.z)));
    };
    const bool front = read(p1, 0) != 0, back = !front && read(p2, 0) != 0;
    for (NAT i = 0; i <= n; ++i) {
        const NAT value = back ? read(p2, -i) : read(p1, i);
        if (value != 0)
            line.push_back(value);
        else if (front || back || !line.empty())
            break;
    }
    return line;
}

REAL Statistic(BYTE number, LIST line) {
    std::sort(line.begin(), line.end());
    const NAT n = static_cast<NAT>(line.size()), odd = n % 2;
    NAT sum = 0, squares = 0;
    for (const NAT x : line) {
        sum += x;
        squares += x * x;
    }
    const auto place = [&](NAT i) {
        return i < 1 ? 0.0 : static_cast<REAL>(line[static_cast<std::size_t>(i - 1)]);
    };
    if (number == 0) return static_cast<REAL>(sum);
    if (number == 1) return static_cast<REAL>(sum) / static_cast<REAL>(n);
    if (number == 3) return place(1);
    if (number == 4) return place(n / 4 + odd);
    if (number == 5) return place(n / 2 + odd);
    if (number == 6) return place(n / 4 * 3 + odd);
    if (number == 7) return place(n);
    if (n < 2) return 0;
    return std::sqrt(static_cast<REAL>(n * squares - sum * sum) / static_cast<REAL>(n * (n - 1)));
}

// One voxel by the six methods.
class DESCRIBED {
public:
    DESCRIBED(const T3D_SCALAR_ANALYSIS &scalar, NAT radius)
        : field(scalar), r(radius), points(Hemisphere(radius)) {}

    VECTOR AT(const VECTORNAT &centre) {
        scanned.clear();
        ranked.clear();
        best = 8.99e307;
        result = sum = VZERO;
        open = false;
        ties = 0;
        for (const VECTORNAT &d : points) {
            const LIST line = Line(field, centre + d, centre - d);
            if (static_cast<NAT>(line.size()) < r) {
                if (field.fullScan) return VZERO;
                continue;
            }
            Take(d, Statistic(field.subMethod, line));
        }
        const BYTE method = field.diffusionMethod;
        if (method == 1 || method == 2) return result;
        if (method == 3) return Share(static_cast<NAT>(points.size())) ? Mean() : VZERO;
        return Second();
    }

private:
    bool Share(NAT count) const {
        return static_cast<REAL>(count) * field.diffusionMax > static_cast<REAL>(ties);
    }
    VECTOR Mean() const { return ties >= 2 ? result / static_cast<REAL>(ties) : result; }

    void Take(const VECTORNAT &d, REAL value) {
        const VECTOR unit = NORM(d);
        scanned.push_back(d);
        ranked.push_back({static_cast<NAT>(scanned.size()), value});
        if (value < best) {
            best = value;
            result = unit * value;
            sum = TO_REAL(d);
            open = true;
            ties = 1;
        } else if (value == best) {
            Tie(unit, value);
            sum = sum + TO_REAL(d);
            ++ties;
        }
    }
    void Tie(const VECTOR &unit, REAL value) {
        if (field.diffusionMethod == 3) {
            const bool inverted = GETLENGTH(result + unit) < GETLENGTH(result);
            result = result + (inverted ? -unit : unit) * value;
            return;
        }
        const REAL limit = static_cast<REAL>(r) * 0.5;
        if (field.diffusionMethod != 2 || !open)
            result = VZERO;
        else if (limit > GETLENGTH(NORM(result) - unit))
            result = (result + unit * value) / 2.0;
        else if (limit > GETLENGTH(NORM(result) + unit))
            result = (result + (-unit) * value) / 2.0;
        else
            result = VZERO;
        open = false;
    }
    VECTOR Second() {
        const NAT length = static_cast<NAT>(ranked.size());
        if (length <= 2 || ties < 1) return VZERO;
        HeapSort(ranked, [](const RANKED &entry) { return entry.value; });
        if (!Share(length)) return VZERO;
        const REAL angle = field.diffusionAngle;
        VECTOR total = VZERO;
        NAT k = 0;
        for (bool more = true; more;) {
            const RANKED entry = ranked[static_cast<std::size_t>(k++)];
            const VECTOR d = TO_REAL(scanned[static_cast<std::size_t>(entry.position - 1)]);
            const bool isBest = entry.value == best;
            const bool inside = GETANGLE(sum, d) <= angle, opposite = GETANGLE(sum, -d) <= angle;
            if (isBest && inside)
                total = total + d;
            else if (isBest && opposite)
                total = total - d;
            more = field.diffusionMethod == 4 ? isBest : inside && !opposite;
            more = more && k < length;
        }
        if (k <= 1) return VZERO;
        return field.diffusionMethod == 6 ? NORM(total) * best : total;
    }

    const T3D_SCALAR_ANALYSIS &field;
    NAT r;
    std::vector<VECTORNAT> points, scanned;
    std::vector<RANKED> ranked;
    REAL best = 0;
    VECTOR result, sum;
    bool open = false;
    NAT ties = 0;
};

struct COUNTS {
    NAT different = 0, vectors = 0;
};
COUNTS Compare(const T3D_SCALAR_ANALYSIS &scalar, NAT r) {
    const VECTORNAT size = scalar.SIZE();
    T3D_VECTOR_ANALYSIS plainField(VECTOR_FLOAT, size.x, size.y, size.z);
    T3D_VECTOR_ANALYSIS fastField(VECTOR_FLOAT, size.x, size.y, size.z);
    DESCRIBED described(scalar, r);
    COUNTS counts;
    for (NAT z = 1; z <= size.z; ++z) {
        plain::DIFFUSION(scalar, plainField, z, r);
        DIFFUSION(scalar, fastField, z, r);
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                const bool zero = scalar.GET(x, y, z) < 1;
                const VECTOR expected = zero ? VZERO : described.AT({x, y, z});
                counts.vectors += expected != VZERO;
                counts.different += plainField.GET(x, y, z) != expected;
                counts.different += fastField.GET(x, y, z) != expected;
            }
    }
    return counts;
}
} // namespace

TEST_CASE("both roads give what the described steps give, for every method and statistic") {
    for (BYTE method = 1; method <= 6; ++method)
        for (BYTE statistic = 0; statistic <= 7; ++statistic) {
            CAPTURE(int{method});
            CAPTURE(int{statistic});
            NAT vectors = 0;
            for (const NAT r : {1, 2, 3, 5}) {
                const unsigned seed = static_cast<unsigned>(10 * r + statistic);
                T3D_SCALAR_ANALYSIS scalar;
                const bool few = r == 2 || r == 5; // few values: many ties
                FILL_FIELD(scalar, r == 3 ? TAG_FULLGRAY : TAG_GRAY, {2 * r + 4, 2 * r + 2, 6},
                           NOISE(seed, few ? 7 : 1, few ? 9 : 250, r == 1 ? 30 : 12));
                scalar.diffusionMethod = method;
                scalar.subMethod = statistic;
                scalar.diffusionMax = few ? 0.9 : 0.25;
                scalar.diffusionAngle = few ? 1.1 : 5 * PI / 180;
                const COUNTS counts = Compare(scalar, r);
                CHECK(counts.different == 0);
                vectors += counts.vectors;
            }
            CHECK(vectors > 0);
        }
}

TEST_CASE("both roads give what the described steps give in a full scan") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 9, 9}, NOISE(3, 1, 4));
    scalar.fullScan = 1;
    scalar.diffusionMax = 0.9;
    scalar.diffusionAngle = 1.1;
    for (BYTE method = 1; method <= 6; ++method) {
        scalar.diffusionMethod = method;
        const COUNTS counts = Compare(scalar, 2);
        CHECK(counts.different == 0);
        CHECK(counts.vectors > 0);
        CHECK(counts.vectors < 9 * 9 * 9); // an edge has lines that leave on both sides
    }
}
