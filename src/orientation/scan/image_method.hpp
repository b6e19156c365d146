#pragma once

#include "orientation/scan/scan_method.hpp"

// The six methods over the pixels of an image. A pixel's directions are those of a voxel with z 0,
// and so is its vector: every rule of the methods is that of three axes.
namespace morvane {
class TIMAGE;

SCAN_SETTINGS GETSETTINGS(const TIMAGE &image);
// The directions of an image scan, with z 0.
SCAN_DIRECTIONS GETDIRECTIONS(NAT r);

COMPLEX GETIMAGECOMPLEX_BRENK2013(const VOXEL_SCAN &scan);  // the single best vector
COMPLEX GETIMAGECOMPLEX_BRENK2014A(const VOXEL_SCAN &scan); // the mean of the two best vectors
COMPLEX GETIMAGECOMPLEX_BRENK2014B(const VOXEL_SCAN &scan); // the mean of all best vectors
// The sum of the best offsets inside the cone around their sum: all of them, or up to the first
// direction outside the cone; BRENK2019 gives it the length of the best value.
COMPLEX GETIMAGECOMPLEX_BRENK2015A(const VOXEL_SCAN &scan);
COMPLEX GETIMAGECOMPLEX_BRENK2015B(const VOXEL_SCAN &scan);
COMPLEX GETIMAGECOMPLEX_BRENK2019(const VOXEL_SCAN &scan);
COMPLEX GETIMAGECOMPLEX(const VOXEL_SCAN &scan); // by the method of the settings
} // namespace morvane
