#include "script/engine/check_reader.hpp"

#include "foundation/console/files.hpp"
#include "script/engine/import_file.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/store_block.hpp"

namespace morvane {
namespace {
constexpr NAT MOST_FILES = 1'000; // as many as a run takes

// Without a line on the console, unlike the loading of a script that runs; a packed one has it.
bool LoadQuietly(TFILETEXT &text, const UTF16 &name) {
    if (LOWERCASE(COPY(name, name.LENGTH() - 1, 2)) == UTF16("gz")) return text.LOAD(name);
    FILE_READ file;
    if (!OPENSILENT(file, name)) return false;
    std::string bytes, block(1 << 16, '\0');
    for (NAT got = 1; got > 0 && static_cast<NAT>(bytes.size()) <= TFILECOMMAND::LARGEST_SCRIPT;) {
        got = file.READ(block.data(), static_cast<NAT>(block.size()));
        bytes.append(block, 0, static_cast<std::size_t>(got));
    }
    return text.LOADBYTES(bytes);
}

KEYWORD_ROLE RoleOf(const LINE_PART &part) {
    return part.keyword ? part.keyword->role : KEYWORD_ROLE::BLOCK;
}

bool IsHalt(const UTF16 &rest) { return rest == "halt" || rest == "break"; }
} // namespace

bool CHECK_READER::READ(const UTF16 &file) {
    if (!ReadFile(file, JOIN::SCRIPT)) return false;
    blocks.FINISH();
    return true;
}

bool CHECK_READER::ReadFile(const UTF16 &file, JOIN join) {
    TFILETEXT text;
    if (!LoadQuietly(text, file)) return false;
    chain.push_back(file);
    // The first line of an included file is not seen by whoever includes it.
    for (NAT i = join == JOIN::INCLUDE ? 2 : 1; i <= text.LENGTH(); ++i) {
        CHECK_LINE line;
        line.place = GETUTF8(file) + ":" + std::to_string(i) + ":";
        line.order = ++order;
        line.text = text.GET(i);
        const UTF16 kept = CUT_COMMENT(line.text, i == 1 && join != JOIN::INCLUDE);
        if (kept.EMPTY()) continue;
        line.owner = std::make_unique<LINE_PART>(PREPARE_PART(kept));
        line.part = line.owner.get();
        line.column = COLUMN_OF(line.part->rawWord, line.text, 1);
        ReadLine(std::move(line));
    }
    chain.pop_back();
    return true;
}

void CHECK_READER::ReadLine(CHECK_LINE line) {
    if (RoleOf(*line.part) == KEYWORD_ROLE::INCLUDE)
        return Include(line, names.TOKENS_OF(*line.part));
    if (blocks.IN_TEXT()) return ReadText(line);
    ReadRunning(line);
}

// Text of a store block, or ignored lines: the nesting alone is followed, as the engine does it.
void CHECK_READER::ReadText(CHECK_LINE &line) {
    const KEYWORD_ROLE role = RoleOf(*line.part);
    const bool behind = !line.part->rest.EMPTY();
    if ((role == KEYWORD_ROLE::THEN && behind && !IsHalt(line.part->rest)) ||
        (role == KEYWORD_ROLE::OF && line.part->blankInRest))
        return;
    if ((role == KEYWORD_ROLE::THEN || role == KEYWORD_ROLE::ELSE) && behind)
        line.part = &line.part->NEXT();
    switch (RoleOf(*line.part)) {
    case KEYWORD_ROLE::LEAVE: return blocks.LEAVE(line);
    case KEYWORD_ROLE::END: return blocks.CLOSE(line);
    case KEYWORD_ROLE::BEGIN: return;
    default: break;
    }
    if (line.part->keyword && line.part->keyword->opensSkipped)
        blocks.OPEN_TEXT(line);
    else if (blocks.IN_STORE())
        Directive(line);
}

// "@@" and a character at the very beginning of a line of text.
void CHECK_READER::Directive(const CHECK_LINE &line) {
    const UTF16 &text = line.text;
    if (!text.IS(1, '@') || !text.IS(2, '@') || text.LENGTH() <= 2 || text.IS(3, ' ')) return;
    if (markerSet) return;
    const char sign = text.GETCHAR(3).high == 0 ? static_cast<char>(text.GETCHAR(3).low) : '\0';
    const NAT minimum = DIRECTIVE_MINIMUM(sign);
    const UTF16 word = COPY(text, 1, 3);
    if (minimum < 0) return findings.PUT(line, "unknown directive " + GETUTF8(word));
    const LINE_PART rest = PREPARE_PART("@ " + COPY(text, 4, text.LENGTH()));
    const std::vector<TOKEN> tokens = names.TOKENS_OF(rest);
    if (CHECK_NAMES::IS_CERTAIN(rest) && static_cast<NAT>(tokens.size()) < minimum)
        findings.PUT(line, GETUTF8(word) + " needs at least " + std::to_string(minimum) +
                               (minimum == 1 ? " parameter" : " parameters"));
    else if (sign == 'j' || sign == 'J')
        markerSet = true;
    else if (sign == 'i' || sign == 'I')
        Include(line, tokens);
}

// Steps to the word that an inline form carries out; false when nothing is left.
bool CHECK_READER::Inline(CHECK_LINE &line) const {
    const auto step = [&] {
        const NAT behind = line.column + line.part->rawWord.LENGTH();
        line.part = &line.part->NEXT();
        line.column = COLUMN_OF(line.part->rawWord, line.text, behind);
    };
    if (RoleOf(*line.part) == KEYWORD_ROLE::THEN && !line.part->rest.EMPTY()) step();
    if (RoleOf(*line.part) == KEYWORD_ROLE::ELSE && !line.part->rest.EMPTY()) step();
    if (RoleOf(*line.part) == KEYWORD_ROLE::OF && line.part->blankInRest) {
        step();
        step();
    }
    return !line.part->word.EMPTY();
}

void CHECK_READER::ReadRunning(CHECK_LINE &line) {
    if (!Inline(line)) return;
    line.context = blocks.CONTEXT();
    const KEYWORD_ROLE role = RoleOf(*line.part);
    if (role == KEYWORD_ROLE::BEGIN) return;
    if (role == KEYWORD_ROLE::END) return blocks.CLOSE(line);
    blocks.RUNS(line);
    if (role == KEYWORD_ROLE::IMPORT) return Import(line);
    if (role == KEYWORD_ROLE::LEAVE) blocks.LEAVE(line);
    Gather(line);
    if (CHECK_BLOCKS::OPENS(*line.part)) {
        blocks.OPEN(line);
        markerSet = false;
        if (line.part->keyword->word == "with") OpenWith(line);
    }
    lines.push_back(std::move(line));
}

void CHECK_READER::OpenWith(const CHECK_LINE &line) {
    const std::vector<TOKEN> tokens = names.TOKENS_OF(*line.part);
    if (tokens.empty()) return;
    if (!names.IS_LITERAL(tokens[0])) {
        names.WITH_UNKNOWN();
        return blocks.WITH_UNKNOWN();
    }
    // No command's name is longer than a parameter.
    const std::string whole = blocks.CONTEXT().prefix + "." + GETUTF8(tokens[0].text);
    if (whole.size() > LONGEST_TEXT) return blocks.WITH_UNKNOWN();
    blocks.WITH(GETUTF8(tokens[0].text));
    names.WITH(blocks.CONTEXT().prefix);
}

void CHECK_READER::Import(const CHECK_LINE &line) {
    if (line.part->behind)
        return findings.PUT(line, "import stands alone on its line; put it into a block");
    const std::vector<TOKEN> tokens = names.TOKENS_OF(*line.part);
    if (tokens.empty()) {
        if (!CHECK_NAMES::IS_CERTAIN(*line.part)) return names.OPEN();
        return findings.PUT(line, "import needs at least 1 parameter");
    }
    if (!CHECK_NAMES::IS_CERTAIN(*line.part) || !names.IS_LITERAL(tokens[0])) return names.OPEN();
    const UTF16 path = IMPORT_PATH(chain.back(), tokens[0].text);
    if (path.EMPTY()) return Miss(line, tokens[0].text, "import");
    if (IS_CIRCLE(chain, path))
        return findings.PUT(line, "import in a circle: " + GETUTF8(CIRCLE_TEXT(chain, path)));
    Insert(line, path, JOIN::IMPORT);
}

void CHECK_READER::Include(const CHECK_LINE &line, const std::vector<TOKEN> &tokens) {
    if (tokens.empty()) {
        if (!CHECK_NAMES::IS_CERTAIN(*line.part)) return names.OPEN();
        return findings.PUT(line, "include needs at least 1 parameter");
    }
    const bool literal = CHECK_NAMES::IS_CERTAIN(*line.part) && names.IS_LITERAL(tokens[0]);
    if (!blocks.IN_PASSED() && !names.PROCEDURE("include"))
        findings.PUT(line, "include stops the script here; import does not");
    if (!literal) return names.OPEN();
    if (!FILEEXISTS(tokens[0].text)) return Miss(line, tokens[0].text, "include");
    if (IS_CIRCLE(chain, tokens[0].text))
        return findings.PUT(line,
                            "include in a circle: " + GETUTF8(CIRCLE_TEXT(chain, tokens[0].text)));
    Insert(line, tokens[0].text, JOIN::INCLUDE);
}

// What the file would have declared is not known; a line above may be about to make it.
void CHECK_READER::Miss(const CHECK_LINE &line, const UTF16 &file, std::string_view word) {
    names.OPEN();
    missing.push_back({PLACE_OF(line), file, word});
    missing.back().line.column = COLUMN_OF(file, line.text, line.column);
}

void CHECK_READER::Insert(const CHECK_LINE &line, const UTF16 &path, JOIN join) {
    const bool deep = static_cast<NAT>(chain.size()) > TFILECOMMAND::DEEPEST_INCLUDE;
    if (deep || ++files > MOST_FILES) {
        names.OPEN();
        return findings.PUT(line,
                            deep ? "files import each other too deep" : "too many import files");
    }
    if (ReadFile(path, join)) return;
    names.OPEN();
    findings.PUT(line, "file cannot be read: " + GETUTF8(path));
}

// What the line declares or assigns.
void CHECK_READER::Gather(const CHECK_LINE &line) {
    const LINE_PART &part = *line.part;
    if (part.keyword && part.keyword->run) return GatherKeyword(line);
    if (part.assignment) names.ASSIGN(part.word);
}

void CHECK_READER::GatherKeyword(const CHECK_LINE &line) {
    const std::string_view word = line.part->keyword->word;
    const bool declares = word == "procedure" || word == "sub" || word == "function";
    const bool searches = word == "minimize" || word == "maximize";
    const bool sets = word == "var" || word == "local" || word == "global";
    if (!declares && !searches && !sets) return;
    const std::vector<TOKEN> tokens = names.TOKENS_OF(*line.part);
    if (tokens.empty()) return;
    if (declares && POS("@", tokens[0].text) > 0) return names.OPEN();
    if (declares)
        return names.DECLARE(tokens[0].text, word == "function" ? KIND_FUNCTION : KIND_PROCEDURE,
                             line.context.inBlock ? CHECK_NAMES::NEVER : line.order);
    const std::size_t first = searches ? 3 : 0;
    const std::size_t last = word == "local" || word == "global" ? 1 : tokens.size();
    for (std::size_t i = first; i < last; ++i)
        names.ASSIGN(tokens[i].text);
}
} // namespace morvane
