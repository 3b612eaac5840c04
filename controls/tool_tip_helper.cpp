#include "controls/tool_tip_helper.h"

#include <windows.h>

#include <commctrl.h>

#include "controls/logic/tool_record.h"
#include "framework/windows_version.h"

namespace korvane::controls {
namespace {

// The child itself is the one tool; the other is its place in the parent.
constexpr UINT_PTR kPlaceTool = 1;

TTTOOLINFOW Tool(HWND parent, UINT_PTR id, UINT flags) {
    TTTOOLINFOW tool{};
    tool.cbSize = ToolRecordSize(fw::IsWindowsAtLeast(fw::kWindowsVista), sizeof tool, sizeof tool.lpReserved);
    tool.uFlags = flags;
    tool.hwnd = parent;
    tool.uId = id;
    tool.hinst = ::GetModuleHandleW(nullptr);
    return tool;
}

TTTOOLINFOW ChildTool(HWND child) {
    return Tool(::GetParent(child), reinterpret_cast<UINT_PTR>(child), TTF_IDISHWND | TTF_SUBCLASS);
}

// Without TTF_SUBCLASS: the parent may stand for several children at a time, each with a tooltip of its own, but the
// control lets only one of them listen.
TTTOOLINFOW PlaceTool(HWND child) {
    TTTOOLINFOW tool = Tool(::GetParent(child), kPlaceTool, 0);
    ::GetWindowRect(child, &tool.rect);
    ::MapWindowPoints(nullptr, tool.hwnd, reinterpret_cast<POINT*>(&tool.rect), 2);
    return tool;
}

void Send(HWND tip, UINT message, TTTOOLINFOW tool, std::wstring text = {}) {
    // The control copies the text but asks for a writable one.
    tool.lpszText = text.data();
    ::SendMessageW(tip, message, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace

bool ToolTip::Create(HWND child, const std::wstring& text) {
    child_ = child;
    text_ = text;
    window_.Reset(::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, 0, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                    CW_USEDEFAULT, ::GetParent(child), nullptr, ::GetModuleHandleW(nullptr), nullptr));
    if (!window_) return false;
    ::SendMessageW(window_.Get(), TTM_ACTIVATE, TRUE, 0);
    Send(window_.Get(), TTM_ADDTOOLW, ChildTool(child_), text_);
    OnChildChanged();
    return true;
}

void ToolTip::SetText(const std::wstring& text) {
    text_ = text;
    if (!window_) return;
    Send(window_.Get(), TTM_UPDATETIPTEXTW, ChildTool(child_), text_);
    if (Covers()) Send(window_.Get(), TTM_UPDATETIPTEXTW, PlaceTool(child_), text_);
}

void ToolTip::Destroy() {
    UncoverPlace();
    window_.Reset();
}

void ToolTip::OnChildChanged() {
    if (!window_) return;
    if (::IsWindowEnabled(child_)) return UncoverPlace();
    if (Covers())
        Send(window_.Get(), TTM_NEWTOOLRECTW, PlaceTool(child_));
    else
        CoverPlace();
}

void ToolTip::CoverPlace() {
    const HWND parent = ::GetParent(child_);
    const HWND tip = window_.Get();
    if (!::SetWindowSubclass(parent, &ToolTip::RelayMouse, reinterpret_cast<UINT_PTR>(tip), 0)) return;
    covered_ = parent;
    Send(tip, TTM_ADDTOOLW, PlaceTool(child_), text_);
}

void ToolTip::UncoverPlace() {
    if (!Covers()) return;
    ::RemoveWindowSubclass(covered_, &ToolTip::RelayMouse, reinterpret_cast<UINT_PTR>(window_.Get()));
    Send(window_.Get(), TTM_DELTOOLW, Tool(covered_, kPlaceTool, 0));
    covered_ = nullptr;
}

LRESULT CALLBACK ToolTip::RelayMouse(HWND parent, UINT id, WPARAM wparam, LPARAM lparam, UINT_PTR tip,
                                     DWORD_PTR) noexcept {
    const auto window = reinterpret_cast<HWND>(tip);
    if (id >= WM_MOUSEFIRST && id <= WM_MOUSELAST) {
        const DWORD at = ::GetMessagePos();
        MSG message{parent,
                    id,
                    wparam,
                    lparam,
                    static_cast<DWORD>(::GetMessageTime()),
                    {static_cast<short>(LOWORD(at)), static_cast<short>(HIWORD(at))}};
        ::SendMessageW(window, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
    }
    return ::DefSubclassProc(parent, id, wparam, lparam);
}

} // namespace korvane::controls
