#include "generated_files.hpp"
#include "text_forms.hpp"

// The grammar that editors colour macros with. Its patterns keep to what Oniguruma and Python read
// alike: no look-behind of changing width, flags only in front.
namespace morvane {
namespace {
constexpr std::string_view NOT_IN_WORD = "(?<![\\w.@])", WORD_END = "(?![\\w.])";

struct PATTERN {
    std::string name, match;
    std::vector<std::pair<int, std::string>> captures;
};

std::string PATTERN_TEXT(const PATTERN &pattern) {
    std::string text = "        {";
    if (!pattern.name.empty()) text += "\"name\": " + JSON_QUOTED(pattern.name) + ", ";
    text += "\"match\": " + JSON_QUOTED(pattern.match);
    if (!pattern.captures.empty()) {
        std::vector<std::string> captures;
        for (const auto &[number, name] : pattern.captures)
            captures.push_back("\"" + std::to_string(number) +
                               "\": {\"name\": " + JSON_QUOTED(name) + "}");
        text += ", \"captures\": {" + JOINED(captures, ", ") + "}";
    }
    return text + "}";
}

std::string GROUP_TEXT(const std::string &name, const std::vector<PATTERN> &patterns) {
    std::vector<std::string> texts;
    for (const PATTERN &pattern : patterns)
        texts.push_back(PATTERN_TEXT(pattern));
    return "    " + JSON_QUOTED(name) + ": {\n      \"patterns\": [\n" + JOINED(texts, ",\n") +
           "\n      ]\n    }";
}

// A text ends with its line and at a comment, which no quote protects.
std::string STRING_TEXT(const std::string &kind, const std::string &quote) {
    return "        {\"name\": " + JSON_QUOTED("string.quoted." + kind + ".morvane") +
           ", \"begin\": " + JSON_QUOTED(quote) +
           ", \"end\": " + JSON_QUOTED(quote + "|(?= //)|$") +
           ", \"patterns\": [{\"include\": \"#at\"}]}";
}

std::vector<PATTERN> COMMENTS() {
    return {{"comment.line.shebang.morvane", "\\A!.*$", {}},
            {"comment.line.morvane", "^[ \\t]*(?://|#|%).*$", {}},
            {"comment.line.double-slash.morvane", " //.*$", {}}};
}

std::vector<PATTERN> KEYWORD_PATTERNS(const REFERENCE &reference) {
    const std::string words = REGEX_ANY(reference.KEYWORD_NAMES());
    const std::string prefixes = "(?:" + REGEX_ANY(reference.prefixes) + ")\\S*";
    const std::string kind = "keyword.control.morvane";
    // A keyword behind an inline form: "then break", "of 3 break".
    return {{"",
             "(?i)^[ \\t]*((?:if\\.)?(?:then|else)|if\\.true|if\\.false) +(" + words + ")(?= |$)",
             {{1, kind}, {2, kind}}},
            {"",
             "(?i)^[ \\t]*(of) +(\\S+) +(" + words + ")(?= |$)",
             {{1, kind}, {2, "constant.other.morvane"}, {3, kind}}},
            {"", "(?i)^[ \\t]*(" + words + ")(?= |$)", {{1, kind}}},
            {"", "(?i)^[ \\t]*(" + prefixes + ")", {{1, "storage.type.morvane"}}}};
}

std::vector<PATTERN> NUMBERS() {
    return {{"constant.numeric.hex.morvane", "(?i)(?<![^ ])\\$[0-9a-f]+(?![^ ])", {}},
            {"constant.numeric.binary.morvane", "(?<![^ ])%[01]+(?![^ ])", {}},
            {"constant.character.morvane", "(?<![^ ])#\\d+(?![^ ])", {}},
            {"constant.numeric.morvane",
             "(?i)(?<![\\w.@-])-?\\d+(?:\\.\\d+)?(?:e[+-]?\\d+)?(?!\\w)",
             {}}};
}

std::vector<PATTERN> COMMAND_PATTERNS(const REFERENCE &reference) {
    std::vector<PATTERN> patterns;
    for (const std::string &nameSpace : reference.NAMESPACES()) {
        const std::string kind =
            nameSpace.empty() ? "core" : nameSpace.substr(0, nameSpace.size() - 1);
        patterns.push_back({"support.function." + kind + ".morvane",
                            "(?i)" + std::string(NOT_IN_WORD) + REGEX_TEXT(nameSpace) +
                                "(?:" + REGEX_ANY(reference.NAMES_UNDER(nameSpace)) + ")" +
                                std::string(WORD_END),
                            {}});
    }
    return patterns;
}
} // namespace

std::string TEXTMATE_GRAMMAR(const REFERENCE &reference) {
    const std::string operators = "(?:" + REGEX_ANY(reference.operators) + ")";
    const std::vector<std::string> groups = {
        GROUP_TEXT("comments", COMMENTS()),
        GROUP_TEXT("keywords", KEYWORD_PATTERNS(reference)),
        "    \"strings\": {\n      \"patterns\": [\n" + STRING_TEXT("double", "\"") + ",\n" +
            STRING_TEXT("single", "'") + "\n      ]\n    }",
        GROUP_TEXT("at", {{"keyword.control.directive.morvane", "^[ \\t]*@@\\S", {}},
                          {"variable.other.interpolated.morvane", "@\\w+(?:\\.\\w+)*", {}}}),
        GROUP_TEXT(
            "assignments",
            {{"variable.other.assignment.morvane",
              "^[ \\t]*\\S+(?= +" + operators + "(?: |$))",
              {}},
             {"keyword.operator.assignment.morvane", "(?<![^ ])" + operators + "(?![^ ])", {}}}),
        GROUP_TEXT("numbers", NUMBERS()),
        GROUP_TEXT("commands", COMMAND_PATTERNS(reference)),
        GROUP_TEXT("variables", {{"variable.language.morvane",
                                  "(?i)" + std::string(NOT_IN_WORD) + "(?:" +
                                      REGEX_ANY(reference.variables) + ")" + std::string(WORD_END),
                                  {}}}),
        GROUP_TEXT("brackets", {{"punctuation.brackets.morvane", "[()<>\\[\\]{}]", {}}})};
    std::string includes;
    for (const char *group : {"comments", "keywords", "assignments", "strings", "at", "numbers",
                              "commands", "variables", "brackets"})
        includes +=
            std::string(includes.empty() ? "" : ",") + "\n    {\"include\": \"#" + group + "\"}";
    return "{\n  \"comment\": \"Made by tools/reference_writer; edit the rows, not this file.\",\n"
           "  \"name\": \"morvane macro\",\n  \"scopeName\": \"source.morvane\",\n"
           "  \"fileTypes\": [\"macro\"],\n  \"patterns\": [" +
           includes + "\n  ],\n  \"repository\": {\n" + JOINED(groups, ",\n") + "\n  }\n}\n";
}

std::string EXTENSION_MANIFEST(const REFERENCE &reference) {
    return "{\n"
           "  \"name\": \"morvane\",\n"
           "  \"displayName\": \"morvane macros\",\n"
           "  \"description\": \"Colours for the macros of morvane\",\n"
           "  \"version\": \"" +
           reference.version +
           "\",\n"
           "  \"publisher\": \"morvane\",\n"
           "  \"license\": \"MIT\",\n"
           "  \"engines\": {\"vscode\": \"^1.60.0\"},\n"
           "  \"categories\": [\"Programming Languages\"],\n"
           "  \"contributes\": {\n"
           "    \"languages\": [\n"
           "      {\"id\": \"morvane\", \"aliases\": [\"morvane macro\"], \"extensions\": "
           "[\".macro\"],\n"
           "       \"configuration\": \"./language-configuration.json\"}\n"
           "    ],\n"
           "    \"grammars\": [\n"
           "      {\"language\": \"morvane\", \"scopeName\": \"source.morvane\",\n"
           "       \"path\": \"./syntaxes/morvane.tmLanguage.json\"}\n"
           "    ]\n"
           "  }\n"
           "}\n";
}
} // namespace morvane
