#pragma once

#include "foundation/base/records.hpp"
#include "geometry/format/line_writer.hpp"

#include <span>

namespace morvane {
// A minimal DXF file as pairs of lines, a group code and its value.
class TWRITEDXF {
public:
    TWRITEDXF(const UTF16 &name, const UTF16 &progressLabel); // opens; the sections up to ENTITIES
    bool OPEN() const { return out.OPEN(); }
    void POLYLINE(std::span<const HYPER> points); // t in group 40
    void SHOW(NAT done, NAT all) { out.SHOW(done, all); }
    [[nodiscard]] bool DONE(); // closes the section and the file

private:
    template <class VALUE> void PAIR(std::string_view code, VALUE value) {
        out << code << '\n' << value << '\n';
    }
    LINE_WRITER out;
};
} // namespace morvane
