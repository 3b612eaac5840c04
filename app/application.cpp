#include "app/application.h"

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include <algorithm>
#include <string>
#include <vector>

#include "about/help_session.h"
#include "app/foreground.h"
#include "app/logic/start_checks.h"
#include "app/main_frame.h"
#include "app/one_bar.h"
#include "framework/centred_message_box.h"
#include "framework/gdi.h"
#include "framework/gdiplus_image.h"
#include "framework/message_loop.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "res/ids.h"
#include "search/code_pages.h"

namespace korvane::app {
namespace {

int CALLBACK CollectFullName(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM names) noexcept {
    // With a face name given, each record is an ENUMLOGFONTEXW, of which the LOGFONTW is the head.
    const auto& full = *reinterpret_cast<const ENUMLOGFONTEXW*>(font);
    const auto* const end = std::find(std::begin(full.elfFullName), std::end(full.elfFullName), L'\0');
    reinterpret_cast<std::vector<std::wstring>*>(names)->emplace_back(std::begin(full.elfFullName), end);
    return 1;
}

std::vector<std::wstring> FullNamesOf(std::wstring_view face) {
    LOGFONTW wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    face.copy(wanted.lfFaceName, LF_FACESIZE - 1);
    std::vector<std::wstring> names;
    ::EnumFontFamiliesExW(fw::WindowDc{nullptr}.Get(), &wanted, &CollectFullName, reinterpret_cast<LPARAM>(&names), 0);
    return names;
}

bool HasInterfaceFontInstalled() {
    const bool windows7OrLater = fw::IsWindowsAtLeast(fw::kWindows7);
    // Enumerating fonts takes time, so it is left out where the answer is known.
    return HasInterfaceFont(windows7OrLater, windows7OrLater ? std::vector<std::wstring>{} : FullNamesOf(L"Meiryo UI"));
}

// COM for this thread; a failed start is not to be undone.
class ComSession {
public:
    ComSession() : started_{SUCCEEDED(::CoInitialize(nullptr))} {}
    ComSession(const ComSession&) = delete;
    ComSession& operator=(const ComSession&) = delete;
    ~ComSession() {
        if (started_) ::CoUninitialize();
    }

private:
    bool started_;
};

void InitialiseCommonControls() {
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof controls;
    controls.dwICC = ICC_WIN95_CLASSES | ICC_USEREX_CLASSES | ICC_COOL_CLASSES;
    static_assert((ICC_WIN95_CLASSES | ICC_USEREX_CLASSES | ICC_COOL_CLASSES) == 0x6FF);
    ::InitCommonControlsEx(&controls);
}

} // namespace

int RunApplication(int showCommand) {
    if (!HasInterfaceFontInstalled()) {
        fw::ShowMessageById(nullptr, IDS_FONT_UPDATE_TEXT, IDS_FONT_UPDATE_CAPTION, MB_ICONEXCLAMATION,
                            fw::Centring::kNone);
        return kExitFontMissing;
    }

    search::FollowSystemLocale();
    // Released in the opposite order, after the frame. A copy that starts meanwhile waits for the end of this one.
    ThisCopy thisCopy;
    const fw::GdiplusSession gdiplus;
    about::HelpSession help;
    const ComSession com;
    InitialiseCommonControls();

    fw::MessageLoop loop;
    const fw::MessageLoop::Registration helpKeys = loop.Add(help);
    CMainFrame frame{loop, help};
    if (thisCopy.Decide() == StartVerdict::kBringForward) {
        if (const HWND bar = ThisCopy::FindBar()) BringToForeground(bar);
        return kExitForwarded;
    }
    if (!frame.CreateFrame()) {
        fw::ShowSystemError(nullptr, 0, nullptr);
        return kExitNormal;
    }
    frame.ShowFirst(showCommand);
    return loop.Run();
}

} // namespace korvane::app
