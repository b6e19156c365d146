#include "app/scalar/scalar_commands.hpp"

#include <string>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::vector<const COMMAND_ROW *> ROWS_OF(std::string_view name) {
    std::vector<const COMMAND_ROW *> rows;
    for (const COMMAND_ROW &row : SCALAR_SET.rows)
        if (row.name == name) rows.push_back(&row);
    return rows;
}
} // namespace

TEST_CASE("each synonym of a scalar command behaves exactly as its partner") {
    const std::vector<std::vector<std::string_view>> families = {
        {"center", "origin.center", "offset.center"},
        {"origin", "offset"},
        {"1bit", "bool"},
        {"8bit", "byte"},
        {"16bit", "word", "nat"},
        {"clear", "clean"},
        {"make", "make.scalar"},
        {"labels.clear", "labels.clean", "labels.new"},
        {"load.hdr", "loadhdr", "load.nii", "loadnii"},
        {"load.nii.gz", "loadnii.gz"},
    };
    for (const auto &family : families)
        for (const std::string_view name : family) {
            INFO(std::string(name));
            const auto first = ROWS_OF(family.front()), rows = ROWS_OF(name);
            REQUIRE(!rows.empty());
            REQUIRE(rows.size() == first.size());
            for (std::size_t i = 0; i < rows.size(); ++i) {
                CHECK((rows[i]->kind == first[i]->kind));
                CHECK((rows[i]->handler == first[i]->handler));
                CHECK((rows[i]->getter == first[i]->getter));
                CHECK((rows[i]->count.kind == first[i]->count.kind));
                CHECK((rows[i]->count.count == first[i]->count.count));
            }
        }
}
