#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/io_error.hpp"
#include "foundation/console/paths.hpp"

#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace morvane {
namespace {
// The program, then the words of the text: blanks part them outside "" and ''; the quotes go away.
std::vector<std::string> Words(const std::string &program, const std::string &text) {
    std::vector<std::string> words{program};
    std::string word;
    char quote = 0;
    bool inside = false;
    for (const char c : text) {
        if (quote ? c == quote : c == '"' || c == '\'') {
            quote = quote ? '\0' : c;
            inside = true;
        } else if (c == ' ' && !quote) {
            if (inside) words.push_back(word);
            word.clear();
            inside = false;
        } else {
            word.push_back(c);
            inside = true;
        }
    }
    if (inside) words.push_back(word);
    return words;
}

// The signals that CONSOLE_START turned off stand as usual in the program that is started.
class START_ATTRIBUTES {
public:
    START_ATTRIBUTES() {
        ::posix_spawnattr_init(&attributes);
        sigset_t usual;
        ::sigemptyset(&usual);
        ::sigaddset(&usual, SIGPIPE);
        ::sigaddset(&usual, SIGXFSZ);
        ::posix_spawnattr_setsigdefault(&attributes, &usual);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    }
    START_ATTRIBUTES(const START_ATTRIBUTES &) = delete;
    START_ATTRIBUTES &operator=(const START_ATTRIBUTES &) = delete;
    ~START_ATTRIBUTES() { ::posix_spawnattr_destroy(&attributes); }
    posix_spawnattr_t *Get() { return &attributes; }

private:
    posix_spawnattr_t attributes;
};

// 0, or the errno value. A bare name that is no file here is looked for along the search path.
int Start(std::vector<std::string> &words, pid_t &process) {
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    START_ATTRIBUTES attributes;
    const int failed =
        ::posix_spawn(&process, arguments[0], nullptr, attributes.Get(), arguments.data(), environ);
    if (failed != ENOENT || words[0].find('/') != std::string::npos) return failed;
    return ::posix_spawnp(&process, arguments[0], nullptr, attributes.Get(), arguments.data(),
                          environ);
}
} // namespace

NAT EXEC(const UTF16 &program, const UTF16 &arguments) {
    std::vector<std::string> words = Words(SAVEPATH(program), GETUTF8(arguments));
    pid_t process = 0;
    if (const int failed = Start(words, process)) {
        SETSYSTEMRESULT(failed, words[0], false);
        IOERROR(program);
        return -1;
    }
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR) return -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

UTF16 GETEXECUTE(const UTF16 &name) {
    const UTF16 extension = LOWERCASE(GETFILEEXTENSION(name));
    const bool dropped = extension == UTF16("exe") || extension == UTF16("com");
    const UTF16 bare = dropped ? GETDIRFILENAME(name) : name;
    if (FILEEXISTS(bare)) return bare;
    for (const char *directory :
         {"/bin/", "/usr/bin/", "/usr/local/bin/", "/sbin/", "/usr/sbin/", "/usr/local/sbin/"})
        if (FILEEXISTS(UTF16(directory) + bare)) return UTF16(directory) + bare;
    const std::string line = "Possible wrong binary (" + GETUTF8(name) + ")!";
    WRITELN(COLOURS() ? "\033[91m" + line + "\033[0m" : line);
    return name;
}
} // namespace morvane
