#pragma once

#include "foundation/console/console.hpp"

#include <string>

namespace morvane {
// Takes the console's text while it lives; interaction is off, so nothing waits for an answer.
class CAPTURE {
public:
    CAPTURE() : oldInteraction(INTERACTION), oldVerbose(VERBOSE) {
        INTERACTION = false;
        VERBOSE = true;
        SETSINK(
            [](std::string_view utf8, void *self) { static_cast<CAPTURE *>(self)->text += utf8; },
            this);
    }
    ~CAPTURE() {
        SETSINK(nullptr, nullptr);
        INTERACTION = oldInteraction;
        VERBOSE = oldVerbose;
    }
    CAPTURE(const CAPTURE &) = delete;
    CAPTURE &operator=(const CAPTURE &) = delete;

    const std::string &TEXT() const { return text; }
    void CLEAR() { text.clear(); }
    bool CONTAINS(std::string_view part) const { return text.find(part) != std::string::npos; }

private:
    std::string text;
    bool oldInteraction, oldVerbose;
};
} // namespace morvane
