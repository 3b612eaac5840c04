#include "app/notification_icon.h"

#include <iterator>
#include <string>

#include "app/logic/notification_icon_rules.h"
#include "framework/string_table.h"
#include "res/ids.h"

namespace korvane::app {
namespace {

constexpr UINT kId = 1; // of the window's icons

static_assert(kShellBusy == ERROR_TIMEOUT);

} // namespace

bool NotificationIcon::Add(HWND window, HICON smallIcon) {
    Remove();
    window_ = window;
    icon_ = smallIcon;
    attempts_ = 0;
    return Try(Before::kNotThere);
}

bool NotificationIcon::Try(Before before) {
    timer_.Stop();
    ++attempts_;
    DWORD error = Tell(NIM_ADD);
    // What is there already cannot be added; it is renewed.
    if (error != ERROR_SUCCESS && error != kShellBusy && before == Before::kPerhapsThere) error = Tell(NIM_MODIFY);
    if (error == ERROR_SUCCESS) return true;
    if (const auto delay = NextAttempt(error, attempts_)) timer_.Start(window_, timerId_, *delay);
    return false;
}

bool NotificationIcon::OnTimer(UINT_PTR id) {
    if (id != timerId_) return false;
    // A shell that answered too late may have taken the icon all the same.
    if (timer_.Running()) Try(Before::kPerhapsThere);
    return true;
}

void NotificationIcon::Remove() {
    if (!window_) return;
    timer_.Stop();
    Tell(NIM_DELETE);
    window_ = nullptr;
}

UINT NotificationIcon::AreaCreatedMessage() {
    static const UINT message = ::RegisterWindowMessageW(L"TaskbarCreated");
    return message;
}

void NotificationIcon::OnAreaCreated() {
    // Newer systems send the message also when the scale of the screen has changed, with the icons still in place.
    if (!window_) return;
    attempts_ = 0;
    Try(Before::kPerhapsThere);
}

DWORD NotificationIcon::Tell(DWORD message) {
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
    ::SetLastError(ERROR_SUCCESS);
    if (shell_(message, &data)) return ERROR_SUCCESS;
    const DWORD error = ::GetLastError();
    return error != ERROR_SUCCESS ? error : DWORD{ERROR_GEN_FAILURE};
}

} // namespace korvane::app
