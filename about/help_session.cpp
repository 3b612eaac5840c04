#include "about/help_session.h"

#include <commctrl.h>
#include <htmlhelp.h>

#include <array>
#include <utility>

#include "about/logic/help_topics.h"
#include "about/own_folder_scope.h"
#include "framework/dpi.h"
#include "framework/system_library.h"
#include "framework/theme.h"

namespace korvane::about {
namespace {

constexpr const wchar_t* kHelpFile = L"Korvane.chm";
constexpr const wchar_t* kHelpWindow = L"Korvane_HelpWindow";

constexpr DWORD kTreeStyles = TVS_EX_DOUBLEBUFFER | TVS_EX_FADEINOUTEXPANDOS;
static_assert(kTreeStyles == 0x44);
constexpr int kTreeRowPx = 20;

BOOL CALLBACK TakeTree(HWND child, LPARAM found) noexcept {
    constexpr std::wstring_view kTree = L"SysTreeView32";
    std::array<wchar_t, 32> name{};
    ::GetClassNameW(child, name.data(), static_cast<int>(name.size()));
    if (name.data() != kTree) return TRUE;
    *reinterpret_cast<HWND*>(found) = child;
    return FALSE;
}

HWND TreeOf(HWND helpWindow) {
    HWND tree = nullptr;
    ::EnumChildWindows(helpWindow, &TakeTree, reinterpret_cast<LPARAM>(&tree));
    return tree;
}

// Whom the hook below calls; it has no room for it.
HelpSession* g_listener = nullptr;

LRESULT CALLBACK OnModalMessage(int code, WPARAM wparam, LPARAM lparam) noexcept {
    if (code == MSGF_DIALOGBOX && g_listener && g_listener->TakeFromDialogLoop(*reinterpret_cast<const MSG*>(lparam)))
        return TRUE;
    return ::CallNextHookEx(nullptr, code, wparam, lparam);
}

void StyleTree(HWND tree, HFONT font) {
    ::SendMessageW(tree, TVM_SETEXTENDEDSTYLE, kTreeStyles, kTreeStyles);
    if (font) {
        ::SendMessageW(tree, TVM_SETITEMHEIGHT, static_cast<WPARAM>(fw::Scale()(kTreeRowPx)), 0);
        ::SendMessageW(tree, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    }
    fw::SetWindowTheme(tree, L"EXPLORER");
}

} // namespace

HelpSession::HelpSession() : HelpSession{fw::LoadSystemLibrary(L"hhctrl.ocx")} {}

HelpSession::HelpSession(fw::UniqueLibrary control) : control_{std::move(control)} {
    call_ = fw::FunctionOf<Function>(control_.Get(), "HtmlHelpW");
    if (call_) call_(nullptr, nullptr, HH_INITIALIZE, reinterpret_cast<DWORD_PTR>(&cookie_));
}

HelpSession::~HelpSession() {
    if (g_listener == this) g_listener = nullptr;
    if (call_) call_(nullptr, nullptr, HH_UNINITIALIZE, cookie_);
}

bool HelpSession::Show(std::wstring_view topic, HFONT treeFont) {
    if (!call_) return false;
    HWND window = nullptr;
    {
        const OwnFolderScope ownFolder;
        window = call_(::GetDesktopWindow(), HelpAddress(topic).c_str(), HH_DISPLAY_TOPIC, 0);
    }
    if (!window) return false;
    window_ = window;
    ListenToDialogLoops();
    if (const HWND tree = TreeOf(window)) StyleTree(tree, treeFont);
    return true;
}

bool HelpSession::PreTranslate(const MSG& message) {
    if (!window_ || !::IsWindow(window_)) return false;
    // The control may change the message.
    MSG offered = message;
    return call_(nullptr, nullptr, HH_PRETRANSLATEMESSAGE, reinterpret_cast<DWORD_PTR>(&offered)) != nullptr;
}

bool HelpSession::TakeFromDialogLoop(const MSG& message) {
    // The filter has had the dialog's own messages, where the program's loop is the one that runs.
    return window_ && ::GetAncestor(message.hwnd, GA_ROOT) == window_ && PreTranslate(message);
}

void HelpSession::ListenToDialogLoops() {
    g_listener = this;
    if (!dialogLoops_)
        dialogLoops_.Reset(::SetWindowsHookExW(WH_MSGFILTER, &OnModalMessage, nullptr, ::GetCurrentThreadId()));
}

void HelpSession::CloseWindows() const {
    if (!call_) return;
    const OwnFolderScope ownFolder;
    const auto windowType = reinterpret_cast<DWORD_PTR>(kHelpWindow);
    if (call_(::GetDesktopWindow(), kHelpFile, HH_GET_WIN_HANDLE, windowType)) call_(nullptr, nullptr, HH_CLOSE_ALL, 0);
}

} // namespace korvane::about
