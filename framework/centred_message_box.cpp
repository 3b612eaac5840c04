#include "framework/centred_message_box.h"

#include <array>

#include "framework/centring.h"
#include "framework/icons.h"
#include "framework/string_table.h"
#include "res/ids.h"

namespace fw {
namespace {

// One message box is centred at a time.
HHOOK g_centringHook = nullptr;

void RemoveHook() {
    if (g_centringHook) ::UnhookWindowsHookEx(g_centringHook);
    g_centringHook = nullptr;
}

LRESULT CALLBACK OnComputerBasedTraining(int code, WPARAM wparam, LPARAM lparam) noexcept {
    if (code != HCBT_ACTIVATE) return ::CallNextHookEx(g_centringHook, code, wparam, lparam);
    const HWND box = reinterpret_cast<HWND>(wparam);
    CentreWindow(box, ::GetParent(box));
    GiveProgramIcons(box);
    RemoveHook();
    return 1;
}

std::wstring ProductName() {
    return LoadText(IDS_PRODUCT);
}

// A null caption gives the platform's own.
int Show(HWND owner, const wchar_t* text, const wchar_t* caption, UINT flags, Centring centring) {
    if (!owner || centring == Centring::kNone) return ::MessageBoxW(owner, text, caption, flags);
    if (!::IsWindow(owner)) {
        ::MessageBoxW(nullptr, L"The window handle does not identify an existing window.", nullptr, MB_ICONERROR);
        return 0;
    }
    RemoveHook();
    g_centringHook =
        ::SetWindowsHookExW(WH_CBT, &OnComputerBasedTraining, ::GetModuleHandleW(nullptr), ::GetCurrentThreadId());
    const int answer = ::MessageBoxW(owner, text, caption, flags);
    // A box that was never activated leaves the hook behind, which would then move whatever window comes next.
    RemoveHook();
    return answer;
}

} // namespace

int ShowMessage(HWND owner, const std::wstring& text, const std::wstring& caption, UINT flags, Centring centring) {
    return Show(owner, text.c_str(), caption.c_str(), flags, centring);
}

int ShowMessageById(HWND owner, UINT textId, UINT flags, Centring centring) {
    return ShowMessageById(owner, textId, IDS_PRODUCT, flags, centring);
}

int ShowMessageById(HWND owner, UINT textId, UINT captionId, UINT flags, Centring centring) {
    return ShowMessage(owner, LoadText(textId), LoadText(captionId), flags, centring);
}

int ShowProductMessage(HWND owner, const std::wstring& text, UINT flags, Centring centring) {
    return ShowMessage(owner, text, ProductName(), flags, centring);
}

int ShowSystemError(HWND owner, DWORD code, const wchar_t* caption, Centring centring) {
    const std::wstring text = SystemErrorText(code != 0 ? code : ::GetLastError());
    return Show(owner, text.c_str(), caption, MB_ICONWARNING, centring);
}

int ShowProductSystemError(HWND owner, DWORD code, Centring centring) {
    // The last error is read before the string table is, which may change it.
    if (code == 0) code = ::GetLastError();
    return ShowSystemError(owner, code, ProductName().c_str(), centring);
}

std::wstring SystemErrorText(DWORD code) {
    std::array<wchar_t, 1024> buffer{};
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                          MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), buffer.data(),
                                          static_cast<DWORD>(buffer.size()), nullptr);
    return {buffer.data(), length};
}

} // namespace fw
