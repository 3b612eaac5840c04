#include "controls/bar_painting.h"

#include "framework/gdi.h"

namespace korvane::controls {
PaintBuffer::PaintBuffer(HDC target, const base::Rect& area)
    : target_{target}, area_{area}, dc_{::CreateCompatibleDC(target)},
      bitmap_{dc_ ? ::CreateCompatibleBitmap(target, area.Width(), area.Height()) : nullptr} {
    if (!bitmap_) return;
    previous_ = ::SelectObject(dc_.Get(), bitmap_.Get());
    ::SetViewportOrgEx(dc_.Get(), -area.left, -area.top, nullptr);
}

PaintBuffer::~PaintBuffer() {
    if (!bitmap_) return;
    ::BitBlt(target_, area_.left, area_.top, area_.Width(), area_.Height(), dc_.Get(), area_.left, area_.top, SRCCOPY);
    ::SelectObject(dc_.Get(), previous_);
}

void PaintBehindUnthemed(HWND button, HDC dc, const base::Rect& area) {
    const HWND parent = ::GetParent(button);
    const fw::SavedDc saved{dc};
    ::IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    // The parent paints in its own coordinates; the origin moves so that they fall on the button's.
    POINT offset{};
    ::MapWindowPoints(button, parent, &offset, 1);
    ::OffsetViewportOrgEx(dc, -offset.x, -offset.y, nullptr);
    ::SendMessageW(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
    ::SendMessageW(parent, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
}

void PaintBehind(HWND button, HDC dc, const base::Rect& area) {
    if (fw::ThemesAvailable() && fw::DrawThemedParentBackground(button, dc, area)) return;
    PaintBehindUnthemed(button, dc, area);
}

void PaintPlate(HDC dc, const fw::Theme& theme, int part, ButtonState state, const base::Rect& area) {
    if (theme) {
        theme.DrawBackground(dc, part, static_cast<int>(state), area);
        return;
    }
    const auto colour = PlateColour(GroundColour(dc, area), state);
    if (!colour) return;
    const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(*colour))};
    FillFigure(dc, {&area, 1}, brush.Get());
}

void FillFigure(HDC dc, std::span<const base::Rect> figure, HBRUSH brush) {
    for (const base::Rect& piece : figure) {
        const RECT r = fw::ToWindows(piece);
        ::FillRect(dc, &r, brush);
    }
}

base::Colour GroundColour(HDC dc, const base::Rect& area) {
    const COLORREF pixel = ::GetPixel(dc, area.left + area.Width() / 2, area.top + area.Height() / 2);
    return {pixel == CLR_INVALID ? ::GetSysColor(COLOR_BTNFACE) : pixel};
}

int SystemColourIndex(BarTextColour colour) {
    switch (colour) {
    case BarTextColour::kWindowText:
        return COLOR_WINDOWTEXT;
    case BarTextColour::kWindow:
        return COLOR_WINDOW;
    case BarTextColour::kButtonText:
        break;
    }
    return COLOR_BTNTEXT;
}

} // namespace korvane::controls
