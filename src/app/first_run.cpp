#include "app/first_run.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

namespace morvane {
namespace {
constexpr std::string_view REFERENCE_FILE = "morvane.macro";

bool WRITE_HEAD(FILE_WRITE &file, const PROGRAM_WORDS &words) {
    const UTF16 lines[] = {
        "//!./morvane // Version: " + words.version,
        "// This is a list of morvane commands - you can use this macro like a programing language",
        "// " + words.address,
        "// " + words.maker,
        "io.file.remove \"morvane.macro\" // remove old command list",
        "execute ./morvane // make new command list",
        "halt // Do not interpret the rest",
        "// ******************************************************************************",
        "// @variable denotes builtin variables.",
        "// Assignment := are only used if the stack type is the same (image := image.func) or a "
        "result (10 := image.func).",
    };
    for (const UTF16 &line : lines)
        if (!file.WRITELN(line)) return false;
    return true;
}

bool WRITE_REFERENCE(FILE_WRITE &file, const PROGRAM_WORDS &words,
                     std::span<const COMMAND_SET *const> sets) {
    if (!WRITE_HEAD(file, words)) return false;
    for (const COMMAND_SET *set : sets)
        for (const COMMAND_ROW &row : set->rows)
            if (!file.WRITELN(REFERENCE_LINE(row))) return false;
    return file.WRITELN("// For more line commands, look at Skein2!") && file.WRITELN("");
}
} // namespace

UTF16 REFERENCE_LINE(const COMMAND_ROW &row) { return UTF16(row.usage) + " // " + UTF16(row.note); }

void FIRST_RUN(const PROGRAM_WORDS &words, std::span<const COMMAND_SET *const> sets) {
    FILE_WRITE file;
    // A failed write is told by COMMIT, which keeps the old file.
    if (ASSIGNWRITE(file, REFERENCE_FILE)) {
        WRITE_REFERENCE(file, words, sets);
        file.COMMIT();
    }
    WRITELN("This is your first run of the program, please specify the file morvane.macro!");
}
} // namespace morvane
