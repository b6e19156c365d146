#include "script/module/text_parts.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/file_list.hpp"
#include "script/file/file_stream.hpp"
#include "script/file/name_mask.hpp"
#include "script/module/text_line.hpp"
#include "script/module/text_target.hpp"

#include <new>

namespace morvane {
namespace {
// The lines of a file as parts of its bytes.
class PARTS {
public:
    std::vector<std::string_view> parts;
    bool isMarked = false;

    void Cut(PART_CUT cut, const TFILEREADTEXT &file, std::string_view mark) {
        for (NAT line = 1; line <= file.LENGTH(); ++line) {
            const TEXT_LINE here = LINE_OF(file, line);
            const auto start = static_cast<std::size_t>(file.POSGET(line) - 1);
            const std::size_t end = start + here.text.size() + here.end.size();
            if (!HOLDS(here.text, mark)) continue;
            isMarked = true;
            Put(file, cut == PART_CUT::AFTER ? end : start);
            if (cut == PART_CUT::AT) startOffset = end;
        }
        Put(file, file.LENGTH() > 0 ? file.VIEW().size() : 0);
    }

private:
    std::size_t startOffset = 0;

    void Put(const TFILEREADTEXT &file, std::size_t endOffset) {
        if (endOffset > startOffset)
            parts.push_back(file.VIEW().substr(startOffset, endOffset - startOffset));
        startOffset = endOffset;
    }
};

// The named file, or the files of a mask without the target.
std::vector<UTF16> SourcesOf(const TEXT_REQUEST &request) {
    if (!HAS_WILDCARD(request.file)) return {request.file};
    TFILELIST files;
    files.INIT(request.file);
    std::vector<UTF16> sources;
    for (NAT i = 1; i <= files.LENGTH; ++i)
        if (const UTF16 name = files.GET(i); !IS_SAME_FILE(name, request.target))
            sources.push_back(name);
    if (sources.empty()) WRITELN("  No file for (" + GETUTF8(request.file) + ").");
    return sources;
}

// Adds the lines with the text, each with an end.
bool Gather(const UTF16 &name, std::string_view text, std::string &lines) {
    TFILEREADTEXT file;
    if (!file.LOAD(name)) return false;
    for (NAT number = 1; number <= file.LENGTH(); ++number) {
        const TEXT_LINE line = LINE_OF(file, number);
        if (!HOLDS(line.text, text)) continue;
        lines += line.text;
        lines += line.end.empty() ? "\n" : line.end;
    }
    return true;
}

// The target's own bytes, their last line with an end.
bool OldLines(const UTF16 &name, std::string &lines) {
    TFILE file;
    if (!FILEEXISTS(name)) return true;
    if (!file.LOAD(name)) return false;
    lines = file.VIEW();
    if (!lines.empty() && !lines.ends_with('\n') && !lines.ends_with('\r')) lines += '\n';
    return true;
}

bool Collected(bool append, const TEXT_REQUEST &request, std::string &lines) {
    const std::vector<UTF16> sources = SourcesOf(request);
    if (sources.empty() || (append && !OldLines(request.target, lines))) return false;
    for (const UTF16 &source : sources)
        if (!Gather(source, request.text, lines)) return false;
    return true;
}
} // namespace

UTF16 PART_NAME(const UTF16 &name, NAT number, NAT count) {
    const UTF16 extension = GETFILEEXTENSION(name);
    const NAT width = static_cast<NAT>(std::to_string(count).size());
    const UTF16 digits = FILLBEFORE(std::to_string(number), width, "0");
    if (extension.EMPTY()) return name + "_" + digits;
    return COPY(name, 1, name.LENGTH() - extension.LENGTH() - 1) + "_" + digits + "." + extension;
}

bool SPLIT_FILE(PART_CUT cut, const TEXT_REQUEST &request) {
    TFILEREADTEXT file;
    PARTS cuts;
    if (!file.LOAD(request.file)) return false;
    try {
        cuts.Cut(cut, file, request.text);
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
    if (!cuts.isMarked) TELLMISSING(request.text, request.file);
    const NAT count = static_cast<NAT>(cuts.parts.size());
    // Until the last part is written, the file has to stay.
    for (NAT number = 1; number <= count; ++number)
        if (REFUSE_SAME(request.file, PART_NAME(request.target, number, count))) return false;
    for (NAT number = 1; number <= count; ++number) {
        FILE_WRITE target;
        if (!ASSIGNWRITE_BY_NAME(target, PART_NAME(request.target, number, count))) return false;
        target.WRITE(cuts.parts[static_cast<std::size_t>(number - 1)]);
        if (!target.COMMIT()) return false;
    }
    return true;
}

bool COLLECT_LINES(bool append, const TEXT_REQUEST &request) {
    std::string lines;
    try {
        if (!Collected(append, request, lines)) return false;
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
    FILE_WRITE target;
    if (!ASSIGNWRITE_BY_NAME(target, request.target)) return false;
    target.WRITE(lines);
    return target.COMMIT();
}
} // namespace morvane
