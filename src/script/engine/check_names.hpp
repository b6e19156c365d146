#pragma once

#include "script/engine/check_script.hpp"
#include "script/engine/macro.hpp"
#include "script/engine/nearest.hpp"

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace morvane {
// The names that a script may use: the program's commands and constants, and what the script
// declares and assigns itself, wherever it does so.
class CHECK_NAMES {
public:
    explicit CHECK_NAMES(const CHECK_PROGRAM &program);

    // KIND_PROCEDURE or KIND_FUNCTION; the name as it is written. `order` is that of the line when
    // the name holds from there to the end of the script, NEVER inside a block.
    static constexpr std::size_t NEVER = static_cast<std::size_t>(-1);
    void DECLARE(const UTF16 &name, BYTE kind, std::size_t order = NEVER);
    void ASSIGN(const UTF16 &name); // a variable; an element's name counts without its index
    // Files or names that only the run knows: unknown commands are then no findings.
    void OPEN() { open = true; }
    bool IS_OPEN() const { return open; }
    void WITH(const std::string &prefix);
    void WITH_UNKNOWN() { prefixUnknown = true; }

    // The entry of a name, of one of its number forms too; null for none.
    const COMMAND_ENTRY *PROCEDURE(const UTF16 &name) const;
    const COMMAND_ENTRY *FUNCTION(const UTF16 &name) const;
    const COMMAND_ENTRY *LAMBDA(const UTF16 &name) const;
    // Whether some `with` of the script makes a command of the bare name.
    bool WITH_PROCEDURE(const UTF16 &name) const;
    bool WITH_FUNCTION(const UTF16 &name) const;
    bool IS_COMMAND(const std::string &name) const { return exact.contains(name); } // of any kind
    // The same with the script's own commands that hold at a line.
    bool IS_TAKEN(const std::string &name, std::size_t order) const;
    bool IS_VARIABLE(const UTF16 &name) const;
    // Whether the name stands under a namespace of the program, as scalar.x does.
    bool IN_NAMESPACE(const std::string &name) const;

    // "; nearest: a, b", or what the name is when it was used as another kind; empty for nothing.
    std::string PROCEDURE_HINT(const UTF16 &name);
    std::vector<std::string> NEAREST_VALUES(const std::string &name); // functions and lambdas

    // The parameters as they are written, by the rules of the line; none of a line that is too long
    // to be looked into.
    std::vector<TOKEN> TOKENS_OF(const LINE_PART &part) const;
    // Whether they are those of the run: no "@" puts others among them.
    static bool IS_CERTAIN(const LINE_PART &part);
    // A text that stands in the script as it is at run time: no variable, no "@".
    bool IS_LITERAL(const TOKEN &token) const;

private:
    template <class SEARCH> const COMMAND_ENTRY *Entry(SEARCH search, const UTF16 &name) const;
    void BuildIndex(std::optional<NAME_INDEX> &index, unsigned groups) const;

    mutable TMACRO engine; // holds the table and the rules of cutting; runs nothing
    std::unordered_set<std::string> exact, variables, nameSpaces;
    std::unordered_map<std::string, std::size_t> declared; // from which line on
    std::set<std::string> prefixes;
    bool open = false, prefixUnknown = false;
    std::optional<NAME_INDEX> procedures, values;
    std::unordered_map<std::string, std::string> hints;
};
} // namespace morvane
