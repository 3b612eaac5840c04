// The least that a Win32 program with a window can be, built and started as the bar is: what it costs cannot be saved.
#include <windows.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_DESTROY) ::PostQuitMessage(0);
    return ::DefWindowProcW(window, message, wparam, lparam);
}

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int showCommand) {
    WNDCLASSW bare{};
    bare.lpfnWndProc = &Procedure;
    bare.hInstance = instance;
    bare.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    bare.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    bare.lpszClassName = L"BareWindow_WndClass";
    ::RegisterClassW(&bare);
    const HWND window = ::CreateWindowExW(0, bare.lpszClassName, L"Bare", WS_OVERLAPPEDWINDOW, 100, 100, 1040, 71,
                                          nullptr, nullptr, instance, nullptr);
    if (!window) return 1;
    ::ShowWindow(window, showCommand);
    ::UpdateWindow(window);
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return 0;
}
