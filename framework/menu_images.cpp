#include "framework/menu_images.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/menu_pixels.h"
#include "framework/pixel_bitmap.h"
#include "framework/theme.h"
#include "framework/windows_version.h"

namespace fw {
namespace {

using korvane::base::Rect;
using korvane::base::Size;

UniqueBitmap PictureOf(HICON icon, int sidePx) {
    if (!icon) return {};
    return PremultipliedPicture({sidePx, sidePx}, [=](HDC dc) {
        return ::DrawIconEx(dc, 0, 0, icon, sidePx, sidePx, 0, nullptr, DI_NORMAL) != FALSE;
    });
}

// The colour that the system gives the text beside the image.
COLORREF TextColourBeside(UINT itemState) {
    if ((itemState & (ODS_GRAYED | ODS_DISABLED)) != 0) return ::GetSysColor(COLOR_GRAYTEXT);
    return ::GetSysColor((itemState & ODS_SELECTED) != 0 ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT);
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
    // A visual style for high contrast has the system's colours, but it is no help to a bitmap that has its own.
    return MenuImageStyleFor(IsWine(), VisualStylesActive() && !HighContrast());
}

MenuImages::MenuImages(int imagePx, Size cell, std::function<MenuImageStyle()> style)
    : imagePx_{imagePx}, cell_{cell}, style_{std::move(style)} {}

void MenuImages::Set(UINT command, HICON icon) {
    images_[command] = {.kind = ImageKind::kPicture, .source = {}, .normal = PictureOf(icon, imagePx_), .dimmed = {}};
}

void MenuImages::Set(UINT command, IconSource source, ImageKind kind) {
    images_[command] = {.kind = kind, .source = std::move(source), .normal = {}, .dimmed = {}};
}

void MenuImages::Remove(UINT command) {
    images_.erase(command);
}

void MenuImages::GiveTo(HMENU popup) {
    const MenuImageStyle style = style_();
    ShareColumnWithCheckMarks(popup, style == MenuImageStyle::kBitmap);

    // Of a menu that is gone the count is -1.
    const int count = std::max(::GetMenuItemCount(popup), 0);
    std::vector<HBITMAP> images(static_cast<std::size_t>(count));
    for (int at = 0; at < count; ++at) images[at] = ImageFor(ItemAt(popup, at));
    // One item with a cell and one without would differ in height, and a shortcut might stand on a longer text.
    const bool any = std::ranges::any_of(images, [](HBITMAP image) { return image != nullptr; });
    if (style == MenuImageStyle::kCallback) std::ranges::fill(images, any ? HBMMENU_CALLBACK : nullptr);

    for (int at = 0; at < count; ++at) GiveToItem(popup, at, images[at]);
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
    if (!image.dimmed) image.dimmed = ChangedCopyOf(image.normal.Get(), &DimmedPixel);
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
    const Rect at = korvane::base::Centred(FromWindows(item.rcItem), {imagePx_, imagePx_});
    const auto found = images_.find(item.itemID);
    if (found != images_.end() && found->second.kind == ImageKind::kDrawing && HighContrast()) {
        const COLORREF ink = TextColourBeside(item.itemState);
        const UniqueBitmap drawing = ChangedCopyOf(BitmapOf(item.itemID, false),
                                                   [ink](std::uint32_t pixel) { return PixelInColour(pixel, ink); });
        if (drawing) DrawPremultiplied(item.hDC, at, drawing.Get());
        return LRESULT{TRUE};
    }
    const HBITMAP image = BitmapOf(item.itemID, (item.itemState & (ODS_GRAYED | ODS_DISABLED)) != 0);
    if (image) DrawPremultiplied(item.hDC, at, image);
    return LRESULT{TRUE};
}

} // namespace fw
