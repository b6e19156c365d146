#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_parse.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

// Text to numbers. A text is read as bytes: its low plane when it is plain, else a copy in which
// the other units are replaced by marks that no number holds.
namespace morvane {
namespace {
constexpr char DEGREE_SIGN = '\xB0', PI_MARK = '\x02', OTHER_MARK = '\x01';

// What a byte may be to a number.
enum : BYTE { STARTS = 1, POINT = 2, COMMA = 4, INSIDE = 8, SPECIAL = 16 };
constexpr std::array<BYTE, 256> MakeKinds() {
    std::array<BYTE, 256> kinds{};
    for (const char c : std::string_view("0123456789-"))
        kinds[static_cast<BYTE>(c)] = STARTS;
    for (const char c : std::string_view("&*+/<=>eE|"))
        kinds[static_cast<BYTE>(c)] = INSIDE;
    for (const char c : {'%', DEGREE_SIGN, PI_MARK})
        kinds[static_cast<BYTE>(c)] = SPECIAL;
    kinds[static_cast<BYTE>('.')] = POINT;
    kinds[static_cast<BYTE>(',')] = COMMA;
    return kinds;
}
constexpr std::array<BYTE, 256> KINDS = MakeKinds();
BYTE KindOf(char c) { return KINDS[static_cast<BYTE>(c)]; }

// "°", "%" and "π" as they are read, for either decimal sign.
struct REWRITE {
    std::string_view point, comma;
    std::string_view TEXT() const { return FORMAT.DECIMAL ? point : comma; }
};
constexpr REWRITE DEGREE_TEXT{"*0.01745329251994329509", "*0,01745329251994329509"};
constexpr REWRITE PERCENT_TEXT{"*0.01", "*0,01"};
constexpr REWRITE PI_TEXT{"3.141592653589793116", "3,141592653589793116"};

// The bytes of a text for reading.
class FLAT {
public:
    explicit FLAT(const UTF16 &text) {
        bytes = text.LOWBYTES.VIEW();
        if (text.PLAIN()) return;
        marked = true;
        for (NAT i = 1; i <= text.LENGTH(); ++i)
            owned += Mark(text.GETCHAR(i));
        bytes = owned;
    }
    FLAT(const FLAT &) = delete;
    FLAT &operator=(const FLAT &) = delete;

    // Rewrites the special characters of what is left from the offset on.
    void Rewrite(std::size_t offset) {
        std::string text;
        for (const char c : bytes.substr(offset)) {
            if (c == DEGREE_SIGN)
                text += DEGREE_TEXT.TEXT();
            else if (c == '%')
                text += PERCENT_TEXT.TEXT();
            else if (c == PI_MARK && marked)
                text += PI_TEXT.TEXT();
            else
                text += c;
        }
        owned = std::move(text);
        bytes = owned;
    }
    std::string_view bytes;

private:
    static char Mark(UTF16CHAR unit) {
        const char low = static_cast<char>(unit.low);
        if (unit.high == 0) return low == PI_MARK ? OTHER_MARK : low;
        return unit == UTF16CHAR{0xC0, 0x03} ? PI_MARK : OTHER_MARK;
    }

    std::string owned;
    bool marked = false; // PI_MARK stands for "π"
};

// Where a number stands in the bytes. Special: a character to be rewritten stands before its end
// or right behind it, so that it must be looked for again.
struct TOKEN {
    std::size_t begin = 0, end = 0;
    bool special = false;
};

TOKEN FindToken(std::string_view bytes, std::size_t from) {
    const BYTE point = FORMAT.DECIMAL ? POINT : COMMA;
    const BYTE start = STARTS | point, inside = STARTS | INSIDE | point;
    BYTE seen = 0;
    const auto skipTo = [&](std::size_t &at, std::size_t end, BYTE wanted) {
        for (; at < end && !(KindOf(bytes[at]) & wanted); ++at)
            seen |= KindOf(bytes[at]);
    };
    TOKEN token{from, 0, false};
    skipTo(token.begin, bytes.size(), start);
    // Deliberate: a leading point is skipped when a digit follows, so that .5 reads as 5.
    if (token.begin < bytes.size()) skipTo(token.begin, bytes.size() - 1, STARTS);
    token.end = token.begin;
    while (token.end < bytes.size() && (KindOf(bytes[token.end]) & inside))
        ++token.end;
    if (token.end < bytes.size()) seen |= KindOf(bytes[token.end]);
    token.special = seen & SPECIAL;
    return token;
}

// The token in lower case with a decimal point.
std::string Normalised(std::string_view token) {
    std::string text(token);
    for (char &c : text)
        c = c == ',' ? '.' : LOWER(c);
    return text;
}

REAL RealOf(std::string_view token) {
    REAL value = 0;
    if (token.empty()) return 0;
    if (FORMAT.DECIMAL) {
        if (PARSE_REAL(token, value) == 0) return value;
        // The last number of a printed record: the ">" behind it is a lone operator.
        if (token.size() > 1 && token.back() == '>' &&
            PARSE_REAL(token.substr(0, token.size() - 1), value) == 0)
            return value + 0;
    }
    const std::string text = Normalised(token);
    return PARSE_REAL(text, value) == 0 ? value : EVALUATE(text);
}

NAT NatOf(std::string_view token) {
    NAT value = 0;
    if (token.empty()) return 0;
    if (PARSE_NAT(token, value) == 0) return value;
    return ROUND(EVALUATE(Normalised(token)));
}

// Whether the text is one plain number from its first unit on, as most are, so that it is its own
// token. A text that starts with a point is not.
bool IsWholeReal(const UTF16 &text, REAL &value) {
    const std::string_view bytes = text.LOWBYTES.VIEW();
    return FORMAT.DECIMAL && !bytes.empty() && (KindOf(bytes[0]) & STARTS) && text.PLAIN() &&
           PARSE_REAL(bytes, value) == 0;
}

bool IsWholeNat(const UTF16 &text, NAT &value) {
    const std::string_view bytes = text.LOWBYTES.VIEW();
    return !bytes.empty() && (KindOf(bytes[0]) & STARTS) && text.PLAIN() &&
           PARSE_NAT(bytes, value) == 0;
}

// Successive numbers of a text that stays as it is.
class NUMBER_READER {
public:
    explicit NUMBER_READER(const UTF16 &text) : flat(text) {}

    REAL NEXTREAL() {
        if (done >= flat.bytes.size()) return 0;
        TOKEN token = FindToken(flat.bytes, done);
        if (token.special) {
            flat.Rewrite(done);
            token = FindToken(flat.bytes, done = 0);
        }
        return RealOf(Take(token));
    }
    NAT NEXTNAT() { return NatOf(Take(FindToken(flat.bytes, done))); }
    VECTOR NEXTVECTOR() {
        const REAL x = NEXTREAL(), y = NEXTREAL();
        return {x, y, NEXTREAL()};
    }
    HYPER NEXTHYPER() {
        const VECTOR v = NEXTVECTOR();
        return {v.x, v.y, v.z, NEXTREAL()};
    }

private:
    std::string_view Take(const TOKEN &token) {
        done = token.end;
        return flat.bytes.substr(token.begin, token.end - token.begin);
    }

    FLAT flat;
    std::size_t done = 0;
};

void RewriteSpecials(UTF16 &text) {
    const auto special = [](char c) { return (KindOf(c) & SPECIAL) != 0; };
    const std::string_view low = text.LOWBYTES.VIEW();
    if (text.PLAIN() && std::none_of(low.begin(), low.end(), special)) return;
    REPLACE(text, "°", DEGREE_TEXT.TEXT());
    REPLACE(text, "%", PERCENT_TEXT.TEXT());
    REPLACE(text, "π", PI_TEXT.TEXT());
}

void RewriteSpecials(std::string &bytes) {
    REPLACE(bytes, "°", DEGREE_TEXT.TEXT());
    REPLACE(bytes, "%", PERCENT_TEXT.TEXT());
    REPLACE(bytes, "π", PI_TEXT.TEXT());
}

// The number's token, which is cut with all before it.
std::string CutToken(std::string &bytes) {
    for (char &c : bytes)
        c = LOWER(c);
    const TOKEN token = FindToken(bytes, 0);
    std::string number = bytes.substr(token.begin, token.end - token.begin);
    bytes.erase(0, token.end);
    return number;
}
} // namespace

REAL CUTREAL(UTF16 &text) {
    REAL whole = 0;
    if (IsWholeReal(text, whole)) {
        text = UTF16();
        return whole;
    }
    text = LOWERCASE(text);
    RewriteSpecials(text);
    const FLAT flat(text);
    const TOKEN token = FindToken(flat.bytes, 0);
    const REAL value = RealOf(flat.bytes.substr(token.begin, token.end - token.begin));
    text = COPY(text, static_cast<NAT>(token.end) + 1, text.LENGTH());
    return value;
}

NAT CUTNAT(UTF16 &text) {
    NAT whole = 0;
    if (IsWholeNat(text, whole)) {
        text = UTF16();
        return whole;
    }
    text = LOWERCASE(text);
    const FLAT flat(text);
    const TOKEN token = FindToken(flat.bytes, 0);
    const NAT value = NatOf(flat.bytes.substr(token.begin, token.end - token.begin));
    text = COPY(text, static_cast<NAT>(token.end) + 1, text.LENGTH());
    return value;
}

REAL CUTREAL(std::string &text) {
    RewriteSpecials(text);
    return RealOf(CutToken(text));
}

NAT CUTNAT(std::string &text) { return NatOf(CutToken(text)); }

REAL GETREAL(const UTF16 &text) {
    REAL whole = 0;
    return IsWholeReal(text, whole) ? whole : NUMBER_READER(text).NEXTREAL();
}

NAT GETNAT(const UTF16 &text) {
    NAT whole = 0;
    return IsWholeNat(text, whole) ? whole : NUMBER_READER(text).NEXTNAT();
}

BYTE GETBYTE(const UTF16 &text) { return static_cast<BYTE>(LIMIT(GETNAT(text), 0, 255)); }

bool GETBOOLEAN(const UTF16 &text) {
    const UTF16 word = LOWERCASE(KILLLAST(KILLFIRST(text, ' '), ' '));
    for (const char first : {'y', 'j', 'h', 't'})
        if (word.IS(1, first)) return true;
    for (const char *yes : {"on", "ok", "1", "+"})
        if (word == UTF16(yes)) return true;
    return GETNAT(word) > 0;
}

COMPLEX GETCOMPLEX(const UTF16 &text) {
    NUMBER_READER reader(text);
    const REAL x = reader.NEXTREAL();
    return {x, reader.NEXTREAL()};
}

VECTOR GETVECTOR(const UTF16 &text) { return NUMBER_READER(text).NEXTVECTOR(); }

HYPER GETHYPER(const UTF16 &text) {
    REAL whole = 0;
    if (IsWholeReal(text, whole)) return {whole, 0, 0, 0};
    return NUMBER_READER(text).NEXTHYPER();
}

SYMMATRIX3 GETSYMMATRIX3(const UTF16 &text) {
    NUMBER_READER reader(text);
    const VECTOR diagonal = reader.NEXTVECTOR();
    return {diagonal, reader.NEXTVECTOR()};
}

MATRIX3 GETMATRIX3(const UTF16 &text) {
    NUMBER_READER reader(text);
    MATRIX3 matrix;
    for (VECTOR &row : matrix.rows)
        row = reader.NEXTVECTOR();
    return matrix;
}

MATRIX4 GETMATRIX4(const UTF16 &text) {
    MATRIX4 matrix;
    if (POS(";", text) == 0) {
        NUMBER_READER reader(text);
        for (HYPER &row : matrix.rows)
            row = reader.NEXTHYPER();
        return matrix;
    }
    UTF16 rest = text;
    for (HYPER &row : matrix.rows)
        row = GETHYPER(SPLIT(rest, ";"));
    return matrix;
}

COMPLEXNAT GETCOMPLEXNAT(const UTF16 &text) {
    NUMBER_READER reader(text);
    const NAT x = reader.NEXTNAT();
    return {x, reader.NEXTNAT()};
}

VECTORNAT GETVECTORNAT(const UTF16 &text) {
    NUMBER_READER reader(text);
    const NAT x = reader.NEXTNAT(), y = reader.NEXTNAT();
    return {x, y, reader.NEXTNAT()};
}

HYPERNAT GETHYPERNAT(const UTF16 &text) {
    NUMBER_READER reader(text);
    const NAT x = reader.NEXTNAT(), y = reader.NEXTNAT(), z = reader.NEXTNAT();
    return {x, y, z, reader.NEXTNAT()};
}

void VAL(const UTF16 &text, REAL &value, NAT &code) { code = PARSE_REAL(GETUTF8(text), value); }
void VAL(const UTF16 &text, NAT &value, NAT &code) { code = PARSE_NAT(GETUTF8(text), value); }
} // namespace morvane
