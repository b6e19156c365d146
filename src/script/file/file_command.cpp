#include "script/file/file_command.hpp"

#include "foundation/console/console.hpp"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>

namespace morvane {
bool TFILECOMMAND::LOAD(const UTF16 &name) {
    DONE();
    return StartOrigins(TFILETEXT::LOAD(name), name);
}

bool TFILECOMMAND::LOADBYTES(std::string_view bytes, const UTF16 &name) {
    DONE();
    return StartOrigins(TFILETEXT::LOADBYTES(bytes), name);
}

void TFILECOMMAND::DONE() {
    origins.clear();
    insertions.clear();
    files.clear();
    TFILETEXT::DONE();
}

bool TFILECOMMAND::StartOrigins(bool loaded, const UTF16 &name) {
    if (!loaded) return false;
    try {
        files.push_back(name);
        origins.reserve(lines.size());
        for (NAT line = 1; line <= LENGTH(); ++line)
            origins.push_back({line, 0, 0});
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        DONE();
        return false;
    }
    return true;
}

bool TFILECOMMAND::LOADINSERT(NAT line, const UTF16 &file) {
    TFILETEXT included;
    return included.LOAD(file) && Insert(line, included, file);
}

bool TFILECOMMAND::INSERTBYTES(NAT line, std::string_view bytes, const UTF16 &name) {
    TFILETEXT included;
    return included.LOADBYTES(bytes) && Insert(line, included, name);
}

bool TFILECOMMAND::Insert(NAT line, const TFILETEXT &included, const UTF16 &name) {
    if (line < 1 || line > LENGTH()) return false;
    const NAT depth = origins[static_cast<std::size_t>(line - 1)].depth + 1;
    if (depth > DEEPEST_INCLUDE || SIZE() + included.SIZE() > LARGEST_SCRIPT) {
        WRITELN("  Include file (" + GETUTF8(name) + ") grows the script without end!");
        return false;
    }
    try {
        return ReplaceLine(line, included, OriginsWith(line, included, name, depth));
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
}

// The origins after the line is replaced.
std::vector<TFILECOMMAND::ORIGIN> TFILECOMMAND::OriginsWith(NAT line, const TFILETEXT &included,
                                                            const UTF16 &name, NAT depth) {
    const auto known = std::find(files.begin(), files.end(), name);
    const NAT file = std::distance(files.begin(), known);
    if (known == files.end()) files.push_back(name);
    insertions.push_back({file, origins[static_cast<std::size_t>(line - 1)].insertion});
    const NAT insertion = static_cast<NAT>(insertions.size());
    std::vector<ORIGIN> result;
    result.reserve(origins.size() + static_cast<std::size_t>(included.LENGTH()));
    result.assign(origins.begin(), origins.begin() + line - 1);
    for (NAT i = 1; i <= std::max(included.LENGTH(), NAT{1}); ++i)
        result.push_back({i, file, depth, insertion});
    result.insert(result.end(), origins.begin() + line, origins.end());
    return result;
}

// The buffer before the line, the file, the buffer behind the line; the index follows.
bool TFILECOMMAND::ReplaceLine(NAT line, const TFILETEXT &included,
                               std::vector<ORIGIN> newOrigins) {
    const std::size_t offset = static_cast<std::size_t>(line - 1);
    const LINE old = lines[offset];
    const NAT added = included.SIZE() + 1; // a zero byte ends the file's last line
    const NAT tail = SIZE() - old.start - old.length;

    std::vector<LINE> index;
    index.reserve(lines.size() + static_cast<std::size_t>(included.LENGTH()));
    index.assign(lines.begin(), lines.begin() + line - 1);
    for (NAT i = 1; i <= included.LENGTH(); ++i)
        index.push_back(
            {old.start + included.POSGET(i) - 1, static_cast<NAT>(included.GETVIEW(i).size())});
    if (included.LENGTH() == 0) index.push_back({old.start, 0});
    for (std::size_t i = offset + 1; i < lines.size(); ++i)
        index.push_back({lines[i].start - old.length + added, lines[i].length});

    TFILECOMMAND larger;
    if (!larger.Reserve(old.start + added + tail)) return false;
    char *target = larger.Bytes();
    const auto append = [&target](const char *from, NAT count) {
        if (count > 0) std::memcpy(target, from, static_cast<std::size_t>(count));
        target += count;
    };
    append(Bytes(), old.start);
    append(included.VIEW().data(), included.SIZE());
    *target++ = 0;
    append(Bytes() + old.start + old.length, tail);
    larger.SetSize(old.start + added + tail);
    Swap(larger);
    lines.swap(index);
    origins.swap(newOrigins);
    return true;
}

NAT TFILECOMMAND::GETREALLINE(NAT line) const {
    if (line < 1 || line > LENGTH()) return line;
    return origins[static_cast<std::size_t>(line - 1)].line;
}

UTF16 TFILECOMMAND::GETREALFILE(NAT line) const {
    if (files.empty()) return {};
    if (line < 1 || line > LENGTH()) return files.front();
    return files[static_cast<std::size_t>(origins[static_cast<std::size_t>(line - 1)].file)];
}

std::vector<UTF16> TFILECOMMAND::GETCHAIN(NAT line) const {
    std::vector<UTF16> chain;
    if (line < 1 || line > LENGTH()) return chain;
    NAT insertion = origins[static_cast<std::size_t>(line - 1)].insertion;
    while (insertion > 0) {
        const INSERTION &entry = insertions[static_cast<std::size_t>(insertion - 1)];
        chain.push_back(files[static_cast<std::size_t>(entry.file)]);
        insertion = entry.above;
    }
    chain.push_back(files.front());
    std::reverse(chain.begin(), chain.end());
    return chain;
}
} // namespace morvane
