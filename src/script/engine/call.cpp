#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/blocks.hpp"

namespace morvane {
// What stands behind the target and the operator of an assignment decides: a function, a function
// under the with prefixes, or an expression.
void TMACRO::AssignValue(const LINE_PART &expression) {
    const LINE_PART &value = expression.NEXT();
    if (Lookup(value, FUNCTIONS) > 0) {
        _EVALUATE(value);
        if (!stop) _FUNCTION_CHECK_LISTE(value.word);
        return;
    }
    if (WITHLENGTH() > 0) {
        const UTF16 name = GETALLWITH(WITHLENGTH()) + "." + value.word;
        if (SEARCH_FUNCTION_COMMAND(name) > 0) {
            _EVALUATE(value);
            if (!stop) _FUNCTION_CHECK_LISTE(name);
            return;
        }
    }
    _EVALUATE(expression);
    COMMAND_RESULT = _JOINPARAMETERS(1, {});
    _TRACE(COMMAND_RESULT_VAR, TRACE_COLOUR::ASSIGNMENT, COMMAND + "|" + COMMAND_RESULT);
}

// Deliberate: inside with every procedure gets the prefix, also one that is known without it.
void TMACRO::CallProcedure(BLOCK_FRAME &frame) {
    const LINE_PART &part = *frame.part;
    _EVALUATE(part);
    if (stop) return;
    if (WITHLENGTH() > 0)
        return _BLOCK_PROCEDURE_CHECK_LISTE(frame, GETALLWITH(WITHLENGTH()) + "." + part.word);
    if (const NAT index = Lookup(part, PROCEDURES); index > 0)
        return CallEntry(frame, index, part.word);
    _BLOCK_PROCEDURE_CHECK_LISTE(frame, part.word);
}

void TMACRO::_BLOCK_PROCEDURE_CHECK_LISTE(BLOCK_FRAME &frame, UTF16 name) {
    const NAT index = SEARCH_BLOCK_PROCEDURE_COMMAND(name, INTERACTION);
    // The two keywords reach this place only as the answer to the question of a repair.
    if (index == 0 && name == "halt") return HALT(*this);
    if (index == 0 && name == "break") return BREAK(*this);
    if (index == 0) return SYNTAX_PROCEDURE_ERROR(name);
    CallEntry(frame, index, name);
}

void TMACRO::CallEntry(BLOCK_FRAME &frame, NAT index, const UTF16 &name) {
    // Copies: a handler may register commands and so move the table.
    const CALLABLE open = commands.GET(index).open, close = commands.GET(index).close;
    const NAT startLine = commands.GET(index).startLine;
    if (commands.GET(index).GROUP() == KIND_BLOCK) {
        if (!open || !close || startLine > 0) return SYNTAX_BLOCK_ERROR(name);
        _TRACE(name, TRACE_COLOUR::PROCEDURE);
        open.CALL(this);
        frame.line = _RUNBLOCK(frame.line, true);
        close.CALL(this);
        return;
    }
    if (open) {
        _TRACE(name, TRACE_COLOUR::PROCEDURE);
        if (CountIsRight(commands.GET(index))) open.CALL(this);
        return;
    }
    if (startLine == 0) return SYNTAX_PROCEDURE_ERROR(name);
    _TRACE(name, TRACE_COLOUR::PROCEDURE);
    PassParameters();
    _RUNBLOCK(startLine, true); // its end line is not taken over: control comes back here
}

bool TMACRO::_FUNCTION_CHECK_LISTE(const UTF16 &name) {
    const NAT index = SEARCH_FUNCTION_COMMAND(name);
    const bool callable =
        index > 0 && (commands.GET(index).open || commands.GET(index).startLine > 0);
    if (!callable) {
        SYNTAX_FUNCTION_ERROR(COMMAND_RESULT_VAR + " := " + name);
        return false;
    }
    CallFunction(index, name);
    return true;
}

// Deliberate: a script function returns through the constant result, one entry for all depths.
void TMACRO::CallFunction(NAT index, const UTF16 &name) {
    const CALLABLE open = commands.GET(index).open;
    const NAT startLine = commands.GET(index).startLine;
    _TRACE(COMMAND_RESULT_VAR + " := [" + name + "]", TRACE_COLOUR::ASSIGNMENT);
    if (open) {
        if (CountIsRight(commands.GET(index))) open.CALL(this);
        return;
    }
    const UTF16 target = COMMAND_RESULT_VAR;
    PUTCONSTANT("result", {});
    PassParameters();
    _RUNBLOCK(startLine, true);
    COMMAND_RESULT_VAR = target;
    COMMAND_RESULT = GETCONSTANTVALUE("result");
}

bool TMACRO::_LAMBDA_CHECK_LISTE(const UTF16 &name) {
    const NAT index = SEARCH_LAMBDA_COMMAND(name);
    if (index == 0 || !commands.GET(index).open) {
        SYNTAX_LAMBDA_ERROR(name);
        return false;
    }
    COMMAND_RESULT = {};
    const CALLABLE open = commands.GET(index).open;
    open.CALL(this);
    return true;
}

void TMACRO::PassParameters() {
    PUTCONSTANT_NEXTSCOPE(loopNames.parameter, CUT_TEXT(_JOINPARAMETERS(1, "\t")));
}

// The row's plain rule of the parameter count; a lambda and a getter have none.
bool TMACRO::CountIsRight(const COMMAND_ENTRY &entry) {
    if (!entry.row || entry.GROUP() == KIND_LAMBDA) return true;
    if (entry.row->kind == COMMAND_KIND::PROPERTY && entry.GROUP() == KIND_FUNCTION) return true;
    const COUNT_RULE rule = entry.row->count;
    const NAT count = PARAMETERLENGTH();
    switch (rule.kind) {
    case COUNT_RULE::KIND::EXACT:
        if (count != rule.count) PARAMETERERROR(rule.count);
        return count == rule.count;
    case COUNT_RULE::KIND::LEAST:
        if (count < rule.count) MIN_PARAMETERERROR(rule.count);
        return count >= rule.count;
    case COUNT_RULE::KIND::MOST:
        if (count > rule.count) MAX_PARAMETERERROR(rule.count);
        return count <= rule.count;
    default: return true;
    }
}
} // namespace morvane
