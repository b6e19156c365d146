#pragma once

#include "script/engine/names.hpp"

#include "foundation/base/number_text.hpp"

namespace morvane {
inline constexpr NAT LONGEST_TEXT = 254; // units of a name, a value or a parameter

// The text as a table keeps it: its first LONGEST_TEXT units.
inline UTF16 CUT_TEXT(const UTF16 &text) {
    return text.LENGTH() > LONGEST_TEXT ? COPY(text, 1, LONGEST_TEXT) : text;
}

// The value of a constant. A loop's counters are kept as numbers and become texts when they are
// read, in the number format that held when they were set.
class CONSTANT_VALUE {
public:
    CONSTANT_VALUE() = default;
    CONSTANT_VALUE(UTF16 value) : text(std::move(value)) {}
    explicit CONSTANT_VALUE(NAT value) : form(FORM::WHOLE), whole(value) { KeepFormat(); }
    explicit CONSTANT_VALUE(REAL value) : form(FORM::FRACTION), fraction(value) { KeepFormat(); }

    const UTF16 &GET() const {
        if (form != FORM::TEXT) MakeText();
        return text;
    }

private:
    enum class FORM : BYTE { TEXT, WHOLE, FRACTION };
    void KeepFormat() {
        scientific = FORMAT.SCIENTIFIC;
        decimal = FORMAT.DECIMAL;
        digit = FORMAT.DIGIT;
    }
    void MakeText() const;

    mutable UTF16 text;
    mutable FORM form = FORM::TEXT;
    bool scientific = false, decimal = true, digit = false;
    union {
        NAT whole = 0;
        REAL fraction;
    };
};

struct CONSTANT_ENTRY {
    NAME_REF name;
    CONSTANT_VALUE value;
    NAT scope = 0;
    NAT previous = 0; // the next older entry of the same name, 0 for none
};

// The variables of a script, oldest first; entries count from 1. The scopes ascend, so that leaving
// a block is a cut at the end.
class CONSTANT_TABLE {
public:
    explicit CONSTANT_TABLE(NAME_TABLE &nameTable) : names(nameTable) {}

    NAT LENGTH() const { return static_cast<NAT>(entries.size()); }
    const CONSTANT_ENTRY &GET(NAT index) const {
        return entries[static_cast<std::size_t>(index - 1)];
    }
    NAT SEARCH(const UTF16 &name) const { // the newest entry, 0 for none
        const NAME_NODE *node = names.FIND(name);
        return node ? node->constant : 0;
    }
    void CHANGE(NAT index, CONSTANT_VALUE value) {
        entries[static_cast<std::size_t>(index - 1)].value = std::move(value);
    }
    void APPEND(const NAME_REF &name, CONSTANT_VALUE value, NAT scope);
    void INSERT(const NAME_REF &name, CONSTANT_VALUE value,
                NAT scope); // keeps the scopes ascending
    void CUT(NAT scope) {   // from the first entry of that scope or more
        while (!entries.empty() && entries.back().scope >= scope)
            DropLast();
    }

    // The value of the newest constant of that name; a value that names an older constant is
    // replaced further. `text` itself when it names none. `node` is the text's name, if known.
    UTF16 REPLACE(const UTF16 &text) const { return Follow(text, names.FIND(text)); }
    UTF16 REPLACE(const UTF16 &text, const NAME_NODE *node) const { return Follow(text, node); }

private:
    UTF16 Follow(const UTF16 &text, const NAME_NODE *node) const;
    void DropLast();

    NAME_TABLE &names;
    std::vector<CONSTANT_ENTRY> entries;
};
} // namespace morvane
