// Fades: Opacity moves step by step towards a final value, one step a timer tick.
#include <algorithm>
#include <cstdlib>

#include "image/widget/aicAlphaImage.h"

namespace orvanta {

namespace {

constexpr std::int32_t kShortestFadeInterval = 10;

}  // namespace

void aicAlphaImage::FadeInOut(std::int32_t FinalOpacity, std::int32_t FadeStepPercent,
                              std::int32_t FadeDelayInterval) {
    fadeTimer_.stop();
    fadeStep_ = 0;
    fadeFinal_ = std::clamp(FinalOpacity, 0, 100);
    if (FadeStepPercent == 0 || fadeFinal_ == opacity_) return;
    const std::int32_t step = FadeStepPercent == INT32_MIN ? 100 : std::min(std::abs(FadeStepPercent), 100);
    fadeStep_ = fadeFinal_ > opacity_ ? step : -step;
    fadeInterval_ = std::max(FadeDelayInterval, kShortestFadeInterval);
    fadeTick();
}

void aicAlphaImage::fadeTick() {
    if (fadeStep_ == 0) return;
    const std::int32_t next = opacity_ + fadeStep_;
    const bool arrived = fadeStep_ > 0 ? next >= fadeFinal_ : next <= fadeFinal_;
    if (!arrived) {
        setOpacity(next);
        fadeTimer_.start(fadeInterval_);
        return;
    }
    setOpacity(fadeFinal_);
    fadeStep_ = 0;
    emit FadeTerminated(opacity_);
}

}  // namespace orvanta
