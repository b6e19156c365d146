#include "geometry/model/cloud.hpp"

#include "foundation/base/record_operators.hpp"

#include <utility>

namespace morvane {
void TCLOUD::INIT() {
    DONE();
    TPOLYHYPER::INIT();
}

void TCLOUD::DONE() {
    TPOLYHYPER::DONE();
    lineStarts.DONE();
    lineMaterials.DONE();
    objectStarts.DONE();
    objectNames.DONE();
    marks.DONE();
    offset = dimension = HZERO;
    scale = HNORM;
}

void TCLOUD::SOFTCLEAR() {
    NEWLENGTH(0);
    lineStarts.NEWLENGTH(0);
    lineMaterials.NEWLENGTH(0);
    objectStarts.NEWLENGTH(0);
    objectNames.NEWLENGTH(0);
    marks.NEWLENGTH(0);
    offset = dimension = HZERO;
    scale = HNORM;
}

void TCLOUD::NEWPOINT(const HYPER &point) {
    if (!LINEOPEN()) lineStarts.PUSH(1);
    PUSH(point);
}

void TCLOUD::NEWLINE(NAT material) {
    if (!LINEOPEN() || lineStarts.GET(lineStarts.LENGTH) > LENGTH) return;
    lineMaterials.PUSH(material);
    lineStarts.PUSH(LENGTH + 1);
}

void TCLOUD::NEWOBJECT(const UTF16 &name) {
    NEWLINE(0);
    const NAT lines = GETLINELENGTH();
    const NAT start = OBJECTOPEN() ? objectStarts.GET(objectStarts.LENGTH) : 1;
    if (start > lines) return;
    if (!OBJECTOPEN()) objectStarts.PUSH(1);
    objectNames.PUSH(name);
    objectStarts.PUSH(lines + 1);
}

NAT TCLOUD::GETLINELENGTH() const {
    const NAT entries = lineStarts.LENGTH;
    return lineStarts.GET(entries) > LENGTH ? entries - 1 : entries;
}

NAT TCLOUD::GETOBJECTLENGTH() const {
    const NAT entries = objectStarts.LENGTH;
    return objectStarts.GET(entries) > GETLINELENGTH() ? entries - 1 : entries;
}

NAT TCLOUD::LINESTART(NAT line) const {
    return line >= 1 && line <= lineStarts.LENGTH ? lineStarts._GET(line) : LENGTH + 1;
}

NAT TCLOUD::OBJECTSTART(NAT object) const {
    const bool isInside = object >= 1 && object <= objectStarts.LENGTH;
    return isInside ? objectStarts._GET(object) : GETLINELENGTH() + 1;
}

NAT TCLOUD::GETALLLINEPOINTLENGTH(NAT line) const {
    if (line < 1 || line > GETLINELENGTH()) return 0;
    return LINESTART(line + 1) - LINESTART(line);
}

NAT TCLOUD::GETOBJECTLINELENGTH(NAT object) const {
    if (object < 1 || object > GETOBJECTLENGTH()) return 0;
    return OBJECTSTART(object + 1) - OBJECTSTART(object);
}

NAT TCLOUD::GETOBJECTLINE(NAT object, NAT line) const {
    if (line < 1 || line > GETOBJECTLINELENGTH(object)) return 0;
    return OBJECTSTART(object) + line - 1;
}

NAT TCLOUD::GETLINEPOINTLENGTH(NAT object, NAT line) const {
    return GETALLLINEPOINTLENGTH(GETOBJECTLINE(object, line));
}

NAT TCLOUD::GETPLINE(NAT line, NAT index) const {
    if (index < 1 || index > GETALLLINEPOINTLENGTH(line)) return 0;
    return LINESTART(line) + index - 1;
}

HYPER TCLOUD::GETLINE(NAT line, NAT index) const { return GET(GETPLINE(line, index)); }

NAT TCLOUD::GETALLMATERIAL(NAT line) const { return lineMaterials.GET(line); }

NAT TCLOUD::GETMATERIAL(NAT object, NAT line) const {
    return GETALLMATERIAL(GETOBJECTLINE(object, line));
}

HYPER TCLOUD::GETOBJECT(NAT object, NAT line, NAT index) const {
    return GETLINE(GETOBJECTLINE(object, line), index);
}

UTF16 TCLOUD::GETNAME(NAT object) const { return objectNames.GET(object); }

std::span<const HYPER> TCLOUD::GETSPAN(NAT line) const {
    const NAT count = GETALLLINEPOINTLENGTH(line);
    if (count < 1) return {};
    return {_INDEX(LINESTART(line)), static_cast<std::size_t>(count)};
}

std::span<HYPER> TCLOUD::GETSPAN(NAT line) {
    const NAT count = GETALLLINEPOINTLENGTH(line);
    if (count < 1) return {};
    return {_INDEX(LINESTART(line)), static_cast<std::size_t>(count)};
}

void TCLOUD::PUTPOINT(NAT point, const HYPER &value) {
    if (point <= LENGTH) PUT(point, value);
}

void TCLOUD::PUTLINE(NAT line, NAT index, const HYPER &value) {
    PUTPOINT(GETPLINE(line, index), value);
}

void TCLOUD::PUTOBJECT(NAT object, NAT line, NAT index, const HYPER &value) {
    PUTLINE(GETOBJECTLINE(object, line), index, value);
}

void TCLOUD::PUTNAME(NAT object, const UTF16 &name) {
    if (object <= objectNames.LENGTH) objectNames.PUT(object, name);
}

void TCLOUD::PUTMATERIAL(NAT line, NAT material) {
    if (line <= lineMaterials.LENGTH) lineMaterials.PUT(line, material);
}

void TCLOUD::MUL(const HYPER &factor) { MULTIPLY(factor); }

void TCLOUD::REPLACE(const TCLOUD &other) {
    if (this == &other) return;
    SOFTCLEAR();
    TPOLYHYPER::REPLACE(other);
    lineStarts.REPLACE(other.lineStarts);
    lineMaterials.REPLACE(other.lineMaterials);
    objectStarts.REPLACE(other.objectStarts);
    objectNames.TPOLY_OF::REPLACE(other.objectNames);
    marks.REPLACE(other.marks);
    if (LENGTH != other.LENGTH) return SOFTCLEAR(); // no memory, which has been told
    offset = other.offset;
    scale = other.scale;
    dimension = other.dimension;
}

void TCLOUD::APPEND(const TCLOUD &other) {
    if (this == &other) {
        TCLOUD copy;
        copy.REPLACE(other);
        return APPEND(copy);
    }
    NEWLINE(0);
    if (OBJECTOPEN() || other.OBJECTOPEN()) NEWOBJECT("repaired"); // own lines without an object
    NAT object = 1;
    for (NAT line = 1; line <= other.GETLINELENGTH(); ++line) {
        for (const HYPER &point : other.GETSPAN(line))
            NEWPOINT(point);
        NEWLINE(other.GETALLMATERIAL(line));
        const bool isClosed = object <= other.objectNames.LENGTH;
        if (!isClosed || line + 1 != other.OBJECTSTART(object + 1)) continue;
        NEWOBJECT(other.GETNAME(object));
        ++object;
    }
}

bool TCLOUD::SWAP(TCLOUD &other) {
    std::swap(*this, other);
    return true;
}

void TCLOUD::REPAIR(const UTF16 &name) {
    if (GETOBJECTLENGTH() == 0) NEWOBJECT(name);
}
} // namespace morvane
