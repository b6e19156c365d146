#include "foundation/console/console.hpp"

#include "foundation/base/time.hpp"

#include <algorithm>
#include <utility>

namespace morvane {
void (*OUTPUT_GUI)() = nullptr;
NAT OUTPUT_PLEASEWAIT = 0;
REAL OUTPUT_STATE = 0;
UTF16CHARS7 OUTPUT_PROGRESS;
UTF16CHARS7 OUTPUT_WRITE;

namespace {
constexpr NAT LINE_UNITS = 80;

TIME workStart;

// The log holds no status lines: it is off while a status routine runs.
class LOG_PAUSE {
public:
    LOG_PAUSE() : kept(std::exchange(LOGFILE, false)) {}
    LOG_PAUSE(const LOG_PAUSE &) = delete;
    LOG_PAUSE &operator=(const LOG_PAUSE &) = delete;
    ~LOG_PAUSE() { LOGFILE = kept; }

private:
    bool kept;
};

void CallHook() {
    if (OUTPUT_GUI) OUTPUT_GUI();
}

// "a of b": the time of this work and of the whole run.
UTF16 Times() { return GETSTRING(GETSYSTEMTIME() - workStart) + " of " + GETSTRING(GETDIV()); }

void StartWork(const UTF16CHARS7 &title) {
    GETLASTDIV(); // restarts the clock of the last reading
    CHECKTIME();  // the first update comes in another second
    workStart = GETSYSTEMTIME();
    OUTPUT_PROGRESS = title;
}

// At most 80 units, then blanks over what the former line leaves visible.
UTF16 Fitted(const UTF16 &line, NAT formerLength) {
    const UTF16 shown = COPY(line, 1, LINE_UNITS);
    const NAT blanks = std::min(formerLength, LINE_UNITS) - shown.LENGTH();
    return blanks > 0 ? shown + UTF16(std::string(static_cast<std::size_t>(blanks), ' ')) : shown;
}

void ShowLine(const UTF16 &line) {
    const NAT formerLength = OUTPUT_WRITE.LENGTH();
    OUTPUT_WRITE = line;
    if (ISTERMINAL()) WRITE(Fitted(line, formerLength) + "\r");
}

// The last line of a work stays on the console, and nothing is left to be blanked out.
void CloseLine(const UTF16 &line) {
    const NAT formerLength = ISTERMINAL() ? OUTPUT_WRITE.LENGTH() : 0;
    WRITELN(Fitted(line, formerLength));
    OUTPUT_WRITE = UTF16CHARS7();
    OUTPUT_PROGRESS = UTF16CHARS7();
    CallHook();
}

const char *SpinnerEnding(NAT phase) {
    switch (phase) {
    case 2: return "). \\";
    case 3: return "). |";
    case 4: return "). /";
    default: return "). -";
    }
}
} // namespace

void PLEASEWAIT(const UTF16 &text) {
    const UTF16CHARS7 title(text);
    if (!(title == OUTPUT_PROGRESS)) {
        const LOG_PAUSE pause;
        StartWork(title);
        ShowLine("Please wait. " + text + " (" + GETSTRING(GETDIV()) + "). -");
        OUTPUT_PLEASEWAIT = 2;
        OUTPUT_STATE = 0.5;
        CallHook();
        return;
    }
    if (!CHECKTIME()) return;
    const LOG_PAUSE pause;
    ShowLine("Please wait. " + text + " (" + Times() + SpinnerEnding(OUTPUT_PLEASEWAIT));
    OUTPUT_PLEASEWAIT = OUTPUT_PLEASEWAIT >= 4 ? 0 : OUTPUT_PLEASEWAIT + 1;
    OUTPUT_STATE = static_cast<REAL>(OUTPUT_PLEASEWAIT) * 0.25;
    CallHook();
}

void PLEASEWAIT() {
    OUTPUT_STATE = 1;
    OUTPUT_PLEASEWAIT = 1;
    if (OUTPUT_PROGRESS.EMPTY()) return;
    const LOG_PAUSE pause;
    CloseLine("Please wait ready. " + OUTPUT_PROGRESS.GET() + " (" + Times() + ").");
}

void PROGRESS(const UTF16 &text, REAL share) {
    OUTPUT_STATE = share >= 0 ? std::min(share, 1.0) : 0; // a share that is no number is 0 too
    OUTPUT_PLEASEWAIT = 1;
    const UTF16CHARS7 title(text);
    if (!(title == OUTPUT_PROGRESS)) {
        const LOG_PAUSE pause;
        StartWork(title);
        ShowLine(text + ". 0 % ready (" + Times() + ").");
        CallHook();
        return;
    }
    if (!CHECKTIME()) return;
    const LOG_PAUSE pause;
    ShowLine(text + ". " + GETSTRING(OUTPUT_STATE * 100, 2) + " % ready (" + Times() + ").");
    CallHook();
}

void PROGRESS() {
    OUTPUT_STATE = 1;
    OUTPUT_PLEASEWAIT = 1;
    if (OUTPUT_PROGRESS.EMPTY()) return;
    const LOG_PAUSE pause;
    CloseLine(OUTPUT_PROGRESS.GET() + ". 100 % ready (" + Times() + ").");
}
} // namespace morvane
