#pragma once

#include "script/file/file_table.hpp"
#include "script/workspace/workspace.hpp"

// The tables of a script; the one in use is TABLES.CURRENT(). Made by USE_TABLE with one empty
// table "DEFAULT".
namespace morvane {
extern TWORKSPACE<TFILETABLE> TABLES;
} // namespace morvane
