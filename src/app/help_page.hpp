#pragma once

namespace morvane {
struct HELP_ENTRY;

// The page of one command or keyword: note, usage, kind, parameters, example and other names.
void WRITE_HELP_PAGE(const HELP_ENTRY &entry);
} // namespace morvane
