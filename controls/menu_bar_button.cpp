#include "controls/menu_bar_button.h"

#include <algorithm>

#include "controls/logic/menu_placement.h"
#include "framework/gdi.h"
#include "framework/monitors.h"

namespace korvane::controls {
namespace {

static_assert(kOpenBelow == (TPM_RETURNCMD | TPM_VERTICAL | TPM_RIGHTBUTTON));
static_assert(kOpenAbove == (kOpenBelow | TPM_BOTTOMALIGN));

int SeparatorsIn(HMENU menu, int items) {
    int separators = 0;
    for (int i = 0; i < items; ++i) {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_FTYPE;
        if (::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item) && (item.fType & MFT_SEPARATOR)) ++separators;
    }
    return separators;
}

// A press on the button that closed its menu would open it again: it was meant to close it.
void ForgetPresses(HWND button) {
    MSG press{};
    while (::PeekMessageW(&press, button, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE) ||
           ::PeekMessageW(&press, button, WM_LBUTTONDBLCLK, WM_LBUTTONDBLCLK, PM_REMOVE)) {
        // No filter keeps the end of the program out.
        if (press.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(press.wParam));
            return;
        }
    }
}

} // namespace

UINT TrackMenuAt(HWND button, BarHost& host, int popup) {
    const HMENU menu = host.Popup(popup);
    const int items = menu ? std::max(::GetMenuItemCount(menu), 0) : 0;
    const int height =
        EstimatedMenuHeight(items, SeparatorsIn(menu, items), ::GetSystemMetrics(SM_CYMENU), fw::Scale());
    const MenuPlacement placement =
        PlaceMenu(fw::WindowRect(button), height, fw::WorkAreaOf(::GetAncestor(button, GA_ROOT)).bottom);
    const UINT command = host.TrackPopup(popup, placement.flags, {placement.at.x, placement.at.y});
    if (::IsWindow(button)) ForgetPresses(button);
    return command;
}

} // namespace korvane::controls
