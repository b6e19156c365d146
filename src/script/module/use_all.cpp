#include "script/module/use_all.hpp"

#include "script/engine/macro.hpp"

namespace morvane {
namespace {
const COMMAND_SET *const SETS[] = {
    &CORE_SET,   &RANDOM_SET,   &CLOCK_SET,     &LIST_SET,        &MATH_SET,    &STACK_SET,
    &QUAT_SET,   &MATRIX_SET,   &IO_SET,        &IO_FILES_SET,    &IO_FILE_SET, &IO_DIRS_SET,
    &IO_DIR_SET, &IO_LISTS_SET, &BINARY_SET,    &TEXT_SET,        &TXT_SET,     &BLOB_SET,
    &XML_SET,    &TABLE_SET,    &COLOR_MAP_SET, &COLOR_ALPHA_SET, &COLOR_SET,   &DUMP_SET};
} // namespace

std::span<const COMMAND_SET *const> MODULE_SETS() { return SETS; }

void TMACRO::USE_ALL() {
    USE_CORE();
    USE_CLOCK();
    USE_LIST();
    USE_MATH();
    USE_IO();
    USE_BINARY();
    USE_TEXT();
    USE_XML();
    USE_TABLE();
    USE_COLOR();
    USE_DUMP();
}
} // namespace morvane
