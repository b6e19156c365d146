#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "geometry/format/backup.hpp"
#include "geometry/format/line_writer.hpp"
#include "geometry/model/cloud.hpp"

#include <vector>

namespace morvane {
namespace {
// The point without its trailing zeros, joined with tabs or in the brackets of its record.
std::string POINT_TEXT(const HYPER &p) {
    const int count = p.w != 0 ? 4 : p.z != 0 ? 3 : p.y != 0 ? 2 : 1;
    if (FORMAT.VECTOR) {
        if (count == 4) return GETUTF8(GETSTRING(p));
        if (count == 3) return GETUTF8(GETSTRING(VECTOR{p.x, p.y, p.z}));
        if (count == 2) return GETUTF8(GETSTRING(COMPLEX{p.x, p.y}));
        return GETUTF8(GETSTRING(p.x));
    }
    std::string text = GETUTF8(GETSTRING(p.x));
    if (count > 1) text += "\t" + GETUTF8(GETSTRING(p.y));
    if (count > 2) text += "\t" + GETUTF8(GETSTRING(p.z));
    if (count > 3) text += "\t" + GETUTF8(GETSTRING(p.w));
    return text;
}

void WRITE_OBJECT(LINE_WRITER &out, const TCLOUD &cloud, NAT object) {
    const NAT lines = cloud.GETOBJECTLINELENGTH(object);
    for (NAT line = 1; line <= lines; ++line) {
        for (const HYPER &point : cloud.GETSPAN(cloud.GETOBJECTLINE(object, line)))
            out << POINT_TEXT(point) << '\n';
        const NAT material = cloud.GETMATERIAL(object, line);
        if (material > 0)
            out << "material:" << material << '\n';
        else if (line < lines)
            out << '\n';
    }
    out << "object:" << GETUTF8(cloud.GETNAME(object)) << '\n';
}

bool WRITE_OBJECTS(const TCLOUD &cloud, const UTF16 &name, const std::vector<NAT> &objects) {
    BACKUP backup(name);
    if (!backup.READY()) return false;
    LINE_WRITER out(name, {});
    if (!out.OPEN()) return backup.FINISH(false);
    for (const NAT object : objects)
        WRITE_OBJECT(out, cloud, object);
    return backup.FINISH(out.COMMIT());
}

// The directory that an object's name asks for: its parts up to the last separator. Steps upwards
// are left out, so that a name from a file never leads out of the target's directory.
UTF16 OBJECT_DIRECTORY(const UTF16 &objectName) {
    UTF16 rest = GETREPLACE(GETDIR(objectName), '\\', '/');
    UTF16 directory;
    while (!rest.EMPTY()) {
        const UTF16 part = SPLIT(rest, "/");
        if (part.EMPTY() || part == UTF16(".") || part == UTF16("..")) continue;
        directory += part + UTF16("/");
    }
    return directory;
}

// The file of one object with a path in its name: that directory below the target's, the rest of
// the name, its running number, and the extension of the target.
bool WRITE_OWN_FILE(const TCLOUD &cloud, const UTF16 &name, NAT object) {
    const UTF16 objectName = cloud.GETNAME(object);
    const UTF16 directory =
        COPY(name, 1, name.LENGTH() - GETFILE(name).LENGTH()) + OBJECT_DIRECTORY(objectName);
    if (!directory.EMPTY() && !HARDMKDIR(COPY(directory, 1, directory.LENGTH() - 1))) return false;
    const UTF16 extension = GETFILEEXTENSION(name);
    UTF16 file = GETFILE(objectName);
    file += UTF16("-" + PADDED(object, DIGITS(cloud.GETOBJECTLENGTH())));
    if (!extension.EMPTY()) file += UTF16(".") + extension;
    return WRITE_OBJECTS(cloud, directory + file, {object});
}
} // namespace

bool TCLOUD::SAVE(const UTF16 &name) {
    if (LENGTH < 1) return false;
    REPAIR("repaired");
    std::vector<NAT> together;
    bool isSaved = true;
    for (NAT object = 1; object <= GETOBJECTLENGTH(); ++object) {
        // Deliberate: an object with a path character in its name gets a file of its own.
        if (GETFILE(GETNAME(object)) == GETNAME(object))
            together.push_back(object);
        else
            isSaved = WRITE_OWN_FILE(*this, name, object) && isSaved;
    }
    return (together.empty() || WRITE_OBJECTS(*this, name, together)) && isSaved;
}
} // namespace morvane
