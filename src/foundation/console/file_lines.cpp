#include "foundation/console/file_lines.hpp"

namespace morvane {
namespace {
constexpr std::size_t LONGEST_WORD = 65536; // bytes; what a packed file unpacks to has no bound

int NextByte(FILE_READ &file) { return file.OPEN() ? ::getc_unlocked(file.HANDLE()) : EOF; }

int NextByte(GZ_READ &file) {
    BYTE byte = 0;
    return file.READ(&byte, 1) == 1 ? byte : EOF;
}

bool IsLineEnd(int byte) { return byte == '\n' || byte == '\r' || byte == EOF; }

bool IsSpace(int byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

template <class SOURCE> UTF16 NextWord(SOURCE &file) {
    std::string word;
    for (int byte = NextByte(file); byte != EOF; byte = NextByte(file)) {
        const bool comment = byte == '#';
        if (!comment && !IsSpace(byte)) {
            word.push_back(static_cast<char>(byte));
            if (word.size() == LONGEST_WORD) break;
            continue;
        }
        while (comment && !IsLineEnd(byte))
            byte = NextByte(file);
        if (!word.empty()) break;
    }
    return GETUTF16(word);
}
} // namespace

UTF16 FILEREADLN(FILE_READ &file) { return FILEREADLN(file, NATMAX); }

UTF16 FILEREADLN(FILE_READ &file, NAT longest) {
    std::string line;
    while (static_cast<NAT>(line.size()) <= longest) {
        const int byte = NextByte(file);
        if (byte >= ' ') line.push_back(static_cast<char>(byte));
        if (byte == EOF || (IsLineEnd(byte) && !line.empty())) break;
    }
    return GETUTF16(line);
}

UTF16 READLN(FILE_READ &file) {
    std::string line;
    for (int byte = NextByte(file); byte != EOF && byte != '\n'; byte = NextByte(file))
        line.push_back(static_cast<char>(byte));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return GETUTF16(line);
}

UTF16 FILEREAD(FILE_READ &file) { return NextWord(file); }

UTF16 FILEGZREAD(GZ_READ &file) { return NextWord(file); }

bool FILEWRITE(FILE_WRITE &file, const UTF16 &text) { return file.WRITE(GETUTF8(text)); }

bool FILEWRITELN(FILE_WRITE &file, const UTF16 &text) { return file.WRITE(GETUTF8(text) + "\n"); }

bool FILEGZWRITELN(FILE_WRITE &file, const UTF16 &text) { return file.WRITE(GETUTF8(text) + "\n"); }

bool FILEGZWRITELNLN(FILE_WRITE &file, const UTF16 &text) {
    return file.WRITE(GETUTF8(text) + "\n\n");
}
} // namespace morvane
