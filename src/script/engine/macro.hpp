#pragma once

#include "foundation/console/files.hpp"
#include "script/engine/command_row.hpp"
#include "script/engine/command_table.hpp"
#include "script/engine/constant_table.hpp"
#include "script/engine/frame.hpp"
#include "script/engine/script_line.hpp"
#include "script/file/file_command.hpp"

#include <memory>
#include <vector>

namespace morvane {
// What an embedding program may switch off or bound; everything is on and unbounded by default.
struct ENGINE_SWITCHES {
    bool EXECUTE = true; // `execute` starts processes
    bool FILES = true;   // output files, includes and file tests reach the disk
    NAT LINES = 0;       // a run ends with a report after so many lines; 0: never
};

// An evaluated parameter and its kind byte.
struct PARAMETER_VALUE {
    UTF16 text;
    BYTE kind = 0;
};

// The interpreter of the macro language. Every value is a text; positions in all lists start at 1.
// Single-threaded: only its handlers start workers, and no worker enters it.
class TMACRO {
public:
    TMACRO();
    ~TMACRO();
    TMACRO(const TMACRO &) = delete;
    TMACRO &operator=(const TMACRO &) = delete;

    void INIT(); // the state of a new engine: no commands, no constants, no script
    void DONE(); // closes what is open and frees the script

    // The line in progress, as handlers see it.
    UTF16 NAMESPACE;          // put before each name at registration
    UTF16 STATUS;             // text of the last failure, empty when none
    UTF16 COMMAND;            // lower-cased command of the current line
    UTF16 COMMAND_RESULT_VAR; // name that receives the result, or empty; a handler that dealt with
                              // the target itself clears it
    UTF16 COMMAND_RESULT;     // value that the current line produced
    bool verbose = true;      // the trace; `debug` and `debug.no`
    bool stop = false;        // ends all line loops
    COMPLEXNAT parallelPosition{0, 0}; // (index, count) in a group of runs, (0,0) when alone
    UTF16 outputSeparator;             // of store blocks, set by `store.space`
    void (*lineHook)(const TFILECOMMAND &script) = nullptr; // called before each line
    ENGINE_SWITCHES switches;
    // How `halt` ends the process; a test may catch it here. The script stops when it returns.
    static void (*EXIT)(int status);

    // Registration; names are lowered and get the NAMESPACE in front. Rows stay reachable through
    // GETCOMMAND, and the engine checks their count rule before it calls a handler.
    void REGISTER(const COMMAND_SET &set);
    void REGISTER(const COMMAND_ROW &row);
    void PUTPROCEDURE(const UTF16 &name, void (*handler)());
    void PUTPROCEDURE(const UTF16 &name, HANDLER handler);
    void PUTFUNCTION(const UTF16 &name, HANDLER handler);
    void PUTLAMBDA(const UTF16 &name, HANDLER handler);
    void PUTPROPERTY(const UTF16 &name, HANDLER setter, HANDLER getter);
    void SETNAMESPACE(const UTF16 &prefix);
    void RESETNAMESPACE();
    void PUTMODULE();
    // The one way into the command table; name, kind, handlers and start line come in the entry.
    void _PUTCOMMAND(const UTF16 &name, NAT scope, COMMAND_ENTRY entry);
    static UTF16 _COMMANDERROR(const UTF16 &name); // tells of a blank and gives a point for it

    // The built-in modules; defined by script/module.
    void USE_ALL();
    void USE_CORE();
    void USE_CLOCK();
    void USE_LIST();
    void USE_MATH();
    void USE_IO();
    void USE_BINARY();
    void USE_TEXT();
    void USE_XML();
    void USE_TABLE();
    void USE_COLOR();
    void USE_DUMP();

    // Running. A script is loaded between two runs, not by a line of the one that runs.
    bool LOAD(const UTF16 &file);
    bool LOADTEXT(std::string_view utf8, const UTF16 &name = "macro"); // a script from memory
    void SINGLERUN(); // needs lines and at least one command
    void RUN();       // needs lines
    void CLEAR();     // back to the state after registration
    bool RUNNING() const { return running; }
    const TFILECOMMAND &SCRIPT() const { return script; }
    NAT CURRENTLINE() const { return currentLine; }
    NAT SCOPELEVEL() const { return scopeLevel; }

    // Parameters of the line in progress.
    NAT PARAMETERLENGTH() const { return static_cast<NAT>(parameters.size()); }
    UTF16 GETPARAMETER(NAT index);     // outside 1..PARAMETERLENGTH: a failure, and empty
    UTF16 GETPARAMETER_RAW(NAT index); // by the raw rules, the same failure
    UTF16 GETPARAMETER_ERRORFREE(NAT index) const; // empty where there is none
    BYTE GETPARAMETERKIND(NAT index) const;
    bool CHECKPARAMETER(NAT count); // while running: PARAMETERERROR and false unless so many

    // Constants, the language's word for variables.
    void PUTCONSTANT(const UTF16 &name, const UTF16 &value);
    void PUTCONSTANT_SCOPE(const UTF16 &name, const UTF16 &value, NAT scope);
    // For the block about to open; the count of entries of that name.
    NAT PUTCONSTANT_NEXTSCOPE(const UTF16 &name, const UTF16 &value);
    NAT PUTCONSTANT_NEXTSCOPE(const NAME_REF &name, CONSTANT_VALUE value);
    NAT SEARCHCONSTANT(const UTF16 &name) const {
        return constants.SEARCH(name);
    }                                                // newest; 0: none
    UTF16 GETCONSTANTVALUE(const UTF16 &name) const; // or empty
    // Cuts "[n]" from the end of a name; with n above 0 the value becomes the old one with its n-th
    // tab-separated element replaced.
    void _CHECKFIELD(UTF16 &name, UTF16 &value) const;

    // Reading the tables.
    NAT COMMANDLENGTH() const { return commands.LENGTH(); }
    const COMMAND_ENTRY &GETCOMMAND(NAT index) const { return commands.GET(index); }
    NAT CONSTANTLENGTH() const { return constants.LENGTH(); }
    const CONSTANT_ENTRY &GETCONSTANT(NAT index) const { return constants.GET(index); }
    NAT MODULELENGTH() const { return static_cast<NAT>(modules.size()); }
    COMPLEXNAT GETMODULE(NAT index) const; // (constant count, scope)
    UTF16 GETSCOPEKIND(NAT level) const;   // name of the block opened from that level
    NAT REDOLENGTH() const { return static_cast<NAT>(redo.size()); }
    UTF16 GETREDO(NAT index) const;
    NAT UNDOLENGTH() const { return static_cast<NAT>(undo.size()); }
    UTF16 GETUNDO(NAT index) const;

    // The `with` prefixes. GETALLWITH joins the first n with points; empty when there are not so
    // many.
    void PUTWITH(const UTF16 &name);
    NAT WITHLENGTH() const { return static_cast<NAT>(withs.size()); }
    UTF16 GETWITH(NAT index) const;
    NAT GETWITHSCOPE(NAT index) const;
    UTF16 GETALLWITH(NAT count) const;

    // Output files. The newest one is where a script's text goes while IFOUTPUT holds.
    bool PUTOUTPUT(const UTF16 &name, bool append = false); // false: told why, and nothing opened
    bool IFOUTPUT() const { return !outputs.empty(); }
    FILE_TEXT &OUTPUTFILE(); // a closed file while IFOUTPUT does not hold
    NAT OUTPUTLENGTH() const { return static_cast<NAT>(outputs.size()); }
    UTF16 GETOUTPUT(NAT index) const;
    NAT GETOUTPUTSCOPE(NAT index) const;

    // Failures: each prints its report, keeps it in STATUS and sets stop.
    void ERROR(const UTF16 &text);
    void SYNTAXERROR(const UTF16 &text);
    void SYNTAX_PROCEDURE_ERROR(const UTF16 &text);
    void SYNTAX_BLOCK_ERROR(const UTF16 &text);
    void SYNTAX_AT_ERROR(const UTF16 &text);
    void SYNTAX_FUNCTION_ERROR(const UTF16 &text);
    void SYNTAX_LAMBDA_ERROR(const UTF16 &text);
    void PARAMETERERROR(NAT count);
    void MIN_PARAMETERERROR(NAT count);
    void MAX_PARAMETERERROR(NAT count);
    // "In line N (F)." and the text, then stop: for `stop`, `break` and their like.
    void STOPSCRIPT(const UTF16 &text);
    UTF16 LINEPLACE() const; // "N (F)": the real line and file of the current line

    // Look-up, newest first, exact and then by English number forms; 0 when there is none.
    NAT SEARCH_BLOCK_PROCEDURE_COMMAND(UTF16 &name, bool repair);
    NAT SEARCH_FUNCTION_COMMAND(const UTF16 &name);
    NAT SEARCH_LAMBDA_COMMAND(const UTF16 &name);
    bool REPAIR_COMMAND(UTF16 &name); // asks for another line; true with the new command's name

    // Evaluation.
    void _GETPARAMETER_WITH_CONSTANTS(const UTF16 &line);
    void _EVALUATE(const LINE_PART &part); // the remainder of a prepared line
    UTF16 _REPLACE_AT_CONSTANTS(const UTF16 &text);
    UTF16 _REPLACE_CONSTANTS(const UTF16 &text) const { return constants.REPLACE(text); }
    // The remainder's parameters as they are written, after `@` replacement: names to declare.
    std::vector<UTF16> _WRITTENNAMES(const LINE_PART &part);
    std::vector<TOKEN> _WRITTENTOKENS(const LINE_PART &part);       // the same with their kinds
    UTF16 _JOINPARAMETERS(NAT first, const UTF16 &separator) const; // first..PARAMETERLENGTH

    // The line loop and what the handlers of the block keywords share.
    NAT _RUNBLOCK(NAT line, bool process); // the line at which it ended
    void LEAVESCOPE();
    void _OPENBLOCK(std::string_view kind); // names the block about to open
    void _BLOCK_PROCEDURE_CHECK_LISTE(BLOCK_FRAME &frame, UTF16 name);
    bool _FUNCTION_CHECK_LISTE(const UTF16 &name);
    bool _LAMBDA_CHECK_LISTE(const UTF16 &name);
    void _INCLUDE(NAT line, const UTF16 &file); // the file's text in place of the line
    // The same for the frame's line, which is then carried out anew; a failure stops the script.
    void _IMPORT(BLOCK_FRAME &frame, const UTF16 &file);
    // A trace line: two blanks, the command, and each parameter with "|" behind it.
    enum class TRACE_COLOUR : BYTE { PROCEDURE, ASSIGNMENT };
    void _TRACE(const UTF16 &command, TRACE_COLOUR colour) const; // with the parameters
    void _TRACE(const UTF16 &command, TRACE_COLOUR colour, const UTF16 &text) const;

    // Names that the engine itself sets at every pass of a loop.
    struct LOOP_NAMES {
        NAME_REF forLength, forRest, forCount, forRelative, forRelativ;
        NAME_REF parallelLength, parallelCount, parallelRelativ;
        NAME_REF condition, parameter, result;
    };
    const LOOP_NAMES &NAMES() const { return loopNames; }

private:
    struct SCOPED_NAME {
        UTF16 name;
        NAT scope = 0;
    };
    struct OUTPUT_SLOT {
        UTF16 name;
        NAT scope = 0;
        std::unique_ptr<FILE_TEXT> file;
    };

    void Run();
    void Shift(NAT line, NAT count);
    void TellNearest(const UTF16 &name, unsigned groups);
    bool EnterScope();
    bool SpendLine();
    NAT ProcessBlock(NAT line);
    NAT SkipBlock(NAT line);
    bool IsStored() const;
    bool NextLine(BLOCK_FRAME &frame);
    bool Inline(BLOCK_FRAME &frame);
    bool TakeCondition(BLOCK_FRAME &frame, bool holds, const LINE_PART &line);
    bool OpensSkipped(const LINE_PART &part);
    void EndBlock(const LINE_PART &part);
    NAT Lookup(const LINE_PART &part, unsigned groups);
    void Assign(BLOCK_FRAME &frame);
    void AssignValue(const LINE_PART &expression);
    void StoreResult(const LINE_PART &part);
    void CallProcedure(BLOCK_FRAME &frame);
    void CallEntry(BLOCK_FRAME &frame, NAT index, const UTF16 &name);
    void CallFunction(NAT index, const UTF16 &name);
    bool CountIsRight(const COMMAND_ENTRY &entry);
    void PassParameters();

    void PutValue(const UTF16 &name, const UTF16 &value, NAT scope);
    void PutNamed(const NAME_REF &name, const UTF16 &value, NAT scope);
    void CutText(const UTF16 &line, TOKENS &tokens, bool keepNames);
    void CutTokens(UTF16 line, bool raw, TOKENS &tokens, bool keepNames);
    bool Classify(TOKEN &token, UTF16 &line, bool raw, bool first);
    void ClassifyWord(TOKEN &token, bool first);
    void CountUses(const TOKENS &tokens);
    void ReplaceAll(const TOKENS &tokens);
    UTF16 ReplaceToken(const TOKEN &token);
    UTF16 ReplaceElements(const UTF16 &text) const;
    UTF16 ReadElement(const UTF16 &text) const;

    void Fail(std::string_view first, const UTF16 &text, std::string_view tail, bool wholeLine);
    void FailCount(std::string_view text, bool withPlace);

    NAME_TABLE names; // first: the others hold names of it
    COMMAND_TABLE commands{names};
    CONSTANT_TABLE constants{names};
    LOOP_NAMES loopNames;
    NAT scopeLevel = 0;
    std::vector<std::string_view> scopeKinds;
    std::vector<SCOPED_NAME> withs;
    std::vector<OUTPUT_SLOT> outputs;
    FILE_TEXT noOutput;
    std::vector<COMPLEXNAT> modules;
    TFILECOMMAND script;
    SCRIPT_LINES lines;
    NAT currentLine = 0;
    NAT linesLeft = 0;
    NAT includes = 0;
    std::vector<BLOCK_FRAME *> frames; // of the blocks in progress, the outermost first
    bool running = false;
    std::vector<PARAMETER_VALUE> parameters, rawParameters;
    bool rawShared = false; // the raw list is the evaluated one
    std::vector<UTF16> redo, undo;
};
} // namespace morvane
