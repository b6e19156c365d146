#include "foundation/base/utf16.hpp"

// Parting a text at separators, plain or with regard to quotes and brackets.
namespace morvane {
namespace {
// Open brackets and quotes while a text is walked from its start.
class NESTING {
public:
    explicit NESTING(bool withAngles) : angleBrackets(withAngles) {}

    bool Outside() const {
        return !single && !twofold && round == 0 && square == 0 && curly == 0 && angle == 0;
    }
    void Take(BYTE low) {
        if (low == '\'' && !twofold) single = !single;
        if (low == '"' && !single) twofold = !twofold;
        if (single || twofold) return;
        Count(low, '(', ')', round);
        Count(low, '[', ']', square);
        Count(low, '{', '}', curly);
        if (angleBrackets) Count(low, '<', '>', angle);
    }

private:
    static void Count(BYTE low, char open, char close, NAT &depth) {
        if (low == static_cast<BYTE>(open)) ++depth;
        if (low == static_cast<BYTE>(close)) --depth;
    }

    bool angleBrackets, single = false, twofold = false;
    NAT round = 0, square = 0, curly = 0, angle = 0;
};

// Cuts the text at the separator found at the position; 0: all of it is the head.
UTF16 CutAt(UTF16 &text, NAT position, const UTF16 &separator) {
    if (position == 0) return std::exchange(text, UTF16());
    UTF16 head = COPY(text, 1, position - 1);
    text = COPY(text, position + separator.LENGTH(), text.LENGTH());
    return head;
}
} // namespace

UTF16 GETSPLIT(const UTF16 &text, const UTF16 &separator) {
    const NAT position = POS(separator, text);
    return position == 0 ? text : COPY(text, 1, position - 1);
}

UTF16 SPLIT(UTF16 &text, const UTF16 &separator) {
    return CutAt(text, POS(separator, text), separator);
}

NAT SOFTPOS(const UTF16 &separator, const UTF16 &text, bool angleBrackets) {
    if (separator.EMPTY()) return 0;
    const UTF16CHAR first = separator.GETCHAR(1);
    NESTING nesting(angleBrackets);
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        if (unit.high != 0) continue;
        if (unit != first) {
            nesting.Take(unit.low);
        } else if (nesting.Outside()) {
            // Deliberate: a candidate at depth 0 finds the next full match, which may lie inside
            // brackets further right.
            return POS(separator, text, i);
        }
    }
    return 0;
}

UTF16 SOFTSPLIT(UTF16 &text, const UTF16 &separator) {
    return CutAt(text, SOFTPOS(separator, text, true), separator);
}

UTF16 SOFTSPLIT_RAW(UTF16 &text, const UTF16 &separator) {
    return CutAt(text, SOFTPOS(separator, text, false), separator);
}

UTF16 GETTAG(const UTF16 &text, const UTF16 &tag) {
    const NAT close = POS("</" + tag + ">", text);
    if (close == 0) return {};
    // Deliberate: a missing opening tag is not tested for, the copy starts behind its length.
    const NAT start = POS("<" + tag + ">", text) + tag.LENGTH() + 2;
    return COPY(text, start, close - start);
}
} // namespace morvane
