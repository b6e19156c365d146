#pragma once

#include "foundation/base/utf16.hpp"

// How a new version of the program is fetched.
namespace morvane {
// The program that fetches an address into a file; a test may put another in its place.
extern const char *UPDATE_PROGRAM;

// What the exit code of the fetch means; `file` is where the new program lies. A code below 0 says
// that UPDATE_PROGRAM could not be started.
UTF16 UPDATE_MESSAGE(NAT code, const UTF16 &file);
// Fetches `address` into the current directory as "<name>.n" and prints what became of it. An
// older "<name>.n" stays when the fetch fails.
void UPDATE(const UTF16 &address, const UTF16 &name);
} // namespace morvane
