#pragma once

#include "foundation/console/files.hpp"

// The copy of the console in a file, and the start and the end of the console itself.
namespace morvane {
extern FILE_TEXT OLOGFILE; // open while LOGFILE is set, the status lines apart

// Opens "<program>.log" in the current directory, if none is open; LOGFILE tells whether it worked.
void OPENLOGFILE();
void CLOSELOGFILE();
// Writes into the log alone, when one is open.
void WRITELOG(std::string_view utf8);

// Start of the unit: console present, FORMAT kept, start time taken. Broken pipes and file size
// limits become write errors instead of the process's end; programs started by EXEC keep them. A
// signal that ends the process removes its files under way first.
void CONSOLE_START();
// End of the process: closes the log, then writes a line break and "Done (time).".
void CONSOLE_DONE();
} // namespace morvane
