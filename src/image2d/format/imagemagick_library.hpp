#pragma once

#include "foundation/base/utf16.hpp"

#include <cstdint>
#include <sys/types.h>

// The routines of MagickWand 6 that are used, with the types of its documentation.
namespace morvane {
struct MAGICK_WAND; // a list of pictures and settings
struct PIXEL_WAND;  // a colour

struct IMAGEMAGICK_LIBRARY {
    using BOOL = int;

    const char *(*GetVersion)(std::size_t *) = nullptr;
    const char *(*GetQuantumDepth)(std::size_t *) = nullptr;
    void (*Genesis)() = nullptr;
    void (*Terminus)() = nullptr;
    BOOL (*SetResourceLimit)(int resource, std::uint64_t limit) = nullptr;
    void *(*RelinquishMemory)(void *) = nullptr;
    char *(*GetException)(const MAGICK_WAND *, int *severity) = nullptr;
    MAGICK_WAND *(*NewWand)() = nullptr;
    MAGICK_WAND *(*DestroyWand)(MAGICK_WAND *) = nullptr;
    PIXEL_WAND *(*NewPixel)() = nullptr;
    void (*SetAlpha)(PIXEL_WAND *, double) = nullptr;
    PIXEL_WAND *(*DestroyPixel)(PIXEL_WAND *) = nullptr;
    void (*ResetIterator)(MAGICK_WAND *) = nullptr;
    BOOL (*SetFormat)(MAGICK_WAND *, const char *) = nullptr;
    BOOL (*SetOption)(MAGICK_WAND *, const char *key, const char *value) = nullptr;
    BOOL (*PingBlob)(MAGICK_WAND *, const void *bytes, std::size_t size) = nullptr;
    BOOL (*ReadBlob)(MAGICK_WAND *, const void *bytes, std::size_t size) = nullptr;
    unsigned char *(*GetBlob)(MAGICK_WAND *, std::size_t *size) = nullptr;
    BOOL(*NewImage)
    (MAGICK_WAND *, std::size_t width, std::size_t height, const PIXEL_WAND *background) = nullptr;
    std::size_t (*GetWidth)(MAGICK_WAND *) = nullptr;
    std::size_t (*GetHeight)(MAGICK_WAND *) = nullptr;
    std::size_t (*GetDepth)(MAGICK_WAND *) = nullptr;
    int (*GetOrientation)(MAGICK_WAND *) = nullptr;
    BOOL (*SetOrientation)(MAGICK_WAND *, int) = nullptr;
    BOOL (*Flip)(MAGICK_WAND *) = nullptr; // upside down
    BOOL (*Flop)(MAGICK_WAND *) = nullptr; // left and right exchanged
    int (*GetColorspace)(MAGICK_WAND *) = nullptr;
    BOOL (*TransformColorspace)(MAGICK_WAND *, int colorspace) = nullptr;
    BOOL (*SetImageFormat)(MAGICK_WAND *, const char *) = nullptr;
    BOOL (*SetImageType)(MAGICK_WAND *, int type) = nullptr;
    BOOL (*SetImageDepth)(MAGICK_WAND *, std::size_t) = nullptr;
    BOOL (*SetQuality)(MAGICK_WAND *, std::size_t) = nullptr;
    BOOL (*SetAlphaChannel)(MAGICK_WAND *, int) = nullptr;
    BOOL(*ExportPixels)
    (MAGICK_WAND *, ssize_t x, ssize_t y, std::size_t width, std::size_t height, const char *map,
     int storage, void *) = nullptr;
    BOOL(*ImportPixels)
    (MAGICK_WAND *, ssize_t x, ssize_t y, std::size_t width, std::size_t height, const char *map,
     int storage, const void *) = nullptr;
};

// What samples are in memory; colour spaces; where the first pixel lies; types of images;
// severities from a damaged file and from any error on; a format that the library doesn't know.
inline constexpr int MAGICK_CHAR = 1, MAGICK_DOUBLE = 2, MAGICK_FLOAT = 3, MAGICK_SHORT = 7;
inline constexpr int MAGICK_LINEAR = 1, MAGICK_GRAY = 2, MAGICK_SRGB = 13;
inline constexpr int MAGICK_TOPLEFT = 1, MAGICK_TOPRIGHT = 2, MAGICK_BOTTOMRIGHT = 3,
                     MAGICK_BOTTOMLEFT = 4;
inline constexpr int MAGICK_BILEVEL = 1, MAGICK_GRAYSCALE = 2, MAGICK_TRUECOLOR = 6,
                     MAGICK_TRUECOLOR_ALPHA = 7;
inline constexpr int MAGICK_ACTIVATE_ALPHA = 1, MAGICK_THREADS = 6;
inline constexpr int MAGICK_DAMAGED = 325, MAGICK_ERROR = 400, MAGICK_UNKNOWN_FORMAT = 420;

// The library, searched for at the first call; null when it isn't there. The environment's
// MORVANE_IMAGEMAGICK names the only file that is tried; empty: none. It is made ready (Genesis) by
// the first wand.
const IMAGEMAGICK_LIBRARY *IMAGEMAGICK_ROUTINES();
void IMAGEMAGICK_START();
// How pictures must be handed to the library: MAGICK_CHAR up to 8 bits a sample, MAGICK_SHORT up to
// 16, MAGICK_FLOAT where it counts in reals (HDRI), MAGICK_DOUBLE beyond.
int IMAGEMAGICK_STORAGE();
} // namespace morvane
