#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"

namespace morvane {
namespace {
COMMAND_ENTRY EntryOf(BYTE kind, HANDLER handler) {
    COMMAND_ENTRY entry;
    entry.kind = kind | KIND_WITH_ENGINE;
    entry.open.withEngine = handler;
    return entry;
}
} // namespace

UTF16 TMACRO::_COMMANDERROR(const UTF16 &name) {
    if (POS(" ", name) == 0) return name;
    WRITELN("Attention, wrong char ( ) inside command (" + name + ")!");
    return GETREPLACE(name, ' ', '.');
}

void TMACRO::_PUTCOMMAND(const UTF16 &name, NAT scope, COMMAND_ENTRY entry) {
    entry.name = names.INTERN(CUT_TEXT(NAMESPACE + _COMMANDERROR(LOWERCASE(name))));
    entry.scope = scope;
    const NAME_REF kept = entry.name;
    if (!commands.PUT(std::move(entry)))
        WRITELN("Attention double syntax member in this scope! (" + kept->text + ")");
}

void TMACRO::PUTPROCEDURE(const UTF16 &name, void (*handler)()) {
    COMMAND_ENTRY entry;
    entry.kind = KIND_PROCEDURE;
    entry.open.plain = handler;
    _PUTCOMMAND(name, 0, std::move(entry));
}

void TMACRO::PUTPROCEDURE(const UTF16 &name, HANDLER handler) {
    _PUTCOMMAND(name, 0, EntryOf(KIND_PROCEDURE, handler));
}

void TMACRO::PUTFUNCTION(const UTF16 &name, HANDLER handler) {
    _PUTCOMMAND(name, 0, EntryOf(KIND_FUNCTION, handler));
}

void TMACRO::PUTLAMBDA(const UTF16 &name, HANDLER handler) {
    _PUTCOMMAND(name, 0, EntryOf(KIND_LAMBDA, handler));
}

void TMACRO::PUTPROPERTY(const UTF16 &name, HANDLER setter, HANDLER getter) {
    PUTPROCEDURE(name, setter);
    PUTFUNCTION(name, getter);
}

void TMACRO::REGISTER(const COMMAND_ROW &row) {
    const bool property = row.kind == COMMAND_KIND::PROPERTY;
    COMMAND_ENTRY entry =
        EntryOf(property ? KIND_PROCEDURE : static_cast<BYTE>(row.kind), row.handler);
    entry.row = &row;
    _PUTCOMMAND(row.name, 0, std::move(entry));
    if (!property) return;
    entry = EntryOf(KIND_FUNCTION, row.getter);
    entry.row = &row;
    _PUTCOMMAND(row.name, 0, std::move(entry));
}

void TMACRO::REGISTER(const COMMAND_SET &set) {
    const UTF16 before = NAMESPACE;
    SETNAMESPACE(set.nameSpace);
    for (const COMMAND_ROW &row : set.rows)
        REGISTER(row);
    NAMESPACE = before;
}

void TMACRO::SETNAMESPACE(const UTF16 &prefix) { NAMESPACE = LOWERCASE(prefix); }
void TMACRO::RESETNAMESPACE() { NAMESPACE = {}; }
} // namespace morvane
