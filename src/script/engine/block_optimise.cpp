#include "script/engine/blocks.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/loop_pass.hpp"

#include <cmath>
#include <utility>
#include <vector>

namespace morvane {
namespace {
constexpr const char *MINIMIZATION =
    "Please define the status of the minimization via the variable 'result'!";
constexpr const char *MAXIMIZATION =
    "Please define the status of the maximization via the variable 'result'!";

// The scientific form of the variables' texts, for the phases of a geometric search.
class SCIENTIFIC_PHASE {
public:
    explicit SCIENTIFIC_PHASE(bool wanted) : active(wanted) {
        if (!active) return;
        FORMAT.PUSH();
        FORMAT.SCIENTIFIC = true;
    }
    ~SCIENTIFIC_PHASE() {
        if (active) FORMAT.POP();
    }
    SCIENTIFIC_PHASE(const SCIENTIFIC_PHASE &) = delete;
    SCIENTIFIC_PHASE &operator=(const SCIENTIFIC_PHASE &) = delete;

private:
    bool active;
};

// The search for the last position at which the block reports success: a coarse way from one
// bound, then a fine way back towards it. A geometric search has the step 0.
class EXTREME_SEARCH {
public:
    EXTREME_SEARCH(TMACRO &macro, BLOCK_FRAME &block, bool minimum)
        : engine(macro), frame(block), down(minimum) {}
    void SEARCH();

private:
    bool Read();
    bool Run(const char *sentence);
    void PutVariables();
    void Coarse();
    REAL Forth(REAL p) const;
    REAL Back(REAL p) const;
    bool Beyond(REAL p) const { return down ? p > high : p < low; }
    template <class MOVE, class UNDO> void Fine(MOVE move, UNDO undo);
    void FineGeometric();

    TMACRO &engine;
    BLOCK_FRAME &frame;
    bool down; // minimize: fine moves go down
    REAL low = 0, step = 0, high = 0;
    std::vector<UTF16> names;
    std::vector<REAL> position;
};

bool EXTREME_SEARCH::Read() {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() < 4) return engine.MIN_PARAMETERERROR(4), false;
    low = GETREAL(engine.GETPARAMETER(1));
    step = std::abs(GETREAL(engine.GETPARAMETER(2)));
    high = GETREAL(engine.GETPARAMETER(3));
    if (high < low) std::swap(low, high);
    names = engine._WRITTENNAMES(*frame.part);
    if (names.size() < 4) return engine.MIN_PARAMETERERROR(4), false; // a lambda changed the line
    names.erase(names.begin(), names.begin() + 3);
    position.assign(names.size(), down ? low : high);
    return high - low > 0;
}

void EXTREME_SEARCH::PutVariables() {
    for (std::size_t i = 0; i < names.size(); ++i)
        engine.PUTCONSTANT(names[i], GETSTRING(position[i]));
}

// A run of the block; whether it reported success. Its end line is not taken over.
bool EXTREME_SEARCH::Run(const char *sentence) {
    if (engine.stop) return false;
    loops::Pass(engine, frame, down ? "minimize" : "maximize", false);
    const UTF16 result = engine.GETCONSTANTVALUE("result");
    if (result.EMPTY() && !engine.stop) engine.ERROR(sentence);
    return GETBOOLEAN(result);
}

REAL EXTREME_SEARCH::Forth(REAL p) const {
    if (step == 0) return down ? p * 10 : p * 0.1;
    return down ? p + step : p - step;
}

REAL EXTREME_SEARCH::Back(REAL p) const {
    if (step == 0) return down ? p * 0.1 : p * 10;
    return down ? p - step : p + step;
}

void EXTREME_SEARCH::Coarse() {
    bool found = false;
    do {
        PutVariables();
        for (REAL &p : position)
            p = Forth(p);
        // Deliberate: an empty result in the coarse way of maximize is told as a minimization.
        found = Run(MINIMIZATION);
    } while (!engine.stop && !found && !Beyond(position[0]));
    // Deliberate: maximize takes its last coarse move back only when that went below the bound.
    if (down ? position[0] > low : position[0] < low)
        for (REAL &p : position)
            p = Back(p);
}

// Passes over the variables until each of them is at the bound or fails one move further.
template <class MOVE, class UNDO> void EXTREME_SEARCH::Fine(MOVE move, UNDO undo) {
    std::size_t fixed = 0;
    while (fixed < position.size() && !engine.stop) {
        fixed = 0;
        for (REAL &p : position) {
            const REAL moved = move(p);
            if (moved == p || (down ? moved < low : moved > high)) {
                ++fixed;
                continue;
            }
            p = moved;
            PutVariables();
            const bool success = Run(down ? MINIMIZATION : MAXIMIZATION);
            if (engine.stop) return;
            if (success) continue;
            p = undo(p);
            ++fixed;
        }
    }
}

// Deliberate: the second geometric stage undoes a move from the moved value.
void EXTREME_SEARCH::FineGeometric() {
    {
        const SCIENTIFIC_PHASE phase(true);
        Fine([this](REAL p) { return down ? p * 0.1 : p * 10; },
             [this](REAL p) { return down ? p * 10 : p * 0.1; });
    }
    const SCIENTIFIC_PHASE phase(true);
    Fine([this](REAL p) { return down ? p - p * 0.1 : p + p * 0.1; },
         [this](REAL p) { return down ? p + 0.1 * p : p - 0.1 * p; });
}

// Deliberate: behind a search its lines run once more and their end closes the enclosing block.
void EXTREME_SEARCH::SEARCH() {
    if (!Read()) return;
    engine.PUTCONSTANT("result", {});
    {
        const SCIENTIFIC_PHASE phase(step == 0);
        Coarse();
    }
    if (step != 0) {
        Fine([this](REAL p) { return Back(p); }, [this](REAL p) { return Forth(p); });
    } else {
        FineGeometric();
    }
    if (engine.stop) return;
    const SCIENTIFIC_PHASE phase(step == 0);
    PutVariables();
}
} // namespace

void RUN_MINIMIZE(TMACRO &engine, BLOCK_FRAME &frame) {
    EXTREME_SEARCH(engine, frame, true).SEARCH();
}
void RUN_MAXIMIZE(TMACRO &engine, BLOCK_FRAME &frame) {
    EXTREME_SEARCH(engine, frame, false).SEARCH();
}
} // namespace morvane
