#include "script/module/stack.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"
#include "script/module/use_all.hpp"

#include <algorithm>
#include <array>

namespace morvane {
TSTACK STACK;

bool TSTACK::PUSH(const HYPER &value) {
    const NAT before = entries.LENGTH;
    if (before >= MOST) return false;
    entries.PUSH(value);
    return entries.LENGTH > before;
}

bool TSTACK::APPLY(const STACK_WORD &word) {
    if (entries.LENGTH < word.needs || (word.grows && entries.LENGTH >= MOST)) return false;
    word.run(entries);
    return true;
}

namespace {
void FullError(TMACRO *engine) {
    engine->ERROR("stack is full: " + UTF16(std::to_string(STACK.LENGTH())) + " entries");
}

// The word that stands at the parameter, or null for a value. A text in angle brackets is always a
// value, whatever it holds: only the raw rules keep its brackets.
const STACK_WORD *WordOf(TMACRO *engine, NAT index, const UTF16 &text) {
    const STACK_WORD *word = FIND_STACK_WORD(GETUTF8(LOWERCASE(text)));
    if (!word) return nullptr;
    constexpr BYTE bracketed = 3;
    const bool isBracketed = engine->GETPARAMETERKIND(index) == bracketed;
    if (isBracketed && engine->GETPARAMETER_RAW(index) == "<" + text + ">") return nullptr;
    return word;
}

bool Calculate(TMACRO *engine, const STACK_WORD &word) {
    if (STACK.LENGTH() < word.needs) {
        engine->ERROR("stack " + UTF16(word.word) + " needs " + std::to_string(word.needs) +
                      (word.needs == 1 ? " entry" : " entries") + ", there " +
                      (STACK.LENGTH() == 1 ? "is " : "are ") + std::to_string(STACK.LENGTH()));
        return false;
    }
    if (STACK.APPLY(word)) return true;
    FullError(engine);
    return false;
}

// stack 1 2 +: in order, words of the calculator act, everything else is read and pushed.
void STACK_PUSH(TMACRO *engine) {
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i) {
        const UTF16 text = engine->GETPARAMETER(i);
        if (const STACK_WORD *word = WordOf(engine, i, text)) {
            if (!Calculate(engine, *word)) return;
        } else if (!STACK.PUSH(GETHYPER(text))) {
            return FullError(engine);
        }
    }
}

// a := stack: the top, taken off; trailing zero components are left out.
void STACK_POP_REF(TMACRO *engine) {
    if (!engine->CHECKPARAMETER(0)) return;
    if (STACK.LENGTH() == 0) return engine->ERROR("stack is empty");
    engine->COMMAND_RESULT = GETSHORT(STACK.POP());
}

void STACK_LENGTH_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = GETSTRING(STACK.LENGTH()); }
void STACK_CLEAR(TMACRO *) { STACK.CLEAR(); }
void STACK_FLIP(TMACRO *) { STACK.FLIP(); }

// The kind of list that holds all components of all entries: the present one where it can, else
// the narrowest that does.
BYTE KindForStack(BYTE kind) {
    constexpr std::array<BYTE, 5> kinds{LIST_REAL, LIST_REAL, LIST_COMPLEX, LIST_VECTOR,
                                        LIST_HYPER};
    NAT most = 1;
    for (NAT i = 1; i <= STACK.LENGTH(); ++i)
        most = std::max(most, USED_COMPONENTS(STACK.GET(i)));
    const BYTE wanted = kinds[static_cast<std::size_t>(most)];
    if (kind == LIST_CHARS || most == 1) return kind;
    return kind == LIST_NAT ? wanted : std::max(kind, wanted);
}

// The list in use gets the entries, bottom first, in place of what it held.
void STACK_TO_LIST(TMACRO *) {
    TLIST &list = LISTS.CURRENT();
    list.SETKIND(KindForStack(list.KIND()));
    for (NAT i = 1; i <= STACK.LENGTH(); ++i)
        if (!list.PUSH(STACK.GET(i))) return;
}

// The stack gets the values of the list in use, the last one on top, in place of what it held.
void LIST_TO_STACK(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    STACK.CLEAR();
    for (NAT i = 1; i <= list.LENGTH(); ++i)
        if (!STACK.PUSH(list.GETHYPER(i))) return FullError(engine);
}

constexpr COMMAND_ROW STACK_ROWS[] = {
    LAMBDA("stack.length", STACK_LENGTH_LAMD, "a := stack.length", "entries of the stack"),
    LAMBDA("stack.size", STACK_LENGTH_LAMD, "a := stack.size", "entries of the stack"),
    PROCEDURE("stack.clean", STACK_CLEAR, EXACTLY(0), "", "stack.clean", "empty the stack"),
    PROCEDURE("stack.clear", STACK_CLEAR, EXACTLY(0), "", "stack.clear", "empty the stack"),
    PROCEDURE("stack.flip", STACK_FLIP, EXACTLY(0), "", "stack.flip", "reverse the stack"),
    PROPERTY("stack", STACK_PUSH, STACK_POP_REF, AT_LEAST(1), "entry: text ...", "stack 1 2 +",
             "calculator with values and words; read: the top, taken off"),
    PROCEDURE("stack.to.list", STACK_TO_LIST, EXACTLY(0), "", "stack.to.list",
              "copy the stack into the list in use"),
    PROCEDURE("list.to.stack", LIST_TO_STACK, EXACTLY(0), "", "list.to.stack",
              "copy the list in use into the stack"),
};
static_assert(ROWS_ARE_SOUND(STACK_ROWS));
} // namespace

const COMMAND_SET STACK_SET{"", STACK_ROWS};
} // namespace morvane
