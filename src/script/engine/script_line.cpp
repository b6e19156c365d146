#include "script/engine/script_line.hpp"

#include "script/engine/keywords_table.hpp"

namespace morvane {
namespace {
constexpr UTF16CHAR BYTE_ORDER_MARK{0xFF, 0xFE}; // low byte, high byte
} // namespace

UTF16 CUT_COMMENT(const UTF16 &line) {
    UTF16 text = KILLLAST(KILLFIRST(line, ' ', '\t'), ' ', '\t');
    if (POS("//", text) == 1) return {};
    // Deliberate: a comment mark inside a quoted text ends the line too.
    if (const NAT comment = POS(" //", text); comment > 0)
        text = KILLLAST(COPY(text, 1, comment - 1), ' ', '\t');
    const UTF16CHAR first = text.GETCHAR(1);
    if (first.high == 0 && (first.low == '#' || first.low == '%')) return {};
    return text;
}

UTF16 CUT_COMMENT(const UTF16 &line, bool opens) {
    if (!opens) return CUT_COMMENT(line);
    UTF16 text = line;
    if (text.GETCHAR(1) == BYTE_ORDER_MARK) DELETE(text, 1, 1);
    return POS("!", text) == 1 ? UTF16() : CUT_COMMENT(text);
}

LINE_PART PREPARE_PART(const UTF16 &text) {
    LINE_PART part;
    const NAT blank = POS(" ", text);
    part.rawWord = blank > 0 ? COPY(text, 1, blank - 1) : text;
    part.word = LOWERCASE(part.rawWord);
    if (blank > 0) part.rest = KILLFIRST(COPY(text, blank + 1, text.LENGTH()), ' ');
    part.keyword = FIND_KEYWORD(part.word);
    part.atWord = POS("@", part.word) > 0;
    part.atRest = POS("@", part.rest) > 0;
    part.blankInRest = POS(" ", part.rest) > 0;
    // Deliberate: the test for an assignment knows nothing of quotes.
    part.assignment = part.rest.LENGTH() > 2 && POS("= ", part.rest, 2) > 0;
    // A variable may bear the name of a keyword that names a file and nothing else.
    if (part.keyword && part.keyword->role == KEYWORD_ROLE::IMPORT && part.assignment)
        part.keyword = nullptr;
    return part;
}

const LINE_PART &LINE_PART::NEXT() const {
    if (!cache.next) {
        cache.next = std::make_unique<LINE_PART>(PREPARE_PART(rest));
        cache.next->behind = true;
    }
    return *cache.next;
}

void SCRIPT_LINES::Prepare(const TFILECOMMAND &script, NAT line) {
    const std::size_t offset = static_cast<std::size_t>(line - 1);
    if (offset >= lines.size()) lines.resize(static_cast<std::size_t>(script.LENGTH()));
    SLOT &slot = lines[offset];
    slot.ready = true;
    const UTF16 kept = CUT_COMMENT(script.GET(line), line == 1 || slot.opens);
    if (!kept.EMPTY()) slot.part = std::make_unique<LINE_PART>(PREPARE_PART(kept));
}

void SCRIPT_LINES::CLEAR() {
    lines.clear();
    replaced.clear();
}

void SCRIPT_LINES::INSERTED(NAT line, NAT count, bool opens) {
    const std::size_t offset = static_cast<std::size_t>(line - 1);
    if (offset >= lines.size() || count < 1) return;
    replaced.push_back(std::move(lines[offset].part));
    std::vector<SLOT> fresh(static_cast<std::size_t>(count));
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(offset + 1),
                 std::make_move_iterator(fresh.begin() + 1), std::make_move_iterator(fresh.end()));
    lines[offset] = SLOT{};
    lines[offset].opens = opens;
}
} // namespace morvane
