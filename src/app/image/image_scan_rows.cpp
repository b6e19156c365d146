#include "app/image/image_scan_rows.hpp"

#include "app/workspaces.hpp"
#include "orientation/scan/image_axis.hpp"
#include "orientation/scan/image_scan.hpp"
#include "script/workspace/setting_handlers.hpp"

// The scan of directions in the image in use: settings, the angle image, the mean axis.
namespace morvane {
namespace {
// new := image.diffusion length: the image of angles.
void Diffusion(TMACRO *engine) {
    TIMAGE *target = IMAGES.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    static_cast<void>(DIFFUSION_IMAGE(IMAGES.CURRENT(), *target, GETNAT(engine->GETPARAMETER(1)),
                                      THREAD_LIMIT(engine)));
    engine->COMMAND_RESULT_VAR = UTF16();
}

// a := image.diffusion.axis length: <degrees, alignment>.
void DiffusionAxis(TMACRO *engine) {
    const MEAN_AXIS mean =
        GETMEANAXIS(IMAGES.CURRENT(), GETNAT(engine->GETPARAMETER(1)), THREAD_LIMIT(engine));
    engine->COMMAND_RESULT = GETSTRING(COMPLEX{mean.degrees, mean.alignment});
}

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("submethod", (SETTING<&IMAGES, &TIMAGE::subMethod>), EXACTLY(1), "statistic: number",
              "image.submethod 2", "statistic of a scan line: 0 sum, 1 mean, 2 sd .. 7 max"),
    PROCEDURE("fullscan", (SETTING<&IMAGES, &TIMAGE::fullScan>), EXACTLY(1), "on: flag",
              "image.fullscan 1", "a pixel with a line too short gets no direction"),
    PROCEDURE("diffusion.method", (SETTING<&IMAGES, &TIMAGE::diffusionMethod>), EXACTLY(1),
              "method: number", "image.diffusion.method 5", "1 to 6, by year; 5 is the default"),
    PROCEDURE("diffusion.max", (SETTING<&IMAGES, &TIMAGE::diffusionMax>), EXACTLY(1), "share: real",
              "image.diffusion.max 0.25", "share of directions that may tie, 0 to 1"),
    PROCEDURE("diffusion.angle", (SETTING<&IMAGES, &TIMAGE::diffusionAngle>), EXACTLY(1),
              "angle: real rad", "image.diffusion.angle 5°",
              "half angle of the cone of methods 4 to 6"),
    PROCEDURE("diffusion.axial", (SETTING<&IMAGES, &TIMAGE::diffusionAxial>), EXACTLY(1),
              "on: flag", "image.diffusion.axial 1",
              "angle images hold all axes, not only those to the left"),
    FUNCTION("diffusion", Diffusion, EXACTLY(1), "length: number pixels",
             "angles := image.diffusion 16", "angle of the structure at each pixel"),
    FUNCTION("diffusion.axis", DiffusionAxis, EXACTLY(1), "length: number pixels",
             "a := image.diffusion.axis 16",
             "mean axis <degrees, alignment>, from x towards y (down)"),
};
static_assert(ROWS_ARE_SOUND(ROWS));
} // namespace

const COMMAND_SET IMAGE_SCAN_SET{"image.", ROWS};
} // namespace morvane
