#pragma once

#include "image2d/image/image.hpp"

#include <concepts>
#include <vector>

// Small images written as rows, and read back as rows.
namespace morvane {
using NUMBER_ROWS = std::vector<std::vector<NAT>>;
using COLOUR_ROWS_OF = std::vector<std::vector<VECTORNAT>>;

inline void FILL_ROWS(TIMAGE &image, BYTE kind, const NUMBER_ROWS &rows) {
    image.INIT(kind, static_cast<NAT>(rows.front().size()), static_cast<NAT>(rows.size()));
    for (std::size_t y = 0; y < rows.size(); ++y)
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            image.PUT(static_cast<NAT>(x) + 1, static_cast<NAT>(y) + 1, rows[y][x]);
}

inline void FILL_ROWS(TIMAGE &image, BYTE kind, const COLOUR_ROWS_OF &rows) {
    image.INIT(kind, static_cast<NAT>(rows.front().size()), static_cast<NAT>(rows.size()));
    for (std::size_t y = 0; y < rows.size(); ++y)
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            image.PUTRGB(static_cast<NAT>(x) + 1, static_cast<NAT>(y) + 1, rows[y][x]);
}

// An image of a kind with these rows.
class ROWS_IMAGE : public TIMAGE {
public:
    ROWS_IMAGE(BYTE tag, const NUMBER_ROWS &rows) { FILL_ROWS(*this, tag, rows); }
    // A template, so that numbers in braces are never taken for colours.
    template <std::same_as<COLOUR_ROWS_OF> ROWS> ROWS_IMAGE(BYTE tag, const ROWS &rows) {
        FILL_ROWS(*this, tag, rows);
    }
};

inline NUMBER_ROWS ROWS_OF(const TIMAGE &image) {
    NUMBER_ROWS rows;
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        auto &row = rows.emplace_back();
        for (NAT x = 1; x <= image.SIZEX(); ++x)
            row.push_back(image.GET(x, y));
    }
    return rows;
}

inline COLOUR_ROWS_OF COLOURS_OF(const TIMAGE &image) {
    COLOUR_ROWS_OF rows;
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        auto &row = rows.emplace_back();
        for (NAT x = 1; x <= image.SIZEX(); ++x)
            row.push_back(image.GETRGB(x, y));
    }
    return rows;
}
} // namespace morvane
