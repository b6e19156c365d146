#include "generated_files.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <optional>

// reference_writer ROOT           writes every generated file below ROOT, those that changed only
// reference_writer --check ROOT   status 1 when one of them differs from what would be written
namespace {
using namespace morvane;

// The bytes of a file, none when it cannot be read.
std::optional<std::string> BYTES_OF(const std::string &path) {
    FILE_READ file;
    if (!OPENSILENT(file, UTF16(path))) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(file.SIZE()), '\0');
    if (file.READ(bytes.data(), file.SIZE()) != file.SIZE()) return std::nullopt;
    return bytes;
}

bool WRITE_TO(const std::string &path, const std::string &text) {
    const UTF16 folder(path.substr(0, path.rfind('/')));
    if (!DIRECTORYEXISTS(folder) && !HARDMKDIR(folder)) return false;
    FILE_WRITE file;
    return ASSIGNWRITE(file, UTF16(path)) && file.WRITE(text) && file.COMMIT();
}

int CHECK_FILES(const std::string &root, const REFERENCE &reference) {
    int differing = 0;
    for (const GENERATED_FILE &file : GENERATED_FILES()) {
        if (BYTES_OF(root + "/" + std::string(file.path)) == file.text(reference)) continue;
        WRITELN(std::string(file.path) + " is not what the rows make of it");
        ++differing;
    }
    if (differing > 0) WRITELN("Run: cmake --build build/release --target generated");
    return differing > 0;
}

int WRITE_FILES(const std::string &root, const REFERENCE &reference) {
    int failures = 0;
    for (const GENERATED_FILE &file : GENERATED_FILES()) {
        const std::string path = root + "/" + std::string(file.path);
        const std::string text = file.text(reference);
        if (BYTES_OF(path) != text && !WRITE_TO(path, text)) ++failures;
    }
    return failures > 0;
}
} // namespace

int main(int argc, char **argv) {
    const bool isCheck = argc == 3 && std::string_view(argv[1]) == "--check";
    if (argc != 2 && !isCheck) {
        WRITELN("usage: reference_writer [--check] ROOT");
        return 2;
    }
    const REFERENCE reference = MAKE_REFERENCE();
    VERBOSE = true; // the run that lists the options may have been told to be silent
    return isCheck ? CHECK_FILES(argv[2], reference) : WRITE_FILES(argv[1], reference);
}
