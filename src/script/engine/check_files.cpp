#include "script/engine/check_files.hpp"

#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/row_parameters.hpp"

#include <algorithm>

namespace morvane {
namespace {
// scalar.load, line.load, vector.loadnii.gz ...: a part of the name begins with "load".
bool IsLoad(const COMMAND_ROW &row) {
    return row.name == "run" || row.name.starts_with("load") ||
           row.name.find(".load") != std::string_view::npos;
}

// The name without its folder and from its first point on: writers choose extensions themselves.
std::string StemOf(const UTF16 &file) { return GETUTF8(LOWERCASE(GET_SHORTFILENAME(file))); }

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) > 127; }

// Commands that may make a file.
bool MakesFiles(const COMMAND_ROW &row) {
    return row.parameters.find(": file") != row.parameters.npos;
}
} // namespace

void CHECK_FILES::Mention(const CHECK_LINE &line, const UTF16 &file) {
    mentions.try_emplace(StemOf(file), line.order);
}

void CHECK_FILES::GATHER(const CHECK_LINE &line, const COMMAND_ROW *row,
                         const std::vector<TOKEN> &tokens) {
    if (row && IsLoad(*row)) return;
    bool literal = true;
    for (const TOKEN &token : tokens) {
        if (token.kind == 0 || token.kind == 2) Mention(line, token.text);
        literal = literal && (token.kind == 1 || token.kind == 3 || names.IS_LITERAL(token));
    }
    const std::string_view word = line.part->keyword ? line.part->keyword->word : "";
    const bool stores = word == "store" || word == "append" || word.starts_with("output.");
    const bool maker = stores || (row && MakesFiles(*row));
    for (const TOKEN &token : tokens)
        if (maker && (token.kind == 0 || token.kind == 2))
            made.try_emplace(StemOf(token.text), line.order);
    if (word == "execute" || (maker && !literal)) unknownFrom = std::min(unknownFrom, line.order);
}

// In the body of a script's own command the order of the lines says nothing.
bool CHECK_FILES::IsMade(const CHECK_LINE &line, const UTF16 &file) const {
    const std::size_t now = line.context.inBody ? NEVER : line.order;
    if (unknownFrom != NEVER && unknownFrom < now) return true;
    const std::string stem = StemOf(file);
    const auto isBefore = [now](const auto &lines, const std::string &name) {
        const auto place = lines.find(name);
        return place != lines.end() && place->second < now;
    };
    if (isBefore(mentions, stem)) return true;
    // A writer of several files puts a number or a word behind the name: bone_3, bone-mean.
    for (std::size_t length = 1; length < stem.size(); ++length)
        if (!IsLetter(stem[length]) && isBefore(made, stem.substr(0, length))) return true;
    return false;
}

bool CHECK_FILES::Exists(const UTF16 &file) {
    const auto [place, isNew] = existing.try_emplace(GETUTF8(file));
    if (isNew) {
        const UTF16 path = FILENAMELOAD(file);
        place->second = FILEEXISTS(path) || DIRECTORYEXISTS(path);
    }
    return place->second;
}

void CHECK_FILES::CHECK(const CHECK_LINE &line, const COMMAND_ROW *row,
                        const std::vector<TOKEN> &tokens) {
    if (!row || !IsLoad(*row) || !CHECK_NAMES::IS_CERTAIN(*line.part)) return;
    const PARAMETER_TEXT parameters = PARSE_PARAMETERS(row->parameters);
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const UTF16 &file = tokens[i].text;
        if (!IS_FILE_AT(parameters, i) || !names.IS_LITERAL(tokens[i])) continue;
        // Without an extension it may be a field's name or the beginning of several files' names;
        // a mask stands for what fits it.
        if (GETFILEEXTENSION(file).EMPTY() || POS("*", file) > 0 || POS("?", file) > 0) continue;
        if (IsMade(line, file) || Exists(file)) continue;
        findings.PUT(line, COLUMN_OF(file, line.text, line.column),
                     "file not found: " + GETUTF8(file));
    }
}

void CHECK_FILES::CHECK(const MISSING_FILE &miss) {
    if (!IsMade(miss.line, miss.file))
        findings.PUT(miss.line, std::string(miss.word) + " file not found: " + GETUTF8(miss.file));
}
} // namespace morvane
