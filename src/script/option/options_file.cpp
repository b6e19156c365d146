#include "script/option/parameter.hpp"

#include "foundation/console/files.hpp"
#include "script/file/file_text.hpp"
#include "script/option/arguments.hpp"

// The options file: one pair a line, read behind the arguments.
namespace morvane {
namespace {
// A line as name and value, parted by the first "=", else by the first blank.
struct FILE_PAIR {
    UTF16 name, value;
};

// Without blanks and tabs at its ends, and without the byte order mark that some editors write.
UTF16 Clean(UTF16 line) {
    if (line.GETCHAR(1) == UTF16CHAR{0xFF, 0xFE}) DELETE(line, 1, 1);
    return KILLLAST(KILLFIRST(line, ' ', '\t'), ' ', '\t');
}

FILE_PAIR CutLine(const UTF16 &line) {
    const NAT sign = POS("=", line), cut = sign > 0 ? sign : POS(" ", line);
    // "+name" alone is a switch that is on, as among the arguments.
    if (cut < 1 && BEGINS_WITH(line, '+')) return {COPY(line, 2, line.LENGTH()), "true"};
    if (cut < 1) return {KILLFIRST(line, '-'), {}};
    return {TRIM(KILLFIRST(COPY(line, 1, cut - 1), '-')),
            UNQUOTE(TRIM(COPY(line, cut + 1, line.LENGTH())))};
}
} // namespace

UTF16 TPARAMETER::_OPTIONSFILE() const {
    const UTF16 lower = LOWERCASE(programName.GET()) + ".ini", written = programName.GET() + ".ini";
    return !FILEEXISTS(lower) && FILEEXISTS(written) ? written : lower;
}

void TPARAMETER::_READOPTIONSFILE(const UTF16 &file) {
    TFILETEXT text;
    if (!FILEEXISTS(file) || !text.LOAD(file)) return;
    const std::size_t given = pairs.size();
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16 line = Clean(text.GET(i));
        if (line.EMPTY() || BEGINS_WITH(line, '#')) continue;
        const FILE_PAIR pair = CutLine(line);
        // An argument of the name beats the file wherever the pairs are asked for or walked.
        if (!pair.name.EMPTY() && !_ISAMONG(pair.name, given))
            pairs.push_back({pair.name, pair.value});
    }
}
} // namespace morvane
