#include "app/image/image_filter_rows.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/random.hpp"
#include "image2d/image/fills.hpp"
#include "script/engine/macro.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The usage line of a row, run on a random image of a kind; the report of a failure, or nothing.
std::string Run(const COMMAND_ROW &row, BYTE kind, NAT width, NAT height) {
    CAPTURE console;
    TMACRO engine;
    engine.INIT();
    engine.verbose = false;
    for (const COMMAND_SET *set : {&IMAGE_GROUP_SET, &IMAGE_FILTER_SET, &IMAGE_ANALYSIS_SET})
        engine.REGISTER(*set);
    NEW();
    IMAGES.DEFAULTKIND = kind;
    TIMAGE &image = IMAGES.CURRENT();
    image.INIT(kind, width, height);
    FILL_RANDOM(image);
    engine.LOADTEXT(std::string(row.usage));
    engine.SINGLERUN();
    return GETUTF8(engine.STATUS);
}
} // namespace

TEST_CASE(
    "the usage line of every group, filter and analysis command runs on every kind of image") {
    const SCRATCH_FOLDER scratch;
    RESTART_RANDOM(1);
    for (const COMMAND_SET *set : {&IMAGE_GROUP_SET, &IMAGE_FILTER_SET, &IMAGE_ANALYSIS_SET})
        for (const COMMAND_ROW &row : set->rows)
            for (const BYTE kind :
                 {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
                INFO(std::string(row.usage) << " on kind " << int{kind});
                CHECK(Run(row, kind, 40, 30) == "");
                CHECK(Run(row, kind, 1, 1) == "");
                CHECK(Run(row, kind, 0, 0) == ""); // an empty image
            }
    NEW();
}
