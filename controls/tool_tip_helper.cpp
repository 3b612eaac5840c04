#include "controls/tool_tip_helper.h"

#include <windows.h>

#include <commctrl.h>

#include "controls/logic/tool_record.h"
#include "framework/windows_version.h"

namespace korvane::controls {

bool ToolTip::Create(HWND child, const std::wstring& text) {
    child_ = child;
    window_.Reset(::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, 0, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                    CW_USEDEFAULT, ::GetParent(child), nullptr, ::GetModuleHandleW(nullptr), nullptr));
    if (!window_) return false;
    ::SendMessageW(window_.Get(), TTM_ACTIVATE, TRUE, 0);
    Send(TTM_ADDTOOLW, text);
    return true;
}

void ToolTip::SetText(const std::wstring& text) const {
    if (window_) Send(TTM_UPDATETIPTEXTW, text);
}

void ToolTip::Send(UINT message, const std::wstring& text) const {
    // The control copies the text but asks for a writable one.
    std::wstring copy = text;
    TTTOOLINFOW tool{};
    tool.cbSize = ToolRecordSize(fw::IsWindowsAtLeast(fw::kWindowsVista), sizeof tool, sizeof tool.lpReserved);
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = ::GetParent(child_);
    tool.uId = reinterpret_cast<UINT_PTR>(child_);
    tool.hinst = ::GetModuleHandleW(nullptr);
    tool.lpszText = copy.data();
    ::SendMessageW(window_.Get(), message, 0, reinterpret_cast<LPARAM>(&tool));
}

} // namespace korvane::controls
