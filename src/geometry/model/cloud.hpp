#pragma once

#include "foundation/base/random.hpp"
#include "foundation/container/poly_types.hpp"

namespace morvane {
// Polylines: a flat list of points x, y, z and t, cut into lines, and the lines cut into named
// objects. t is free for the user: a value, a time or a radius. All positions start at 1; a read
// outside gives zero, a write outside does nothing. Points behind the last NEWLINE form the open
// line, lines behind the last NEWOBJECT the open object; both are counted, the object only once an
// object has been closed before.
class TCLOUD : public TPOLYHYPER {
public:
    // The frame of the field that the lines came from; the TrackVis header stores it. Without a
    // field the scale is 1.
    HYPER offset, scale = HNORM, dimension;

    void INIT();      // empty
    void DONE();      // empty, memory freed
    void SOFTCLEAR(); // empty, memory kept for the next lines

    void NEWPOINT(const HYPER &point); // to the open line
    void NEWLINE(NAT material);        // closes the open line; nothing when it has no point
    void NEWOBJECT(const UTF16 &name); // closes the open line and object; nothing without lines

    NAT GETPOINTLENGTH() const { return LENGTH; }
    NAT GETLINELENGTH() const;
    NAT GETOBJECTLENGTH() const;
    NAT GETLINEPOINTLENGTH(NAT object, NAT line) const; // points of a line of an object
    NAT GETALLLINEPOINTLENGTH(NAT line) const;          // points of a line of all lines
    NAT GETOBJECTLINELENGTH(NAT object) const;

    HYPER GETPOINT(NAT point) const { return GET(point); }
    NAT GETPLINE(NAT line, NAT index) const;  // position of point `index` of a line, or 0
    HYPER GETLINE(NAT line, NAT index) const; // point `index` of a line
    NAT GETALLMATERIAL(NAT line) const;
    NAT GETMATERIAL(NAT object, NAT line) const;
    HYPER GETOBJECT(NAT object, NAT line, NAT index) const;
    UTF16 GETNAME(NAT object) const;
    // Position among all lines of a line of an object, or 0.
    NAT GETOBJECTLINE(NAT object, NAT line) const;
    // The points of a line in memory, valid until the cloud changes; empty outside.
    std::span<const HYPER> GETSPAN(NAT line) const;
    std::span<HYPER> GETSPAN(NAT line);

    void PUTPOINT(NAT point, const HYPER &value);
    void PUTLINE(NAT line, NAT index, const HYPER &value);
    void PUTOBJECT(NAT object, NAT line, NAT index, const HYPER &value);
    void PUTNAME(NAT object, const UTF16 &name);
    void PUTMATERIAL(NAT line, NAT material); // of all lines
    void MUL(const HYPER &factor);            // all points by components

    void REPLACE(const TCLOUD &other); // becomes a copy of the other, with its frame
    void APPEND(const TCLOUD &other);  // the other's objects behind the own ones
    bool SWAP(TCLOUD &other);          // exchanges everything; always true
    // Points without any object: the open line is closed and becomes one object of this name.
    void REPAIR(const UTF16 &name);

    void MARKALLLINE(NAT line); // a line of all lines
    void MARKLINE(NAT object, NAT line);
    bool MARKED(NAT line) const;
    NAT ERASEMARKED(); // erases the marked lines, and objects left without lines; lines erased
    // The first earlier line that is near: as many points, each at most `distance` (x, y, z) from
    // the point with its number. 0: none.
    NAT SEARCHLINE(NAT line, REAL distance) const;
    // The first earlier line whose first point is at most `distance` from this line's; 0: none.
    NAT SEARCHBEGIN(NAT line, REAL distance) const;

    // Line files; defined in geometry/format. A text file, or all files that a name with wildcards
    // fits, behind the lines that are there. A failure is told and gives false.
    bool LOAD(const UTF16 &name);
    bool LOAD(const UTF16 &name, REAL percent,
              RANDOM_STREAM &random); // a random share of the lines
    bool SAVE(const UTF16 &name);
    bool SAVE_MEL(const UTF16 &name);

private:
    TPOLYNAT lineStarts;    // first point of each line, and the open line's
    TPOLYNAT lineMaterials; // of the closed lines
    TPOLYNAT objectStarts;  // first line of each object, and the open object's
    TPOLYCHARS objectNames; // of the closed objects
    TPOLYBOOL marks;        // flag i-1 belongs to line i; empty when no line is marked
    // A line list and an object list have been started; the points start with the lines.
    bool LINEOPEN() const { return lineStarts.LENGTH > 0; }
    bool OBJECTOPEN() const { return objectStarts.LENGTH > 0; }
    NAT LINESTART(NAT line) const;
    NAT OBJECTSTART(NAT object) const;
};
} // namespace morvane
