#include "framework/menu_images.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "framework/gdi.h"
#include "framework/menu_pixels.h"
#include "framework/theme.h"
#include "framework/windows_version.h"

namespace fw {
namespace {

using korvane::base::Rect;
using korvane::base::Size;

// A square bitmap of 32-bit pixels, top row first.
class PixelSquare {
public:
    explicit PixelSquare(int sidePx) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = sidePx;
        info.bmiHeader.biHeight = -sidePx;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_.Reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (bitmap_) pixels_ = {static_cast<std::uint32_t*>(bits), static_cast<std::size_t>(sidePx) * sidePx};
    }

    [[nodiscard]] HBITMAP Bitmap() const { return bitmap_.Get(); }
    // Empty when there is no bitmap.
    [[nodiscard]] std::span<std::uint32_t> Pixels() const { return pixels_; }
    [[nodiscard]] UniqueBitmap Take() { return std::move(bitmap_); }

private:
    UniqueBitmap bitmap_;
    std::span<std::uint32_t> pixels_;
};

bool PaintIcon(const PixelSquare& target, std::uint32_t ground, HICON icon, int sidePx) {
    std::ranges::fill(target.Pixels(), ground);
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    const SelectedObject selected{dc.Get(), target.Bitmap()};
    const bool painted = ::DrawIconEx(dc.Get(), 0, 0, icon, sidePx, sidePx, 0, nullptr, DI_NORMAL) != FALSE;
    // Drawing may be held back until the pixels are read by GDI; they are going to be read directly.
    ::GdiFlush();
    return painted;
}

UniqueBitmap PictureOf(HICON icon, int sidePx) {
    constexpr std::uint32_t kBlack = 0x00000000;
    constexpr std::uint32_t kWhite = 0x00FFFFFF;
    PixelSquare picture{sidePx};
    const PixelSquare overWhite{sidePx};
    if (!icon || !picture.Bitmap() || !overWhite.Bitmap()) return {};
    if (!PaintIcon(picture, kBlack, icon, sidePx) || !PaintIcon(overWhite, kWhite, icon, sidePx)) return {};
    std::ranges::transform(picture.Pixels(), overWhite.Pixels(), picture.Pixels().begin(), &PremultipliedPixel);
    return picture.Take();
}

UniqueBitmap DimmedCopyOf(HBITMAP picture) {
    DIBSECTION section{};
    if (::GetObjectW(picture, sizeof section, &section) != sizeof section) return {};
    const int sidePx = static_cast<int>(section.dsBm.bmWidth);
    PixelSquare copy{sidePx};
    const std::span from{static_cast<const std::uint32_t*>(section.dsBm.bmBits), copy.Pixels().size()};
    std::ranges::transform(from, copy.Pixels().begin(), &DimmedPixel);
    return copy.Take();
}

// The images that Windows draws of its own accord, such as the cross beside "Close"; the owner's callback and real
// bitmaps are none of them.
bool IsSystemImage(HBITMAP image) {
    const auto number = reinterpret_cast<std::intptr_t>(image);
    return number > 0 && number <= reinterpret_cast<std::intptr_t>(HBMMENU_POPUP_MINIMIZE);
}

// With a column for the check marks beside that of the images, a menu in the visual style would be wider than all
// others. Wine gives no room to images that share one.
void ShareColumnWithCheckMarks(HMENU popup, bool share) {
    MENUINFO menu{};
    menu.cbSize = sizeof menu;
    menu.fMask = MIM_STYLE;
    if (!::GetMenuInfo(popup, &menu)) return;
    const DWORD style = share ? menu.dwStyle | MNS_CHECKORBMP : menu.dwStyle & ~DWORD{MNS_CHECKORBMP};
    if (style == menu.dwStyle) return;
    menu.dwStyle = style;
    ::SetMenuInfo(popup, &menu);
}

MENUITEMINFOW ItemAt(HMENU popup, int position) {
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_ID | MIIM_SUBMENU | MIIM_FTYPE | MIIM_STATE | MIIM_BITMAP;
    ::GetMenuItemInfoW(popup, static_cast<UINT>(position), TRUE, &item);
    return item;
}

void GiveToItem(HMENU popup, int position, HBITMAP image) {
    MENUITEMINFOW item = ItemAt(popup, position);
    if ((item.fType & MFT_SEPARATOR) != 0 || IsSystemImage(item.hbmpItem) || item.hbmpItem == image) return;
    item.fMask = MIIM_BITMAP;
    item.hbmpItem = image;
    ::SetMenuItemInfoW(popup, static_cast<UINT>(position), TRUE, &item);
}

} // namespace

MenuImageStyle CurrentMenuImageStyle() {
    return MenuImageStyleFor(IsWine(), VisualStylesActive());
}

MenuImages::MenuImages(int imagePx, Size cell, std::function<MenuImageStyle()> style)
    : imagePx_{imagePx}, cell_{cell}, style_{std::move(style)} {}

void MenuImages::Set(UINT command, HICON icon) {
    images_[command] = {.source = {}, .normal = PictureOf(icon, imagePx_), .dimmed = {}};
}

void MenuImages::Set(UINT command, IconSource source) {
    images_[command] = {.source = std::move(source), .normal = {}, .dimmed = {}};
}

void MenuImages::Remove(UINT command) {
    images_.erase(command);
}

void MenuImages::GiveTo(HMENU popup) {
    const MenuImageStyle style = style_();
    ShareColumnWithCheckMarks(popup, style == MenuImageStyle::kBitmap);

    std::vector<HBITMAP> images;
    for (int at = 0; at < ::GetMenuItemCount(popup); ++at) images.push_back(ImageFor(ItemAt(popup, at)));
    // One item with a cell and one without would differ in height, and a shortcut might stand on a longer text.
    const bool any = std::ranges::any_of(images, [](HBITMAP image) { return image != nullptr; });
    if (style == MenuImageStyle::kCallback) std::ranges::fill(images, any ? HBMMENU_CALLBACK : nullptr);

    for (int at = 0; at < static_cast<int>(images.size()); ++at) GiveToItem(popup, at, images[at]);
}

HBITMAP MenuImages::ImageFor(const MENUITEMINFOW& item) {
    if (item.hSubMenu || (item.fType & MFT_SEPARATOR) != 0) return nullptr;
    return BitmapOf(item.wID, (item.fState & (MF_GRAYED | MF_DISABLED)) != 0);
}

HBITMAP MenuImages::BitmapOf(UINT command, bool greyed) {
    const auto found = images_.find(command);
    if (found == images_.end()) return nullptr;
    Image& image = found->second;
    if (image.source) image.normal = PictureOf(std::exchange(image.source, {})().Get(), imagePx_);
    if (!greyed || !image.normal) return image.normal.Get();
    if (!image.dimmed) image.dimmed = DimmedCopyOf(image.normal.Get());
    return image.dimmed.Get();
}

Reply MenuImages::Measure(MEASUREITEMSTRUCT& item) const {
    if (item.CtlType != ODT_MENU) return kPassOn;
    item.itemWidth = static_cast<UINT>(cell_.width);
    item.itemHeight = static_cast<UINT>(cell_.height);
    return LRESULT{TRUE};
}

Reply MenuImages::Draw(const DRAWITEMSTRUCT& item) {
    if (item.CtlType != ODT_MENU) return kPassOn;
    const HBITMAP image = BitmapOf(item.itemID, (item.itemState & (ODS_GRAYED | ODS_DISABLED)) != 0);
    if (!image) return LRESULT{TRUE};
    const UniqueMemoryDc source{::CreateCompatibleDC(item.hDC)};
    const SelectedObject selected{source.Get(), image};
    const Rect at = korvane::base::Centred(FromWindows(item.rcItem), {imagePx_, imagePx_});
    constexpr BLENDFUNCTION kByAlpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(item.hDC, at.left, at.top, imagePx_, imagePx_, source.Get(), 0, 0, imagePx_, imagePx_, kByAlpha);
    return LRESULT{TRUE};
}

} // namespace fw
