#include "app/active_caption.h"

namespace korvane::app {

bool BelongsTo(HWND owner, HWND window) {
    while (window && window != owner) window = ::GetWindow(window, GW_OWNER);
    return window != nullptr;
}

void ActiveCaption::OnActivate(HWND window, UINT how, HWND other) {
    popUp_ = how == WA_INACTIVE && BelongsTo(window, other) ? other : nullptr;
    // The caption has been drawn inactive already; Windows only tells now for whose sake.
    if (popUp_) ::SendMessageW(window, WM_NCACTIVATE, TRUE, 0);
}

void ActiveCaption::OnActivateApp(HWND window, bool active) const {
    if (popUp_ && (!active || ::IsWindowVisible(popUp_))) ::SendMessageW(window, WM_NCACTIVATE, active, 0);
}

} // namespace korvane::app
