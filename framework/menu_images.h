#pragma once

#include <windows.h>

#include <functional>
#include <map>

#include "base/geometry.h"
#include "framework/handle.h"
#include "framework/message_map.h"
#include "framework/pixel_bitmap.h"

namespace fw {

// Who draws the images of a menu.
enum class MenuImageStyle {
    kBitmap,   // the system, from bitmaps with an alpha channel
    kCallback, // the menu's owner, asked by WM_MEASUREITEM and WM_DRAWITEM
};

// Windows drops the visual style of a whole pop-up when its owner draws anything in it, so there the images are
// bitmaps. Wine draws such bitmaps without regard to their alpha, inverts the selected one and lets the shortcut texts
// overlap.
[[nodiscard]] constexpr MenuImageStyle MenuImageStyleFor(bool wine, bool visualStyles) {
    return wine || !visualStyles ? MenuImageStyle::kCallback : MenuImageStyle::kBitmap;
}
// The one that is right at this moment; the user may switch the visual styles.
[[nodiscard]] MenuImageStyle CurrentMenuImageStyle();

// One image for each command, shown beside it in every menu. The texts stay the system's in either style, and with them
// the characters to choose an item by. The window that owns the menus hands on three messages; nothing else of its
// menus may be drawn by it.
class MenuImages {
public:
    // Asked when the item is first shown, and only then; it may find that there is no icon.
    using IconSource = std::function<UniqueIcon()>;

    // `cell` is the room that an image gets where its owner draws it. Both in pixels.
    MenuImages(int imagePx, korvane::base::Size cell, std::function<MenuImageStyle()> style = &CurrentMenuImageStyle);

    // Takes over an icon's picture; the icon stays the caller's. Without a usable icon the command has no image.
    void Set(UINT command, HICON icon);
    void Set(UINT command, IconSource source, ImageKind kind = ImageKind::kPicture);
    // Menus that show the image must have lost it, or be asked for anew, before they are shown again.
    void Remove(UINT command);

    // WM_INITMENUPOPUP, once the items and their states are what they will be: greyed items get a dimmed image. Check
    // marks stay; a bitmap makes room for one. What opens a pop-up has no image, nor has a separator.
    void GiveTo(HMENU popup);
    // WM_MEASUREITEM and WM_DRAWITEM. Empty for what is not a menu's.
    [[nodiscard]] Reply Measure(MEASUREITEMSTRUCT& item) const;
    [[nodiscard]] Reply Draw(const DRAWITEMSTRUCT& item);

private:
    struct Image {
        ImageKind kind = ImageKind::kPicture;
        IconSource source; // until it has been asked
        UniqueBitmap normal;
        UniqueBitmap dimmed; // made when first needed
    };

    // Null when there is none.
    [[nodiscard]] HBITMAP ImageFor(const MENUITEMINFOW& item);
    [[nodiscard]] HBITMAP BitmapOf(UINT command, bool greyed);

    int imagePx_;
    korvane::base::Size cell_;
    std::function<MenuImageStyle()> style_;
    std::map<UINT, Image> images_;
};

} // namespace fw
