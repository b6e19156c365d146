#include "app/help_entries.hpp"
#include "app/workspace_commands.hpp"
#include "script/module/use_all.hpp"

namespace morvane {
namespace {
// In the order of the overview.
constexpr HELP_GROUP GROUPS[] = {
    {"image", "2-D images: load, draw, filter, measure, save"},
    {"scalar", "3-D grey fields: load, filter, shape, measure, find directions"},
    {"vector", "3-D vector fields: directions, smoothing, streamlines"},
    {"tensor", "3-D tensor fields: eigenvalues and measures"},
    {"mesh", "triangle meshes: surfaces, transforms, projections"},
    {"line", "lines: streamlines and contours, their files, drawing into fields"},
    {"program", "all fields at once, and optional libraries"},
    {"core", "printing, waiting, progress, scripts inside scripts"},
    {"random", "random numbers"},
    {"clock", "time, date and run time"},
    {"list", "lists of values"},
    {"math", "number form, lengths, angles"},
    {"stack", "a calculator on a stack"},
    {"quat", "quaternions"},
    {"matrix", "matrices and eigenvalues"},
    {"io", "files and directories: names, lists, copying, removing"},
    {"bin", "binary files as text"},
    {"text", "filters over the lines of text files"},
    {"txt", "the filters of text under a shorter name"},
    {"blob", "files as bytes"},
    {"xml", "tags and values of XML files"},
    {"table", "tables of text with named rows and columns"},
    {"color", "colours and colour maps"},
    {"dump", "what the script engine holds: commands, variables, parameters"},
    {"keywords", "the words of the language: conditions, loops, procedures, output files"},
};

// Sets whose rows carry their whole names.
struct GIVEN_GROUP {
    const COMMAND_SET *set;
    std::string_view name;
};
const GIVEN_GROUP GIVEN[] = {
    {&CORE_SET, "core"}, {&RANDOM_SET, "random"}, {&CLOCK_SET, "clock"}, {&STACK_SET, "stack"},
    {&QUAT_SET, "quat"}, {&MATRIX_SET, "matrix"}, {&IO_LISTS_SET, "io"}, {&BINARY_SET, "bin"},
    {&XML_SET, "xml"},   {&LIST_SET, "list"},     {&MATH_SET, "math"},   {&PROGRAM_SET, "program"},
    {&TEXT_SET, "text"}, {&TXT_SET, "txt"},       {&BLOB_SET, "blob"},   {&TABLE_SET, "table"},
    {&DUMP_SET, "dump"},
};
} // namespace

std::span<const HELP_GROUP> HELP_GROUPS() { return GROUPS; }

std::string_view HELP_GROUP_OF(const COMMAND_SET &set) {
    for (const GIVEN_GROUP &given : GIVEN)
        if (given.set == &set) return given.name;
    return set.nameSpace.empty() ? "core" : set.nameSpace.substr(0, set.nameSpace.find('.'));
}
} // namespace morvane
