#pragma once

#include "foundation/base/number_text.hpp"
#include "script/engine/command_row.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>
#include <concepts>
#include <type_traits>

// Handlers that need no body of their own: a command that stores a setting, shows one, or calls
// an operation without parameters names the list and the member in its row.
namespace morvane {
// The limit of parallel threads that the script asks for, at least 1.
inline NAT THREAD_LIMIT(TMACRO *engine) {
    return std::max<NAT>(1, GETNAT(engine->GETCONSTANTVALUE("thread.max")));
}

// A parameter as the type of the setting that it is for.
template <class VALUE> VALUE SETTING_VALUE(const UTF16 &text) {
    if constexpr (std::same_as<VALUE, bool>)
        return GETBOOLEAN(text);
    else if constexpr (std::same_as<VALUE, BYTE>)
        return GETBYTE(text);
    else if constexpr (std::integral<VALUE>)
        return static_cast<VALUE>(std::clamp<NAT>(GETNAT(text), std::numeric_limits<VALUE>::min(),
                                                  std::numeric_limits<VALUE>::max()));
    else if constexpr (std::same_as<VALUE, REAL>)
        return GETREAL(text);
    else if constexpr (std::same_as<VALUE, COMPLEX>)
        return GETCOMPLEX(text);
    else if constexpr (std::same_as<VALUE, VECTOR>)
        return GETVECTOR(text);
    else if constexpr (std::same_as<VALUE, HYPER>)
        return GETHYPER(text);
    else if constexpr (std::same_as<VALUE, COMPLEXNAT>)
        return GETCOMPLEXNAT(text);
    else if constexpr (std::same_as<VALUE, VECTORNAT>)
        return GETVECTORNAT(text);
    else if constexpr (std::same_as<VALUE, HYPERNAT>)
        return GETHYPERNAT(text);
    else
        return VALUE(text);
}

template <auto *LIST, auto MEMBER> void SETTING_HANDLER(TMACRO *engine) {
    auto &member = LIST->CURRENT().*MEMBER;
    member =
        SETTING_VALUE<std::remove_cvref_t<decltype(member)>>(engine->GETPARAMETER_ERRORFREE(1));
}

template <auto *LIST, auto MEMBER> void SETTING_REF_HANDLER(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LIST->CURRENT().*MEMBER);
}

template <auto *LIST, auto METHOD> void ACTION_HANDLER(TMACRO *engine) {
    auto &field = LIST->CURRENT();
    if constexpr (std::invocable<decltype(METHOD), decltype(field)>)
        static_cast<void>((field.*METHOD)());
    else
        static_cast<void>((field.*METHOD)(THREAD_LIMIT(engine)));
}

template <auto *LIST, auto METHOD> void QUERY_HANDLER(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING((LIST->CURRENT().*METHOD)());
}

// Stores the parameter in a member of the current field; the row holds the count rule.
template <auto *LIST, auto MEMBER> constexpr HANDLER SETTING = &SETTING_HANDLER<LIST, MEMBER>;
// Shows a member of the current field.
template <auto *LIST, auto MEMBER>
constexpr HANDLER SETTING_REF = &SETTING_REF_HANDLER<LIST, MEMBER>;
// Calls a method of the current field; one that takes a NAT gets the thread limit.
template <auto *LIST, auto METHOD> constexpr HANDLER ACTION = &ACTION_HANDLER<LIST, METHOD>;
// Shows the answer of a method of the current field.
template <auto *LIST, auto METHOD> constexpr HANDLER QUERY = &QUERY_HANDLER<LIST, METHOD>;

// The list commands of one workspace as handlers.
template <auto *LIST> void USE_HANDLER(TMACRO *engine) { LIST->USE(engine); }
template <auto *LIST> void SWAP_HANDLER(TMACRO *engine) { LIST->SWAP(engine); }
template <auto *LIST> void NAME_HANDLER(TMACRO *engine) { LIST->NAME(engine); }
template <auto *LIST> void DUMP_HANDLER(TMACRO *) { LIST->DUMP(); }
// The kind of fields made from now on.
template <auto *LIST, BYTE KIND> void KIND_HANDLER(TMACRO *) { LIST->DEFAULTKIND = KIND; }
} // namespace morvane
