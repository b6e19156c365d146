#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace morvane {
// Runs work() in a child process, for what changes the whole process, and gives its result 0..255;
// -1 when the child did not end by itself.
template <class WORK> int IN_CHILD(WORK work) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(work());
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return -1;
    return WEXITSTATUS(status);
}
} // namespace morvane
