#pragma once

#include "foundation/console/console.hpp"

#include <string>

namespace morvane {
// Collects what goes to the console while it lives.
class CONSOLE_TEXT {
public:
    CONSOLE_TEXT() { SETSINK(&CONSOLE_TEXT::Take, this); }
    ~CONSOLE_TEXT() { SETSINK(nullptr, nullptr); }
    CONSOLE_TEXT(const CONSOLE_TEXT &) = delete;
    CONSOLE_TEXT &operator=(const CONSOLE_TEXT &) = delete;

    std::string text;
    bool Holds(std::string_view part) const { return text.find(part) != std::string::npos; }

private:
    static void Take(std::string_view utf8, void *context) {
        static_cast<CONSOLE_TEXT *>(context)->text += utf8;
    }
};
} // namespace morvane
