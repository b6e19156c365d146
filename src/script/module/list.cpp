#include "script/module/list.hpp"

#include "foundation/console/console.hpp"
#include "script/module/list_value.hpp"

#include <algorithm>

namespace morvane {
using namespace list;

namespace {
template <class STORE> void MakeStore(STORE &store, BYTE kind) {
    switch (kind) {
    case LIST_NAT: store.template emplace<LIST_NAT>(); break;
    case LIST_COMPLEX: store.template emplace<LIST_COMPLEX>(); break;
    case LIST_VECTOR: store.template emplace<LIST_VECTOR>(); break;
    case LIST_HYPER: store.template emplace<LIST_HYPER>(); break;
    case LIST_CHARS: store.template emplace<LIST_CHARS>(); break;
    default: store.template emplace<LIST_REAL>(); break;
    }
}

constexpr NAT FAR_AWAY = NAT{1} << 20; // entries

template <class STORED> using ELEMENT_OF = decltype(std::remove_cvref_t<STORED>::VALUE);
} // namespace

void TLIST::INIT(BYTE newKind) {
    MakeStore(store, newKind);
    position = 1;
}

void TLIST::DONE() {
    Visit([](auto &stored) { stored.values.DONE(); });
    position = 1;
}

void TLIST::SETKIND(BYTE newKind) {
    const auto textOf = [](const auto &value) {
        return value == std::remove_cvref_t<decltype(value)>{} ? UTF16() : TEXT(value);
    };
    DONE();
    if (newKind == KIND()) return;
    // What was never set is zero in the old kind; it is no text "0" in the new one.
    const UTF16 value = Visit([&](const auto &stored) { return textOf(stored.VALUE); });
    const UTF16 background = Visit([&](const auto &stored) { return textOf(stored.BACKGROUND); });
    INIT(newKind);
    SETVALUE(value);
    SETBACKGROUND(background);
}

NAT TLIST::LENGTH() const {
    return Visit([](const auto &stored) { return stored.values.LENGTH; });
}

void TLIST::REPLACE(const TLIST &other) {
    if (this == &other) return;
    INIT(other.KIND());
    Visit([&other](auto &stored) {
        const auto &source = std::get<std::remove_cvref_t<decltype(stored)>>(other.store);
        stored.values.REPLACE(source.values);
        stored.VALUE = source.VALUE;
        stored.BACKGROUND = source.BACKGROUND;
    });
}

UTF16 TLIST::GET(NAT index) const {
    return Visit([this, index](const auto &stored) {
        return TEXT(INSIDE(index) ? stored.values._GET(index) : stored.BACKGROUND);
    });
}

UTF16 TLIST::GET(NAT index, NAT part) const {
    return Visit([this, index, part](const auto &stored) {
        return PART(INSIDE(index) ? stored.values._GET(index) : stored.BACKGROUND, part);
    });
}

HYPER TLIST::GETHYPER(NAT index) const {
    return Visit([this, index](const auto &stored) {
        return NUMBERS(INSIDE(index) ? stored.values._GET(index) : stored.BACKGROUND);
    });
}

std::string TLIST::GETEXACT(NAT index) const {
    return Visit([this, index](const auto &stored) {
        return EXACT(INSIDE(index) ? stored.values._GET(index) : stored.BACKGROUND);
    });
}

bool TLIST::ReachesOver(NAT count) const {
    return Visit([count](const auto &stored) {
        return count > LONGEST_BLOCK / static_cast<NAT>(sizeof stored.VALUE);
    });
}

template <class INPUT> bool TLIST::PushValue(const INPUT &value) {
    return Visit([&value](auto &stored) {
        const NAT wanted = stored.values.LENGTH + 1;
        stored.values.PUSH(READ<ELEMENT_OF<decltype(stored)>>(value));
        return stored.values.LENGTH == wanted;
    });
}

bool TLIST::PUSH(const UTF16 &value) { return PushValue(value); }
bool TLIST::PUSH(const HYPER &value) { return PushValue(value); }

bool TLIST::PUSH() {
    return Visit([](auto &stored) {
        const NAT wanted = stored.values.LENGTH + 1;
        stored.values.PUSH(stored.VALUE);
        return stored.values.LENGTH == wanted;
    });
}

UTF16 TLIST::POP() {
    if (LENGTH() < 1) return BACKGROUND();
    return Visit([](auto &stored) { return TEXT(stored.values.POP()); });
}

template <class INPUT> bool TLIST::PutValue(NAT index, const INPUT &value) {
    if (index < 1 || ReachesOver(index)) return false;
    // A list that runs out of memory is lost, so a position far away is tried on an empty one.
    const bool isFar = index > 2 * LENGTH() + FAR_AWAY;
    if (isFar && !TLIST(KIND()).RESIZE(index)) return false;
    if (index > LENGTH() && !RESIZE(index)) return false;
    Visit([index, &value](auto &stored) {
        stored.values.PUT(index, READ<ELEMENT_OF<decltype(stored)>>(value));
    });
    return true;
}

bool TLIST::PUT(NAT index, const UTF16 &value) { return PutValue(index, value); }
bool TLIST::PUT(NAT index, const HYPER &value) { return PutValue(index, value); }

bool TLIST::INSERT(NAT index, const UTF16 &value) {
    if (index < 1 || index > LENGTH() + 1) return false;
    return Visit([index, &value](auto &stored) {
        decltype(stored.values) entry;
        entry.PUSH(READ<ELEMENT_OF<decltype(stored)>>(value));
        const NAT wanted = stored.values.LENGTH + 1;
        stored.values.REPLACE(index, 0, entry);
        return stored.values.LENGTH == wanted;
    });
}

bool TLIST::ERASE(NAT index) {
    if (!INSIDE(index)) return false;
    Visit([index](auto &stored) {
        const decltype(stored.values) nothing;
        stored.values.REPLACE(index, 1, nothing);
    });
    return true;
}

bool TLIST::RESIZE(NAT count) {
    const NAT old = LENGTH(), wanted = std::max<NAT>(count, 0);
    if (ReachesOver(wanted)) {
        WRITELN("  Not enough memory for a list of " + GETSTRING(wanted) +
                " values! Create empty list.");
        DONE();
        return false;
    }
    return Visit([old, wanted](auto &stored) {
        stored.values.RESIZE(wanted);
        if (stored.values.LENGTH != wanted) return false;
        if (!(stored.VALUE == ELEMENT_OF<decltype(stored)>{})) // new elements are zero already
            for (NAT i = old + 1; i <= wanted; ++i)
                stored.values._PUT(i, stored.VALUE);
        return true;
    });
}

void TLIST::FLIP() {
    Visit([](auto &stored) { stored.values.FLIP(); });
}

UTF16 TLIST::VALUE() const {
    return Visit([](const auto &stored) { return TEXT(stored.VALUE); });
}

UTF16 TLIST::BACKGROUND() const {
    return Visit([](const auto &stored) { return TEXT(stored.BACKGROUND); });
}

void TLIST::SETVALUE(const UTF16 &value) {
    Visit([&value](auto &stored) { stored.VALUE = READ<ELEMENT_OF<decltype(stored)>>(value); });
}

void TLIST::SETBACKGROUND(const UTF16 &value) {
    Visit(
        [&value](auto &stored) { stored.BACKGROUND = READ<ELEMENT_OF<decltype(stored)>>(value); });
}

NAT TLIST::POSITION() const { return std::min(position, LENGTH() + 1); }
void TLIST::SETPOSITION(NAT index) { position = std::clamp<NAT>(index, 0, LENGTH() + 1); }
} // namespace morvane
