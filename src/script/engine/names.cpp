#include "script/engine/names.hpp"

namespace morvane {
namespace {
constexpr char Lower(char unit) {
    return unit >= 'A' && unit <= 'Z' ? static_cast<char>(unit + ('a' - 'A')) : unit;
}

// FNV-1a over the low plane in lower case; names that differ in the high plane alone are rare.
std::size_t HashOf(std::string_view low) {
    std::size_t hash = 14695981039346656037ULL;
    for (char unit : low)
        hash = (hash ^ static_cast<unsigned char>(Lower(unit))) * 1099511628211ULL;
    return hash ^ (hash >> 29);
}

// A plane that is too short holds zeros.
bool SameHigh(std::string_view a, std::string_view b) {
    if (a.data() == b.data() && a.size() == b.size()) return true;
    const std::string_view &shorter = a.size() < b.size() ? a : b;
    const std::string_view &longer = a.size() < b.size() ? b : a;
    return longer.substr(0, shorter.size()) == shorter &&
           longer.find_first_not_of('\0', shorter.size()) == std::string_view::npos;
}

bool SameLow(std::string_view lower, std::string_view any) {
    if (lower.size() != any.size()) return false;
    for (std::size_t i = 0; i < lower.size(); ++i)
        if (lower[i] != Lower(any[i])) return false;
    return true;
}
} // namespace

void NAME_REF::Release() {
    node->table->Remove(node);
    node = nullptr;
}

NAME_NODE *NAME_TABLE::FIND(std::string_view low, std::string_view high) const {
    const std::size_t hash = HashOf(low);
    for (NAME_NODE *name = buckets[hash & (buckets.size() - 1)]; name; name = name->next)
        if (name->hash == hash && SameLow(name->text.LOWBYTES.VIEW(), low) &&
            SameHigh(name->text.HIGHBYTES.VIEW(), high))
            return name;
    return nullptr;
}

NAME_REF NAME_TABLE::INTERN(const UTF16 &text) {
    if (NAME_NODE *known = FIND(text)) return NAME_REF(known);
    if (count >= buckets.size()) Grow();
    NAME_NODE *name = new NAME_NODE;
    name->text = LOWERCASE(text);
    name->hash = HashOf(text.LOWBYTES.VIEW());
    name->table = this;
    NAME_NODE *&bucket = buckets[name->hash & (buckets.size() - 1)];
    name->next = bucket;
    bucket = name;
    ++count;
    return NAME_REF(name);
}

void NAME_TABLE::Remove(NAME_NODE *name) {
    NAME_NODE **link = &buckets[name->hash & (buckets.size() - 1)];
    while (*link != name)
        link = &(*link)->next;
    *link = name->next;
    --count;
    delete name;
}

void NAME_TABLE::Grow() {
    std::vector<NAME_NODE *> larger(2 * buckets.size(), nullptr);
    for (NAME_NODE *name : buckets)
        while (name) {
            NAME_NODE *following = name->next;
            NAME_NODE *&bucket = larger[name->hash & (larger.size() - 1)];
            name->next = bucket;
            bucket = name;
            name = following;
        }
    buckets = std::move(larger);
}
} // namespace morvane
