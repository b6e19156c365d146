// Load and save of a 16-bit .nii beside cp of the file, of a .nii.gz beside zlib alone on the same
// bytes; ratios of one run, below 1 is faster than the reference.
//   bench_nifti [side of the cube, 256] [runs, 3] [plain: without the gz forms]
#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/random.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>
#include <zlib.h>

namespace morvane {
namespace {
constexpr std::size_t BLOCK = 16777215;

double SECONDS(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The best of the runs, taken in turn so that both see the same machine. `fresh` removes the
// targets before each, outside the time: every run makes a new file.
void COMPARE(const char *name, int runs, const char *referenceName,
             const std::function<void()> &fresh, const std::function<void()> &work,
             const std::function<void()> &reference) {
    double best = 1e9, bestReference = 1e9;
    fresh();
    work(), reference(); // warm caches
    for (int run = 0; run < runs; ++run) {
        fresh();
        bestReference = std::min(bestReference, SECONDS(reference));
        best = std::min(best, SECONDS(work));
    }
    std::printf("%-12s %8.3f s   %-10s %8.3f s   ratio %.2f\n", name, best, referenceName,
                bestReference, best / bestReference);
}

// Balls in noise, about as compressible as a scan.
void FILL(T3D_SCALAR_ANALYSIS &field) {
    RANDOM_STREAM random(1, 1);
    field._DISPATCH([&](auto &raster) {
        const NAT side = raster.SIZEX;
        for (NAT z = 1; z <= side; ++z)
            for (NAT y = 1; y <= side; ++y)
                for (NAT x = 1; x <= side; ++x) {
                    const NAT ball = ((x & 63) - 32) * ((x & 63) - 32) +
                                     ((y & 63) - 32) * ((y & 63) - 32) +
                                     ((z & 63) - 32) * ((z & 63) - 32);
                    const NAT value = (ball < 500 ? 9000 : 3000) + (random.NEXT32() & 255);
                    raster._PUT(
                        x, y, z,
                        static_cast<std::remove_cvref_t<decltype(raster._GET(1, 1, 1))>>(value));
                }
    });
}

void COPY_FILE(const std::string &from, const std::string &to) {
    if (std::system(("cp --reflink=never " + from + " " + to).c_str()) != 0) std::exit(1);
}

void ZLIB_SAVE(const std::string &path, const std::vector<char> &bytes) {
    gzFile file = gzopen(path.c_str(), "wb6");
    for (std::size_t done = 0; done < bytes.size(); done += BLOCK)
        gzwrite(file, bytes.data() + done,
                static_cast<unsigned>(std::min(BLOCK, bytes.size() - done)));
    gzclose(file);
}

void ZLIB_LOAD(const std::string &path, std::size_t count) {
    std::vector<char> bytes(count);
    gzFile file = gzopen(path.c_str(), "rb");
    for (std::size_t done = 0; done < count; done += BLOCK)
        gzread(file, bytes.data() + done, static_cast<unsigned>(std::min(BLOCK, count - done)));
    gzclose(file);
}

void RUN(NAT side, int runs, const std::string &folder, bool withZipped) {
    T3D_SCALAR_ANALYSIS field(TAG_FULLGRAY, side, side, side), loaded(TAG_FULLGRAY);
    FILL(field);
    const std::string plain = folder + "/a.nii", zipped = folder + "/a.nii.gz";
    const std::string copy = folder + "/b.nii", zlib = folder + "/b.nii.gz";
    const UTF16 plainName(plain), zippedName(zipped);
    SETSINK([](std::string_view, void *) {}, nullptr);
    std::printf("%lld^3 voxels of 16 bits, best of %d\n", static_cast<long long>(side), runs);
    const std::string source = folder + "/source.nii";
    field.SAVE(UTF16(source));
    const auto remove = [&](std::initializer_list<std::string> files) {
        for (const std::string &file : files)
            std::filesystem::remove(file);
    };
    const auto freshPlain = [&] { remove({plain, copy}); };
    const auto freshCopy = [&] { remove({copy}); };
    COMPARE(
        "save .nii", runs, "cp", freshPlain, [&] { field.SAVE(plainName); },
        [&] { COPY_FILE(source, copy); });
    COMPARE(
        "load .nii", runs, "cp", freshCopy, [&] { loaded.LOADNII(TAG_FULLGRAY, plainName); },
        [&] { COPY_FILE(plain, copy); });
    if (!withZipped) return;
    const std::vector<char> bytes = field._DISPATCH([](const auto &raster) {
        const auto *first = reinterpret_cast<const char *>(raster.VOXELS());
        return std::vector<char>(first, first + raster.BYTES());
    });
    COMPARE(
        "save .nii.gz", runs, "zlib",
        [&] {
            remove({zipped, zlib});
        },
        [&] { field.SAVE(zippedName); }, [&] { ZLIB_SAVE(zlib, bytes); });
    COMPARE(
        "load .nii.gz", runs, "zlib", [] {}, [&] { loaded.LOADNII_GZ(TAG_FULLGRAY, zippedName); },
        [&] { ZLIB_LOAD(zlib, bytes.size()); });
}
} // namespace
} // namespace morvane

int main(int count, char **arguments) {
    const long side = count > 1 ? std::atol(arguments[1]) : 256;
    const int runs = count > 2 ? std::atoi(arguments[2]) : 3;
    std::string folder = (std::filesystem::temp_directory_path() / "morvane-bench-XXXXXX").string();
    if (side < 1 || side > 4096 || runs < 1 || !mkdtemp(folder.data())) return 1;
    morvane::RUN(side, runs, folder, count < 4);
    std::filesystem::remove_all(folder);
    return 0;
}
