#include "script/file/name_list.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "foundation/container/poly_types.hpp"

#include <algorithm>
#include <charconv>
#include <string>
#include <unordered_set>

namespace morvane {
namespace {
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLetterOrDigit(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80);
}

// Position behind the number that starts at `at`: digits, and a point with digits behind it.
std::size_t EndOfNumber(const std::string &text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    if (at + 1 >= text.size() || text[at] != '.' || !IsDigit(text[at + 1])) return at;
    for (++at; at < text.size() && IsDigit(text[at]);)
        ++at;
    return at;
}

bool HasSign(const std::string &text, std::size_t at) {
    if (at < 1 || text[at - 1] != '-') return false;
    return at == 1 || !IsLetterOrDigit(text[at - 2]);
}

// Sorts by a key of each name, equal keys by the names.
template <class KEY, class KEY_OF> void SortBy(TNAMELIST &list, KEY_OF keyOf) {
    std::vector<std::pair<KEY, NAT>> order;
    for (NAT i = 1; i <= list.LENGTH; ++i)
        order.emplace_back(keyOf(list.GET(i).GET()), i);
    std::sort(order.begin(), order.end(), [&list](const auto &a, const auto &b) {
        const auto &first = FORMAT.SORTING ? a : b, &second = FORMAT.SORTING ? b : a;
        if (first.first != second.first) return first.first < second.first;
        return list._GET(first.second) < list._GET(second.second);
    });
    TPOLYNAT index;
    index.NEWLENGTH(list.LENGTH);
    if (index.LENGTH != list.LENGTH) return; // no memory, which has been told
    for (NAT i = 1; i <= index.LENGTH; ++i)
        index._PUT(i, order[static_cast<std::size_t>(i - 1)].second);
    list.SORTWITHHELP(index);
}
} // namespace

std::vector<REAL> NUMBERS_OF_NAME(const UTF16 &path) {
    const std::string text = GETUTF8(GETFILE(path));
    std::vector<REAL> numbers;
    for (std::size_t at = 0; at < text.size();) {
        if (!IsDigit(text[at])) {
            ++at;
            continue;
        }
        const std::size_t end = EndOfNumber(text, at);
        REAL value = 0;
        std::from_chars(text.data() + at, text.data() + end, value);
        numbers.push_back(HasSign(text, at) ? -value : value);
        at = end;
    }
    if (numbers.empty()) numbers.push_back(0);
    return numbers;
}

void TNAMELIST::SORTREAL() { SortBy<std::vector<REAL>>(*this, NUMBERS_OF_NAME); }
void TNAMELIST::SORTSIZE() { SortBy<NAT>(*this, FILESIZE); }
void TNAMELIST::SORTDATE() { SortBy<NAT>(*this, FILEAGE); }

template <class KEEP> void TNAMELIST::Keep(KEEP keep) {
    NAT count = 0;
    for (NAT i = 1; i <= LENGTH; ++i)
        if (keep(_GET(i))) _PUT(++count, _GET(i));
    NEWLENGTH(count);
}

void TNAMELIST::SUB(const UTF16 &name) {
    Keep([&name](const UTF16CHARS7 &entry) { return !(entry == name); });
}

void TNAMELIST::SUBWEAK(const UTF16 &text) {
    const UTF16 small = LOWERCASE(text);
    Keep([&small](const UTF16CHARS7 &entry) { return POS(small, LOWERCASE(entry.GET())) == 0; });
}

void TNAMELIST::APPEND(const NAME_SEARCH &search) {
    std::unordered_set<std::string> held;
    for (NAT i = 1; i <= LENGTH; ++i)
        held.insert(GETUTF8(_GET(i).GET()));
    for (const UTF16 &name : search.FOUND())
        if (held.insert(GETUTF8(name)).second) PUSH(name);
    search.TELLLEFTOUT();
}
} // namespace morvane
