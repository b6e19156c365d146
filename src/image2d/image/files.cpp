#include "image2d/image/files.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/paths.hpp"
#include "image2d/format/external.hpp"
#include "image2d/format/formats.hpp"

namespace morvane {
namespace {
// The order of codecs: the external libraries, each if it is in use, then the own ones.
template <class CANVAS> bool LoadByCodecs(CANVAS &canvas, const UTF16 &name) {
    return EXTERNAL_LOAD(canvas, name) || LOAD(canvas, name);
}

template <class CANVAS> bool SaveByCodecs(const CANVAS &canvas, const UTF16 &name) {
    return EXTERNAL_SAVE(canvas, name) || SAVE(canvas, name);
}

// read(canvas) into a new canvas of that kind, which becomes the image's.
template <class READ> bool Load(TIMAGE &image, BYTE id, const UTF16 &name, READ read) {
    TIMAGE loaded(id);
    if (loaded.ID() == 0) {
        WRITELN("Unknown imagefield!");
        return false;
    }
    const bool done = loaded._DISPATCH(read);
    image.TAKE(loaded);
    image.SETFRAME(FRAME());
    image.NAME = done ? name : UTF16();
    return done;
}
} // namespace

bool LOAD(TIMAGE &image, BYTE id, const UTF16 &name) {
    WRITELN("Read file (" + GETUTF8(GETMESSAGEDIR(name)) + ").");
    return Load(image, id, name, [&](auto &canvas) { return LoadByCodecs(canvas, name); });
}

bool LOADPNM(TIMAGE &image, BYTE id, const UTF16 &name) {
    return Load(image, id, name, [&](auto &canvas) {
        if constexpr (requires { LOADPNM(canvas, name); })
            return LOADPNM(canvas, name);
        else
            return TELL_UNREAD(name);
    });
}

bool LOADBMP(TIMAGE &image, BYTE id, const UTF16 &name) {
    return Load(image, id, name, [&](auto &canvas) {
        if constexpr (requires { LOADBMP(canvas, name); })
            return LOADBMP(canvas, name);
        else
            return TELL_UNREAD(name);
    });
}

bool LOADIMGF(TIMAGE &image, BYTE id, const UTF16 &name) {
    return Load(image, id, name, [&](auto &canvas) {
        if constexpr (requires { LOADIMGF(canvas, name); })
            return LOADIMGF(canvas, name);
        else
            return TELL_UNREAD(name);
    });
}

bool LOADRGB(TIMAGE &image, BYTE id, const UTF16 &name) {
    return Load(image, id, name, [&](auto &canvas) {
        if constexpr (requires { LOADRGB(canvas, name); })
            return LOADRGB(canvas, name);
        else
            return TELL_UNREAD(name);
    });
}

bool LOADRAW(TIMAGE &image, BYTE id, const UTF16 &name, NAT width, NAT height, NAT header) {
    return Load(image, id, name, [&](auto &canvas) {
        if constexpr (requires { LOADRAW(canvas, name, width, height, header); })
            return LOADRAW(canvas, name, width, height, header);
        else
            return TELL_UNREAD(name);
    });
}

bool SAVE(const TIMAGE &image, const UTF16 &name) {
    WRITELN("Write file (" + GETUTF8(GETMESSAGEDIR(name)) + ").");
    if (image.ID() == 0) WRITELN("Unknown imagefield!");
    return image._DISPATCH([&](const auto &canvas) { return SaveByCodecs(canvas, name); });
}
} // namespace morvane
