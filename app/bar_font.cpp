#include "app/bar_font.h"

#include "framework/dpi.h"

namespace korvane::app {

fw::UniqueFont MakeBarFont(bool windows8OrLater) {
    if (windows8OrLater) {
        LOGFONTW iconTitle{};
        if (::SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof iconTitle, &iconTitle, 0))
            return fw::UniqueFont{::CreateFontIndirectW(&iconTitle)};
    }
    constexpr int kPoints = 9;
    constexpr int kPointsPerInch = 72;
    return fw::UniqueFont{::CreateFontW(-::MulDiv(kPoints, fw::Scale().Dpi(), kPointsPerInch), 0, 0, 0, FW_NORMAL,
                                        FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                        CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"Meiryo UI")};
}

} // namespace korvane::app
