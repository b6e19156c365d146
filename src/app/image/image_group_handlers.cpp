#include "app/image/image_handlers.hpp"
#include "app/range_parameters.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/group_image.hpp"

// Images of groups: made of a source into the target of the line, sorted and counted in the image
// in use.
namespace morvane {
namespace {
bool isInverseOrder = false; // group.sort.inverse: a setting of the program

// The numbers given, as a line and as constants.
void TellGroups(TMACRO *engine, const GROUP_RESULT &groups) {
    const NAT count = groups.last - groups.first + 1;
    if (count < groups.found)
        WRITELN("  Too many groups (" + GETSTRING(groups.found) +
                ")! Only the largest ones have a number.");
    WRITELN("  Groups: " + GETSTRING(count));
    engine->PUTCONSTANT("image.groups", GETSTRING(count));
    engine->PUTCONSTANT("image.groups.min", GETSTRING(count > 0 ? groups.first : 0));
    engine->PUTCONSTANT("image.groups.max", GETSTRING(count > 0 ? groups.last : 0));
}

// new := group image range ..., into the target.
void Group(TMACRO *engine, const GROUP_SIZES &sizes, bool keeps = false) {
    TIMAGE *target = IMAGES.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const TIMAGE *source = IMAGES.ASSIGN_WITH(engine, engine->GETPARAMETER(1));
    if (!source) return;
    const COMPLEXNAT range = GETRANGE(engine->GETPARAMETER(2));
    TellGroups(engine, GROUP(*source, range, sizes, *target, keeps));
    engine->COMMAND_RESULT_VAR = UTF16();
}

// sort [n ...]: all groups without n.
void Sort(TMACRO *engine, GROUP_KEY key, REAL base = 0) {
    GROUP_ORDER order{key, base, isInverseOrder};
    if (engine->PARAMETERLENGTH() > 0) order.most = GETNAT(engine->GETPARAMETER(1));
    WRITELN("  Groups: " + GETSTRING(SORT_GROUPS(IMAGES.CURRENT(), order)));
}
} // namespace

void IMAGE_GROUP_REF(TMACRO *engine) { Group(engine, {}); }
void IMAGE_GROUP_ADD_REF(TMACRO *engine) { Group(engine, {}, true); }

// group.min image range n: more than n pixels.
void IMAGE_GROUP_MIN_REF(TMACRO *engine) {
    const NAT n = GETNAT(engine->GETPARAMETER(3));
    Group(engine, {n < NATMAX ? n + 1 : n});
}

void IMAGE_GROUP_MINMAX_REF(TMACRO *engine) {
    const COMPLEXNAT sizes = GETRANGE(engine->GETPARAMETER(3));
    Group(engine, {sizes.x, sizes.y});
}

void IMAGE_GROUP_UNSORT(TMACRO *) { UNSORT_GROUPS(IMAGES.CURRENT()); }
void IMAGE_GROUP_SORT_INVERSE(TMACRO *engine) {
    isInverseOrder = GETBOOLEAN(engine->GETPARAMETER(1));
}
void IMAGE_GROUP_SORT_COUNT(TMACRO *engine) { Sort(engine, GROUP_KEY::COUNT); }
void IMAGE_GROUP_SORT_BORDER(TMACRO *engine) { Sort(engine, GROUP_KEY::BORDER); }
void IMAGE_GROUP_SORT_FRACTION(TMACRO *engine) { Sort(engine, GROUP_KEY::FRACTION); }

// sort.fraction.log [n [base]]: base 10 without one.
void IMAGE_GROUP_SORT_FRACTION_LOG(TMACRO *engine) {
    const bool hasBase = engine->PARAMETERLENGTH() > 1;
    Sort(engine, GROUP_KEY::FRACTION, hasBase ? GETREAL(engine->GETPARAMETER(2)) : 10);
}

void IMAGE_GROUP_STAT(TMACRO *engine) {
    static_cast<void>(SAVE_GROUPS(IMAGES.CURRENT(), engine->GETPARAMETER(1)));
}
} // namespace morvane
