#include "about/help_session.h"

#include <htmlhelp.h>

#include "framework/system_library.h"

namespace korvane::about {
namespace {

constexpr const wchar_t* kHelpFile = L"Korvane.chm";
constexpr const wchar_t* kHelpWindow = L"Korvane_HelpWindow";

} // namespace

HelpSession::HelpSession() : library_{fw::LoadSystemLibrary(L"hhctrl.ocx")} {
    call_ = fw::FunctionOf<Function>(library_.Get(), "HtmlHelpW");
    if (call_) call_(nullptr, nullptr, HH_INITIALIZE, reinterpret_cast<DWORD_PTR>(&cookie_));
}

HelpSession::~HelpSession() {
    if (call_) call_(nullptr, nullptr, HH_UNINITIALIZE, cookie_);
}

void HelpSession::CloseWindows() const {
    if (!call_) return;
    const auto windowType = reinterpret_cast<DWORD_PTR>(kHelpWindow);
    if (call_(::GetDesktopWindow(), kHelpFile, HH_GET_WIN_HANDLE, windowType)) call_(nullptr, nullptr, HH_CLOSE_ALL, 0);
}

} // namespace korvane::about
