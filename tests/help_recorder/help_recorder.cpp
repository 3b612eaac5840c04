// Stands for the HTML Help control: writes every call into a log, and answers with a help window of its own that has a
// tree of contents. With KORVANE_HELP_ANSWERS_NOTHING in the environment it opens none.

#include <windows.h>

#include <commctrl.h>
#include <htmlhelp.h>

#include <array>
#include <string>

#include "tests/support/help_recorder_log.h"

namespace korvane::test {
namespace {

constexpr DWORD kCookie = 0xC00C1E;

HWND g_window = nullptr;

std::wstring CallerName(HWND caller) {
    if (!caller) return L"none";
    return caller == ::GetDesktopWindow() ? L"desktop" : L"other";
}

// "own" for the folder of the process's program.
std::wstring CurrentFolderName() {
    std::array<wchar_t, MAX_PATH> current{};
    std::array<wchar_t, MAX_PATH> program{};
    ::GetCurrentDirectoryW(static_cast<DWORD>(current.size()), current.data());
    ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    const std::wstring path{program.data()};
    const std::wstring own = path.substr(0, path.rfind(L'\\'));
    return ::CompareStringOrdinal(current.data(), -1, own.c_str(), -1, TRUE) == CSTR_EQUAL ? L"own" : current.data();
}

void Log(std::wstring_view command, HWND caller, const wchar_t* file, const std::wstring& data) {
    AppendLine(kHelpLog, std::wstring{command}
                             .append(L" caller=")
                             .append(CallerName(caller))
                             .append(L" file=")
                             .append(file ? file : L"none")
                             .append(L" data=")
                             .append(data)
                             .append(L" folder=")
                             .append(CurrentFolderName()));
}

WNDPROC g_treeProcedure = nullptr;

// Wine's tree does not keep its extended styles, so what the tree is told is logged.
LRESULT CALLBACK TreeProcedure(HWND tree, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto log = [](const std::wstring& what) { AppendLine(kHelpLog, L"TREE " + what); };
    if (message == TVM_SETEXTENDEDSTYLE) log(L"styles " + std::to_wstring(lparam) + L" of " + std::to_wstring(wparam));
    if (message == TVM_SETITEMHEIGHT) log(L"row height " + std::to_wstring(wparam));
    if (message == WM_SETFONT) log(wparam ? L"font" : L"no font");
    if (message == WM_THEMECHANGED) log(L"theme");
    return ::CallWindowProcW(g_treeProcedure, tree, message, wparam, lparam);
}

HWND OpenWindow() {
    if (::GetEnvironmentVariableW(kHelpAnswersNothing, nullptr, 0) != 0) return nullptr;
    if (g_window && ::IsWindow(g_window)) return g_window;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &::DefWindowProcW;
    windowClass.lpszClassName = kHelpWindowClass;
    ::RegisterClassW(&windowClass);
    g_window = ::CreateWindowExW(0, kHelpWindowClass, L"help", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr,
                                 nullptr, nullptr);
    // As in the real one the tree is no direct child.
    const HWND pane = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 200, g_window, nullptr,
                                        nullptr, nullptr);
    const HWND tree =
        ::CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE, 0, 0, 100, 200, pane, nullptr, nullptr, nullptr);
    g_treeProcedure =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(tree, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&TreeProcedure)));
    return g_window;
}

// Takes the Tab key for itself, as the control does while its window is open. Only keys are logged.
bool TakesMessage(HWND caller, const wchar_t* file, const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    Log(L"PRETRANSLATEMESSAGE", caller, file, L"key " + std::to_wstring(message.wParam));
    return message.wParam == VK_TAB;
}

} // namespace
} // namespace korvane::test

extern "C" __declspec(dllexport) HWND WINAPI HtmlHelpW(HWND caller, LPCWSTR file, UINT command, DWORD_PTR data) {
    using namespace korvane::test;
    switch (command) {
    case HH_INITIALIZE:
        *reinterpret_cast<DWORD*>(data) = kCookie;
        Log(L"INITIALIZE", caller, file, L"cookie");
        return nullptr;
    case HH_UNINITIALIZE:
        Log(L"UNINITIALIZE", caller, file, static_cast<DWORD>(data) == kCookie ? L"cookie" : L"not the cookie");
        return nullptr;
    case HH_DISPLAY_TOPIC:
        Log(L"DISPLAY_TOPIC", caller, file, std::to_wstring(data));
        return OpenWindow();
    case HH_GET_WIN_HANDLE:
        Log(L"GET_WIN_HANDLE", caller, file, data ? reinterpret_cast<const wchar_t*>(data) : L"none");
        return g_window && ::IsWindow(g_window) ? g_window : nullptr;
    case HH_CLOSE_ALL:
        Log(L"CLOSE_ALL", caller, file, std::to_wstring(data));
        if (g_window) ::DestroyWindow(g_window);
        g_window = nullptr;
        return nullptr;
    case HH_PRETRANSLATEMESSAGE:
        return TakesMessage(caller, file, *reinterpret_cast<const MSG*>(data)) ? reinterpret_cast<HWND>(TRUE) : nullptr;
    default:
        Log(L"command " + std::to_wstring(command), caller, file, std::to_wstring(data));
        return nullptr;
    }
}
