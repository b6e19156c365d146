#include "geometry/format/dxf_writer.hpp"

namespace morvane {
using namespace std::string_view_literals;

TWRITEDXF::TWRITEDXF(const UTF16 &name, const UTF16 &progressLabel) : out(name, progressLabel) {
    PAIR("0", "SECTION"sv);
    PAIR("2", "HEADER"sv);
    constexpr std::pair<std::string_view, NAT> VARIABLES[] = {
        {"$AUNITS", 0}, {"$FILLMODE", 1}, {"$SPLFRAME", 0}, {"$SPLINESEGS", 8}};
    for (const auto &[variable, value] : VARIABLES) {
        PAIR("9", variable);
        PAIR("70", value);
    }
    PAIR("0", "ENDSEC"sv);
    for (const std::string_view section : {"TABLES"sv, "BLOCKS"sv}) {
        PAIR("0", "SECTION"sv);
        PAIR("2", section);
        PAIR("0", "ENDSEC"sv);
    }
    PAIR("0", "SECTION"sv);
    PAIR("2", "ENTITIES"sv);
}

void TWRITEDXF::POLYLINE(std::span<const HYPER> points) {
    PAIR("0", "POLYLINE"sv);
    PAIR("8", "0"sv);
    PAIR("70", "0"sv);
    PAIR("66", "1"sv);
    PAIR("10", "0"sv);
    PAIR("20", "0"sv);
    PAIR("30", "0"sv);
    for (const HYPER &point : points) {
        PAIR("0", "VERTEX"sv);
        PAIR("8", "0"sv);
        PAIR("10", point.x);
        PAIR("20", point.y);
        PAIR("30", point.z);
        PAIR("40", point.w);
    }
    PAIR("0", "SEQEND"sv);
    PAIR("8", "0"sv);
}

bool TWRITEDXF::DONE() {
    PAIR("0", "ENDSEC"sv);
    PAIR("0", "EOF"sv);
    return out.COMMIT();
}
} // namespace morvane
