#pragma once

#include "foundation/base/utf16.hpp"

#include <cstdio>
#include <memory>

// Opening files. Every failure is told by IOERROR and gives false; every opening prints its line.
namespace morvane {
// An open byte or text file for reading; closed with the object.
class FILE_READ {
public:
    FILE_READ() = default;
    FILE_READ(const FILE_READ &) = delete;
    FILE_READ &operator=(const FILE_READ &) = delete;
    ~FILE_READ();
    bool OPEN() const { return handle != nullptr; }
    NAT SIZE() const { return size; }  // bytes, known from the open file
    NAT READ(void *target, NAT count); // bytes read; fewer at the end of the file
    bool SEEK(NAT position);           // from 0
    NAT POSITION() const;
    bool ATEND() const;
    void CLOSE();
    FILE *HANDLE() const { return handle; }

private:
    friend int OPENFILE(FILE_READ &file, const std::string &path);
    FILE *handle = nullptr;
    NAT size = 0;
};

// A gzip (or plain) stream for reading; its unpacked size is unknown before its end.
class GZ_READ {
public:
    GZ_READ() = default;
    GZ_READ(const GZ_READ &) = delete;
    GZ_READ &operator=(const GZ_READ &) = delete;
    ~GZ_READ();
    bool OPEN() const { return handle != nullptr; }
    NAT READ(void *target, NAT count); // bytes read; fewer at the end or at a broken stream
    bool SEEK(NAT position);
    // The stream was cut or damaged up to here; behind its last byte its checksum counts too.
    bool BROKEN() const;
    void CLOSE();

private:
    friend bool ASSIGNGZREAD(GZ_READ &file, const UTF16 &name);
    void *handle = nullptr;
    bool broken = false;
};

// A file under way: bytes go to a file beside the target, which takes its name at COMMIT, after a
// checked close. Without COMMIT, or after a failed write, the target stays as it was and the
// file beside it is removed. Gzip when the target was opened by ASSIGNGZWRITE.
class FILE_WRITE {
public:
    FILE_WRITE();
    FILE_WRITE(const FILE_WRITE &) = delete;
    FILE_WRITE &operator=(const FILE_WRITE &) = delete;
    ~FILE_WRITE();
    bool OPEN() const;
    bool WRITE(const void *bytes, NAT count); // false after any failure since opening
    bool WRITE(const char *text) { return WRITE(std::string_view(text)); }
    bool WRITE(std::string_view bytes) {
        return WRITE(bytes.data(), static_cast<NAT>(bytes.size()));
    }
    bool WRITELN(const UTF16 &text); // UTF-8 and a line feed
    bool COMMIT();                   // a failure is told by IOERROR and gives false
    void ABANDON();                  // tells a failed write that nobody has told

private:
    struct STATE;
    friend bool ASSIGNWRITE(FILE_WRITE &file, const UTF16 &name);
    friend bool OPENSILENT(FILE_WRITE &file, const UTF16 &name);
    friend bool ASSIGNGZWRITE(FILE_WRITE &file, const UTF16 &name, int level);
    static bool START(FILE_WRITE &file, const UTF16 &name);
    std::unique_ptr<STATE> state;
};

// A text file that a script keeps open: lines appear in it as they are written.
class FILE_TEXT {
public:
    FILE_TEXT() = default;
    FILE_TEXT(const FILE_TEXT &) = delete;
    FILE_TEXT &operator=(const FILE_TEXT &) = delete;
    ~FILE_TEXT();
    bool OPEN() const { return handle != nullptr; }
    bool WRITE(std::string_view utf8);
    bool FLUSH();
    void CLOSE(); // a failure is told by IOERROR

private:
    friend bool ASSIGNWRITE(FILE_TEXT &file, const UTF16 &name);
    friend bool ASSIGNAPPEND(FILE_TEXT &file, const UTF16 &name);
    bool START(const UTF16 &fileName, const char *mode);
    FILE *handle = nullptr;
    std::string name;
    int failure = 0; // errno of the first failed write
};

bool ASSIGNREAD(FILE_READ &file, const UTF16 &name);     // "Read file (path) with size (n)."
bool ASSIGNREADTEXT(FILE_READ &file, const UTF16 &name); // "Read file (path)."
bool OPENSILENT(FILE_READ &file, const UTF16 &name); // the same without any line, not even an error
bool ASSIGNGZREAD(GZ_READ &file, const UTF16 &name);
bool ASSIGNWRITE(FILE_WRITE &file, const UTF16 &name); // "Write file (path)."
bool OPENSILENT(FILE_WRITE &file, const UTF16 &name);  // the same, telling failures alone
bool ASSIGNGZWRITE(FILE_WRITE &file, const UTF16 &name, int level = 6);
bool ASSIGNWRITE(FILE_TEXT &file, const UTF16 &name);  // direct, truncates: a script's output file
bool ASSIGNAPPEND(FILE_TEXT &file, const UTF16 &name); // "Append file (path)."

// Removes the files of every FILE_WRITE that is under way; safe in a signal handler that ends the
// process.
void REMOVE_UNFINISHED();

bool DELETE(const UTF16 &name);
bool RENAME(const UTF16 &from, const UTF16 &to);
bool MKDIR(const UTF16 &path);
bool RMDIR(const UTF16 &path);
bool RENAMEDIR(const UTF16 &from, const UTF16 &to);
bool CHDIR(const UTF16 &path);
bool HARDMKDIR(const UTF16 &path); // with every missing directory above it
bool HARDCHDIR(const UTF16 &path);
NAT FILESIZE(const UTF16 &name); // -1: there is no such file
NAT FILEAGE(const UTF16 &name);  // seconds since 1970; -1: there is no such file
bool FILEEXISTS(const UTF16 &name);
NAT FILEATTR(const UTF16 &name); // the mode bits; -1: there is no such file
bool DIRECTORYEXISTS(const UTF16 &name);
// Runs a program without a shell and waits: its exit code, 128 and the signal that ended it, or -1
// when it cannot be started, which is told. Blanks part the arguments outside "" and ''.
NAT EXEC(const UTF16 &program, const UTF16 &arguments);
UTF16 GETEXECUTE(const UTF16 &name); // the full path of a bare program name

// Reads and clears the last input/output result (errno, mapped); true when there was an error,
// which is told with `name` in the described words.
bool IOERROR(const UTF16 &name);
void SETIORESULT(NAT code); // one of the codes of IOERROR's table
} // namespace morvane
