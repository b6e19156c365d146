#pragma once

namespace morvane {
class TMACRO;

// info file [report]: the header of a volume file on the console, or in a text file.
void INFO_SHOW(TMACRO *engine);
// a := ...info file: kind code, size, stacks and further axes, parted by tabs.
void INFO_SHOW_REF(TMACRO *engine);
} // namespace morvane
