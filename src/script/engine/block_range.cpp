#include "script/engine/blocks.hpp"

#include "foundation/base/random.hpp"
#include "foundation/container/poly_types.hpp"
#include "script/engine/loop_pass.hpp"

namespace morvane {
using namespace loops;
using COLOUR = TMACRO::TRACE_COLOUR;

namespace {
constexpr NAT MOST_RANDOM_VALUES = NAT{1} << 27;

// A range of whole numbers, up or down by 1.
struct WHOLE_RANGE {
    NAT first = 1, length = 0, step = 1;
    NAT AT(NAT i) const { return first + step * (i - 1); } // i from 1
};

WHOLE_RANGE RangeBetween(NAT a, NAT b) { return {a, CountBetween(a, b), a <= b ? 1 : -1}; }

// Part `part` of 1..total cut into equal parts; the last one takes what is left over.
WHOLE_RANGE PartOf(NAT total, NAT part, NAT parts) {
    const WIDE c = total / parts;
    const NAT first = Saturated(c * (part - 1) + 1);
    const NAT last = part == parts ? total : Saturated(c * part);
    return {first, last < first ? 0 : CountBetween(first, last), 1};
}

// The last pass of a group's member; 0 when none is its own.
NAT LastOfMember(const WHOLE_RANGE &range, const COMPLEXNAT &position) {
    for (NAT i = range.length; i >= 1 && range.length - i < position.y; --i)
        if (range.AT(i) % position.y == position.x) return i;
    return 0;
}

// relative(count): parallel.relativ of a pass.
template <class F>
void ParallelSlice(TMACRO &engine, BLOCK_FRAME &frame, const WHOLE_RANGE &range, F relative) {
    const TMACRO::LOOP_NAMES &names = engine.NAMES();
    const COMPLEXNAT position = engine.parallelPosition;
    const NAT last = LastOfMember(range, position);
    if (last == 0) return Skip(engine, frame, "parallel.ignore");
    for (NAT i = 1; i <= last && !engine.stop; ++i) {
        const NAT count = range.AT(i);
        if (count % position.y != position.x) continue;
        engine.PUTCONSTANT_NEXTSCOPE(names.parallelLength, CONSTANT_VALUE(range.length));
        engine.PUTCONSTANT_NEXTSCOPE(names.parallelCount, CONSTANT_VALUE(count));
        engine.PUTCONSTANT_NEXTSCOPE(names.parallelRelativ, CONSTANT_VALUE(relative(count)));
        Pass(engine, frame, "parallel", i == last);
    }
}

void Parallel(TMACRO &engine, BLOCK_FRAME &frame) {
    const NAT a = Whole(engine, 1);
    if (engine.PARAMETERLENGTH() == 2) {
        const NAT b = Whole(engine, 2);
        engine._TRACE("parallel", COLOUR::PROCEDURE, Range(a, b));
        const WHOLE_RANGE range = RangeBetween(a, b);
        return ParallelSlice(engine, frame, range,
                             [&](NAT count) { return RangeRelative(range.length, count, a); });
    }
    engine._TRACE("parallel", COLOUR::PROCEDURE, GETSTRING(a));
    const WHOLE_RANGE range{a < 0 ? -1 : 1, Magnitude(a), a < 0 ? -1 : 1};
    ParallelSlice(engine, frame, range,
                  [&](NAT count) { return static_cast<REAL>(count) / static_cast<REAL>(a); });
}

void RandomPasses(TMACRO &engine, BLOCK_FRAME &frame, const WHOLE_RANGE &range) {
    if (range.length > MOST_RANDOM_VALUES) return engine.ERROR("too many random values");
    TPOLYNAT values;
    values.INIT(range.length);
    if (values.LENGTH != range.length) return engine.ERROR("no memory for random values");
    for (NAT i = 1; i <= range.length; ++i)
        values.PUT(i, range.AT(i));
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    values.MIX(random);
    for (NAT i = 1; i <= range.length && !engine.stop; ++i) {
        PutCounters(engine, range.length, CONSTANT_VALUE(range.length - i),
                    CONSTANT_VALUE(values.GET(i)),
                    CONSTANT_VALUE(static_cast<REAL>(i) / static_cast<REAL>(range.length)));
        Pass(engine, frame, "for", i == range.length);
    }
}
} // namespace

// Deliberate: for.part with a part that is not above zero does nothing, not even skip its block.
void RUN_FOR_PART(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() != 3) return engine.MIN_PARAMETERERROR(3);
    const NAT total = Whole(engine, 1), part = Whole(engine, 2), parts = Whole(engine, 3);
    if (total <= 0 || part <= 0 || parts <= 0) return;
    const WHOLE_RANGE range = PartOf(total, part, parts);
    const NAT last = range.length > 0 ? range.AT(range.length) : range.first - 1;
    engine._TRACE("for.part", COLOUR::PROCEDURE, Range(range.first, last));
    if (range.length == 0) return Skip(engine, frame, "for.ignore");
    const TMACRO::LOOP_NAMES &names = engine.NAMES();
    for (NAT i = 1; i <= range.length && !engine.stop; ++i) {
        const NAT count = range.AT(i);
        engine.PUTCONSTANT_NEXTSCOPE(names.forLength, CONSTANT_VALUE(range.length));
        engine.PUTCONSTANT_NEXTSCOPE(names.forCount, CONSTANT_VALUE(count));
        // Deliberate: the share of a part is named for.relativ.
        engine.PUTCONSTANT_NEXTSCOPE(
            names.forRelativ, CONSTANT_VALUE(RangeRelative(range.length, count, range.first)));
        Pass(engine, frame, "for", i == range.length);
    }
}

void RUN_FOR_RANDOM(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() < 1 || engine.PARAMETERLENGTH() > 2)
        return engine.MIN_PARAMETERERROR(1);
    const NAT a = Whole(engine, 1);
    if (engine.PARAMETERLENGTH() == 2) {
        const NAT b = Whole(engine, 2);
        engine._TRACE("for.random", COLOUR::PROCEDURE, Range(a, b));
        return RandomPasses(engine, frame, RangeBetween(a, b));
    }
    engine._TRACE("for.random", COLOUR::PROCEDURE, GETSTRING(a));
    if (a < 1) return Skip(engine, frame, "for.ignore");
    RandomPasses(engine, frame, {1, a, 1});
}

void RUN_PARALLEL(TMACRO &engine, BLOCK_FRAME &frame) {
    const COMPLEXNAT position = engine.parallelPosition;
    if (position.x == 0 && position.y == 0) return RUN_FOR(engine, frame);
    if (position.x < 0 || position.y < 0 || position.y < position.x)
        return engine.ERROR("Wrong parallel initialization (" + GETSTRING(position) + ")!");
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() < 1 || engine.PARAMETERLENGTH() > 2)
        return engine.MIN_PARAMETERERROR(1);
    Parallel(engine, frame);
}
} // namespace morvane
