#include "image2d/image/split.hpp"

#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "foundation/base/number_text.hpp"

#include <string_view>

// Several images from the one in use, named after the target word; and one image from several.
namespace morvane {
namespace {
// The fields target.name for each name; none when one of them is refused, which has been told.
std::vector<TIMAGE *> TargetsOf(TMACRO *engine, const std::vector<UTF16> &names) {
    const UTF16 word = engine->COMMAND_RESULT_VAR;
    std::vector<TIMAGE *> targets;
    for (const UTF16 &name : names) {
        TIMAGE *const target = IMAGES.ASSIGN_TO(engine, word + "." + name);
        if (!target) return {};
        targets.push_back(target);
    }
    engine->COMMAND_RESULT_VAR = UTF16();
    return targets;
}

void SplitColours(TMACRO *engine, const std::vector<VECTORNAT> &colours) {
    std::vector<UTF16> names;
    for (std::size_t i = 1; i <= colours.size(); ++i)
        names.push_back(GETSTRING(i));
    const std::vector<TIMAGE *> targets = TargetsOf(engine, names);
    if (!targets.empty()) WITH_MEMORY([&] { SPLIT_COLOURS(IMAGES.CURRENT(), colours, targets); });
}

void SplitRainbow(TMACRO *engine, NAT bits) {
    const std::vector<TIMAGE *> targets =
        TargetsOf(engine, {"red", "green", "blue", "yellow", "cyan", "purple", "gray"});
    if (!targets.empty()) WITH_MEMORY([&] { SPLIT_RAINBOW(IMAGES.CURRENT(), bits, targets); });
}
} // namespace

void IMAGE_SPLIT_RGB_REF(TMACRO *engine) {
    const std::vector<TIMAGE *> targets = TargetsOf(engine, {"red", "green", "blue"});
    if (!targets.empty()) WITH_MEMORY([&] { SPLIT_RGB(IMAGES.CURRENT(), targets); });
}

void IMAGE_SPLIT_RGBA_REF(TMACRO *engine) {
    const std::vector<TIMAGE *> targets = TargetsOf(engine, {"red", "green", "blue", "alpha"});
    if (!targets.empty()) WITH_MEMORY([&] { SPLIT_RGB(IMAGES.CURRENT(), targets); });
}

void IMAGE_SPLIT_RAINBOW_REF(TMACRO *engine) { SplitRainbow(engine, 0); }
void IMAGE_SPLIT_RAINBOW_SHIFT_REF(TMACRO *engine) {
    SplitRainbow(engine, GETNAT(engine->GETPARAMETER(1)));
}

void IMAGE_SPLIT_COLOR_REF(TMACRO *engine) { SplitColours(engine, COLOURS_OF_LINE(engine, 1)); }
void IMAGE_SPLIT_COLORPOINT_REF(TMACRO *engine) {
    SplitColours(engine, COLOURS_AT_POINTS(engine, 1, IMAGES.CURRENT()));
}

void IMAGE_COMBINE_REF(TMACRO *engine) {
    constexpr NAT LEAST = 2, MOST = 4;
    const auto operands = OPERANDS_OF_LINE(engine, LEAST, MOST);
    if (operands.empty()) return;
    WITH_TARGET(engine, [&](TIMAGE &target) { COMBINE(operands, target); });
}
} // namespace morvane
