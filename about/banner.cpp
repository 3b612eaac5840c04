#include "about/banner.h"

#include "framework/gdiplus_image.h"

namespace korvane::about {

fw::UniqueBitmap LoadBanner(std::optional<unsigned> finer) {
    fw::UniqueBitmap banner;
    if (finer) banner = fw::PngImage::FromResource(*finer).ToBitmap();
    if (banner) return banner;
    return fw::UniqueBitmap{static_cast<HBITMAP>(::LoadImageW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_BANNER),
                                                              IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION))};
}

} // namespace korvane::about
