// Saving and loading raster files beside cp of the same file on the same disk; ratios of one run,
// below 1 is faster than the copy.
//   bench_raster [side of the image, 8192] [runs, 5]
#include "foundation/base/random.hpp"
#include "foundation/console/console.hpp"
#include "image2d/format/formats.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

namespace morvane {
namespace {
double SECONDS(const std::function<void()> &work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void COPY_FILE(const std::string &from, const std::string &to) {
    if (std::system(("cp --reflink=never " + from + " " + to).c_str()) != 0) std::exit(1);
}

// The best of the runs, taken in turn so that both see the same machine; every run makes new files,
// which were removed outside the time.
void COMPARE(const char *name, int runs, const std::string &folder, const std::string &file,
             const std::function<bool(const UTF16 &)> &work) {
    const std::string source = folder + "/source." + file, target = folder + "/a." + file;
    const std::string copy = folder + "/copy." + file;
    if (!work(UTF16(source))) std::exit(1);
    COPY_FILE(source, copy); // warms the cache
    double best = 1e9, bestCopy = 1e9;
    for (int run = 0; run < runs; ++run) {
        std::filesystem::remove(target);
        std::filesystem::remove(copy);
        bestCopy = std::min(bestCopy, SECONDS([&] { COPY_FILE(source, copy); }));
        best = std::min(best, SECONDS([&] { work(UTF16(target)); }));
    }
    const double bytes = static_cast<double>(std::filesystem::file_size(source));
    std::printf("%-12s %7.3f s %5.2f GB/s   cp %7.3f s %5.2f GB/s   ratio %.2f\n", name, best,
                bytes / best / 1e9, bestCopy, bytes / bestCopy / 1e9, best / bestCopy);
    std::filesystem::remove(target);
    std::filesystem::remove(copy);
}

template <class PIXEL> void FILL(CANVAS<PIXEL> &canvas) {
    RANDOM_STREAM random(1, 1);
    for (NAT i = 0; i < canvas.COUNT(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(random.NEXT32());
}

void RUN(NAT side, int runs, const std::string &folder) {
    SETSINK([](std::string_view, void *) {}, nullptr);
    std::printf("%lld^2 pixels, best of %d\n", static_cast<long long>(side), runs);
    TGRAY gray(side, side);
    FILL(gray);
    COMPARE("save .pgm 8", runs, folder, "8.pgm",
            [&](const UTF16 &name) { return SAVEPGM(gray, name); });
    COMPARE("save .png 8", runs, folder, "8.png",
            [&](const UTF16 &name) { return SAVEPNG(gray, name); });
    TFULLGRAY deep(side, side);
    FILL(deep);
    COMPARE("save .pgm 16", runs, folder, "16.pgm",
            [&](const UTF16 &name) { return SAVEPGM(deep, name); });
    COMPARE("save .png 16", runs, folder, "16.png",
            [&](const UTF16 &name) { return SAVEPNG(deep, name); });
    COMPARE("load .pgm 8", runs, folder, "8.pgm",
            [&](const UTF16 &) { return LOADPNM(gray, UTF16(folder + "/source.8.pgm")); });
    COMPARE("load .pgm 16", runs, folder, "16.pgm",
            [&](const UTF16 &) { return LOADPNM(deep, UTF16(folder + "/source.16.pgm")); });
}
} // namespace
} // namespace morvane

int main(int count, char **arguments) {
    const long side = count > 1 ? std::atol(arguments[1]) : 8192;
    const int runs = count > 2 ? std::atoi(arguments[2]) : 5;
    std::string folder = (std::filesystem::temp_directory_path() / "morvane-bench-XXXXXX").string();
    if (side < 1 || side > 32768 || runs < 1 || !mkdtemp(folder.data())) return 1;
    morvane::RUN(side, runs, folder);
    std::filesystem::remove_all(folder);
    return 0;
}
