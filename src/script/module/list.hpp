#pragma once

#include "foundation/container/poly_types.hpp"

#include <span>
#include <string>
#include <variant>

namespace morvane {
// The kind byte of a list. Another byte makes a list of reals.
inline constexpr BYTE LIST_REAL = 0, LIST_NAT = 1, LIST_COMPLEX = 2, LIST_VECTOR = 3,
                      LIST_HYPER = 4, LIST_CHARS = 5;

// The values of a list in the container of their kind. VALUE is what an entry gets when nobody
// gives one, BACKGROUND what a read outside the list gives; both are zero (no text) after INIT.
template <class T> struct LIST_VALUES {
    TPOLY_OF<T> values;
    T VALUE{}, BACKGROUND{};
};
template <> struct LIST_VALUES<UTF16CHARS7> {
    TPOLYCHARS values;
    UTF16CHARS7 VALUE, BACKGROUND;
};

// A list of a script: values of one kind, positions start at 1. A value comes in as text, read by
// the number readers as the kind of the list, or as a HYPER, of which a list takes the components
// that it has (a list of reals only the first, a list of texts the short form).
class TLIST {
public:
    explicit TLIST(BYTE kind = LIST_REAL) { INIT(kind); }

    void INIT(BYTE newKind = LIST_REAL); // empty, the position at 1, value and background zero
    void DONE();                         // empty; the kind stays
    // Empty and of that kind; value and background stay, read as the new kind, when they were set.
    void SETKIND(BYTE newKind);
    BYTE KIND() const { return static_cast<BYTE>(store.index()); }
    NAT LENGTH() const;
    bool INSIDE(NAT index) const { return index >= 1 && index <= LENGTH(); }
    void REPLACE(const TLIST &other); // kind, values, value and background of the other

    UTF16 GET(NAT index) const; // as text; the background outside 1..LENGTH
    // One component from 1, of a text its tab-separated element; empty where there is none.
    UTF16 GET(NAT index, NAT part) const;
    // The numbers of an entry or of the background, missing ones 0; of a text those it holds.
    HYPER GETHYPER(NAT index) const;
    // UTF-8 that PUSH reads equal, where GET shows 16 decimals.
    std::string GETEXACT(NAT index) const;

    // False when memory ran out, which is told; the list is empty then.
    bool PUSH(const UTF16 &value);
    bool PUSH(const HYPER &value);
    bool PUSH(); // the list's value
    UTF16 POP(); // the last entry, removed; the background of an empty list
    // Behind the end the list grows; entries between get the list's value. False, and nothing
    // done, below 1 or where no list can reach.
    bool PUT(NAT index, const UTF16 &value);
    bool PUT(NAT index, const HYPER &value);
    // The entry becomes `index`, those from there on move up. False outside 1..LENGTH + 1.
    bool INSERT(NAT index, const UTF16 &value);
    bool ERASE(NAT index);  // false outside 1..LENGTH
    bool RESIZE(NAT count); // new entries get the list's value; false, told and empty: no memory
    void FLIP();
    // Ascending, or descending while FORMAT.SORTING is false; of records by the first component
    // that differs.
    void SORT();
    void SORTREAL(); // texts by the number that each holds; else as SORT

    UTF16 VALUE() const;
    UTF16 BACKGROUND() const;
    void SETVALUE(const UTF16 &value);
    void SETBACKGROUND(const UTF16 &value);

    // The list's own position, 0..LENGTH + 1: before the first entry, on one, or behind the last.
    NAT POSITION() const;
    void SETPOSITION(NAT index); // limited to that range
    void FIRST() { SETPOSITION(1); }
    void NEXT() { SETPOSITION(POSITION() + 1); }
    void BEFORE() { SETPOSITION(POSITION() - 1); }
    void LAST() { SETPOSITION(LENGTH()); }

    // Extremes in short form, without zeros at the end of a record; empty for an empty list. The
    // first component that differs decides; texts go by text order.
    UTF16 MIN() const;
    UTF16 MAX() const;
    // The entry of least and greatest length: of a number its amount, of a record the Euclidean
    // one, of a text its characters. The first of several; 0 for an empty list.
    NAT SHORTEST() const;
    NAT LONGEST() const;
    // By component; of texts from the numbers that they hold. 0 for an empty list.
    HYPER MEAN() const;
    HYPER SD() const; // divisor n-1; 0 for fewer than two entries
    // A mean or a deviation as text, with as many components as the kind has.
    UTF16 SHOW(const HYPER &numbers) const;
    bool SMOOTH(NAT passes = 1); // false, and nothing done, for texts
    // Becomes the entries of `source` with no component outside mean ± factor * SD of `baseline`.
    void KEEP_INLIERS(const TLIST &source, const TLIST &baseline, REAL factor);

    // One value a line. LOAD reads as the list's kind; a failure is told and leaves it empty.
    // Blank lines are no numbers, but empty texts.
    bool LOAD(const UTF16 &name);
    bool SAVE(const UTF16 &name) const; // what is saved loads equal

    static constexpr NAT LONGEST_BLOCK = NAT{1} << 36; // bytes of a list

private:
    using STORE = std::variant<LIST_VALUES<REAL>, LIST_VALUES<NAT>, LIST_VALUES<COMPLEX>,
                               LIST_VALUES<VECTOR>, LIST_VALUES<HYPER>, LIST_VALUES<UTF16CHARS7>>;

    template <class FUNCTION> decltype(auto) Visit(FUNCTION &&function) {
        return std::visit(std::forward<FUNCTION>(function), store);
    }
    template <class FUNCTION> decltype(auto) Visit(FUNCTION &&function) const {
        return std::visit(std::forward<FUNCTION>(function), store);
    }
    template <class INPUT> bool PutValue(NAT index, const INPUT &value);
    template <class INPUT> bool PushValue(const INPUT &value);
    void NumbersOf(TPOLYHYPER &numbers) const;
    bool ReachesOver(NAT count) const; // no list has so many entries

    STORE store;
    NAT position = 1;
};

// A column of a saved table.
struct LIST_COLUMN {
    UTF16 name;
    const TLIST *list;
};
// Tab-separated columns under their names; a shorter list leaves its cells empty. A failure is
// told.
bool SAVE_TABLE(const UTF16 &name, std::span<const LIST_COLUMN> columns);
} // namespace morvane
