#include "search/edit_ex.h"

#include <commctrl.h>
#include <imm.h>

#include <algorithm>
#include <optional>
#include <string_view>

#include "framework/system_library.h"
#include "framework/window_text.h"
#include "search/logic/typed_command.h"

namespace korvane::search {
namespace {

// What Ctrl+A arrives as.
constexpr WPARAM kSelectAllCharacter = 1;

// Dialog units.
constexpr UINT kTabStop = 16;

#ifndef _WIN64
static_assert(sizeof(TTTOOLINFOW) == 48, "the tooltip takes the record of common controls version 6");
#endif

// The input method's library, loaded when it is first asked for and kept to the end of the process.
struct InputMethod {
    fw::UniqueLibrary library = fw::LoadSystemLibrary(L"imm32.dll");
    decltype(&::ImmGetContext) contextOf = fw::FunctionOf<decltype(::ImmGetContext)>(library.Get(), "ImmGetContext");
    decltype(&::ImmReleaseContext) release =
        fw::FunctionOf<decltype(::ImmReleaseContext)>(library.Get(), "ImmReleaseContext");
    decltype(&::ImmGetCompositionStringW) composition =
        fw::FunctionOf<decltype(::ImmGetCompositionStringW)>(library.Get(), "ImmGetCompositionStringW");
};

// The clipboard's text; empty when it has none or another program holds the clipboard.
std::optional<std::wstring> ClipboardText(HWND window) {
    if (!::IsClipboardFormatAvailable(CF_UNICODETEXT) || !::OpenClipboard(window)) return std::nullopt;
    std::optional<std::wstring> text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* const first = static_cast<const wchar_t*>(::GlobalLock(data))) {
            // A program may leave out the terminating zero.
            const auto* const end = first + ::GlobalSize(data) / sizeof(wchar_t);
            text.emplace(first, std::find(first, end, L'\0'));
            ::GlobalUnlock(data);
        }
    }
    ::CloseClipboard();
    return text;
}

} // namespace

bool CEditEx::CreateBox(HWND parent, UINT_PTR id, const RECT& place, HFONT font, const std::wstring& tip) {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_TABSTOP | ES_AUTOHSCROLL;
    if (!Create({.rect = place, .style = kStyle, .parent = parent, .id = id})) return false;
    ::SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    ::SendMessageW(Handle(), EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&kTabStop));
    // 0 lifts the limit of 32,767 characters that typing and pasting otherwise have.
    ::SendMessageW(Handle(), EM_SETLIMITTEXT, 0, 0);
    AddToolTip(tip);
    return true;
}

void CEditEx::AddToolTip(const std::wstring& tip) {
    // The bar shows its tooltips also while another program is active.
    toolTip_ = ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                 CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, Handle(), nullptr,
                                 ::GetModuleHandleW(nullptr), nullptr);
    if (!toolTip_) return;
    ::SendMessageW(toolTip_, TTM_ACTIVATE, TRUE, 0);
    std::wstring text = tip;
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = Handle();
    tool.uId = reinterpret_cast<UINT_PTR>(Handle());
    tool.lpszText = text.data();
    ::SendMessageW(toolTip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

std::wstring CEditEx::Text() const {
    return fw::WindowText(Handle());
}

void CEditEx::SetText(const std::wstring& text) {
    ::SetWindowTextW(Handle(), text.c_str());
    const auto end = static_cast<WPARAM>(text.size());
    ::SendMessageW(Handle(), EM_SETSEL, end, static_cast<LPARAM>(end));
}

bool CEditEx::Empty() const {
    return ::GetWindowTextLengthW(Handle()) == 0;
}

void CEditEx::SelectAll() {
    ::SendMessageW(Handle(), EM_SETSEL, 0, -1);
}

bool CEditEx::Composing() const {
    static const InputMethod method;
    if (!method.contextOf || !method.release || !method.composition) return false;
    const HIMC context = method.contextOf(Handle());
    if (!context) return false;
    const LONG bytes = method.composition(context, GCS_COMPSTR, nullptr, 0);
    method.release(Handle(), context);
    return bytes > 0;
}

void CEditEx::OnPaste(const fw::Message& message) {
    // Left to itself a box of one line takes only the first line of what is pasted.
    const auto text = ClipboardText(Handle());
    if (!text) {
        Default(message);
        return;
    }
    ::SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(OnOneLine(*text).c_str()));
}

fw::Reply CEditEx::OnCharacter(const fw::Message& message) {
    if (message.wparam != kSelectAllCharacter) return fw::kPassOn;
    SelectAll();
    return LRESULT{0};
}

fw::Reply CEditEx::OnDestroy() {
    // The tooltip is owned by the bar, not by the box, and would stay behind.
    if (toolTip_) ::DestroyWindow(toolTip_);
    toolTip_ = nullptr;
    return fw::kPassOn;
}

} // namespace korvane::search
