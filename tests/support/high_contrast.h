#pragma once

#include <windows.h>

#include <map>
#include <utility>

#include "tests/support/import_double.h"

namespace korvane::test {

extern void* parametersImport asm(KORVANE_IMPORT_NAME(SystemParametersInfoW, 16));
extern void* colourImport asm(KORVANE_IMPORT_NAME(GetSysColor, 4));
extern void* brushImport asm(KORVANE_IMPORT_NAME(GetSysColorBrush, 4));

// Colours as Windows' schemes of high contrast have them: every pair that belongs together is legible, and nothing
// else is promised.
using SystemColours = std::map<int, COLORREF>;

inline SystemColours ContrastBlack() {
    return {{COLOR_WINDOW, RGB(0, 0, 0)},         {COLOR_WINDOWTEXT, RGB(255, 255, 0)},
            {COLOR_BTNFACE, RGB(0, 0, 0)},        {COLOR_BTNTEXT, RGB(0, 255, 255)},
            {COLOR_HIGHLIGHT, RGB(0, 128, 0)},    {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
            {COLOR_GRAYTEXT, RGB(63, 242, 63)},   {COLOR_MENU, RGB(0, 0, 0)},
            {COLOR_MENUTEXT, RGB(255, 255, 250)}, {COLOR_WINDOWFRAME, RGB(255, 255, 255)}};
}
inline SystemColours ContrastWhite() {
    return {{COLOR_WINDOW, RGB(255, 255, 255)},  {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
            {COLOR_BTNFACE, RGB(255, 255, 255)}, {COLOR_BTNTEXT, RGB(0, 0, 10)},
            {COLOR_HIGHLIGHT, RGB(55, 0, 110)},  {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
            {COLOR_GRAYTEXT, RGB(96, 0, 0)},     {COLOR_MENU, RGB(255, 255, 255)},
            {COLOR_MENUTEXT, RGB(0, 10, 0)},     {COLOR_WINDOWFRAME, RGB(0, 0, 0)}};
}

// What a user with such a scheme has, as far as this program asks Windows; Wine knows no high contrast. Windows' own
// controls stay as they are. One at a time.
class HighContrast {
public:
    explicit HighContrast(SystemColours colours) {
        Colours() = std::move(colours);
        RealParameters() = reinterpret_cast<decltype(&::SystemParametersInfoW)>(parameters_.Real());
        RealColour() = reinterpret_cast<decltype(&::GetSysColor)>(colour_.Real());
    }

    static COLORREF Colour(int index) { return Colours().at(index); }

private:
    static BOOL WINAPI Parameters(UINT action, UINT size, PVOID data, UINT change) {
        const BOOL done = RealParameters()(action, size, data, change);
        if (action == SPI_GETHIGHCONTRAST) static_cast<HIGHCONTRASTW*>(data)->dwFlags |= HCF_HIGHCONTRASTON;
        return done;
    }
    static DWORD WINAPI SystemColour(int index) {
        const auto found = Colours().find(index);
        return found == Colours().end() ? RealColour()(index) : found->second;
    }
    static HBRUSH WINAPI SystemBrush(int index) {
        // Kept to the end, as the system's are: nobody deletes them.
        static std::map<COLORREF, HBRUSH> brushes;
        HBRUSH& brush = brushes[SystemColour(index)];
        if (!brush) brush = ::CreateSolidBrush(SystemColour(index));
        return brush;
    }

    static SystemColours& Colours() {
        static SystemColours colours;
        return colours;
    }
    static decltype(&::SystemParametersInfoW)& RealParameters() {
        static decltype(&::SystemParametersInfoW) real = nullptr;
        return real;
    }
    static decltype(&::GetSysColor)& RealColour() {
        static decltype(&::GetSysColor) real = nullptr;
        return real;
    }

    ImportDouble parameters_{parametersImport, reinterpret_cast<void*>(&Parameters)};
    ImportDouble colour_{colourImport, reinterpret_cast<void*>(&SystemColour)};
    ImportDouble brush_{brushImport, reinterpret_cast<void*>(&SystemBrush)};
};

} // namespace korvane::test
