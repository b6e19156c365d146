#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "script/module/binary_text.hpp"
#include "script/module/on_disk.hpp"

namespace morvane {
namespace {
// file, form, target, [header bytes, [values of a line]].
void BINARY_TO_TEXT_FILE(TMACRO *engine) {
    BINARY_REQUEST request;
    request.file = engine->GETPARAMETER(1);
    request.target = engine->GETPARAMETER(3);
    const UTF16 form = engine->GETPARAMETER(2), header = engine->GETPARAMETER_ERRORFREE(4);
    const UTF16 columns = engine->GETPARAMETER_ERRORFREE(5);
    request.header = GETNAT(header);
    request.columns = columns.EMPTY() ? 1 : GETNAT(columns);
    if (!BINARY_FORM_OF(form, request.form)) return engine->ERROR("unknown form: " + form);
    if (request.header < 0) return engine->ERROR("header below 0: " + header);
    if (request.columns < 1) return engine->ERROR("values of a line below 1: " + columns);
    BINARY_TO_TEXT(request);
}

constexpr std::string_view PARAMETERS =
    "file: file, form: name, target: file, [header: number, columns: number]";

constexpr COMMAND_ROW BINARY_ROWS[] = {
    PROCEDURE("bin.to.txt", ON_DISK<BINARY_TO_TEXT_FILE, 5>, AT_LEAST(3), PARAMETERS,
              "bin.to.txt scan.raw word values.txt", "write a binary file as text"),
    PROCEDURE("binary.to.text", ON_DISK<BINARY_TO_TEXT_FILE, 5>, AT_LEAST(3), PARAMETERS,
              "binary.to.text scan.raw single values.txt 352 10", "write a binary file as text"),
};
static_assert(ROWS_ARE_SOUND(BINARY_ROWS));
} // namespace

const COMMAND_SET BINARY_SET{"", BINARY_ROWS};

void TMACRO::USE_BINARY() { REGISTER(BINARY_SET); }
} // namespace morvane
