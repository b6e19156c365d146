#pragma once

#include "foundation/base/utf16.hpp"

#include <vector>

namespace morvane {
class TMACRO;

// Fewest parameters of a directive of stored text, by the character behind its "@@" in any case; -1
// for a character that is none.
NAT DIRECTIVE_MINIMUM(char directive);

// The lines of a `store` or `append` block on their way into the output file: plain text, "@" lines
// and "@@" directives.
class STORE_BLOCK {
public:
    explicit STORE_BLOCK(TMACRO &macro);
    void WRITELINE(NAT line); // the script line as it stands, or what its directive makes of it

private:
    void Directive(UTF16 text, NAT line);
    void WriteColumns(char operation);
    void WriteRotated();
    void WriteMoved();
    void WriteWithTriple(NAT first, const VECTOR &triple);
    UTF16 Column(NAT index, char operation) const;
    UTF16 Mask(NAT index) const; // empty where there is none
    VECTOR Triple(NAT first) const;
    void Write(const UTF16 &text);

    TMACRO &engine;
    UTF16 marker, separator;
    std::vector<UTF16> mask;
};
} // namespace morvane
