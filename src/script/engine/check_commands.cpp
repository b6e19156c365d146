#include "script/engine/check_commands.hpp"

#include "script/engine/expression.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/row_parameters.hpp"

#include <algorithm>

namespace morvane {
namespace {
bool IsKeyword(const LINE_PART &part) {
    return part.keyword && (part.keyword->run || part.keyword->role != KEYWORD_ROLE::BLOCK);
}

UTF16 WithPrefix(const CHECK_LINE &line, const UTF16 &word) {
    const std::string &prefix = line.context.prefix;
    return prefix.empty() ? word : UTF16(prefix + ".") + word;
}

std::string Parameters(NAT count) {
    return std::to_string(count) + (count == 1 ? " parameter" : " parameters");
}

// The counts that a keyword takes; most of them pass over what is too much.
PARAMETER_COUNT CountOf(const KEYWORD &keyword) {
    PARAMETER_COUNT count = COUNT_OF(PARSE_PARAMETERS(keyword.parameters));
    const std::string_view word = keyword.word;
    if (word == "with") count.least = 0; // then it is a plain block
    const bool strict = word == "case" || word.ends_with("filesize") || word.starts_with("for");
    if (!strict)
        count.most =
            word == "parallel" ? 3 : PARAMETER_COUNT::UNLIMITED; // which takes a step as for does
    return count;
}

bool IsOperator(const std::string &word) {
    static const std::vector<std::string_view> operators = ASSIGNMENT_OPERATORS();
    return word == ":=" || std::find(operators.begin(), operators.end(), word) != operators.end();
}

// The endings of files that a script names without quotes.
bool EndsAsFile(std::string_view word) {
    constexpr std::string_view ENDINGS[] = {
        ".nii", ".gz",  ".hdr", ".img", ".txt", ".csv", ".png", ".ppm", ".pgm",  ".pbm",
        ".pnm", ".bmp", ".tif", ".tga", ".obj", ".stl", ".ply", ".vtk", ".trk",  ".svg",
        ".xml", ".raw", ".mif", ".vol", ".am",  ".fld", ".dat", ".ini", ".macro"};
    return std::any_of(std::begin(ENDINGS), std::end(ENDINGS),
                       [&](std::string_view ending) { return word.ends_with(ending); });
}
} // namespace

void CHECK_COMMANDS::CHECK(const std::vector<CHECK_LINE> &lines,
                           const std::vector<MISSING_FILE> &missing) {
    std::vector<CALL> calls;
    calls.reserve(lines.size());
    for (const CHECK_LINE &line : lines) {
        calls.push_back(Find(line));
        files.GATHER(line, calls.back().Row(), calls.back().tokens);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        CheckLine(lines[i], calls[i]);
        files.CHECK(lines[i], calls[i].Row(), calls[i].tokens);
    }
    for (const MISSING_FILE &miss : missing)
        files.CHECK(miss);
}

CHECK_COMMANDS::CALL CHECK_COMMANDS::Find(const CHECK_LINE &line) const {
    CALL call;
    const LINE_PART *part = line.part;
    const bool keyword = IsKeyword(*part);
    if (!keyword && part->assignment) {
        part = &part->NEXT();
        const LINE_PART &value = part->NEXT();
        if (part->word == ":=" && (call.entry = FindFunction(line, value))) part = &value;
    } else if (!keyword && !line.context.prefixUnknown) {
        call.entry = names.PROCEDURE(WithPrefix(line, part->word));
    }
    call.tokens = names.TOKENS_OF(*part);
    call.certain = CHECK_NAMES::IS_CERTAIN(*part);
    return call;
}

// Bare first, then with the prefix.
const COMMAND_ENTRY *CHECK_COMMANDS::FindFunction(const CHECK_LINE &line,
                                                  const LINE_PART &value) const {
    if (const COMMAND_ENTRY *entry = names.FUNCTION(value.word)) return entry;
    if (line.context.prefix.empty() || line.context.prefixUnknown) return nullptr;
    return names.FUNCTION(WithPrefix(line, value.word));
}

void CHECK_COMMANDS::CheckLine(const CHECK_LINE &line, const CALL &call) {
    if (IsKeyword(*line.part))
        CheckKeyword(line, call);
    else if (line.part->assignment)
        CheckAssignment(line, call);
    else
        CheckProcedure(line, call);
}

void CHECK_COMMANDS::TellTaken(const CHECK_LINE &line, NAT column, const std::string &name) {
    findings.PUT(line, column, "overloaded identifier: " + name + " is a command");
}

void CHECK_COMMANDS::CheckKeyword(const CHECK_LINE &line, const CALL &call) {
    const LINE_PART &part = *line.part;
    const std::string word = GETUTF8(part.word), known(part.keyword->word);
    if (part.assignment && IsOperator(GETUTF8(part.NEXT().word))) {
        if (word == known)
            findings.PUT(line, "overloaded identifier: " + word + " is a keyword");
        else
            findings.PUT(line, word + " is read as " + known + ": every word that begins so is");
        return;
    }
    const PARAMETER_COUNT count = CountOf(*part.keyword);
    const NAT given = static_cast<NAT>(call.tokens.size());
    if (call.certain && given < count.least)
        findings.PUT(line, word + " needs at least " + Parameters(count.least));
    if (call.certain && given > count.most)
        findings.PUT(line, word + " takes at most " + Parameters(count.most));
    CheckNames(line, call);
}

// Names that var, local, global and the searches give a value.
void CHECK_COMMANDS::CheckNames(const CHECK_LINE &line, const CALL &call) {
    const std::string_view word = line.part->keyword->word;
    const bool search = word == "minimize" || word == "maximize";
    const bool one = word == "local" || word == "global";
    if (!search && !one && word != "var") return;
    const std::size_t count = call.tokens.size(),
                      last = one ? std::min<std::size_t>(1, count) : count;
    if (!search && count > 1 && call.tokens[1].kind == 0 &&
        IsOperator(GETUTF8(call.tokens[1].text)))
        findings.PUT(line, std::string(word) + (one ? " takes a name and its value without a sign"
                                                    : " takes names alone, and no value"));
    for (std::size_t i = search ? 3 : 0; i < last; ++i) {
        const std::string name = GETUTF8(LOWERCASE(call.tokens[i].text));
        if (names.IS_TAKEN(name, line.order))
            TellTaken(line, COLUMN_OF(call.tokens[i].text, line.text, line.column), name);
    }
}

void CHECK_COMMANDS::CheckAssignment(const CHECK_LINE &line, const CALL &call) {
    const LINE_PART &operation = line.part->NEXT();
    if (operation.word == ":=") {
        CheckTarget(line, call);
        if (call.entry)
            CheckCount(line, call);
        else
            CheckValue(line, operation.NEXT());
        return;
    }
    CheckOperator(line, call);
}

// A command in front of "= " somewhere in its line is a target: the sign counts in quotes too.
void CHECK_COMMANDS::CheckOperator(const CHECK_LINE &line, const CALL &call) {
    const LINE_PART &operation = line.part->NEXT();
    const std::string word = GETUTF8(operation.word), target = GETUTF8(line.part->word);
    const bool known = IsOperator(word);
    const bool isCommand = names.PROCEDURE(line.part->word) != nullptr;
    if (!known && (isCommand || names.IS_COMMAND(target)))
        return findings.PUT(line, "\"= \" makes this line an assignment to " + target +
                                      ", in a quoted text too");
    if (!known && operation.atWord) return;
    if (!known) return findings.PUT(line, "unknown operator " + GETUTF8(operation.rawWord));
    if (names.IS_TAKEN(target, line.order)) TellTaken(line, line.column, target);
    const NAT least = word == "r=" ? 3 : word == "%=" || word == "!=" ? 1 : 0;
    if (call.certain && static_cast<NAT>(call.tokens.size()) < least)
        findings.PUT(line, word + " needs at least " + Parameters(least));
}

// The target of a function may be the name of a field, which may be any; plain functions such as
// max give values.
void CHECK_COMMANDS::CheckTarget(const CHECK_LINE &line, const CALL &call) {
    std::string target = GETUTF8(line.part->word);
    const std::size_t open = target.find('[');
    if (open != std::string::npos && target.back() == ']') target.resize(open);
    if (!names.IS_TAKEN(target, line.order)) return;
    const COMMAND_ROW *row = call.Row();
    if (row && call.entry->TEXT().LENGTH() > static_cast<NAT>(row->name.size())) return;
    TellTaken(line, line.column, target);
}

// Behind ":=" every word that is no function is a text. One that names a procedure, misses a
// function by a letter or two, or stands under a namespace of the program, is surely none.
void CHECK_COMMANDS::CheckValue(const CHECK_LINE &line, const LINE_PART &value) {
    if (names.IS_OPEN() || value.atWord || POS(".", value.word) == 0) return;
    const std::string word = GETUTF8(value.word);
    if (word.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789._") != std::string::npos)
        return;
    if (names.IS_VARIABLE(value.word) || names.LAMBDA(value.word) || EndsAsFile(word)) return;
    if (names.WITH_FUNCTION(value.word) && (line.context.inBody || line.context.prefixUnknown))
        return;
    const NAT column =
        COLUMN_OF(value.rawWord, line.text, line.column + line.part->rawWord.LENGTH());
    if (names.IS_COMMAND(word))
        return findings.PUT(line, column,
                            word + " is a procedure, not a function: this line stores its name");
    const std::vector<std::string> nearest = names.NEAREST_VALUES(word);
    constexpr std::size_t SLIP = 2;
    const bool isSlip = !nearest.empty() && SPELLING_DISTANCE(word, nearest.front(), SLIP) <= SLIP;
    if (!isSlip && !names.IN_NAMESPACE(word)) return;
    std::string list;
    for (const std::string &name : nearest)
        list += (list.empty() ? "; nearest: " : ", ") + name;
    findings.PUT(line, column,
                 "unknown function " + word +
                     (list.empty() ? ": this line stores its name" : list));
}

void CHECK_COMMANDS::CheckProcedure(const CHECK_LINE &line, const CALL &call) {
    if (call.entry) return CheckCount(line, call);
    if (line.context.prefixUnknown || names.IS_OPEN()) return;
    const LINE_PART &part = *line.part;
    if (line.context.inBody && names.WITH_PROCEDURE(part.word)) return;
    const UTF16 name = WithPrefix(line, part.word);
    const std::string text = "unknown procedure " + GETUTF8(name);
    const bool hasSign = POS("=", part.word) > 0 || part.rest.IS(1, '=') || part.rest.IS(1, ':');
    if (hasSign || IsOperator(GETUTF8(part.rest)))
        return findings.PUT(line, text + "; an assignment is written name := value");
    if (POS("\t", part.word) > 0)
        return findings.PUT(line, text + "; only a blank parts a command from its parameters");
    findings.PUT(line, text + names.PROCEDURE_HINT(name));
}

// The plain rule of the row, as the engine tests it before it calls; a getter has none.
void CHECK_COMMANDS::CheckCount(const CHECK_LINE &line, const CALL &call) {
    const COMMAND_ROW *row = call.Row();
    if (!row || !call.certain) return;
    if (row->kind == COMMAND_KIND::PROPERTY && call.entry->GROUP() == KIND_FUNCTION) return;
    const NAT given = static_cast<NAT>(call.tokens.size()), count = row->count.count;
    const std::string name = GETUTF8(call.entry->TEXT());
    switch (row->count.kind) {
    case COUNT_RULE::KIND::EXACT:
        if (given == count) return;
        return findings.PUT(line, name + (count == 0 ? std::string(" takes no parameter")
                                                     : " needs exactly " + Parameters(count)));
    case COUNT_RULE::KIND::LEAST:
        if (given >= count) return;
        return findings.PUT(line, name + " needs at least " + Parameters(count));
    case COUNT_RULE::KIND::MOST:
        if (given <= count) return;
        return findings.PUT(line, name + " takes at most " + Parameters(count));
    default: return;
    }
}
} // namespace morvane
