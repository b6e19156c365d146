#pragma once

#include "foundation/base/utf16.hpp"

// Paths as texts. Both "/" and "\" part a path.
namespace morvane {
UTF16 GETDIR(const UTF16 &path);                // before the last separator
UTF16 GETFILE(const UTF16 &path);               // behind the last separator
UTF16 GETFILENAME(const UTF16 &path);           // the file part without its extension (.nii.gz too)
UTF16 GET_SHORTFILENAME(const UTF16 &path);     // the file part up to the first "."
UTF16 GET_FULLFILEEXTENSION(const UTF16 &path); // everything behind the first "."
UTF16 GETFILEEXTENSION(const UTF16 &path);      // behind the last "."; "nii.gz" for gz
UTF16 GETDIRFILENAME(const UTF16 &path);        // the whole path without the last extension
UTF16 GETSHORTDIR(const UTF16 &path, NAT length); // at most `length` units, for messages
// A path as the messages of the file layer show it: GETSHORTDIR of 60 units while FILESHORT holds,
// else all of it with "/" for "\".
UTF16 GETMESSAGEDIR(const UTF16 &path);
extern bool FILESHORT;
UTF16 FILENAMELOAD(const UTF16 &name); // normalised for reading
UTF16 FILENAMESAVE(const UTF16 &name); // normalised for writing
UTF16 GETCURRENTDIR();

// The normalised names as the bytes that the system takes.
std::string LOADPATH(const UTF16 &name);
std::string SAVEPATH(const UTF16 &name);
} // namespace morvane
