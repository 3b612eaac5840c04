#include "search/edit_ex.h"

#include <commctrl.h>
#include <imm.h>

#include <utility>

#include "framework/system_library.h"
#include "framework/window_text.h"

namespace korvane::search {
namespace {

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

void CEditEx::EmptyUndoably() {
    SelectAll();
    ::SendMessageW(Handle(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
}

fw::Reply CEditEx::OnMouseActivate(const fw::Message&) {
    activating_ = ::GetFocus() != Handle();
    return fw::kPassOn;
}

fw::Reply CEditEx::OnPress(const fw::Message&) {
    entering_ = std::exchange(activating_, false) || ::GetFocus() != Handle();
    return fw::kPassOn;
}

LRESULT CEditEx::OnRelease(const fw::Message& message) {
    const LRESULT result = Default(message);
    // Whoever has dragged over a part of the text wants that part.
    DWORD first = 0;
    DWORD last = 0;
    ::SendMessageW(Handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    if (std::exchange(entering_, false) && first == last && ::GetFocus() == Handle()) SelectAll();
    return result;
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

fw::Reply CEditEx::OnDestroy() {
    // The tooltip is owned by the bar, not by the box, and would stay behind.
    if (toolTip_) ::DestroyWindow(toolTip_);
    toolTip_ = nullptr;
    return fw::kPassOn;
}

} // namespace korvane::search
