#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/colour/colormap.hpp"
#include "script/engine/macro.hpp"
#include "script/module/math_parameters.hpp"
#include "script/module/use_all.hpp"

namespace morvane {
namespace {
constexpr NAT STANDARD_STEPS = 256;

std::string_view mapName = "BW"; // of the map in use, which is "BW" at start

// Takes a map of the family: its index and the count of entries.
template <COLOUR_FAMILY FAMILY> void COLOR_MAP(TMACRO *engine) {
    const NAT index = LIMIT(GETNAT(engine->GETPARAMETER(1)), NAT{1}, FAMILY_LENGTH(FAMILY));
    const UTF16 steps = engine->GETPARAMETER_ERRORFREE(2);
    mapName =
        BUILD_FAMILY(CURRENTMAP(), FAMILY, index, steps.EMPTY() ? STANDARD_STEPS : GETNAT(steps));
}

void COLOR_MAP_NAME_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = mapName; }
void COLOR_MAP_LENGTH_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(CURRENTMAP().LENGTH);
}

template <void (TCOLORMAP::*SETALPHA)()> void COLOR_ALPHA(TMACRO *) { (CURRENTMAP().*SETALPHA)(); }

// The colour that the parameters ask for, of 0..255: index; range and value in either order; or
// low, high, value.
HYPERNAT AskedColour(TMACRO *engine) {
    const UTF16 first = engine->GETPARAMETER(1);
    const UTF16 second = engine->GETPARAMETER_ERRORFREE(2);
    HYPER colour;
    if (engine->PARAMETERLENGTH() == 1) {
        colour = CURRENTMAP().GETRGBA(GETNAT(first));
    } else if (engine->PARAMETERLENGTH() == 2) {
        const bool isRangeFirst = COUNT_NUMBERS(first, 2) == 2;
        const COMPLEX range = GETCOMPLEX(isRangeFirst ? first : second);
        colour = CURRENTMAP().GETRGBA(range.x, range.y, GETREAL(isRangeFirst ? second : first));
    } else {
        colour =
            CURRENTMAP().GETRGBA(GETREAL(first), GETREAL(second), GETREAL(engine->GETPARAMETER(3)));
    }
    const auto part = [](REAL share) { return LIMIT(ROUND(share * 255), NAT{0}, NAT{255}); };
    return {part(colour.x), part(colour.y), part(colour.z), part(colour.w)};
}

// One to three parameters; false: a wrong count was told.
bool IsAsked(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1) engine->MIN_PARAMETERERROR(1);
    if (count > 3) engine->MAX_PARAMETERERROR(3);
    return count >= 1 && count <= 3;
}

UTF16 Hash(const HYPERNAT &colour) {
    return "#" + GETHEX(colour.x, 2) + GETHEX(colour.y, 2) + GETHEX(colour.z, 2);
}

void COLOR_GETRGB_REF(TMACRO *engine) {
    if (!IsAsked(engine)) return;
    const HYPERNAT colour = AskedColour(engine);
    engine->COMMAND_RESULT = GETSTRING(VECTORNAT{colour.x, colour.y, colour.z});
}
void COLOR_GETRGBA_REF(TMACRO *engine) {
    if (IsAsked(engine)) engine->COMMAND_RESULT = GETSTRING(AskedColour(engine));
}
void COLOR_GETRGB_HASH_REF(TMACRO *engine) {
    if (IsAsked(engine)) engine->COMMAND_RESULT = Hash(AskedColour(engine));
}
void COLOR_GETRGBA_HASH_REF(TMACRO *engine) {
    if (!IsAsked(engine)) return;
    const HYPERNAT colour = AskedColour(engine);
    engine->COMMAND_RESULT = Hash(colour) + GETHEX(colour.w, 2);
}

constexpr std::string_view MAP_PARAMETERS = "map: number, [steps: number]";

template <COLOUR_FAMILY FAMILY>
constexpr COMMAND_ROW MAP(std::string_view name, std::string_view usage, std::string_view note) {
    return PROCEDURE(name, COLOR_MAP<FAMILY>, AT_LEAST(1), MAP_PARAMETERS, usage, note);
}

constexpr COMMAND_ROW MAP_ROWS[] = {
    MAP<COLOUR_FAMILY::DEFAULTMAP>("default", "color.map.default 1",
                                   "take a simple colour map; without steps it has 256"),
    MAP<COLOUR_FAMILY::SPECIAL>("special", "color.map.special 1 256",
                                "take a colour map of even steps to the eye"),
    MAP<COLOUR_FAMILY::VOLUME1>("volume1", "color.map.volume1 5 100",
                                "take a colour map for volumes"),
    MAP<COLOUR_FAMILY::VOLUME2>("volume2", "color.map.volume2 1 256",
                                "take a colour map of volume viewers, some with alpha"),
    MAP<COLOUR_FAMILY::CHART1>("chart1", "color.map.chart1 9 9",
                               "take distinct colours for charts"),
    MAP<COLOUR_FAMILY::CHART2>("chart2", "color.map.chart2 5 11",
                               "take a diverging or sequential scheme for charts"),
    MAP<COLOUR_FAMILY::ART>("art", "color.map.art 6 5", "take the colours of a film"),
    MAP<COLOUR_FAMILY::WARN>("warn", "color.map.warn 5 5", "take the colours of a warning scale"),
    MAP<COLOUR_FAMILY::TOPO>("topo", "color.map.topo 4 256", "take the colours of heights on maps"),
    LAMBDA("name", COLOR_MAP_NAME_LAMD, "print color.map.name", "name of the colour map in use"),
    LAMBDA("length", COLOR_MAP_LENGTH_LAMD, "print color.map.length", "count of its entries"),
};
static_assert(ROWS_ARE_SOUND(MAP_ROWS));

constexpr COMMAND_ROW ALPHA_ROWS[] = {
    PROCEDURE("bw", COLOR_ALPHA<&TCOLORMAP::SETALPHA_BW>, EXACTLY(0), "", "color.alpha.bw",
              "alpha rises along the colour map"),
    PROCEDURE("wb", COLOR_ALPHA<&TCOLORMAP::SETALPHA_WB>, EXACTLY(0), "", "color.alpha.wb",
              "alpha falls along the colour map"),
    PROCEDURE("black", COLOR_ALPHA<&TCOLORMAP::SETALPHA_BLACK>, EXACTLY(0), "", "color.alpha.black",
              "black entries become transparent"),
    PROCEDURE("gray", COLOR_ALPHA<&TCOLORMAP::SETALPHA_GRAY>, EXACTLY(0), "", "color.alpha.gray",
              "grey entries become transparent, black and white ones stay"),
    PROCEDURE("white", COLOR_ALPHA<&TCOLORMAP::SETALPHA_WHITE>, EXACTLY(0), "", "color.alpha.white",
              "white entries become transparent"),
};
static_assert(ROWS_ARE_SOUND(ALPHA_ROWS));

constexpr std::string_view COLOUR_PARAMETERS = "index: range, [high: real, value: real]";

constexpr COMMAND_ROW COLOR_ROWS[] = {
    FUNCTION("getrgb", COLOR_GETRGB_REF, OWN_COUNT, COLOUR_PARAMETERS, "a := color.getrgb 0 100 37",
             "<r, g, b> of an entry, or of a value in low..high; 0..255 each"),
    FUNCTION("getrgb.hash", COLOR_GETRGB_HASH_REF, OWN_COUNT, COLOUR_PARAMETERS,
             "a := color.getrgb.hash 1", "colour of an entry or of a value as #RRGGBB"),
    FUNCTION("getrgba", COLOR_GETRGBA_REF, OWN_COUNT, COLOUR_PARAMETERS,
             "a := color.getrgba <0,100> 37", "<r, g, b, alpha>; 0..255 each"),
    FUNCTION("getrgba.hash", COLOR_GETRGBA_HASH_REF, OWN_COUNT, COLOUR_PARAMETERS,
             "a := color.getrgba.hash 1", "colour of an entry or of a value as #RRGGBBAA"),
};
static_assert(ROWS_ARE_SOUND(COLOR_ROWS));
} // namespace

const COMMAND_SET COLOR_MAP_SET{"color.map.", MAP_ROWS};
const COMMAND_SET COLOR_ALPHA_SET{"color.alpha.", ALPHA_ROWS};
const COMMAND_SET COLOR_SET{"color.", COLOR_ROWS};

void TMACRO::USE_COLOR() {
    REGISTER(COLOR_MAP_SET);
    REGISTER(COLOR_ALPHA_SET);
    REGISTER(COLOR_SET);
}
} // namespace morvane
