#pragma once

#include <windows.h>

#include <functional>

#include "framework/handle.h"
#include "framework/menu_images.h"
#include "framework/message_map.h"

namespace korvane::launch {

// The program's menus, whose pop-ups stand in a row as in a menu bar that is never shown, and an image for each of
// their commands. The window that tracks a pop-up passes on WM_INITMENUPOPUP, WM_MEASUREITEM and WM_DRAWITEM.
class CAppMenuBar {
public:
    using IconSource = fw::MenuImages::IconSource;

    explicit CAppMenuBar(std::function<fw::MenuImageStyle()> style = &fw::CurrentMenuImageStyle);
    CAppMenuBar(const CAppMenuBar&) = delete;
    CAppMenuBar& operator=(const CAppMenuBar&) = delete;

    // False when the menu's resource could not be loaded.
    [[nodiscard]] bool Create();
    [[nodiscard]] HMENU Menu() const { return menu_.Get(); }
    // Null when there is none at this position.
    [[nodiscard]] HMENU Popup(int position) const { return ::GetSubMenu(menu_.Get(), position); }

    // Takes over the icon's picture; the icon stays the caller's.
    void AddIcon(UINT command, HICON icon);
    // The source is asked when the command is first shown; until then its icon costs nothing.
    void AddIcon(UINT command, IconSource source, fw::ImageKind kind = fw::ImageKind::kPicture);
    void RemoveImage(UINT command);

    // After the owner has brought the pop-up's items and their states up to date.
    void OnInitMenuPopup(HMENU popup) { images_.GiveTo(popup); }
    // Empty for what is not a menu's.
    [[nodiscard]] fw::Reply OnMeasureItem(MEASUREITEMSTRUCT& item) const { return images_.Measure(item); }
    [[nodiscard]] fw::Reply OnDrawItem(const DRAWITEMSTRUCT& item) { return images_.Draw(item); }

private:
    // The items borrow the images' bitmaps, so the menu goes first.
    fw::MenuImages images_;
    fw::UniqueMenu menu_;
};

} // namespace korvane::launch
