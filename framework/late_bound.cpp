#include "framework/late_bound.h"

#include "framework/system_library.h"

namespace fw {

std::optional<std::uint32_t> ColorizationColour() {
    using DwmGetColorizationColor = HRESULT WINAPI(DWORD*, BOOL*);
    // Kept loaded: the colour is read again whenever it changes.
    static const UniqueLibrary library = LoadSystemLibrary(L"dwmapi.dll");
    auto* const read = FunctionOf<DwmGetColorizationColor>(library.Get(), "DwmGetColorizationColor");
    DWORD colour = 0;
    BOOL opaque = FALSE;
    if (!read || FAILED(read(&colour, &opaque))) return std::nullopt;
    return colour;
}

} // namespace fw
