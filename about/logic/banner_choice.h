#pragma once

#include <array>
#include <optional>

#include "res/image_ids.h"

namespace korvane::about {

// The finest banner of the type "PNG" that is not drawn for a higher resolution than the screen's, for it is shown as
// it is. Empty where that is the plain bitmap.
[[nodiscard]] constexpr std::optional<unsigned> FinerBannerFor(int dpi) {
    struct Choice {
        int fromDpi;
        unsigned image;
    };
    constexpr std::array kFinestFirst{Choice{192, IDP_BANNER_200}, Choice{144, IDP_BANNER_150},
                                      Choice{120, IDP_BANNER_125}};
    for (const Choice& choice : kFinestFirst)
        if (dpi >= choice.fromDpi) return choice.image;
    return std::nullopt;
}

} // namespace korvane::about
