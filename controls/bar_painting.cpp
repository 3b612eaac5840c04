#include "controls/bar_painting.h"

#include <vector>

#include "controls/logic/contrast.h"
#include "framework/dpi.h"
#include "framework/gdi.h"

namespace korvane::controls {
namespace {

// At 96 dpi: how far the frame around the keyboard's place stands inside the button, and its strength.
constexpr int kFocusInset = 2;
constexpr int kFocusStroke = 1;

// At 96 dpi: the strength of what is around an ink.
constexpr int kOutline = 1;

// Every place on the way around, from the nearest to the farthest.
std::vector<POINT> PlacesAround() {
    std::vector<POINT> places;
    for (int away = 1; away <= fw::Scale()(kOutline); ++away)
        for (int y = -1; y <= 1; ++y)
            for (int x = -1; x <= 1; ++x)
                if (x != 0 || y != 0) places.push_back({x * away, y * away});
    return places;
}

void DrawInOneColour(HDC dc, const std::wstring& text, const base::Rect& area, UINT format, base::Colour colour) {
    RECT r = fw::ToWindows(area);
    ::SetTextColor(dc, fw::ToWindows(colour));
    ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &r, format);
}

} // namespace

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

void FillFigure(HDC dc, std::span<const base::Rect> figure, base::Colour colour) {
    const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(colour))};
    FillFigure(dc, figure, brush.Get());
}

void PaintHighContrastPlate(HDC dc, ButtonState state, const base::Rect& area) {
    if (state == ButtonState::kHot || state == ButtonState::kPressed)
        FillFigure(dc, {&area, 1}, ::GetSysColorBrush(COLOR_HIGHLIGHT));
}

void PaintFocusFrame(HDC dc, const base::Rect& area, bool highContrast) {
    const base::Rect outer = area.Inset(fw::Scale()(kFocusInset));
    // At its left edge no button has any content.
    const base::Colour ground{::GetPixel(dc, outer.left, outer.top + outer.Height() / 2)};
    const bool highlighted = ground == base::Colour{::GetSysColor(COLOR_HIGHLIGHT)};
    const base::Colour system{::GetSysColor(highlighted ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT)};
    const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(highContrast ? system : ReadableOn(ground)))};
    for (int ring = 0; ring < fw::Scale()(kFocusStroke); ++ring) {
        const RECT frame = fw::ToWindows(outer.Inset(ring));
        ::FrameRect(dc, &frame, brush.Get());
    }
}

base::Colour GroundColour(HDC dc, const base::Rect& area) {
    const COLORREF pixel = ::GetPixel(dc, area.left + area.Width() / 2, area.top + area.Height() / 2);
    return {pixel == CLR_INVALID ? ::GetSysColor(COLOR_BTNFACE) : pixel};
}

base::Colour SystemColour(BarTextColour colour) {
    const auto system = [](int index) { return base::Colour{::GetSysColor(index)}; };
    switch (colour) {
    case BarTextColour::kWindowText:
        return system(COLOR_WINDOWTEXT);
    case BarTextColour::kWindow:
        return system(COLOR_WINDOW);
    case BarTextColour::kHighlightText:
        return system(COLOR_HIGHLIGHTTEXT);
    case BarTextColour::kGreyText:
        return system(COLOR_GRAYTEXT);
    case BarTextColour::kButtonText:
        break;
    }
    return system(COLOR_BTNTEXT);
}

Ink BarInk(HDC dc, const base::Rect& area, BarTextColour colour) {
    const base::Colour ink = SystemColour(colour);
    if (colour == BarTextColour::kButtonText) return {ink, {}};
    return {ink, OutlineOf(ink, GroundColour(dc, area))};
}

void DrawInked(HDC dc, const std::wstring& text, const base::Rect& area, UINT format, const Ink& ink) {
    ::SetBkMode(dc, TRANSPARENT);
    if (ink.outline)
        for (const POINT& by : PlacesAround()) DrawInOneColour(dc, text, area.Offset(by.x, by.y), format, *ink.outline);
    DrawInOneColour(dc, text, area, format, ink.colour);
}

void FillInked(HDC dc, std::span<const base::Rect> figure, const Ink& ink) {
    if (ink.outline) {
        std::vector<base::Rect> around;
        for (const base::Rect& piece : figure) around.push_back(piece.Inset(-fw::Scale()(kOutline)));
        FillFigure(dc, around, *ink.outline);
    }
    FillFigure(dc, figure, ink.colour);
}

} // namespace korvane::controls
