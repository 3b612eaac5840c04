#include "framework/late_bound.h"

#include "framework/system_library.h"

namespace fw {

namespace {

// The desktop window manager's library is kept loaded, since it is asked again and again.
template <class Function>
Function* WindowManagerFunction(const char* name) {
    static const UniqueLibrary library = LoadSystemLibrary(L"dwmapi.dll");
    return FunctionOf<Function>(library.Get(), name);
}

} // namespace

std::optional<std::uint32_t> ColorizationColour() {
    using DwmGetColorizationColor = HRESULT WINAPI(DWORD*, BOOL*);
    auto* const read = WindowManagerFunction<DwmGetColorizationColor>("DwmGetColorizationColor");
    DWORD colour = 0;
    BOOL opaque = FALSE;
    if (!read || FAILED(read(&colour, &opaque))) return std::nullopt;
    return colour;
}

bool IsCloaked(HWND window) {
    using DwmGetWindowAttribute = HRESULT WINAPI(HWND, DWORD, void*, DWORD);
    constexpr DWORD kCloaked = 14; // DWMWA_CLOAKED, which the headers have for Windows 8 and later only
    auto* const read = WindowManagerFunction<DwmGetWindowAttribute>("DwmGetWindowAttribute");
    DWORD reasons = 0;
    return read && SUCCEEDED(read(window, kCloaked, &reasons, sizeof reasons)) && reasons != 0;
}

} // namespace fw
