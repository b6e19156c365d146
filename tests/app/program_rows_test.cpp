#include "app/program.hpp"

#include "app/image/image_commands.hpp"
#include "app/image/image_filter_rows.hpp"
#include "app/image/image_scan_rows.hpp"
#include "app/line/line_commands.hpp"
#include "app/program_run.hpp"
#include "app/scalar/scalar_commands.hpp"
#include "app/vector/vector_commands.hpp"
#include "app/workspace_commands.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/use_all.hpp"

#include <algorithm>
#include <set>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("every usage names its own command") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name);
            INFO(name);
            CHECK(row.usage.find(name) != std::string_view::npos);
        }
}

TEST_CASE("every row has a handler, and a property alone a getter") {
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            INFO(std::string(row.name));
            CHECK((row.handler != nullptr));
            CHECK((row.getter != nullptr) == (row.kind == COMMAND_KIND::PROPERTY));
        }
}

TEST_CASE("no command is registered twice") {
    std::set<std::string> names;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows) {
            const std::string name = std::string(set->nameSpace) + std::string(row.name) + " ";
            INFO(name);
            if (row.kind == COMMAND_KIND::PROPERTY) {
                CHECK(names.insert(name + "2").second);
                CHECK(names.insert(name + "3").second);
            } else {
                CHECK(names.insert(name + std::to_string(static_cast<int>(row.kind))).second);
            }
        }
    const SCRATCH_FOLDER folder;
    CHECK_FALSE(PROGRAM_RUN({}).CONTAINS("Attention double syntax member"));
}

TEST_CASE("sets are registered modules first, then all lists, then kind by kind") {
    const auto sets = COMMAND_SETS();
    const auto modules = MODULE_SETS();
    const COMMAND_SET *const wanted[] = {&PROGRAM_SET,     &IMAGE_SET,        &IMAGE_GROUP_SET,
                                         &IMAGE_VALUE_SET, &IMAGE_FILTER_SET, &IMAGE_ANALYSIS_SET,
                                         &IMAGE_SCAN_SET,  &SCALAR_SET,       &VECTOR_SET,
                                         &TENSOR_SET,      &MESH_SET,         &LINE_SET};
    REQUIRE(sets.size() == modules.size() + std::size(wanted));
    CHECK(std::equal(modules.begin(), modules.end(), sets.begin()));
    CHECK(std::equal(std::begin(wanted), std::end(wanted), sets.begin() + std::ssize(modules)));
}

namespace {
NAT calls = 0, prints = 0;
// A function that fills a field takes the target to itself.
void COUNT_CALL(TMACRO *engine) {
    ++calls;
    engine->COMMAND_RESULT_VAR = UTF16();
}
void COUNT_PRINT(TMACRO *) { ++prints; }

// Every row as it is, but for its handlers, which only count their calls.
std::vector<std::vector<COMMAND_ROW>> COUNTING_ROWS() {
    std::vector<std::vector<COMMAND_ROW>> sets;
    for (const COMMAND_SET *set : COMMAND_SETS()) {
        auto &rows = sets.emplace_back(set->rows.begin(), set->rows.end());
        for (COMMAND_ROW &row : rows) {
            row.handler = row.name == "print" ? COUNT_PRINT : COUNT_CALL;
            if (row.getter) row.getter = COUNT_CALL;
        }
    }
    return sets;
}
} // namespace

TEST_CASE("every usage line calls its command with a count of parameters that its row allows") {
    const auto rows = COUNTING_ROWS();
    TMACRO engine;
    engine.INIT();
    for (std::size_t i = 0; i < rows.size(); ++i)
        engine.REGISTER(COMMAND_SET{COMMAND_SETS()[i]->nameSpace, rows[i]});
    for (const auto &set : rows)
        for (const COMMAND_ROW &row : set) {
            const CAPTURE console;
            calls = prints = 0;
            engine.LOADTEXT(row.usage);
            engine.SINGLERUN();
            INFO(std::string(row.usage), ": ", GETUTF8(engine.STATUS));
            CHECK(engine.STATUS.EMPTY());
            CHECK((row.name == "print" ? prints : calls) >= 1);
        }
}
