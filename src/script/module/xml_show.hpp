#pragma once

namespace morvane {
class TREADXML;

// Prints the elements of a file: a line for each, two blanks for each level, with its attributes
// and the beginning of its text. The first fault of the text ends the listing with one line.
void XML_SHOW(const TREADXML &xml);
} // namespace morvane
