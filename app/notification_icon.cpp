#include "app/notification_icon.h"

#include <iterator>
#include <string>

#include "framework/string_table.h"
#include "res/ids.h"

namespace korvane::app {
namespace {

constexpr UINT kId = 1; // of the window's icons

} // namespace

bool NotificationIcon::Add(HWND window, HICON smallIcon) {
    Remove();
    window_ = window;
    icon_ = smallIcon;
    return Tell(NIM_ADD);
}

void NotificationIcon::Remove() {
    if (!window_) return;
    Tell(NIM_DELETE);
    window_ = nullptr;
}

UINT NotificationIcon::AreaCreatedMessage() {
    static const UINT message = ::RegisterWindowMessageW(L"TaskbarCreated");
    return message;
}

void NotificationIcon::OnAreaCreated() {
    // Newer systems send the message also when the scale of the screen has changed, with the icons still in place.
    if (window_ && !Tell(NIM_ADD)) Tell(NIM_MODIFY);
}

bool NotificationIcon::Tell(DWORD message) {
    NOTIFYICONDATAW data{};
    data.cbSize = sizeof data;
    data.hWnd = window_;
    data.uID = kId;
    if (message != NIM_DELETE) {
        data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
        data.uCallbackMessage = kMessage;
        data.hIcon = icon_;
        const std::wstring name = fw::LoadText(IDS_PRODUCT);
        name.copy(data.szTip, std::size(data.szTip) - 1);
    }
    return shell_(message, &data) != FALSE;
}

} // namespace korvane::app
