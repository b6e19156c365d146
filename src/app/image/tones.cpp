#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "app/range_parameters.hpp"
#include "foundation/base/number_text.hpp"
#include "image2d/image/hues.hpp"
#include "image2d/image/peaks.hpp"

// Edits of the image in use by its histogram's peak, by tone and by hue.
namespace morvane {
namespace {
enum class PEAK_GOAL { LOWER, MIDDLE, HIGHER };

void SetPeak(PEAK_GOAL goal) {
    TIMAGE &image = IMAGES.CURRENT();
    const NAT top = image.PIXELMAX();
    const NAT target = goal == PEAK_GOAL::LOWER    ? 0
                       : goal == PEAK_GOAL::MIDDLE ? (top + 1) / 2
                                                   : top;
    WITH_MEMORY([&] { SETPEAK(image, PEAK_CHANNEL::MEAN, {0, top}, target); });
}

// setpeak.local target range
void SetPeakLocal(TMACRO *engine, PEAK_CHANNEL channel) {
    const NAT target = GETNAT(engine->GETPARAMETER(1));
    const COMPLEXNAT range = GETRANGE(engine->GETPARAMETER(2));
    WITH_MEMORY([&] { SETPEAK(IMAGES.CURRENT(), channel, range, target); });
}

VECTOR GetVector(TMACRO *engine, NAT index) { return GETVECTOR(engine->GETPARAMETER(index)); }

void SetMin(TMACRO *engine, HUE hue) {
    SETMIN(IMAGES.CURRENT(), hue, GETCOLOUR(engine->GETPARAMETER(1)));
}
void SetMax(TMACRO *engine, HUE hue) {
    SETMAX(IMAGES.CURRENT(), hue, GETCOLOUR(engine->GETPARAMETER(1)));
}
} // namespace

void IMAGE_SETPEAKLOWER(TMACRO *) { SetPeak(PEAK_GOAL::LOWER); }
void IMAGE_SETPEAKMIDDLE(TMACRO *) { SetPeak(PEAK_GOAL::MIDDLE); }
void IMAGE_SETPEAKHIGHER(TMACRO *) { SetPeak(PEAK_GOAL::HIGHER); }
void IMAGE_SETPEAK_LOCAL(TMACRO *engine) { SetPeakLocal(engine, PEAK_CHANNEL::MEAN); }
void IMAGE_SETPEAK_LOCALRED(TMACRO *engine) { SetPeakLocal(engine, PEAK_CHANNEL::RED); }
void IMAGE_SETPEAK_LOCALGREEN(TMACRO *engine) { SetPeakLocal(engine, PEAK_CHANNEL::GREEN); }
void IMAGE_SETPEAK_LOCALBLUE(TMACRO *engine) { SetPeakLocal(engine, PEAK_CHANNEL::BLUE); }

void IMAGE_SETBALANCE(TMACRO *engine) {
    SETBALANCE(IMAGES.CURRENT(),
               {GetVector(engine, 1), GetVector(engine, 2), GetVector(engine, 3)});
}
void IMAGE_SETBALANCE_SHADOWS(TMACRO *engine) {
    SETBALANCE(IMAGES.CURRENT(),
               {.shadows = GetVector(engine, 1), .midtones = {}, .highlights = {}});
}
void IMAGE_SETBALANCE_MIDTONES(TMACRO *engine) {
    SETBALANCE(IMAGES.CURRENT(),
               {.shadows = {}, .midtones = GetVector(engine, 1), .highlights = {}});
}
void IMAGE_SETBALANCE_HIGHLIGHTS(TMACRO *engine) {
    SETBALANCE(IMAGES.CURRENT(),
               {.shadows = {}, .midtones = {}, .highlights = GetVector(engine, 1)});
}

void IMAGE_SETMIN_RED(TMACRO *engine) { SetMin(engine, HUE::RED); }
void IMAGE_SETMIN_GREEN(TMACRO *engine) { SetMin(engine, HUE::GREEN); }
void IMAGE_SETMIN_BLUE(TMACRO *engine) { SetMin(engine, HUE::BLUE); }
void IMAGE_SETMIN_YELLOW(TMACRO *engine) { SetMin(engine, HUE::YELLOW); }
void IMAGE_SETMIN_CYAN(TMACRO *engine) { SetMin(engine, HUE::CYAN); }
void IMAGE_SETMIN_PURPLE(TMACRO *engine) { SetMin(engine, HUE::PURPLE); }
void IMAGE_SETMAX_RED(TMACRO *engine) { SetMax(engine, HUE::RED); }
void IMAGE_SETMAX_GREEN(TMACRO *engine) { SetMax(engine, HUE::GREEN); }
void IMAGE_SETMAX_BLUE(TMACRO *engine) { SetMax(engine, HUE::BLUE); }
void IMAGE_SETMAX_YELLOW(TMACRO *engine) { SetMax(engine, HUE::YELLOW); }
void IMAGE_SETMAX_CYAN(TMACRO *engine) { SetMax(engine, HUE::CYAN); }
void IMAGE_SETMAX_PURPLE(TMACRO *engine) { SetMax(engine, HUE::PURPLE); }
} // namespace morvane
