#pragma once

#include "foundation/console/files.hpp"

// Lines and words of byte files.
namespace morvane {
// The next line that is not empty, up to a line feed or carriage return; bytes below 32 are
// dropped. Empty at the end of the file.
UTF16 FILEREADLN(FILE_READ &file);
// The same, also stopping when the line holds more than `longest` bytes.
UTF16 FILEREADLN(FILE_READ &file, NAT longest);
// The next line as it is, without its line end; empty at the end of the file.
UTF16 READLN(FILE_READ &file);

// The next word of a header such as that of a PNM file: white space ends it, "#" starts a comment
// up to the end of the line. One byte behind the word is consumed. Empty at the end of the file.
UTF16 FILEREAD(FILE_READ &file);
UTF16 FILEGZREAD(GZ_READ &file);

// UTF-8, then a line feed, or two, for the forms with LN; into plain and gzip files alike.
bool FILEWRITE(FILE_WRITE &file, const UTF16 &text);
bool FILEWRITELN(FILE_WRITE &file, const UTF16 &text);
bool FILEGZWRITELN(FILE_WRITE &file, const UTF16 &text);
bool FILEGZWRITELNLN(FILE_WRITE &file, const UTF16 &text);
} // namespace morvane
