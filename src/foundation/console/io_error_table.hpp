#pragma once

#include "foundation/console/io_error.hpp"

namespace morvane {
inline constexpr IO_ERROR_ROW IO_ERROR_TABLE[] = {
    {2, "  File (", ") not found."},
    {3, "  Path (", ") not found."},
    {4, "  Too many open files with (", ")."},
    {5, "  File (", ") access denied."},
    {6, "  Invalid file (", ") handle."},
    {12, "  Invalide file (", ") access code."},
    {15, "  Invalide drive (", ") number."},
    {16, "  Cannot remove current directory (", ")."},
    {17, "  Cannot rename across drives (", ")."},
    {100, "  Disk (", ") read error."},
    {101, "  Disk (", ") write error."},
    {102, "  File (", ") not assigned."},
    {103, "  File (", ") not open."},
    {104, "  File (", ") not open for input."},
    {105, "  File (", ") not open for output."},
    {106, "  Invalid numeric format from (", ")."},
    {150, "  Disk (", ") is write-protected."},
    {151, "  Bad drive (", ") request struct length."},
    {152, "  Drive (", ") not ready."},
    {153, "  Unknown command (", ")."},
    {154, "  CRC error in data (", ")."},
    {155, "  Invalid drive (", ") specified."},
    {156, "  Disk (", ") seek error."},
    {157, "  Unknown media type (", ")."},
    {158, "  Sector Not Found (", ")."},
    {159, "  Printer (", ") out of paper."},
    {160, "  Device (", ") write fault."},
    {161, "  Device (", ") read fault."},
    {162, "  Hardware (", ") failure."},
};
} // namespace morvane
