#include "script/module/io_lists.hpp"

namespace morvane {
IO_STATE IO;

void INIT_IO() {
    IO.FILES.names.CLEAR();
    IO.DIRS.names.CLEAR();
    IO.FILES.position = IO.DIRS.position = 1;
    IO.METHOD = COPY_METHOD::AUTO;
}
} // namespace morvane
