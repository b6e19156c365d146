#pragma once

#include "foundation/base/utf16.hpp"

#include <string_view>
#include <utility>
#include <vector>

// The names of commands and constants, each held once, so that finding a name is one hash look-up
// and a prepared line needs none at all.
namespace morvane {
class NAME_TABLE;

// One name with the newest rows that carry it. Lives as long as a NAME_REF points to it.
struct NAME_NODE {
    UTF16 text;           // lower case
    NAT command = 0;      // newest row of the command table, 0 for none
    NAT constant = 0;     // newest row of the constant table, 0 for none
    NAT constantRows = 0; // rows of the constant table with this name
    NAT owners = 0;
    std::size_t hash = 0;
    NAME_NODE *next = nullptr; // in its bucket
    NAME_TABLE *table = nullptr;
};

// An owner of a name; the last one takes it out of the table.
class NAME_REF {
public:
    NAME_REF() = default;
    explicit NAME_REF(NAME_NODE *name) : node(name) {
        if (node) ++node->owners;
    }
    NAME_REF(const NAME_REF &other) : NAME_REF(other.node) {}
    NAME_REF(NAME_REF &&other) noexcept : node(std::exchange(other.node, nullptr)) {}
    NAME_REF &operator=(NAME_REF other) noexcept {
        std::swap(node, other.node);
        return *this;
    }
    ~NAME_REF() {
        if (node && --node->owners == 0) Release();
    }
    NAME_NODE *operator->() const { return node; }
    NAME_NODE *GET() const { return node; }
    explicit operator bool() const { return node != nullptr; }

private:
    void Release();
    NAME_NODE *node = nullptr;
};

class NAME_TABLE {
public:
    NAME_TABLE() : buckets(1024, nullptr) {}
    NAME_TABLE(const NAME_TABLE &) = delete;
    NAME_TABLE &operator=(const NAME_TABLE &) = delete;

    // The name in lower case, made when it is new.
    NAME_REF INTERN(const UTF16 &text);
    // The name without regard to case, null when nobody holds it.
    NAME_NODE *FIND(const UTF16 &text) const {
        return FIND(text.LOWBYTES.VIEW(), text.HIGHBYTES.VIEW());
    }
    // The same from the two planes of a text.
    NAME_NODE *FIND(std::string_view low, std::string_view high) const;

private:
    friend class NAME_REF;
    void Remove(NAME_NODE *name);
    void Grow();

    std::vector<NAME_NODE *> buckets; // a power of two
    std::size_t count = 0;
};
} // namespace morvane
