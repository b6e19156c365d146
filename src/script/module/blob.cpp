#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "script/module/blob_bytes.hpp"
#include "script/module/on_disk.hpp"

namespace morvane {
namespace {
// A parameter as bytes; wrong digits stop the script.
bool READ_BYTES(TMACRO *engine, NAT index, std::string &bytes) {
    const UTF16 text = engine->GETPARAMETER_ERRORFREE(index);
    if (BYTES_OF(text, bytes)) return true;
    engine->ERROR("no bytes: " + text);
    return false;
}

void BLOB_COUNT_REF(TMACRO *engine) {
    std::string bytes;
    NAT count = 0;
    if (!READ_BYTES(engine, 2, bytes)) return;
    if (BLOB_COUNT(engine->GETPARAMETER(1), bytes, count))
        engine->COMMAND_RESULT = GETSTRING(count);
}

// file, bytes, [start]: the first position at or behind the start.
void BLOB_POS_REF(TMACRO *engine) {
    std::string bytes;
    NAT position = 0;
    if (!READ_BYTES(engine, 2, bytes)) return;
    const NAT start = GETNAT(engine->GETPARAMETER_ERRORFREE(3));
    if (BLOB_POS(engine->GETPARAMETER(1), bytes, start, position))
        engine->COMMAND_RESULT = GETSTRING(position);
}

// file, position, length, ["hex"].
void BLOB_GET_REF(TMACRO *engine) {
    const UTF16 form = LOWERCASE(engine->GETPARAMETER_ERRORFREE(4));
    const bool hexadecimal = form == UTF16("hex");
    if (!form.EMPTY() && !hexadecimal) return engine->ERROR("unknown form: " + form);
    BLOB_GET(engine->GETPARAMETER(1), GETNAT(engine->GETPARAMETER(2)),
             GETNAT(engine->GETPARAMETER(3)), hexadecimal, engine->COMMAND_RESULT);
}

// file, bytes, [replacement, [target]]; without a replacement the bytes are removed.
void BLOB_REPLACE_FILE(TMACRO *engine) {
    std::string find, replacement;
    if (!READ_BYTES(engine, 2, find) || !READ_BYTES(engine, 3, replacement)) return;
    if (find.empty()) return engine->ERROR("empty text to search for");
    const UTF16 file = engine->GETPARAMETER(1), target = engine->GETPARAMETER_ERRORFREE(4);
    BLOB_REPLACE(file, find, replacement, target.EMPTY() ? file : target);
}

constexpr COMMAND_ROW BLOB_ROWS[] = {
    FUNCTION("count", ON_DISK<BLOB_COUNT_REF, 2>, EXACTLY(2), "file: file, text: text",
             "a := blob.count scan.dat \"hex:FF D8\"", "how often a text or bytes occur in a file"),
    FUNCTION("pos", ON_DISK<BLOB_POS_REF, 3>, AT_LEAST(2),
             "file: file, text: text, [start: number]", "a := blob.pos scan.dat DATA",
             "byte position of a text, from 1; 0: none"),
    FUNCTION("get", ON_DISK<BLOB_GET_REF, 4>, AT_LEAST(3),
             "file: file, position: number, length: number, [form: name]",
             "a := blob.get scan.dat 1 8", "bytes of a file as ASCII text, or as hex digits"),
    PROCEDURE("replace", ON_DISK<BLOB_REPLACE_FILE, 4>, AT_LEAST(2),
              "file: file, text: text, [replacement: text, target: file]",
              "blob.replace scan.dat OLD NEW", "replace a text or bytes in a file"),
};
static_assert(ROWS_ARE_SOUND(BLOB_ROWS));
} // namespace

const COMMAND_SET BLOB_SET{"blob.", BLOB_ROWS};
} // namespace morvane
