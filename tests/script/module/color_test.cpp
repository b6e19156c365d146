#include "image2d/colour/colormap.hpp"
#include "script/module/math_run.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a map of a script is the one that images are coloured with") {
    MATH_RUN run;
    run.RUN("color.map.default 3 3\n"); // red, green, blue
    CHECK(CURRENTMAP().LENGTH == 3);
    CHECK(CURRENTMAP().GETRGB(2) == VECTOR{0, 1, 0});
    run.RUN("color.map.default 1\n");
    CHECK(CURRENTMAP().LENGTH == 256);
}

TEST_CASE("every family takes its maps by index") {
    MATH_RUN run;
    const struct {
        const char *command, *last;
        NAT count;
    } families[] = {{"default", "Rainbow", 5},
                    {"special", "Rocket", 8},
                    {"volume1", "Jet", 5},
                    {"volume2", "X-Rain", 24},
                    {"chart1", "Set3", 11},
                    {"chart2", "YlOrRd", 27},
                    {"art", "IsleofDogs2", 18},
                    {"warn", "Cyber Division", 6},
                    {"topo", "Imhof (-300..4000)", 4}};
    for (const auto &family : families) {
        CAPTURE(family.command);
        const std::string line = std::string("color.map.") + family.command + " ";
        CHECK(run.RUN(line + std::to_string(family.count) + "\nprint color.map.name\n") ==
              std::string(family.last) + "\n");
        CHECK(run.RUN(line + std::to_string(family.count - 1) + "\nprint color.map.name\n") !=
              std::string(family.last) + "\n");
        CHECK(run.RUN(line + "999\nprint color.map.name\n") == std::string(family.last) + "\n");
    }
}

TEST_CASE("a colour's components are whole numbers of 0 to 255, rounded to nearest") {
    MATH_RUN run;
    run.RUN("color.map.default 1 4\n"); // 0, 1/3, 2/3, 1
    CHECK(run.VALUE("color.getrgb 2") == "<85, 85, 85>");
    CHECK(run.VALUE("color.getrgba 3") == "<170, 170, 170, 255>");
    run.RUN("color.map.default 1 6\n"); // steps of a fifth
    CHECK(run.VALUE("color.getrgb.hash 2") == "#333333");
    CHECK(run.VALUE("color.getrgba.hash 6") == "#FFFFFFFF");
    CHECK(run.VALUE("color.getrgba.hash 1") == "#000000FF");
}

TEST_CASE(
    "a value is read between two bounds, given as numbers or as a range before or behind it") {
    MATH_RUN run;
    run.RUN("color.map.default 1 256\n");
    for (const char *form :
         {"color.getrgb -1 1 -0.6", "color.getrgb <-1,1> -0.6", "color.getrgb -0.6 <-1,1>"})
        CHECK(run.VALUE(form) == "<51, 51, 51>");                    // a fifth of the way
    CHECK(run.VALUE("color.getrgb 1 -1 -0.6") == "<204, 204, 204>"); // falling bounds
    CHECK(run.VALUE("color.getrgb 0 1 7") == "<255, 255, 255>");
    CHECK(run.VALUE("color.getrgb 0 1 -7") == "<0, 0, 0>");
}

TEST_CASE("bounds that are equal and numbers beyond all bounds give an entry of the map") {
    MATH_RUN run;
    run.RUN("color.map.default 3 3\n");
    CHECK(run.VALUE("color.getrgb 5 5 5").starts_with("<"));
    CHECK(run.VALUE("color.getrgb 1e308 -1e308 0").starts_with("<"));
    CHECK(run.VALUE("color.getrgb -9223372036854775808").starts_with("<"));
    CHECK(run.VALUE("color.getrgb 9223372036854775807").starts_with("<"));
}

TEST_CASE("an empty map is black") {
    MATH_RUN run;
    CURRENTMAP().DONE();
    CURRENTMAP().INIT();
    CHECK(run.VALUE("color.getrgb 1") == "<0, 0, 0>");
    CHECK(run.VALUE("color.getrgba.hash 0 1 0.5") == "#00000000");
    run.RUN("color.alpha.bw\ncolor.map.default 1\n");
    CHECK(CURRENTMAP().LENGTH == 256);
}

TEST_CASE("alpha lasts until another map is taken") {
    MATH_RUN run;
    run.RUN("color.map.default 2 2\ncolor.alpha.wb\n"); // white, black; opaque, transparent
    CHECK(run.VALUE("color.getrgba.hash 1") == "#FFFFFFFF");
    CHECK(run.VALUE("color.getrgba.hash 2") == "#00000000");
    run.RUN("color.map.default 2 2\n");
    CHECK(run.VALUE("color.getrgba.hash 2") == "#000000FF");
    run.RUN("color.map.default 1\n");
}
