#pragma once

#include "foundation/base/utf16chars7.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <memory>
#include <new>
#include <span>
#include <string_view>
#include <vector>

// The named workspaces of a script. In each list one field is current, the field "in use";
// commands act on it. Names are compared upper case; positions in a list start at 1.
namespace morvane {
// How a kind byte of a field is shown by `dump`.
struct KIND_WORD {
    BYTE kind;
    std::string_view word;
};

// What tells one kind of workspace from another: its words, and how its fields are made and shown.
template <class FIELD> struct WORKSPACE_WORDS {
    std::string_view name;            // "image": in "Use image: "
    std::string_view dump;            // "image", "cloud": in "***** dump.cloud *****"
    std::string_view current;         // "Image": in "  Image (1) in use: "
    std::string_view list;            // "Imagelist": in "  Imagelist empty!"
    std::string_view field;           // "imagefield": in the refusals
    BYTE kind;                        // kind of new fields at start; 0 where there are no kinds
    void (*init)(FIELD &, BYTE);      // FIELD.INIT of a new, empty field of that kind
    UTF16 (*describe)(const FIELD &); // the description in `dump`
    UTF16 (*size)(const FIELD &);     // "(2x3)" behind `use`; null: use is silent
    bool (*notEmpty)(const FIELD &);  // all sizes above 0
    bool (*same)(const FIELD &,
                 const FIELD &); // sizes, offset and matrix; null: none is like another
};

// The kind word with a size text behind it, or "unknown".
inline UTF16 DESCRIBE_KIND(std::span<const KIND_WORD> words, BYTE kind, const UTF16 &size) {
    for (const KIND_WORD &entry : words)
        if (entry.kind == kind) return UTF16(entry.word) + size;
    return "unknown";
}

template <class FIELD> class TWORKSPACE {
public:
    explicit TWORKSPACE(const WORKSPACE_WORDS<FIELD> &record)
        : DEFAULTKIND(record.kind), words(record) {}
    ~TWORKSPACE() { DONE(); }
    TWORKSPACE(const TWORKSPACE &) = delete;
    TWORKSPACE &operator=(const TWORKSPACE &) = delete;

    BYTE DEFAULTKIND; // kind given to a newly made field
    void RESETKIND() { DEFAULTKIND = words.kind; }
    const WORKSPACE_WORDS<FIELD> &WORDS() const { return words; }

    void INIT(); // one empty field "DEFAULT", which is current
    void DONE(); // frees all fields; the list is empty until the next INIT

    FIELD &CURRENT() { return *current; } // the field in use; a list is always initialised
    NAT CURRENTINDEX() const { return currentIndex; }
    NAT LENGTH() const { return static_cast<NAT>(entries.size()); }
    UTF16 GETNAME(NAT index) const;      // as stored; empty outside 1..LENGTH
    FIELD *GET(NAT index) const;         // null outside 1..LENGTH
    NAT SEARCH(const UTF16 &name) const; // first position of the name, 0 for none

    // Finds or makes a field by name and sets `field` to it; the position is the answer.
    NAT CHECKUSE(FIELD *&field, const UTF16 &name);
    // The field for a result: found or made. An empty name means "DEFAULT".
    FIELD *ASSIGN(const UTF16 &name);
    // The same, refusing the current field: null after the report.
    FIELD *ASSIGN_TO(TMACRO *engine, const UTF16 &name);
    // An existing field as an operand: null after the report when there is none.
    FIELD *ASSIGN_WITH(TMACRO *engine, const UTF16 &name);
    bool IFSAME(const FIELD &a, const FIELD &b) const { return words.same && words.same(a, b); }
    bool ISNOTEMPTY(const FIELD *field) const { return field && words.notEmpty(*field); }

    // The list commands; each tests its parameter count.
    void USE(TMACRO *engine);
    void SWAP(TMACRO *engine);
    void NAME(TMACRO *engine);
    void DUMP() const;

protected:
    struct ENTRY {
        UTF16CHARS7 name; // upper case
        std::unique_ptr<FIELD> field;
    };
    std::vector<ENTRY> entries;

private:
    NAT Append(const UTF16 &name); // a new field at the end; its position

    const WORKSPACE_WORDS<FIELD> &words;
    FIELD *current = nullptr;
    NAT currentIndex = 0;
};

template <class FIELD> void TWORKSPACE<FIELD>::INIT() {
    DONE();
    currentIndex = Append("DEFAULT");
    current = entries.back().field.get();
}

template <class FIELD> void TWORKSPACE<FIELD>::DONE() {
    entries.clear();
    current = nullptr;
    currentIndex = 0;
}

template <class FIELD> UTF16 TWORKSPACE<FIELD>::GETNAME(NAT index) const {
    if (index < 1 || index > LENGTH()) return {};
    return entries[static_cast<std::size_t>(index - 1)].name;
}

template <class FIELD> FIELD *TWORKSPACE<FIELD>::GET(NAT index) const {
    if (index < 1 || index > LENGTH()) return nullptr;
    return entries[static_cast<std::size_t>(index - 1)].field.get();
}

template <class FIELD> NAT TWORKSPACE<FIELD>::SEARCH(const UTF16 &name) const {
    const UTF16CHARS7 wanted = UPPERCASE(name);
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (entries[i].name == wanted) return static_cast<NAT>(i) + 1;
    return 0;
}

template <class FIELD> NAT TWORKSPACE<FIELD>::Append(const UTF16 &name) {
    std::unique_ptr<FIELD> field(new (std::nothrow) FIELD);
    if (field) words.init(*field, DEFAULTKIND);
    entries.push_back({UPPERCASE(name), std::move(field)});
    return LENGTH();
}

template <class FIELD> NAT TWORKSPACE<FIELD>::CHECKUSE(FIELD *&field, const UTF16 &name) {
    NAT index = SEARCH(name);
    if (index == 0) index = Append(name);
    field = GET(index);
    return index;
}

template <class FIELD> FIELD *TWORKSPACE<FIELD>::ASSIGN(const UTF16 &name) {
    FIELD *field = nullptr;
    CHECKUSE(field, name.EMPTY() ? UTF16("DEFAULT") : name);
    return field;
}

template <class FIELD> FIELD *TWORKSPACE<FIELD>::ASSIGN_TO(TMACRO *engine, const UTF16 &name) {
    const UTF16 target = name.EMPTY() ? UTF16("DEFAULT") : name;
    const NAT index = SEARCH(target);
    if (index == 0 || index != currentIndex) return ASSIGN(target);
    const UTF16 word(words.field);
    engine->SYNTAXERROR("Same illegal assigment (" + word + "[" + GETNAME(index) +
                        "] := function " + word + "[" + GETNAME(currentIndex) + "])!");
    return nullptr;
}

template <class FIELD> FIELD *TWORKSPACE<FIELD>::ASSIGN_WITH(TMACRO *engine, const UTF16 &name) {
    const UTF16 operand = name.EMPTY() ? UTF16("DEFAULT") : name;
    FIELD *field = GET(SEARCH(operand));
    if (!field) engine->ERROR("Empty " + UTF16(words.field) + "[" + operand + "]");
    return field;
}

// use name: makes a field current.
template <class FIELD> void TWORKSPACE<FIELD>::USE(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() != 1) return engine->PARAMETERERROR(1);
    FIELD *field = nullptr;
    const NAT index = CHECKUSE(field, engine->GETPARAMETER(1));
    if (!field) return engine->ERROR("no memory for " + UTF16(words.field));
    currentIndex = index;
    current = field;
    if (!words.size) return;
    WRITELN("Use " + UTF16(words.name) + ": " + GETNAME(index) + " " + words.size(*field));
}

// swap a b: exchanges two names; the fields stay where they are, so that the current field
// answers to the other name.
template <class FIELD> void TWORKSPACE<FIELD>::SWAP(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() != 2) return engine->PARAMETERERROR(2);
    const NAT first = SEARCH(engine->GETPARAMETER(1));
    const NAT second = SEARCH(engine->GETPARAMETER(2));
    if (first == 0 || second == 0) {
        WRITELN("  Not swapped (" + GETNAME(first) + ") <-> (" + GETNAME(second) + ")!");
        return;
    }
    std::swap(entries[static_cast<std::size_t>(first - 1)].name,
              entries[static_cast<std::size_t>(second - 1)].name);
}

// name new: renames the current field, without a look at the other names.
template <class FIELD> void TWORKSPACE<FIELD>::NAME(TMACRO *engine) {
    if (currentIndex < 1 || currentIndex > LENGTH()) return;
    if (engine->PARAMETERLENGTH() < 1) return engine->PARAMETERERROR(1);
    entries[static_cast<std::size_t>(currentIndex - 1)].name = UPPERCASE(engine->GETPARAMETER(1));
}

template <class FIELD> void TWORKSPACE<FIELD>::DUMP() const {
    const UTF16 frame = "***** dump." + UTF16(words.dump);
    WRITELN(frame + " *****");
    if (LENGTH() == 0)
        WRITELN("  " + UTF16(words.list) + " empty!");
    else if (currentIndex >= 1 && currentIndex <= LENGTH())
        WRITELN("  " + UTF16(words.current) + " (" + GETSTRING(currentIndex) +
                ") in use: " + GETNAME(currentIndex));
    for (NAT i = 1; i <= LENGTH(); ++i) {
        const FIELD *field = GET(i);
        WRITELN("  (" + GETSTRING(i) + "):" + (field ? words.describe(*field) : UTF16("nil")) +
                ":" + GETNAME(i));
    }
    WRITELN(frame + " end *****");
}
} // namespace morvane
