#pragma once

#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16chars7.hpp"

#include <concepts>

// The only way in which the system talks to the terminal. Everything here belongs to the script's
// thread; workers write nothing.
namespace morvane {
extern bool VERBOSE;                // write to standard output
extern bool LOGFILE;                // a log file is open: lines are copied into it
extern bool INTERACTION;            // prompts are allowed; colours too, when COLOURS says so
extern void (*OUTPUT_GUI)();        // called after each status update, for an embedding caller
extern NAT OUTPUT_PLEASEWAIT;       // phase of the wait indicator
extern REAL OUTPUT_STATE;           // share done, 0 to 1
extern UTF16CHARS7 OUTPUT_PROGRESS; // title of the current status line
extern UTF16CHARS7 OUTPUT_WRITE;    // the last status line

// Colour codes are written: interaction is on, standard output is a terminal, NO_COLOR is unset.
bool COLOURS();
// Standard output is a terminal; false while a sink takes the text.
bool ISTERMINAL();
// Pretends a terminal, or none, until RESETTERMINAL; for tests and embedding callers.
void SETTERMINAL(bool terminal);
void RESETTERMINAL();
// A write to standard output failed (closed pipe, full disk); what follows is dropped silently.
bool CONSOLE_FAILED();

void WRITE(std::string_view utf8);
void WRITE(const UTF16 &text);
inline void WRITE(const char *utf8) { WRITE(std::string_view(utf8)); }
inline void WRITE(const std::string &utf8) { WRITE(std::string_view(utf8)); }
inline void WRITE(REAL value) { WRITE(GETSTRING(value)); }
inline void WRITE(std::integral auto value) { WRITE(GETSTRING(value)); }
inline void WRITE(const VECTOR &value) { WRITE(GETSTRING(value)); }
void WRITELN();
void WRITELN(std::string_view utf8);
void WRITELN(const UTF16 &text);
inline void WRITELN(const char *utf8) { WRITELN(std::string_view(utf8)); }
inline void WRITELN(const std::string &utf8) { WRITELN(std::string_view(utf8)); }
inline void WRITELN(REAL value) { WRITELN(GETSTRING(value)); }
inline void WRITELN(std::integral auto value) { WRITELN(GETSTRING(value)); }
inline void WRITELN(const VECTOR &value) { WRITELN(GETSTRING(value)); }
void WRITELNLN(std::string_view utf8);
void WRITELNLN(const UTF16 &text);
inline void WRITELNLN(const char *utf8) { WRITELNLN(std::string_view(utf8)); }
inline void WRITELNLN(const std::string &utf8) { WRITELNLN(std::string_view(utf8)); }

// A line from standard input when INTERACTION is set; empty at the end of input, never waits then.
UTF16 READLN();

// Receives every console text in place of standard output while it is set; for tests and tools.
using CONSOLE_SINK = void (*)(std::string_view utf8, void *context);
void SETSINK(CONSOLE_SINK sink, void *context);

// Status lines. A title shows at once, then at most once a second; safe in inner loops.
void PLEASEWAIT(const UTF16 &text);
void PLEASEWAIT();
void PROGRESS(const UTF16 &text, REAL share);
void PROGRESS(); // the closing line
} // namespace morvane
