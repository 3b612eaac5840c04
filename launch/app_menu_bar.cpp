#include "launch/app_menu_bar.h"

#include <utility>

#include "framework/dpi.h"
#include "res/ids.h"

namespace korvane::launch {
namespace {

// Pixels. Where the program draws an image, it stands in the middle of a square as large as a button; the menu itself
// adds one pixel above and one below.
constexpr int kImageSidePx = 16;
constexpr int kButtonSidePx = 22;
constexpr int kMenuAddsPx = 2;

base::Size Cell() {
    const int side = fw::Scale()(kButtonSidePx);
    return {side, side - kMenuAddsPx};
}

} // namespace

CAppMenuBar::CAppMenuBar(std::function<fw::MenuImageStyle()> style)
    : images_{fw::Scale()(kImageSidePx), Cell(), std::move(style)} {}

bool CAppMenuBar::Create() {
    menu_.Reset(::LoadMenuW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDM_BAR)));
    return static_cast<bool>(menu_);
}

void CAppMenuBar::AddIcon(UINT command, HICON icon) {
    RemoveImage(command);
    images_.Set(command, icon);
}

void CAppMenuBar::AddIcon(UINT command, IconSource source, fw::ImageKind kind) {
    RemoveImage(command);
    images_.Set(command, std::move(source), kind);
}

void CAppMenuBar::RemoveImage(UINT command) {
    // The item must not keep a bitmap that is gone.
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_BITMAP;
    ::SetMenuItemInfoW(menu_.Get(), command, FALSE, &item);
    images_.Remove(command);
}

} // namespace korvane::launch
