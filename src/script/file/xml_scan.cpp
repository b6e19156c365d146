#include "script/file/xml_scan.hpp"

#include "script/file/unicode_text.hpp"

#include <algorithm>
#include <charconv>

namespace morvane {
namespace {
constexpr std::size_t NONE = std::string_view::npos;
constexpr std::string_view SPACE = " \t\r\n";

bool IsSpace(char c) { return SPACE.find(c) != NONE; }

bool StartsName(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<BYTE>(c) >= 0x80;
}

// Whether a piece other than text starts with the "<" at the offset. A "<" in front of anything
// else, as in "a < b", is a character of the text.
bool StartsPiece(std::string_view text, std::size_t offset) {
    if (offset + 1 >= text.size()) return false;
    const char next = text[offset + 1];
    if (next == '?' || next == '!') return true;
    if (next != '/' && next != '\\') return StartsName(next);
    return offset + 2 < text.size() && StartsName(text[offset + 2]);
}

// The offset of the ">" that ends a tag, outside its quotes; NONE when another "<" comes first.
std::size_t TagEnd(std::string_view text, std::size_t offset) {
    while (offset < text.size() && text[offset] != '>' && text[offset] != '<') {
        if (text[offset] == '"' || text[offset] == '\'')
            offset = text.find(text[offset], offset + 1);
        if (offset == NONE) return NONE;
        ++offset;
    }
    return offset < text.size() && text[offset] == '>' ? offset : NONE;
}

// The same for "<!...>", where quotes, comments and one pair of square brackets may stand.
std::size_t DeclarationEnd(std::string_view text, std::size_t offset) {
    bool inside = false;
    while (offset < text.size() && (text[offset] != '>' || inside)) {
        const char c = text[offset];
        if (c == '[') inside = true;
        if (c == ']') inside = false;
        if (c == '"' || c == '\'') offset = text.find(c, offset + 1);
        if (c == '<' && text.substr(offset, 4) == "<!--") offset = text.find("-->", offset + 4);
        if (offset == NONE) return NONE;
        ++offset;
    }
    return offset < text.size() ? offset : NONE;
}

std::string_view NameOf(std::string_view inside) {
    return inside.substr(0, inside.find_first_of(SPACE));
}

// The code point behind "&#"; 0 when it is no character.
std::uint32_t NumberedCharacter(std::string_view digits) {
    const bool hexadecimal = digits.starts_with('x') || digits.starts_with('X');
    if (hexadecimal) digits.remove_prefix(1);
    std::uint32_t code = 0;
    const char *const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, code, hexadecimal ? 16 : 10);
    if (result.ec != std::errc() || result.ptr != end) return 0;
    const bool isCharacter = code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF);
    return isCharacter ? code : 0;
}

// The character of an entity's name; 0 for one that is unknown.
std::uint32_t EntityCharacter(std::string_view name) {
    if (name == "lt") return '<';
    if (name == "gt") return '>';
    if (name == "amp") return '&';
    if (name == "quot") return '"';
    if (name == "apos") return '\'';
    return name.starts_with('#') ? NumberedCharacter(name.substr(1)) : 0;
}

// Cuts one attribute from the front; false when none is left.
bool CutAttribute(std::string_view &rest, std::string_view &name, std::string_view &value) {
    const std::size_t start = rest.find_first_not_of(SPACE);
    if (start == NONE) return false;
    rest.remove_prefix(start);
    name = rest.substr(0, std::max(rest.find_first_of(" \t\r\n="), std::size_t{1}));
    rest.remove_prefix(name.size());
    rest = rest.substr(std::min(rest.find_first_not_of(SPACE), rest.size()));
    value = {};
    if (!rest.starts_with('=')) return true;
    rest = rest.substr(std::min(rest.find_first_not_of(SPACE, 1), rest.size()));
    const bool quoted = rest.starts_with('"') || rest.starts_with('\'');
    const std::size_t end = quoted ? rest.find(rest.front(), 1) : rest.find_first_of(SPACE);
    value = quoted ? rest.substr(1, end == NONE ? NONE : end - 1) : rest.substr(0, end);
    rest = end == NONE ? std::string_view() : rest.substr(quoted ? end + 1 : end);
    return true;
}
} // namespace

bool TXMLSCAN::Fail(std::string_view complaint) {
    fault = complaint;
    return false;
}

bool TXMLSCAN::Finish(XML_TOKEN &token, std::size_t endOffset) {
    token.startOffset = offset;
    token.endOffset = endOffset;
    offset = endOffset;
    return true;
}

bool TXMLSCAN::NEXT(XML_TOKEN &token) {
    token = {};
    if (!fault.empty() || offset >= text.size()) return false;
    if (text[offset] == '<' && StartsPiece(text, offset)) return Tag(token);
    std::size_t end = text.find('<', offset);
    while (end != NONE && !StartsPiece(text, end))
        end = text.find('<', end + 1);
    token.text = text.substr(offset, end == NONE ? NONE : end - offset);
    return Finish(token, offset + token.text.size());
}

bool TXMLSCAN::Tag(XML_TOKEN &token) {
    switch (text[offset + 1]) {
    case '?':
        token.kind = XML_KIND::SKIPPED;
        return Between(token, "<?", "?>", "\"<?\" without \"?>\"");
    case '!': return Declaration(token);
    case '/':
    case '\\': return Closing(token);
    default: break;
    }
    const std::size_t end = TagEnd(text, offset + 1);
    if (end == NONE) return Fail("a tag without \">\"");
    std::string_view inside = text.substr(offset + 1, end - offset - 1);
    token.kind = inside.ends_with('/') ? XML_KIND::EMPTY : XML_KIND::OPEN;
    if (token.kind == XML_KIND::EMPTY) inside.remove_suffix(1);
    token.name = NameOf(inside);
    token.attributes = XML_TRIMMED(inside.substr(token.name.size()));
    return Finish(token, end + 1);
}

bool TXMLSCAN::Closing(XML_TOKEN &token) {
    token.kind = XML_KIND::CLOSE;
    const std::size_t end = text.find_first_of("<>", offset + 1);
    if (end == NONE || text[end] != '>') return Fail("a closing tag without \">\"");
    token.name = NameOf(text.substr(offset + 2, end - offset - 2));
    return Finish(token, end + 1);
}

bool TXMLSCAN::Declaration(XML_TOKEN &token) {
    const std::string_view rest = text.substr(offset);
    token.kind = XML_KIND::SKIPPED;
    if (rest.starts_with("<!--")) return Between(token, "<!--", "-->", "a comment without \"-->\"");
    if (rest.starts_with("<![CDATA[")) {
        token.kind = XML_KIND::CDATA;
        return Between(token, "<![CDATA[", "]]>", "\"<![CDATA[\" without \"]]>\"");
    }
    const std::size_t end = DeclarationEnd(text, offset + 2);
    return end == NONE ? Fail("\"<!\" without \">\"") : Finish(token, end + 1);
}

bool TXMLSCAN::Between(XML_TOKEN &token, std::string_view first, std::string_view last,
                       std::string_view complaint) {
    const std::size_t start = offset + first.size(), end = text.find(last, start);
    if (end == NONE) return Fail(complaint);
    token.text = text.substr(start, end - start);
    return Finish(token, end + last.size());
}

bool TXMLPATH::OPEN(std::string_view name) {
    if (names.size() >= DEEPEST) return false;
    names.push_back(name);
    return true;
}

std::size_t TXMLPATH::CLOSE(std::string_view name) {
    const auto found = std::find(names.rbegin(), names.rend(), name);
    if (found == names.rend()) return 0;
    const auto count = static_cast<std::size_t>(found - names.rbegin()) + 1;
    names.resize(names.size() - count);
    return count;
}

bool TXMLPATH::ENDSWITH(std::string_view path, std::string_view last) const {
    for (std::size_t above = names.size();; --above) {
        const std::size_t slash = path.rfind('/');
        if (path.substr(slash == NONE ? 0 : slash + 1) != last) return false;
        if (slash == NONE) return true;
        path = path.substr(0, slash);
        if (path.empty()) return above == 0; // it began with "/"
        if (above == 0) return false;
        last = names[above - 1];
    }
}

bool XML_ATTRIBUTE(std::string_view attributes, std::string_view name, std::string_view &value) {
    std::string_view found;
    while (CutAttribute(attributes, found, value))
        if (found == name) return true;
    value = {};
    return false;
}

std::string XML_DECODED(std::string_view text) {
    constexpr std::size_t LONGEST_ENTITY = 10; // bytes between & and ;
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view ahead =
            text[i] == '&' ? text.substr(i + 1, LONGEST_ENTITY + 1) : std::string_view();
        const std::size_t end = ahead.find(';');
        const std::uint32_t code = end == NONE ? 0 : EntityCharacter(ahead.substr(0, end));
        if (code == 0) {
            out += text[i];
            continue;
        }
        APPEND_UTF8(out, code);
        i += end + 1;
    }
    return out;
}

std::string_view XML_TRIMMED(std::string_view text) {
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

NAT XML_LINE(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, offset);
    NAT line = 1;
    for (std::size_t i = 0; i < before.size(); ++i)
        line += before[i] == '\n' || (before[i] == '\r' && text.substr(i, 2) != "\r\n");
    return line;
}
} // namespace morvane
