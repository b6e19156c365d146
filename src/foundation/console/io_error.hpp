#pragma once

#include "foundation/base/utf16.hpp"

#include <span>

// The numbers by which IOERROR tells a failure, and how the system's own numbers map to them.
namespace morvane {
// One row of the failure table: "  " before the name is part of the text.
struct IO_ERROR_ROW {
    NAT code;
    std::string_view before, after; // around the name
};
// The rows, ascending by code.
std::span<const IO_ERROR_ROW> IO_ERROR_ROWS();
// The word in front of a failure: "DOS-Error", "I/O-Error", "Fatal-Error", or one for the rest.
std::string_view IO_ERROR_CLASS(NAT code);
// The detail line of a code.
std::string IO_ERROR_DETAIL(NAT code, const std::string &name);

// The nearest code of an errno value; one without a near row gives 200 and the value. `writing`
// chooses between the disk's read and write errors.
NAT IOCODE(int systemError, bool writing);
// Sets the result of a failed call on `path`: a missing file in a missing directory is code 3.
void SETSYSTEMRESULT(int systemError, const std::string &path, bool writing);
} // namespace morvane
