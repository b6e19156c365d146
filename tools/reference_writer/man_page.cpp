#include "generated_files.hpp"
#include "text_forms.hpp"

// The manual page: everything that the reference holds, one entry a command.
namespace morvane {
namespace {
std::string BOLD(std::string_view text) { return "\\fB" + ROFF_TEXT(text) + "\\fR"; }
std::string ITALIC(std::string_view text) { return "\\fI" + ROFF_TEXT(text) + "\\fR"; }

// "a := name x" for a function, "name x" for a procedure.
std::string HEAD_OF(const REFERENCE_ENTRY &entry) {
    std::string head;
    if (entry.kind == COMMAND_KIND::FUNCTION) head = ITALIC("target") + " := ";
    head += BOLD(entry.name);
    const std::string parameters = PARAMETER_SYNTAX(entry.parameters, ITALIC);
    if (!parameters.empty()) head += " " + parameters;
    if (entry.kind == COMMAND_KIND::LAMBDA) head += " (value)";
    if (entry.kind == COMMAND_KIND::PROPERTY) head += " (also a function)";
    return head;
}

void LIST_UNITS(const std::vector<PARAMETER_SEQUENCE> &choices, std::vector<std::string> &units) {
    for (const PARAMETER_SEQUENCE &choice : choices)
        for (const PARAMETER_PART &part : choice) {
            if (part.GROUP())
                LIST_UNITS(part.choices, units);
            else
                units.push_back(ITALIC(part.name) + ": " + ROFF_TEXT(part.kind) +
                                (part.unit.empty() ? "" : " " + ROFF_TEXT(part.unit)));
        }
}

std::string ENTRY_TEXT(const REFERENCE_ENTRY &entry) {
    std::string text = ".TP\n" + HEAD_OF(entry) + "\n";
    std::vector<std::string> sentences;
    std::vector<std::string> units;
    LIST_UNITS(entry.parameters.choices, units);
    const std::string kinds = units.empty() ? "" : " (" + JOINED(units, ", ") + ")";
    if (!entry.note.empty()) sentences.push_back("\\&" + ROFF_TEXT(entry.note) + kinds);
    std::vector<std::string> names;
    for (const std::string &synonym : entry.synonyms)
        names.push_back(BOLD(synonym));
    if (!names.empty()) sentences.push_back("Also " + JOINED(names, ", "));
    return text + (sentences.empty() ? "\\&" : JOINED(sentences, ".\n")) + ".\n";
}

std::string OPTION_TEXT(const REFERENCE_OPTION &option) {
    std::string text = ".TP\n";
    if (option.isSwitch)
        text += BOLD("+" + option.name) + ", " + BOLD("-" + option.name + "=off");
    else
        text += BOLD("-" + option.name) + "=" + ITALIC(option.range.empty() ? "value" : "number");
    text += "\n\\&" + ROFF_TEXT(option.legend);
    if (!option.range.empty()) text += " (" + ROFF_TEXT(option.range) + ")";
    if (!option.standard.empty()) text += "; default " + BOLD(option.standard);
    if (!option.values.empty()) text += "; one of " + ROFF_TEXT(JOINED(option.values, ", "));
    return text + ".\n";
}

std::string OPTIONS_TEXT(const REFERENCE &reference) {
    std::string text = ".SH OPTIONS\n"
                       "An option is given as \\fB\\-name=value\\fR or \\fB\\-name value\\fR. "
                       "Every option given, known\n"
                       "or not, is the variable \\fBparameter.name\\fR of the macro.\n";
    for (const REFERENCE_WORD &word : reference.words) {
        text += ".TP\n" + BOLD(word.word);
        if (!word.argument.empty()) text += " " + ITALIC(word.argument);
        text += "\n\\&" + ROFF_TEXT(word.note) + ".\n";
    }
    std::string topic;
    for (const REFERENCE_OPTION &option : reference.options) {
        if (option.topic != topic) text += ".SS " + ROFF_TEXT(option.topic) + "\n";
        topic = option.topic;
        text += OPTION_TEXT(option);
    }
    return text;
}

constexpr std::string_view HEAD =
    ".SH NAME\n"
    "morvane \\- quantitative analysis of images and volumes by a macro\n"
    ".SH SYNOPSIS\n"
    ".B morvane\n"
    "[\\fIoptions\\fR] [\\fImacro\\fR]\n"
    ".br\n"
    ".B morvane help\n"
    "[\\fIname\\fR]\n"
    ".br\n"
    ".B morvane \\-\\-check\n"
    "\\fImacro\\fR\n"
    ".SH DESCRIPTION\n"
    "\\fBmorvane\\fR runs one macro from its first line to its last. The macro loads two\\- and\n"
    "three\\-dimensional data from microscopy, computed tomography and magnetic resonance "
    "imaging,\n"
    "filters and measures them, finds the direction of structure at each voxel, traces "
    "streamlines,\n"
    "and writes fields, lines and text tables. Results do not depend on the number of threads, "
    "and\n"
    "random numbers follow a seed.\n"
    ".PP\n"
    "Without a macro, and without a file \\fImorvane.macro\\fR in the current directory, the "
    "program\n"
    "writes its own command reference under that name and ends.\n";

constexpr std::string_view LANGUAGE =
    ".SH THE LANGUAGE\n"
    "A line is a command and its parameters, parted by blanks. A line that begins with //, # or "
    "%,\n"
    "and everything behind a blank and //, is a comment, also inside quotes.\n"
    ".TP\n"
    "\\fIname\\fR := \\fIvalue ...\\fR\n"
    "An assignment; all values are texts. Other operators between name and values: @OPERATORS@.\n"
    ".TP\n"
    "\\(dqtext\\(dq, \\(aqtext\\(aq\n"
    "A text with blanks in it. A blank also parts nothing inside ( ), < >, [ ] and { }.\n"
    ".TP\n"
    "<1, 2, 3>\n"
    "A vector.\n"
    ".TP\n"
    "@\\fIname\\fR\n"
    "The value of a variable inside a longer word or a text.\n"
    ".TP\n"
    "\\fIname\\fR[2]\n"
    "The second element of a list; [0] is the count of elements.\n"
    ".PP\n"
    "Blocks close with \\fBend\\fR. A test sets a flag, which \\fBthen\\fR and \\fBelse\\fR read. "
    "Names are\n"
    "compared without regard to case.\n";

constexpr std::string_view TAIL =
    ".SH FILES\n"
    ".TP\n"
    ".I morvane.macro\n"
    "The macro that runs when none is named; the command reference when there is none.\n"
    ".TP\n"
    ".I morvane.ini\n"
    "Options, one name=value a line, read from the current directory. The command line wins.\n"
    ".SH EXIT STATUS\n"
    ".TP\n"
    ".B 0\n"
    "The run came to its end, also when the macro stopped with a report.\n"
    ".TP\n"
    ".B 1\n"
    "The options were asked for; with \\fB+status\\fR: the macro stopped with a report.\n"
    ".TP\n"
    ".B 2\n"
    "\\fB\\-\\-check\\fR found something, or got no file.\n"
    ".TP\n"
    ".I n\n"
    "The macro said \\fBhalt\\fR \\fIn\\fR.\n"
    ".SH EXAMPLES\n"
    "Run a macro on a volume, with the same random numbers each time:\n"
    ".PP\n"
    ".RS 4\n"
    ".nf\n"
    "morvane \\-seed=1 \\-scalar.input=block.nii.gz fibres.macro\n"
    ".fi\n"
    ".RE\n"
    ".PP\n"
    "A macro that loads a volume and saves streamlines:\n"
    ".PP\n"
    ".RS 4\n"
    ".nf\n"
    "scalar.load scalar.input\n"
    "scalar.diffusion 8\n"
    "vector.stream.random 1000\n"
    "line.save tracts.trk\n"
    ".fi\n"
    ".RE\n"
    ".SH SEE ALSO\n"
    "The language with examples: \\fIlanguage.md\\fR; all commands as a page: \\fIcommands.md\\fR; "
    "both lie\n"
    "in the folder of the documents, examples in \\fIshare/morvane/examples\\fR.\n";
} // namespace

std::string MAN_PAGE(const REFERENCE &reference) {
    std::string page = ".\\\" Made by tools/reference_writer; edit the rows, not this page.\n"
                       ".TH MORVANE 1 \"\" \"morvane " +
                       reference.version + "\" \"User Commands\"\n.nh\n.ad l\n";
    page += HEAD;
    page += OPTIONS_TEXT(reference);
    std::vector<std::string> operators(reference.operators.begin() + 1, reference.operators.end());
    page += REPLACED(LANGUAGE, "@OPERATORS@", ROFF_TEXT(JOINED(operators, " ")));
    page += ".SH KEYWORDS\n";
    for (const REFERENCE_ENTRY &entry : reference.keywords)
        page += ENTRY_TEXT(entry);
    page +=
        ".SH COMMANDS\n"
        "A function gives its target a value or makes a field of that name; what is marked as a\n"
        "value stands wherever a parameter may.\n";
    for (const REFERENCE_SECTION &section : reference.sections) {
        page += ".SS " + ROFF_TEXT(section.title) + "\n";
        for (const REFERENCE_ENTRY &entry : section.entries)
            page += ENTRY_TEXT(entry);
    }
    return page + std::string(TAIL);
}
} // namespace morvane
