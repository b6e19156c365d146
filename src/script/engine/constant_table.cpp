#include "script/engine/constant_table.hpp"

namespace morvane {
void CONSTANT_VALUE::MakeText() const {
    const TFORMAT now = FORMAT;
    FORMAT.SCIENTIFIC = scientific;
    FORMAT.DECIMAL = decimal;
    FORMAT.DIGIT = digit;
    text = form == FORM::WHOLE ? GETSTRING(whole) : GETSTRING(fraction);
    FORMAT = now;
    form = FORM::TEXT;
}

void CONSTANT_TABLE::APPEND(const NAME_REF &name, CONSTANT_VALUE value, NAT scope) {
    entries.push_back({name, std::move(value), scope, name->constant});
    name->constant = LENGTH();
    ++name->constantRows;
}

void CONSTANT_TABLE::INSERT(const NAME_REF &name, CONSTANT_VALUE value, NAT scope) {
    NAT place = LENGTH() + 1;
    while (place > 1 && GET(place - 1).scope > scope)
        --place;
    // Every entry behind moves up by one; the newest entry of a name is found last.
    NAT older = name->constant;
    while (older >= place)
        older = GET(older).previous;
    for (NAT i = place; i <= LENGTH(); ++i) {
        CONSTANT_ENTRY &entry = entries[static_cast<std::size_t>(i - 1)];
        if (entry.previous >= place)
            ++entry.previous;
        else if (entry.name.GET() == name.GET())
            entry.previous = place;
    }
    for (NAT i = place; i <= LENGTH(); ++i)
        GET(i).name->constant = i + 1;
    entries.insert(entries.begin() + (place - 1),
                   CONSTANT_ENTRY{name, std::move(value), scope, older});
    if (name->constant < place) name->constant = place;
    ++name->constantRows;
}

void CONSTANT_TABLE::DropLast() {
    CONSTANT_ENTRY &last = entries.back();
    last.name->constant = last.previous;
    --last.name->constantRows;
    entries.pop_back();
}

UTF16 CONSTANT_TABLE::Follow(const UTF16 &text, const NAME_NODE *node) const {
    NAT index = node ? node->constant : 0;
    if (index == 0) return text;
    for (;;) {
        const UTF16 &value = GET(index).value.GET();
        const NAME_NODE *next = names.FIND(value);
        NAT older = next ? next->constant : 0;
        while (older >= index)
            older = GET(older).previous;
        if (older == 0) return value;
        index = older;
    }
}
} // namespace morvane
