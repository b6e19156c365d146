#include "image2d/colour/colormap_table.hpp"

// Made by tools/make_colormap_table. A key is its position of 0..1, then red, green, blue and alpha
// of 0..255.
// clang-format off
namespace morvane {
namespace {
// BW: black to white
constexpr COLOUR_KEY BW_KEYS[] = {
    {0, 0, 0, 0, 255},
    {1, 255, 255, 255, 255},
};
// WB: white to black
constexpr COLOUR_KEY WB_KEYS[] = {
    {0, 255, 255, 255, 255},
    {1, 0, 0, 0, 255},
};
// RGB: the three primaries
constexpr COLOUR_KEY RGB_KEYS[] = {
    {0, 255, 0, 0, 255},
    {0.5, 0, 255, 0, 255},
    {1, 0, 0, 255, 255},
};
// RYGCBM: the six hues in order
constexpr COLOUR_KEY RYGCBM_KEYS[] = {
    {0, 255, 0, 0, 255},
    {0.2, 255, 255, 0, 255},
    {0.4, 0, 255, 0, 255},
    {0.6, 0, 255, 255, 255},
    {0.8, 0, 0, 255, 255},
    {1, 255, 0, 255, 255},
};
// Rainbow: violet to red in the order of the spectrum
constexpr COLOUR_KEY RAINBOW_KEYS[] = {
    {0, 128, 0, 255, 255},
    {0.125, 64, 0, 255, 255},
    {0.25, 0, 0, 255, 255},
    {0.375, 0, 128, 255, 255},
    {0.5, 0, 255, 255, 255},
    {0.625, 0, 255, 0, 255},
    {0.75, 255, 255, 0, 255},
    {0.875, 255, 128, 0, 255},
    {1, 255, 0, 0, 255},
};
// Viridis: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY VIRIDIS_KEYS[] = {
    {0, 68, 1, 84, 255},
    {0.090909, 72, 33, 115, 255},
    {0.181818, 67, 62, 133, 255},
    {0.272727, 56, 89, 140, 255},
    {0.363636, 45, 112, 142, 255},
    {0.454545, 37, 133, 142, 255},
    {0.545455, 30, 155, 138, 255},
    {0.636364, 42, 176, 127, 255},
    {0.727273, 80, 196, 106, 255},
    {0.818182, 134, 213, 73, 255},
    {0.909091, 194, 223, 35, 255},
    {1, 253, 231, 37, 255},
};
// Magma: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY MAGMA_KEYS[] = {
    {0, 0, 0, 4, 255},
    {0.090909, 18, 13, 49, 255},
    {0.181818, 51, 16, 103, 255},
    {0.272727, 90, 22, 126, 255},
    {0.363636, 126, 36, 130, 255},
    {0.454545, 163, 48, 126, 255},
    {0.545455, 200, 62, 115, 255},
    {0.636364, 233, 84, 98, 255},
    {0.727273, 249, 123, 93, 255},
    {0.818182, 254, 169, 115, 255},
    {0.909091, 254, 211, 149, 255},
    {1, 252, 253, 191, 255},
};
// Plasma: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY PLASMA_KEYS[] = {
    {0, 13, 8, 135, 255},
    {0.090909, 62, 4, 156, 255},
    {0.181818, 99, 0, 167, 255},
    {0.272727, 135, 7, 166, 255},
    {0.363636, 166, 32, 152, 255},
    {0.454545, 192, 58, 131, 255},
    {0.545455, 213, 84, 110, 255},
    {0.636364, 231, 111, 90, 255},
    {0.727273, 245, 140, 70, 255},
    {0.818182, 253, 174, 50, 255},
    {0.909091, 252, 210, 37, 255},
    {1, 240, 249, 33, 255},
};
// Inferno: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY INFERNO_KEYS[] = {
    {0, 0, 0, 4, 255},
    {0.090909, 20, 11, 52, 255},
    {0.181818, 57, 9, 99, 255},
    {0.272727, 97, 19, 110, 255},
    {0.363636, 133, 33, 107, 255},
    {0.454545, 169, 46, 94, 255},
    {0.545455, 203, 65, 73, 255},
    {0.636364, 230, 93, 47, 255},
    {0.727273, 247, 130, 18, 255},
    {0.818182, 252, 174, 18, 255},
    {0.909091, 245, 219, 76, 255},
    {1, 252, 255, 164, 255},
};
// Turbo: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY TURBO_KEYS[] = {
    {0, 48, 18, 59, 255},
    {0.090909, 68, 84, 195, 255},
    {0.181818, 68, 143, 254, 255},
    {0.272727, 31, 201, 221, 255},
    {0.363636, 42, 239, 161, 255},
    {0.454545, 125, 255, 86, 255},
    {0.545455, 193, 243, 52, 255},
    {0.636364, 241, 203, 58, 255},
    {0.727273, 254, 147, 42, 255},
    {0.818182, 234, 78, 13, 255},
    {0.909091, 190, 33, 2, 255},
    {1, 122, 4, 3, 255},
};
// Cividis: matplotlib 3.6 (Smith, van der Walt, Firing; Mikhailov; Nunez et al. 2018)
constexpr COLOUR_KEY CIVIDIS_KEYS[] = {
    {0, 0, 34, 78, 255},
    {0.090909, 1, 50, 113, 255},
    {0.181818, 47, 66, 109, 255},
    {0.272727, 73, 83, 108, 255},
    {0.363636, 94, 99, 111, 255},
    {0.454545, 114, 115, 116, 255},
    {0.545455, 135, 132, 120, 255},
    {0.636364, 157, 149, 118, 255},
    {0.727273, 181, 168, 111, 255},
    {0.818182, 206, 188, 99, 255},
    {0.909091, 231, 209, 80, 255},
    {1, 254, 232, 56, 255},
};
// Mako: seaborn 0.12 (Waskom)
constexpr COLOUR_KEY MAKO_KEYS[] = {
    {0, 11, 4, 5, 255},
    {0.090909, 35, 21, 38, 255},
    {0.181818, 53, 38, 76, 255},
    {0.272727, 64, 58, 118, 255},
    {0.363636, 61, 82, 150, 255},
    {0.454545, 54, 109, 160, 255},
    {0.545455, 52, 135, 166, 255},
    {0.636364, 53, 161, 171, 255},
    {0.727273, 67, 186, 173, 255},
    {0.818182, 109, 211, 173, 255},
    {0.909091, 174, 227, 192, 255},
    {1, 222, 245, 229, 255},
};
// Rocket: seaborn 0.12 (Waskom)
constexpr COLOUR_KEY ROCKET_KEYS[] = {
    {0, 3, 5, 26, 255},
    {0.090909, 34, 19, 49, 255},
    {0.181818, 69, 28, 71, 255},
    {0.272727, 107, 31, 86, 255},
    {0.363636, 146, 28, 91, 255},
    {0.454545, 185, 22, 87, 255},
    {0.545455, 217, 40, 71, 255},
    {0.636364, 237, 80, 62, 255},
    {0.727273, 244, 124, 85, 255},
    {0.818182, 246, 164, 124, 255},
    {0.909091, 247, 201, 170, 255},
    {1, 250, 235, 221, 255},
};
// Cool to Warm: K. Moreland, Diverging Color Maps for Scientific Visualization, 2009: the 33 steps for RGB
constexpr COLOUR_KEY COOLTOWARM_KEYS[] = {
    {0, 59, 76, 192, 255},
    {0.03125, 68, 90, 204, 255},
    {0.0625, 77, 104, 215, 255},
    {0.09375, 87, 117, 225, 255},
    {0.125, 98, 130, 234, 255},
    {0.15625, 108, 142, 241, 255},
    {0.1875, 119, 154, 247, 255},
    {0.21875, 130, 165, 251, 255},
    {0.25, 141, 176, 254, 255},
    {0.28125, 152, 185, 255, 255},
    {0.3125, 163, 194, 255, 255},
    {0.34375, 174, 201, 253, 255},
    {0.375, 184, 208, 249, 255},
    {0.40625, 194, 213, 244, 255},
    {0.4375, 204, 217, 238, 255},
    {0.46875, 213, 219, 230, 255},
    {0.5, 221, 221, 221, 255},
    {0.53125, 229, 216, 209, 255},
    {0.5625, 236, 211, 197, 255},
    {0.59375, 241, 204, 185, 255},
    {0.625, 245, 196, 173, 255},
    {0.65625, 247, 187, 160, 255},
    {0.6875, 247, 177, 148, 255},
    {0.71875, 247, 166, 135, 255},
    {0.75, 244, 154, 123, 255},
    {0.78125, 241, 141, 111, 255},
    {0.8125, 236, 127, 99, 255},
    {0.84375, 229, 112, 88, 255},
    {0.875, 222, 96, 77, 255},
    {0.90625, 213, 80, 66, 255},
    {0.9375, 203, 62, 56, 255},
    {0.96875, 192, 40, 47, 255},
    {1, 180, 4, 38, 255},
};
// Black, Blue and White: ParaView's colour maps (vtk-js)
constexpr COLOUR_KEY BLACKBLUEANDWHITE_KEYS[] = {
    {0, 0, 0, 0, 255},
    {0.333, 0, 0, 128, 255},
    {0.666, 0, 128, 255, 255},
    {1, 255, 255, 255, 255},
};
// Linear Green (Gr4L): ParaView's colour maps (vtk-js)
constexpr COLOUR_KEY GR4L_KEYS[] = {
    {0, 14, 28, 31, 255},
    {0.05, 19, 44, 46, 255},
    {0.1, 22, 59, 56, 255},
    {0.15, 24, 71, 64, 255},
    {0.2, 28, 89, 71, 255},
    {0.25, 29, 102, 71, 255},
    {0.3, 30, 115, 69, 255},
    {0.35, 30, 125, 62, 255},
    {0.4, 29, 133, 52, 255},
    {0.45, 28, 140, 39, 255},
    {0.5, 21, 150, 21, 255},
    {0.55, 28, 161, 13, 255},
    {0.6, 54, 173, 21, 255},
    {0.65, 81, 184, 29, 255},
    {0.7, 110, 194, 41, 255},
    {0.75, 142, 204, 61, 255},
    {0.8, 170, 214, 75, 255},
    {0.85, 200, 224, 101, 255},
    {0.9, 226, 235, 136, 255},
    {0.95, 245, 242, 171, 255},
    {1, 255, 251, 230, 255},
};
// Hot and Cold: ParaView's colour maps (vtk-js)
constexpr COLOUR_KEY HOTANDCOLD_KEYS[] = {
    {0, 0, 255, 255, 255},
    {0.45, 0, 0, 255, 255},
    {0.5, 0, 0, 128, 255},
    {0.55, 255, 0, 0, 255},
    {1, 255, 255, 0, 255},
};
// Jet: ParaView's colour maps (vtk-js)
constexpr COLOUR_KEY JET_KEYS[] = {
    {0, 0, 0, 143, 255},
    {0.111111, 0, 0, 255, 255},
    {0.36508, 0, 255, 255, 255},
    {0.492063, 128, 255, 128, 255},
    {0.619047, 255, 255, 0, 255},
    {0.873016, 255, 0, 0, 255},
    {1, 128, 0, 0, 255},
};
// Hot: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY HOT_KEYS[] = {
    {0, 3, 0, 0, 0},
    {0.372549, 255, 0, 0, 48},
    {0.74902, 255, 255, 0, 96},
    {1, 255, 255, 255, 128},
};
// Winter: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY WINTER_KEYS[] = {
    {0, 0, 0, 255, 0},
    {0.501961, 0, 128, 196, 64},
    {1, 0, 255, 128, 128},
};
// Warm: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY WARM_KEYS[] = {
    {0, 255, 127, 0, 0},
    {0.501961, 255, 196, 0, 64},
    {1, 255, 254, 0, 128},
};
// Cool: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY COOL_KEYS[] = {
    {0, 0, 127, 255, 0},
    {0.501961, 0, 196, 255, 64},
    {1, 0, 254, 255, 128},
};
// Blue-Green: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY BLUEGREEN_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.003922, 0, 1, 222, 0},
    {0.501961, 0, 128, 127, 64},
    {1, 0, 255, 32, 128},
};
// ACTC: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY ACTC_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.25098, 0, 0, 136, 32},
    {0.501961, 24, 177, 0, 64},
    {0.611765, 248, 254, 0, 78},
    {1, 255, 0, 0, 128},
};
// Bone: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY BONE_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.6, 103, 126, 165, 76},
    {1, 255, 255, 255, 128},
};
// Carp: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CARP_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.027451, 128, 128, 128, 66},
    {0.152941, 255, 128, 128, 96},
    {0.227451, 0, 0, 255, 0},
    {0.380392, 0, 0, 128, 0},
    {0.447059, 191, 191, 191, 7},
    {0.647059, 223, 223, 223, 96},
    {1, 255, 255, 255, 128},
};
// CT Bones: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_BONES_KEYS[] = {
    {0, 0, 0, 0, 0},
    {1, 255, 255, 255, 203},
};
// CT Kidneys: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_KIDNEYS_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.403922, 255, 129, 0, 88},
    {1, 255, 255, 255, 228},
};
// CT Liver: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_LIVER_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.25098, 44, 128, 0, 0},
    {0.513725, 255, 90, 70, 82},
    {0.768627, 255, 255, 0, 184},
    {1, 255, 255, 255, 228},
};
// CT Lungs: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_LUNGS_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.011765, 255, 128, 128, 50},
    {0.996078, 255, 128, 128, 50},
    {1, 0, 0, 0, 0},
};
// CT Muscles: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_MUSCLES_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.392157, 128, 0, 0, 63},
    {0.501961, 159, 56, 41, 105},
    {0.607843, 255, 90, 70, 135},
    {0.705882, 255, 0, 0, 167},
    {0.819608, 255, 255, 0, 184},
    {1, 255, 255, 255, 228},
};
// CT Skin: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_SKIN_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.003922, 255, 128, 128, 52},
    {0.345098, 135, 171, 162, 50},
    {0.619608, 233, 150, 220, 52},
    {0.627451, 0, 0, 0, 0},
    {0.678431, 255, 148, 40, 120},
    {0.768627, 0, 0, 0, 0},
    {0.819608, 128, 0, 0, 63},
    {0.85098, 159, 56, 41, 104},
    {0.878431, 255, 90, 70, 135},
    {0.909804, 255, 0, 0, 166},
    {0.960784, 255, 255, 0, 199},
    {1, 255, 255, 255, 228},
};
// CT Vessels: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY CT_VESSELS_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.341176, 255, 128, 128, 128},
    {1, 255, 255, 255, 228},
};
// Electric blue: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY ELECTRICBLUE_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.360784, 10, 39, 223, 48},
    {0.752941, 136, 220, 253, 64},
    {1, 255, 255, 255, 70},
};
// GE color: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY GECOLOR_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.247059, 0, 128, 125, 32},
    {0.501961, 128, 0, 255, 64},
    {0.752941, 255, 128, 0, 96},
    {1, 255, 255, 255, 128},
};
// Gold: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY GOLD_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.333333, 142, 85, 14, 42},
    {0.666667, 227, 170, 76, 84},
    {1, 255, 255, 255, 128},
};
// HotIron: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY HOTIRON_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.501961, 255, 0, 0, 64},
    {0.74902, 255, 126, 0, 96},
    {1, 255, 255, 255, 128},
};
// Rainramp: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY RAINRAMP_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.141176, 108, 0, 108, 18},
    {0.282353, 54, 0, 216, 36},
    {0.423529, 0, 144, 0, 54},
    {0.658824, 210, 204, 0, 84},
    {0.705882, 252, 174, 0, 90},
    {0.709804, 255, 172, 4, 90},
    {0.901961, 255, 51, 175, 116},
    {0.905882, 255, 52, 178, 116},
    {0.913725, 255, 52, 186, 116},
    {0.921569, 255, 54, 192, 118},
    {0.929412, 255, 54, 200, 118},
    {0.992157, 255, 247, 255, 122},
    {0.996078, 255, 255, 255, 128},
    {1, 255, 255, 255, 128},
};
// Red-Yellow1: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY REDYELLOW1_KEYS[] = {
    {0, 0, 0, 0, 0},
    {0.003922, 192, 1, 0, 0},
    {0.501961, 224, 128, 0, 64},
    {1, 255, 255, 0, 128},
};
// Red-Yellow2: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY REDYELLOW2_KEYS[] = {
    {0, 255, 0, 0, 0},
    {0.501961, 255, 128, 0, 64},
    {1, 255, 254, 0, 128},
};
// Surface: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY SURFACE_KEYS[] = {
    {0, 1, 1, 1, 0},
    {0.6, 228, 154, 113, 76},
    {1, 255, 255, 255, 128},
};
// X-Rain: MRIcroGL's lookup tables (Rorden)
constexpr COLOUR_KEY XRAIN_KEYS[] = {
    {0, 3, 0, 0, 0},
    {0.12549, 64, 0, 128, 8},
    {0.25098, 0, 0, 255, 16},
    {0.376471, 0, 255, 0, 24},
    {0.627451, 255, 255, 0, 32},
    {0.752941, 255, 192, 0, 52},
    {1, 255, 3, 0, 80},
};
// DarkBright: S. Few, Practical Rules for Using Color in Charts, 2008; the match of the name is a guess
constexpr COLOUR_KEY DARKBRIGHT_KEYS[] = {
    {0, 0, 0, 0, 255},
    {0.125, 38, 93, 171, 255},
    {0.25, 223, 92, 36, 255},
    {0.375, 5, 151, 72, 255},
    {0.5, 229, 18, 111, 255},
    {0.625, 157, 114, 42, 255},
    {0.75, 123, 58, 150, 255},
    {0.875, 199, 180, 46, 255},
    {1, 203, 32, 39, 255},
};
// Medium: S. Few, Practical Rules for Using Color in Charts, 2008; the match of the name is a guess
constexpr COLOUR_KEY MEDIUM_KEYS[] = {
    {0, 77, 77, 77, 255},
    {0.125, 93, 165, 218, 255},
    {0.25, 250, 164, 58, 255},
    {0.375, 96, 189, 104, 255},
    {0.5, 241, 124, 176, 255},
    {0.625, 178, 145, 47, 255},
    {0.75, 178, 118, 178, 255},
    {0.875, 222, 207, 63, 255},
    {1, 241, 88, 84, 255},
};
// LightPale: S. Few, Practical Rules for Using Color in Charts, 2008; the match of the name is a guess
constexpr COLOUR_KEY LIGHTPALE_KEYS[] = {
    {0, 140, 140, 140, 255},
    {0.125, 136, 189, 230, 255},
    {0.25, 251, 178, 88, 255},
    {0.375, 144, 205, 151, 255},
    {0.5, 246, 170, 201, 255},
    {0.625, 191, 165, 84, 255},
    {0.75, 188, 153, 199, 255},
    {0.875, 237, 221, 70, 255},
    {1, 240, 126, 110, 255},
};
// Accent: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY ACCENT_KEYS[] = {
    {0, 127, 201, 127, 255},
    {0.142857, 190, 174, 212, 255},
    {0.285714, 253, 192, 134, 255},
    {0.428571, 255, 255, 153, 255},
    {0.571429, 56, 108, 176, 255},
    {0.714286, 240, 2, 127, 255},
    {0.857143, 191, 91, 23, 255},
    {1, 102, 102, 102, 255},
};
// Dark2: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY DARK2_KEYS[] = {
    {0, 27, 158, 119, 255},
    {0.142857, 217, 95, 2, 255},
    {0.285714, 117, 112, 179, 255},
    {0.428571, 231, 41, 138, 255},
    {0.571429, 102, 166, 30, 255},
    {0.714286, 230, 171, 2, 255},
    {0.857143, 166, 118, 29, 255},
    {1, 102, 102, 102, 255},
};
// Paired: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PAIRED_KEYS[] = {
    {0, 166, 206, 227, 255},
    {0.090909, 31, 120, 180, 255},
    {0.181818, 178, 223, 138, 255},
    {0.272727, 51, 160, 44, 255},
    {0.363636, 251, 154, 153, 255},
    {0.454545, 227, 26, 28, 255},
    {0.545455, 253, 191, 111, 255},
    {0.636364, 255, 127, 0, 255},
    {0.727273, 202, 178, 214, 255},
    {0.818182, 106, 61, 154, 255},
    {0.909091, 255, 255, 153, 255},
    {1, 177, 89, 40, 255},
};
// Pastel1: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PASTEL1_KEYS[] = {
    {0, 251, 180, 174, 255},
    {0.125, 179, 205, 227, 255},
    {0.25, 204, 235, 197, 255},
    {0.375, 222, 203, 228, 255},
    {0.5, 254, 217, 166, 255},
    {0.625, 255, 255, 204, 255},
    {0.75, 229, 216, 189, 255},
    {0.875, 253, 218, 236, 255},
    {1, 242, 242, 242, 255},
};
// Pastel2: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PASTEL2_KEYS[] = {
    {0, 179, 226, 205, 255},
    {0.142857, 253, 205, 172, 255},
    {0.285714, 203, 213, 232, 255},
    {0.428571, 244, 202, 228, 255},
    {0.571429, 230, 245, 201, 255},
    {0.714286, 255, 242, 174, 255},
    {0.857143, 241, 226, 204, 255},
    {1, 204, 204, 204, 255},
};
// Set1: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY SET1_KEYS[] = {
    {0, 228, 26, 28, 255},
    {0.125, 55, 126, 184, 255},
    {0.25, 77, 175, 74, 255},
    {0.375, 152, 78, 163, 255},
    {0.5, 255, 127, 0, 255},
    {0.625, 255, 255, 51, 255},
    {0.75, 166, 86, 40, 255},
    {0.875, 247, 129, 191, 255},
    {1, 153, 153, 153, 255},
};
// Set2: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY SET2_KEYS[] = {
    {0, 102, 194, 165, 255},
    {0.142857, 252, 141, 98, 255},
    {0.285714, 141, 160, 203, 255},
    {0.428571, 231, 138, 195, 255},
    {0.571429, 166, 216, 84, 255},
    {0.714286, 255, 217, 47, 255},
    {0.857143, 229, 196, 148, 255},
    {1, 179, 179, 179, 255},
};
// Set3: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY SET3_KEYS[] = {
    {0, 141, 211, 199, 255},
    {0.090909, 255, 255, 179, 255},
    {0.181818, 190, 186, 218, 255},
    {0.272727, 251, 128, 114, 255},
    {0.363636, 128, 177, 211, 255},
    {0.454545, 253, 180, 98, 255},
    {0.545455, 179, 222, 105, 255},
    {0.636364, 252, 205, 229, 255},
    {0.727273, 217, 217, 217, 255},
    {0.818182, 188, 128, 189, 255},
    {0.909091, 204, 235, 197, 255},
    {1, 255, 237, 111, 255},
};
// BrBG: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY BRBG_KEYS[] = {
    {0, 84, 48, 5, 255},
    {0.1, 140, 81, 10, 255},
    {0.2, 191, 129, 45, 255},
    {0.3, 223, 194, 125, 255},
    {0.4, 246, 232, 195, 255},
    {0.5, 245, 245, 245, 255},
    {0.6, 199, 234, 229, 255},
    {0.7, 128, 205, 193, 255},
    {0.8, 53, 151, 143, 255},
    {0.9, 1, 102, 94, 255},
    {1, 0, 60, 48, 255},
};
// PiYG: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PIYG_KEYS[] = {
    {0, 142, 1, 82, 255},
    {0.1, 197, 27, 125, 255},
    {0.2, 222, 119, 174, 255},
    {0.3, 241, 182, 218, 255},
    {0.4, 253, 224, 239, 255},
    {0.5, 247, 247, 247, 255},
    {0.6, 230, 245, 208, 255},
    {0.7, 184, 225, 134, 255},
    {0.8, 127, 188, 65, 255},
    {0.9, 77, 146, 33, 255},
    {1, 39, 100, 25, 255},
};
// PRGn: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PRGN_KEYS[] = {
    {0, 64, 0, 75, 255},
    {0.1, 118, 42, 131, 255},
    {0.2, 153, 112, 171, 255},
    {0.3, 194, 165, 207, 255},
    {0.4, 231, 212, 232, 255},
    {0.5, 247, 247, 247, 255},
    {0.6, 217, 240, 211, 255},
    {0.7, 166, 219, 160, 255},
    {0.8, 90, 174, 97, 255},
    {0.9, 27, 120, 55, 255},
    {1, 0, 68, 27, 255},
};
// PuOr: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PUOR_KEYS[] = {
    {0, 127, 59, 8, 255},
    {0.1, 179, 88, 6, 255},
    {0.2, 224, 130, 20, 255},
    {0.3, 253, 184, 99, 255},
    {0.4, 254, 224, 182, 255},
    {0.5, 247, 247, 247, 255},
    {0.6, 216, 218, 235, 255},
    {0.7, 178, 171, 210, 255},
    {0.8, 128, 115, 172, 255},
    {0.9, 84, 39, 136, 255},
    {1, 45, 0, 75, 255},
};
// RdBu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY RDBU_KEYS[] = {
    {0, 103, 0, 31, 255},
    {0.1, 178, 24, 43, 255},
    {0.2, 214, 96, 77, 255},
    {0.3, 244, 165, 130, 255},
    {0.4, 253, 219, 199, 255},
    {0.5, 247, 247, 247, 255},
    {0.6, 209, 229, 240, 255},
    {0.7, 146, 197, 222, 255},
    {0.8, 67, 147, 195, 255},
    {0.9, 33, 102, 172, 255},
    {1, 5, 48, 97, 255},
};
// RdGy: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY RDGY_KEYS[] = {
    {0, 103, 0, 31, 255},
    {0.1, 178, 24, 43, 255},
    {0.2, 214, 96, 77, 255},
    {0.3, 244, 165, 130, 255},
    {0.4, 253, 219, 199, 255},
    {0.5, 255, 255, 255, 255},
    {0.6, 224, 224, 224, 255},
    {0.7, 186, 186, 186, 255},
    {0.8, 135, 135, 135, 255},
    {0.9, 77, 77, 77, 255},
    {1, 26, 26, 26, 255},
};
// RdYlBu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY RDYLBU_KEYS[] = {
    {0, 165, 0, 38, 255},
    {0.1, 215, 48, 39, 255},
    {0.2, 244, 109, 67, 255},
    {0.3, 253, 174, 97, 255},
    {0.4, 254, 224, 144, 255},
    {0.5, 255, 255, 191, 255},
    {0.6, 224, 243, 248, 255},
    {0.7, 171, 217, 233, 255},
    {0.8, 116, 173, 209, 255},
    {0.9, 69, 117, 180, 255},
    {1, 49, 54, 149, 255},
};
// RdYlGn: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY RDYLGN_KEYS[] = {
    {0, 165, 0, 38, 255},
    {0.1, 215, 48, 39, 255},
    {0.2, 244, 109, 67, 255},
    {0.3, 253, 174, 97, 255},
    {0.4, 254, 224, 139, 255},
    {0.5, 255, 255, 191, 255},
    {0.6, 217, 239, 139, 255},
    {0.7, 166, 217, 106, 255},
    {0.8, 102, 189, 99, 255},
    {0.9, 26, 152, 80, 255},
    {1, 0, 104, 55, 255},
};
// Spectral: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY SPECTRAL_KEYS[] = {
    {0, 158, 1, 66, 255},
    {0.1, 213, 62, 79, 255},
    {0.2, 244, 109, 67, 255},
    {0.3, 253, 174, 97, 255},
    {0.4, 254, 224, 139, 255},
    {0.5, 255, 255, 191, 255},
    {0.6, 230, 245, 152, 255},
    {0.7, 171, 221, 164, 255},
    {0.8, 102, 194, 165, 255},
    {0.9, 50, 136, 189, 255},
    {1, 94, 79, 162, 255},
};
// Blues: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY BLUES_KEYS[] = {
    {0, 247, 251, 255, 255},
    {0.125, 222, 235, 247, 255},
    {0.25, 198, 219, 239, 255},
    {0.375, 158, 202, 225, 255},
    {0.5, 107, 174, 214, 255},
    {0.625, 66, 146, 198, 255},
    {0.75, 33, 113, 181, 255},
    {0.875, 8, 81, 156, 255},
    {1, 8, 48, 107, 255},
};
// BuGn: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY BUGN_KEYS[] = {
    {0, 247, 252, 253, 255},
    {0.125, 229, 245, 249, 255},
    {0.25, 204, 236, 230, 255},
    {0.375, 153, 216, 201, 255},
    {0.5, 102, 194, 164, 255},
    {0.625, 65, 174, 118, 255},
    {0.75, 35, 139, 69, 255},
    {0.875, 0, 109, 44, 255},
    {1, 0, 68, 27, 255},
};
// BuPu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY BUPU_KEYS[] = {
    {0, 247, 252, 253, 255},
    {0.125, 224, 236, 244, 255},
    {0.25, 191, 211, 230, 255},
    {0.375, 158, 188, 218, 255},
    {0.5, 140, 150, 198, 255},
    {0.625, 140, 107, 177, 255},
    {0.75, 136, 65, 157, 255},
    {0.875, 129, 15, 124, 255},
    {1, 77, 0, 75, 255},
};
// GnBu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY GNBU_KEYS[] = {
    {0, 247, 252, 240, 255},
    {0.125, 224, 243, 219, 255},
    {0.25, 204, 235, 197, 255},
    {0.375, 168, 221, 181, 255},
    {0.5, 123, 204, 196, 255},
    {0.625, 78, 179, 211, 255},
    {0.75, 43, 140, 190, 255},
    {0.875, 8, 104, 172, 255},
    {1, 8, 64, 129, 255},
};
// Greens: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY GREENS_KEYS[] = {
    {0, 247, 252, 245, 255},
    {0.125, 229, 245, 224, 255},
    {0.25, 199, 233, 192, 255},
    {0.375, 161, 217, 155, 255},
    {0.5, 116, 196, 118, 255},
    {0.625, 65, 171, 93, 255},
    {0.75, 35, 139, 69, 255},
    {0.875, 0, 109, 44, 255},
    {1, 0, 68, 27, 255},
};
// Greys: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY GREYS_KEYS[] = {
    {0, 255, 255, 255, 255},
    {0.125, 240, 240, 240, 255},
    {0.25, 217, 217, 217, 255},
    {0.375, 189, 189, 189, 255},
    {0.5, 150, 150, 150, 255},
    {0.625, 115, 115, 115, 255},
    {0.75, 82, 82, 82, 255},
    {0.875, 37, 37, 37, 255},
    {1, 0, 0, 0, 255},
};
// Oranges: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY ORANGES_KEYS[] = {
    {0, 255, 245, 235, 255},
    {0.125, 254, 230, 206, 255},
    {0.25, 253, 208, 162, 255},
    {0.375, 253, 174, 107, 255},
    {0.5, 253, 141, 60, 255},
    {0.625, 241, 105, 19, 255},
    {0.75, 217, 72, 1, 255},
    {0.875, 166, 54, 3, 255},
    {1, 127, 39, 4, 255},
};
// OrRd: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY ORRD_KEYS[] = {
    {0, 255, 247, 236, 255},
    {0.125, 254, 232, 200, 255},
    {0.25, 253, 212, 158, 255},
    {0.375, 253, 187, 132, 255},
    {0.5, 252, 141, 89, 255},
    {0.625, 239, 101, 72, 255},
    {0.75, 215, 48, 31, 255},
    {0.875, 179, 0, 0, 255},
    {1, 127, 0, 0, 255},
};
// PuBu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PUBU_KEYS[] = {
    {0, 255, 247, 251, 255},
    {0.125, 236, 231, 242, 255},
    {0.25, 208, 209, 230, 255},
    {0.375, 166, 189, 219, 255},
    {0.5, 116, 169, 207, 255},
    {0.625, 54, 144, 192, 255},
    {0.75, 5, 112, 176, 255},
    {0.875, 4, 90, 141, 255},
    {1, 2, 56, 88, 255},
};
// PuBuGn: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PUBUGN_KEYS[] = {
    {0, 255, 247, 251, 255},
    {0.125, 236, 226, 240, 255},
    {0.25, 208, 209, 230, 255},
    {0.375, 166, 189, 219, 255},
    {0.5, 103, 169, 207, 255},
    {0.625, 54, 144, 192, 255},
    {0.75, 2, 129, 138, 255},
    {0.875, 1, 108, 89, 255},
    {1, 1, 70, 54, 255},
};
// PuRd: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PURD_KEYS[] = {
    {0, 247, 244, 249, 255},
    {0.125, 231, 225, 239, 255},
    {0.25, 212, 185, 218, 255},
    {0.375, 201, 148, 199, 255},
    {0.5, 223, 101, 176, 255},
    {0.625, 231, 41, 138, 255},
    {0.75, 206, 18, 86, 255},
    {0.875, 152, 0, 67, 255},
    {1, 103, 0, 31, 255},
};
// Purples: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY PURPLES_KEYS[] = {
    {0, 252, 251, 253, 255},
    {0.125, 239, 237, 245, 255},
    {0.25, 218, 218, 235, 255},
    {0.375, 188, 189, 220, 255},
    {0.5, 158, 154, 200, 255},
    {0.625, 128, 125, 186, 255},
    {0.75, 106, 81, 163, 255},
    {0.875, 84, 39, 143, 255},
    {1, 63, 0, 125, 255},
};
// RdPu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY RDPU_KEYS[] = {
    {0, 255, 247, 243, 255},
    {0.125, 253, 224, 221, 255},
    {0.25, 252, 197, 192, 255},
    {0.375, 250, 159, 181, 255},
    {0.5, 247, 104, 161, 255},
    {0.625, 221, 52, 151, 255},
    {0.75, 174, 1, 126, 255},
    {0.875, 122, 1, 119, 255},
    {1, 73, 0, 106, 255},
};
// Reds: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY REDS_KEYS[] = {
    {0, 255, 245, 240, 255},
    {0.125, 254, 224, 210, 255},
    {0.25, 252, 187, 161, 255},
    {0.375, 252, 146, 114, 255},
    {0.5, 251, 106, 74, 255},
    {0.625, 239, 59, 44, 255},
    {0.75, 203, 24, 29, 255},
    {0.875, 165, 15, 21, 255},
    {1, 103, 0, 13, 255},
};
// YlGn: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY YLGN_KEYS[] = {
    {0, 255, 255, 229, 255},
    {0.125, 247, 252, 185, 255},
    {0.25, 217, 240, 163, 255},
    {0.375, 173, 221, 142, 255},
    {0.5, 120, 198, 121, 255},
    {0.625, 65, 171, 93, 255},
    {0.75, 35, 132, 67, 255},
    {0.875, 0, 104, 55, 255},
    {1, 0, 69, 41, 255},
};
// YlGnBu: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY YLGNBU_KEYS[] = {
    {0, 255, 255, 217, 255},
    {0.125, 237, 248, 177, 255},
    {0.25, 199, 233, 180, 255},
    {0.375, 127, 205, 187, 255},
    {0.5, 65, 182, 196, 255},
    {0.625, 29, 145, 192, 255},
    {0.75, 34, 94, 168, 255},
    {0.875, 37, 52, 148, 255},
    {1, 8, 29, 88, 255},
};
// YlOrBr: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY YLORBR_KEYS[] = {
    {0, 255, 255, 229, 255},
    {0.125, 255, 247, 188, 255},
    {0.25, 254, 227, 145, 255},
    {0.375, 254, 196, 79, 255},
    {0.5, 254, 153, 41, 255},
    {0.625, 236, 112, 20, 255},
    {0.75, 204, 76, 2, 255},
    {0.875, 153, 52, 4, 255},
    {1, 102, 37, 6, 255},
};
// YlOrRd: ColorBrewer 2.0 (Brewer, Harrower, Penn State)
constexpr COLOUR_KEY YLORRD_KEYS[] = {
    {0, 255, 255, 204, 255},
    {0.125, 255, 237, 160, 255},
    {0.25, 254, 217, 118, 255},
    {0.375, 254, 178, 76, 255},
    {0.5, 253, 141, 60, 255},
    {0.625, 252, 78, 42, 255},
    {0.75, 227, 26, 28, 255},
    {0.875, 189, 0, 38, 255},
    {1, 128, 0, 38, 255},
};
// Four Horsemen: the published scale names its colours in words; these are the CSS colours of the words
constexpr COLOUR_KEY FOURHORSEMEN_KEYS[] = {
    {0, 255, 255, 255, 255},
    {0.333333, 255, 0, 0, 255},
    {0.666667, 0, 0, 0, 255},
    {1, 152, 251, 152, 255},
};
// Bikini state: the published scale names its colours in words; these are the CSS colours of the words
constexpr COLOUR_KEY BIKINISTATE_KEYS[] = {
    {0, 255, 255, 255, 255},
    {0.25, 0, 0, 0, 255},
    {0.5, 0, 0, 0, 255},
    {0.75, 255, 191, 0, 255},
    {1, 255, 0, 0, 255},
};
// Torino scale: the published scale names its colours in words; these are the CSS colours of the words
constexpr COLOUR_KEY TORINOSCALE_KEYS[] = {
    {0, 255, 255, 255, 255},
    {0.1, 0, 128, 0, 255},
    {0.2, 255, 255, 0, 255},
    {0.5, 255, 165, 0, 255},
    {0.8, 255, 0, 0, 255},
    {1, 255, 0, 0, 255},
};
// Vigipirate: the published scale names its colours in words; these are the CSS colours of the words
constexpr COLOUR_KEY VIGIPIRATE_KEYS[] = {
    {0, 255, 255, 255, 255},
    {0.25, 255, 255, 0, 255},
    {0.5, 255, 165, 0, 255},
    {0.75, 255, 0, 0, 255},
    {1, 255, 36, 0, 255},
};
// Hsas chart: the published scale names its colours in words; these are the CSS colours of the words
constexpr COLOUR_KEY HSASCHART_KEYS[] = {
    {0, 0, 128, 0, 255},
    {0.25, 0, 0, 255, 255},
    {0.5, 255, 255, 0, 255},
    {0.75, 255, 165, 0, 255},
    {1, 255, 0, 0, 255},
};
// Cyber Division: no published source: a five-step alert scale from calm to critical
constexpr COLOUR_KEY CYBERDIVISION_KEYS[] = {
    {0, 0, 114, 178, 255},
    {0.25, 0, 158, 115, 255},
    {0.5, 240, 228, 66, 255},
    {0.75, 230, 159, 0, 255},
    {1, 213, 94, 0, 255},
};
// BottleRocket1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY BOTTLEROCKET1_KEYS[] = {
    {0, 164, 40, 32, 255},
    {0.166667, 95, 86, 71, 255},
    {0.333333, 155, 17, 14, 255},
    {0.5, 63, 81, 81, 255},
    {0.666667, 78, 42, 30, 255},
    {0.833333, 85, 3, 7, 255},
    {1, 12, 23, 7, 255},
};
// BottleRocket2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY BOTTLEROCKET2_KEYS[] = {
    {0, 250, 213, 16, 255},
    {0.25, 203, 35, 20, 255},
    {0.5, 39, 48, 70, 255},
    {0.75, 53, 72, 35, 255},
    {1, 30, 30, 30, 255},
};
// Rushmore: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY RUSHMORE_KEYS[] = {
    {0, 225, 189, 109, 255},
    {0.25, 234, 190, 148, 255},
    {0.5, 11, 119, 94, 255},
    {0.75, 53, 39, 74, 255},
    {1, 242, 48, 15, 255},
};
// Royal1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY ROYAL1_KEYS[] = {
    {0, 137, 157, 164, 255},
    {0.333333, 201, 51, 18, 255},
    {0.666667, 250, 239, 209, 255},
    {1, 220, 134, 59, 255},
};
// Royal2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY ROYAL2_KEYS[] = {
    {0, 154, 136, 34, 255},
    {0.25, 245, 205, 180, 255},
    {0.5, 248, 175, 168, 255},
    {0.75, 253, 221, 160, 255},
    {1, 116, 160, 137, 255},
};
// Zissou: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY ZISSOU_KEYS[] = {
    {0, 59, 154, 178, 255},
    {0.25, 120, 183, 197, 255},
    {0.5, 235, 204, 42, 255},
    {0.75, 225, 175, 0, 255},
    {1, 242, 26, 0, 255},
};
// Darjeeling1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY DARJEELING1_KEYS[] = {
    {0, 255, 0, 0, 255},
    {0.25, 0, 160, 138, 255},
    {0.5, 242, 173, 0, 255},
    {0.75, 249, 132, 0, 255},
    {1, 91, 188, 214, 255},
};
// Darjeeling2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY DARJEELING2_KEYS[] = {
    {0, 236, 203, 174, 255},
    {0.25, 4, 108, 154, 255},
    {0.5, 214, 156, 78, 255},
    {0.75, 171, 221, 222, 255},
    {1, 0, 0, 0, 255},
};
// Chevalier: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY CHEVALIER_KEYS[] = {
    {0, 68, 100, 85, 255},
    {0.333333, 253, 210, 98, 255},
    {0.666667, 211, 221, 220, 255},
    {1, 199, 177, 156, 255},
};
// FantasticFox: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY FANTASTICFOX_KEYS[] = {
    {0, 221, 141, 41, 255},
    {0.25, 226, 210, 0, 255},
    {0.5, 70, 172, 200, 255},
    {0.75, 229, 134, 1, 255},
    {1, 180, 15, 32, 255},
};
// Moonrise1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY MOONRISE1_KEYS[] = {
    {0, 243, 223, 108, 255},
    {0.333333, 206, 171, 7, 255},
    {0.666667, 213, 213, 211, 255},
    {1, 36, 40, 26, 255},
};
// Moonrise2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY MOONRISE2_KEYS[] = {
    {0, 121, 142, 135, 255},
    {0.333333, 194, 125, 56, 255},
    {0.666667, 204, 197, 145, 255},
    {1, 41, 33, 31, 255},
};
// Moonrise3: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY MOONRISE3_KEYS[] = {
    {0, 133, 212, 227, 255},
    {0.25, 244, 181, 189, 255},
    {0.5, 156, 150, 74, 255},
    {0.75, 205, 192, 140, 255},
    {1, 250, 215, 123, 255},
};
// Cavalcanti: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY CAVALCANTI_KEYS[] = {
    {0, 216, 183, 10, 255},
    {0.25, 2, 64, 27, 255},
    {0.5, 162, 164, 117, 255},
    {0.75, 129, 168, 141, 255},
    {1, 151, 45, 21, 255},
};
// GrandBudapest1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY GRANDBUDAPEST1_KEYS[] = {
    {0, 241, 187, 123, 255},
    {0.333333, 253, 100, 103, 255},
    {0.666667, 91, 26, 24, 255},
    {1, 214, 114, 54, 255},
};
// GrandBudapest2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY GRANDBUDAPEST2_KEYS[] = {
    {0, 230, 160, 196, 255},
    {0.333333, 198, 205, 247, 255},
    {0.666667, 216, 164, 153, 255},
    {1, 114, 148, 212, 255},
};
// IsleofDogs1: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY ISLEOFDOGS1_KEYS[] = {
    {0, 153, 134, 165, 255},
    {0.2, 121, 64, 46, 255},
    {0.4, 204, 186, 114, 255},
    {0.6, 15, 13, 14, 255},
    {0.8, 217, 208, 211, 255},
    {1, 141, 134, 128, 255},
};
// IsleofDogs2: the R package wesanderson (Ram, Wickham)
constexpr COLOUR_KEY ISLEOFDOGS2_KEYS[] = {
    {0, 234, 211, 191, 255},
    {0.25, 170, 148, 134, 255},
    {0.5, 182, 133, 77, 255},
    {0.75, 57, 49, 47, 255},
    {1, 28, 23, 24, 255},
};
// Topomap (0..4000): no published source: lowland green, upland yellow, mountain brown, snow
constexpr COLOUR_KEY MYSELF_KEYS[] = {
    {0, 56, 128, 60, 255},
    {0.05, 148, 188, 104, 255},
    {0.125, 238, 226, 150, 255},
    {0.375, 200, 150, 90, 255},
    {0.75, 150, 100, 66, 255},
    {1, 250, 250, 250, 255},
};
// Diercke (-300..5000): no published source: the tints of a school atlas, below sea level dark green
constexpr COLOUR_KEY DIERCKE_KEYS[] = {
    {0, 20, 90, 70, 255},
    {0.0566038, 58, 138, 80, 255},
    {0.0754717, 134, 182, 104, 255},
    {0.0943396, 220, 222, 150, 255},
    {0.150943, 240, 220, 160, 255},
    {0.245283, 216, 168, 104, 255},
    {0.433962, 176, 118, 70, 255},
    {0.716981, 136, 84, 56, 255},
    {1, 240, 236, 232, 255},
};
// Alexander (-300..4000): no published source: the same order in the lighter tints of a pupil's atlas
constexpr COLOUR_KEY ALEXANDER_KEYS[] = {
    {0, 44, 110, 90, 255},
    {0.0697674, 104, 166, 100, 255},
    {0.0930233, 174, 206, 132, 255},
    {0.116279, 244, 238, 178, 255},
    {0.186047, 240, 206, 140, 255},
    {0.302326, 214, 158, 104, 255},
    {0.534884, 178, 116, 86, 255},
    {1, 246, 242, 240, 255},
};
// Imhof (-300..4000): no published source: grey-green depths to warm, light heights, after Imhof's rule that higher is lighter
constexpr COLOUR_KEY IMHOF_KEYS[] = {
    {0, 96, 120, 116, 255},
    {0.0697674, 132, 152, 128, 255},
    {0.162791, 168, 184, 140, 255},
    {0.302326, 206, 210, 160, 255},
    {0.488372, 232, 224, 180, 255},
    {0.72093, 246, 236, 206, 255},
    {1, 255, 250, 236, 255},
};
constexpr COLORMAP_ROW DEFAULTMAP_ROWS[] = {
    {"BW", "BW", BW_KEYS},
    {"WB", "WB", WB_KEYS},
    {"RGB", "RGB", RGB_KEYS},
    {"RYGCBM", "RYGCBM", RYGCBM_KEYS},
    {"Rainbow", "RAINBOW", RAINBOW_KEYS},
};
constexpr COLORMAP_ROW SPECIAL_ROWS[] = {
    {"Viridis", "VIRIDIS", VIRIDIS_KEYS},
    {"Magma", "MAGMA", MAGMA_KEYS},
    {"Plasma", "PLASMA", PLASMA_KEYS},
    {"Inferno", "INFERNO", INFERNO_KEYS},
    {"Turbo", "TURBO", TURBO_KEYS},
    {"Cividis", "CIVIDIS", CIVIDIS_KEYS},
    {"Mako", "MAKO", MAKO_KEYS},
    {"Rocket", "ROCKET", ROCKET_KEYS},
};
constexpr COLORMAP_ROW VOLUME1_ROWS[] = {
    {"Cool to Warm", "COOLTOWARM", COOLTOWARM_KEYS},
    {"Black, Blue and White", "BLACKBLUEANDWHITE", BLACKBLUEANDWHITE_KEYS},
    {"Linear Green (Gr4L)", "GR4L", GR4L_KEYS},
    {"Hot and Cold", "HOTANDCOLD", HOTANDCOLD_KEYS},
    {"Jet", "JET", JET_KEYS},
};
constexpr COLORMAP_ROW VOLUME2_ROWS[] = {
    {"Hot", "HOT", HOT_KEYS},
    {"Winter", "WINTER", WINTER_KEYS},
    {"Warm", "WARM", WARM_KEYS},
    {"Cool", "COOL", COOL_KEYS},
    {"Blue-Green", "BLUEGREEN", BLUEGREEN_KEYS},
    {"ACTC", "ACTC", ACTC_KEYS},
    {"Bone", "BONE", BONE_KEYS},
    {"Carp", "CARP", CARP_KEYS},
    {"CT Bones", "CT_BONES", CT_BONES_KEYS},
    {"CT Kidneys", "CT_KIDNEYS", CT_KIDNEYS_KEYS},
    {"CT Liver", "CT_LIVER", CT_LIVER_KEYS},
    {"CT Lungs", "CT_LUNGS", CT_LUNGS_KEYS},
    {"CT Muscles", "CT_MUSCLES", CT_MUSCLES_KEYS},
    {"CT Skin", "CT_SKIN", CT_SKIN_KEYS},
    {"CT Vessels", "CT_VESSELS", CT_VESSELS_KEYS},
    {"Electric blue", "ELECTRICBLUE", ELECTRICBLUE_KEYS},
    {"GE color", "GECOLOR", GECOLOR_KEYS},
    {"Gold", "GOLD", GOLD_KEYS},
    {"HotIron", "HOTIRON", HOTIRON_KEYS},
    {"Rainramp", "RAINRAMP", RAINRAMP_KEYS},
    {"Red-Yellow1", "REDYELLOW1", REDYELLOW1_KEYS},
    {"Red-Yellow2", "REDYELLOW2", REDYELLOW2_KEYS},
    {"Surface", "SURFACE", SURFACE_KEYS},
    {"X-Rain", "XRAIN", XRAIN_KEYS},
};
constexpr COLORMAP_ROW CHART1_ROWS[] = {
    {"DarkBright", "DARKBRIGHT", DARKBRIGHT_KEYS},
    {"Medium", "MEDIUM", MEDIUM_KEYS},
    {"LightPale", "LIGHTPALE", LIGHTPALE_KEYS},
    {"Accent", "ACCENT", ACCENT_KEYS},
    {"Dark2", "DARK2", DARK2_KEYS},
    {"Paired", "PAIRED", PAIRED_KEYS},
    {"Pastel1", "PASTEL1", PASTEL1_KEYS},
    {"Pastel2", "PASTEL2", PASTEL2_KEYS},
    {"Set1", "SET1", SET1_KEYS},
    {"Set2", "SET2", SET2_KEYS},
    {"Set3", "SET3", SET3_KEYS},
};
constexpr COLORMAP_ROW CHART2_ROWS[] = {
    {"BrBG", "BRBG", BRBG_KEYS},
    {"PiYG", "PIYG", PIYG_KEYS},
    {"PRGn", "PRGN", PRGN_KEYS},
    {"PuOr", "PUOR", PUOR_KEYS},
    {"RdBu", "RDBU", RDBU_KEYS},
    {"RdGy", "RDGY", RDGY_KEYS},
    {"RdYlBu", "RDYLBU", RDYLBU_KEYS},
    {"RdYlGn", "RDYLGN", RDYLGN_KEYS},
    {"Spectral", "SPECTRAL", SPECTRAL_KEYS},
    {"Blues", "BLUES", BLUES_KEYS},
    {"BuGn", "BUGN", BUGN_KEYS},
    {"BuPu", "BUPU", BUPU_KEYS},
    {"GnBu", "GNBU", GNBU_KEYS},
    {"Greens", "GREENS", GREENS_KEYS},
    {"Greys", "GREYS", GREYS_KEYS},
    {"Oranges", "ORANGES", ORANGES_KEYS},
    {"OrRd", "ORRD", ORRD_KEYS},
    {"PuBu", "PUBU", PUBU_KEYS},
    {"PuBuGn", "PUBUGN", PUBUGN_KEYS},
    {"PuRd", "PURD", PURD_KEYS},
    {"Purples", "PURPLES", PURPLES_KEYS},
    {"RdPu", "RDPU", RDPU_KEYS},
    {"Reds", "REDS", REDS_KEYS},
    {"YlGn", "YLGN", YLGN_KEYS},
    {"YlGnBu", "YLGNBU", YLGNBU_KEYS},
    {"YlOrBr", "YLORBR", YLORBR_KEYS},
    {"YlOrRd", "YLORRD", YLORRD_KEYS},
};
constexpr COLORMAP_ROW WARN_ROWS[] = {
    {"Four Horsemen", "FOURHORSEMEN", FOURHORSEMEN_KEYS},
    {"Bikini state", "BIKINISTATE", BIKINISTATE_KEYS},
    {"Torino scale", "TORINOSCALE", TORINOSCALE_KEYS},
    {"Vigipirate", "VIGIPIRATE", VIGIPIRATE_KEYS},
    {"Hsas chart", "HSASCHART", HSASCHART_KEYS},
    {"Cyber Division", "CYBERDIVISION", CYBERDIVISION_KEYS},
};
constexpr COLORMAP_ROW ART_ROWS[] = {
    {"BottleRocket1", "BOTTLEROCKET1", BOTTLEROCKET1_KEYS},
    {"BottleRocket2", "BOTTLEROCKET2", BOTTLEROCKET2_KEYS},
    {"Rushmore", "RUSHMORE", RUSHMORE_KEYS},
    {"Royal1", "ROYAL1", ROYAL1_KEYS},
    {"Royal2", "ROYAL2", ROYAL2_KEYS},
    {"Zissou", "ZISSOU", ZISSOU_KEYS},
    {"Darjeeling1", "DARJEELING1", DARJEELING1_KEYS},
    {"Darjeeling2", "DARJEELING2", DARJEELING2_KEYS},
    {"Chevalier", "CHEVALIER", CHEVALIER_KEYS},
    {"FantasticFox", "FANTASTICFOX", FANTASTICFOX_KEYS},
    {"Moonrise1", "MOONRISE1", MOONRISE1_KEYS},
    {"Moonrise2", "MOONRISE2", MOONRISE2_KEYS},
    {"Moonrise3", "MOONRISE3", MOONRISE3_KEYS},
    {"Cavalcanti", "CAVALCANTI", CAVALCANTI_KEYS},
    {"GrandBudapest1", "GRANDBUDAPEST1", GRANDBUDAPEST1_KEYS},
    {"GrandBudapest2", "GRANDBUDAPEST2", GRANDBUDAPEST2_KEYS},
    {"IsleofDogs1", "ISLEOFDOGS1", ISLEOFDOGS1_KEYS},
    {"IsleofDogs2", "ISLEOFDOGS2", ISLEOFDOGS2_KEYS},
};
constexpr COLORMAP_ROW TOPO_ROWS[] = {
    {"Topomap (0..4000)", "MYSELF", MYSELF_KEYS},
    {"Diercke (-300..5000)", "DIERCKE", DIERCKE_KEYS},
    {"Alexander (-300..4000)", "ALEXANDER", ALEXANDER_KEYS},
    {"Imhof (-300..4000)", "IMHOF", IMHOF_KEYS},
};
constexpr COLORMAP_FAMILY FAMILIES[] = {
    {"DEFAULTMAP", DEFAULTMAP_ROWS},
    {"SPECIAL", SPECIAL_ROWS},
    {"VOLUME1", VOLUME1_ROWS},
    {"VOLUME2", VOLUME2_ROWS},
    {"CHART1", CHART1_ROWS},
    {"CHART2", CHART2_ROWS},
    {"WARN", WARN_ROWS},
    {"ART", ART_ROWS},
    {"TOPO", TOPO_ROWS},
};
} // namespace

std::span<const COLORMAP_FAMILY> COLORMAP_FAMILIES() { return FAMILIES; }
} // namespace morvane
