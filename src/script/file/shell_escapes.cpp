#include "script/file/shell_escapes.hpp"

namespace morvane {
namespace {
constexpr std::string_view ESCAPED = "\\ ()?!\"#$%&'*+,:;<=>@[]^`{|}~\t";

bool IsEscaped(UTF16CHAR unit) {
    return unit.high == 0 && ESCAPED.find(static_cast<char>(unit.low)) != std::string_view::npos;
}
} // namespace

UTF16 WITHOUT_SHELL_ESCAPES(const UTF16 &name) {
    UTF16 plain;
    for (NAT i = 1; i <= name.LENGTH(); ++i) {
        const bool isEscape = name.IS(i, '\\') && i < name.LENGTH();
        if (isEscape && IsEscaped(name.GETCHAR(i + 1))) ++i;
        plain += name.GETCHAR(i);
    }
    return plain;
}
} // namespace morvane
