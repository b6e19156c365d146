#include "foundation/base/record_operators.hpp"
#include "orientation/scan/scan_images.hpp"

#include <algorithm>
#include <cmath>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

// The whole scan of an image once more, written from its rules alone, with two axes, lists and a
// sort of its own.
namespace {
using LIST = std::vector<NAT>;
struct RANKED {
    std::size_t position = 0; // in the list of long directions
    REAL value = 0;
};

template <class T, class KEY> void HeapSort(std::vector<T> &list, KEY key) {
    const auto sift = [&](std::size_t parent, std::size_t last) { // places from 1
        while (2 * parent <= last) {
            std::size_t child = 2 * parent;
            if (child < last && key(list[child]) > key(list[child - 1])) ++child;
            if (!(key(list[child - 1]) > key(list[parent - 1]))) return;
            std::swap(list[child - 1], list[parent - 1]);
            parent = child;
        }
    };
    for (std::size_t parent = list.size() / 2; parent >= 1; --parent)
        sift(parent, list.size());
    for (std::size_t last = list.size(); last >= 2; --last) {
        std::swap(list[0], list[last - 1]);
        sift(1, last - 1);
    }
}

NAT Rounded(REAL value) { return static_cast<NAT>(std::nearbyint(value)); }
REAL Length(const COMPLEX &v) { return std::sqrt(v.x * v.x + v.y * v.y); }
COMPLEX Unit(const COMPLEX &v) { return Length(v) == 0 ? v : v / Length(v); }
REAL Angle(const COMPLEX &a, const COMPLEX &b) {
    const REAL lengths = std::sqrt((a.x * a.x + a.y * a.y) * (b.x * b.x + b.y * b.y));
    if (lengths == 0) return 0;
    return std::acos(std::clamp((a.x * b.x + a.y * b.y) / lengths, -1.0, 1.0));
}

std::vector<COMPLEXNAT> HalfCircle(NAT radius) {
    const REAL r = static_cast<REAL>(radius);
    std::vector<COMPLEXNAT> raw, kept;
    for (NAT i = 0; i < Rounded(PI * r) - 1; ++i) {
        const REAL phi = static_cast<REAL>(i + 1) / r;
        raw.push_back({Rounded(r * std::cos(phi)), Rounded(r * std::sin(phi))});
    }
    for (std::size_t i = 0; i + 1 < raw.size(); ++i)
        if (std::none_of(raw.begin() + static_cast<std::ptrdiff_t>(i) + 1, raw.end(),
                         [&](const COMPLEXNAT &v) { return v == raw[i] || v == -raw[i]; }))
            kept.push_back(raw[i]);
    HeapSort(kept, [](const COMPLEXNAT &v) { return v.y; });
    return kept;
}

LIST Line(const TIMAGE &image, const COMPLEXNAT &p1, const COMPLEXNAT &p2) {
    const COMPLEXNAT way = p2 - p1;
    const NAT n = Rounded(std::sqrt(static_cast<REAL>(way.x * way.x + way.y * way.y)));
    LIST line;
    if (n <= 0) return line;
    const auto step = [n](NAT d) {
        return Rounded(static_cast<REAL>(d) / static_cast<REAL>(n) * 65535.0);
    };
    const auto read = [&](const COMPLEXNAT &p, NAT i) {
        const auto whole = [i](NAT start, NAT move) {
            return static_cast<NAT>(
                std::floor(static_cast<REAL>(start * 65536 + i * move) / 65536));
        };
        return image.GET(whole(p.x, step(way.x)), whole(p.y, step(way.y)));
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

struct LONG_LINE {
    COMPLEX d;
    REAL value = 0;
};

// One pixel: the long lines of all directions first, then a method over them.
class DESCRIBED {
public:
    DESCRIBED(const TIMAGE &source, NAT radius)
        : image(source), r(radius), points(HalfCircle(radius)) {}

    COMPLEX AT(const COMPLEXNAT &centre) {
        lines.clear();
        for (const COMPLEXNAT &d : points) {
            const LIST line = Line(image, centre + d, centre - d);
            if (static_cast<NAT>(line.size()) >= r)
                lines.push_back({TO_REAL(d), Statistic(image.subMethod, line)});
            else if (image.fullScan)
                return {};
        }
        best = 8.99e307;
        for (const LONG_LINE &line : lines)
            best = std::min(best, line.value);
        ties.clear();
        for (const LONG_LINE &line : lines)
            if (line.value == best) ties.push_back(line.d);
        if (ties.empty()) return {};
        if (image.diffusionMethod == 1) return ties.size() == 1 ? Unit(ties[0]) * best : COMPLEX{};
        if (image.diffusionMethod == 2) return TwoBest();
        return image.diffusionMethod == 3 ? AllBest() : Cone();
    }

private:
    COMPLEX TwoBest() const {
        COMPLEX result = Unit(ties[0]) * best;
        if (ties.size() == 1) return result;
        if (ties.size() > 2) return {};
        const COMPLEX unit = Unit(ties[1]);
        const REAL limit = static_cast<REAL>(r) * 0.5;
        if (limit > Length(Unit(result) - unit)) return (result + unit * best) / 2.0;
        if (limit > Length(Unit(result) + unit)) return (result + (-unit) * best) / 2.0;
        return {};
    }
    COMPLEX AllBest() const {
        const REAL count = static_cast<REAL>(ties.size());
        if (!(static_cast<REAL>(points.size()) * image.diffusionMax > count)) return {};
        COMPLEX result = Unit(ties[0]) * best;
        for (std::size_t i = 1; i < ties.size(); ++i) {
            const COMPLEX unit = Unit(ties[i]);
            const bool inverted = Length(result + unit) < Length(result);
            result = result + (inverted ? -unit : unit) * best;
        }
        return ties.size() >= 2 ? result / count : result;
    }
    COMPLEX Cone() const {
        if (lines.size() <= 2) return {};
        std::vector<RANKED> ranked;
        for (const LONG_LINE &line : lines)
            ranked.push_back({ranked.size(), line.value});
        HeapSort(ranked, [](const RANKED &entry) { return entry.value; });
        const REAL share = static_cast<REAL>(ranked.size()) * image.diffusionMax;
        if (!(share > static_cast<REAL>(ties.size()))) return {};
        COMPLEX axis, total;
        for (const COMPLEX &d : ties)
            axis = axis + d;
        const REAL angle = image.diffusionAngle;
        std::size_t k = 0;
        for (bool more = true; more;) {
            const RANKED entry = ranked[k++];
            const COMPLEX d = lines[entry.position].d;
            const bool isBest = entry.value == best;
            const bool inside = Angle(axis, d) <= angle, opposite = Angle(axis, -d) <= angle;
            if (isBest && inside)
                total = total + d;
            else if (isBest && opposite)
                total = total - d;
            more = image.diffusionMethod == 4 ? isBest : inside && !opposite;
            more = more && k < ranked.size();
        }
        if (k <= 1) return {};
        return image.diffusionMethod == 6 ? Unit(total) * best : total;
    }

    const TIMAGE &image;
    NAT r;
    std::vector<COMPLEXNAT> points;
    std::vector<LONG_LINE> lines;
    std::vector<COMPLEX> ties;
    REAL best = 0;
};

// The stored angle by its rule: against the clock from x, as y runs down.
NAT Stored(const COMPLEX &v, REAL maximum) {
    REAL a = Length(v) == 0 ? 0 : Angle(v, {1, 0});
    if (v.y > 0) a = 2 * PI - a; // more than pi/2 away from (0, -1)
    return Rounded(std::clamp((a - PI / 2) / PI * maximum, 0.0, maximum));
}

NAT Wrong(const TIMAGE &image, NAT r) {
    DESCRIBED described(image, r);
    TIMAGE target;
    SCAN_IMAGE(image, target, r);
    NAT count = 0;
    for (NAT y = 1; y <= image.SIZEY(); ++y)
        for (NAT x = 1; x <= image.SIZEX(); ++x) {
            const bool isZero = image.GET(x, y) < 1;
            const NAT expected = isZero ? 0 : Stored(described.AT({x, y}), 65535);
            count += target.GET(x, y) != expected;
        }
    return count;
}
} // namespace

TEST_CASE("the scan of an image is the described one for every method and statistic") {
    unsigned seed = 50;
    for (const NAT top : {3, 40, 255})
        for (BYTE method = 1; method <= 6; ++method)
            for (BYTE statistic = 0; statistic <= 7; ++statistic) {
                CAPTURE(top);
                CAPTURE(int{method});
                CAPTURE(int{statistic});
                ++seed;
                const NAT r = 2 + seed % 5;
                TIMAGE image;
                NOISE noise(seed, 1, top, seed % 3 * 7);
                FILL_IMAGE(image, seed % 2 ? IMAGE_GRAY : IMAGE_FULLGRAY,
                           {2 * r + 1 + seed % 13, 2 * r + 1 + seed % 4},
                           [&](NAT x, NAT y) { return noise(x, y, 1); });
                image.diffusionMethod = method;
                image.subMethod = statistic;
                image.fullScan = seed % 4 == 0;
                if (seed % 3 == 0) image.diffusionMax = 1;
                if (seed % 5 == 0) image.diffusionAngle = 0.6;
                CHECK(Wrong(image, r) == 0);
            }
}

TEST_CASE("the scan of a colour image is that of its grey values") {
    TIMAGE colour(IMAGE_RGB, 21, 14);
    NOISE noise(77, 0, 255);
    for (NAT y = 1; y <= 14; ++y)
        for (NAT x = 1; x <= 21; ++x)
            colour.PUTRGB(x, y, {noise(x, y, 1), noise(x, y, 1), noise(x, y, 1)});
    CHECK(Wrong(colour, 4) == 0); // reads half the sum of the components
}
