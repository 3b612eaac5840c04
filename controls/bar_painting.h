#pragma once

#include <windows.h>

#include <span>

#include "base/colour.h"
#include "base/geometry.h"
#include "controls/logic/bar_colour.h"
#include "controls/logic/button_state.h"
#include "framework/handle.h"
#include "framework/theme.h"

// What the buttons' painting has in common.
namespace korvane::controls {

// A picture in memory in which one button is painted before it appears at once, so that nothing flickers. Its
// coordinates are the button's own. Where Windows has no memory for it, painting goes straight to the target.
class PaintBuffer {
public:
    PaintBuffer(HDC target, const base::Rect& area);
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;
    // Shows the picture.
    ~PaintBuffer();

    [[nodiscard]] HDC Dc() const { return bitmap_ ? dc_.Get() : target_; }

private:
    HDC target_;
    base::Rect area_;
    fw::UniqueMemoryDc dc_;
    fw::UniqueBitmap bitmap_;
    HGDIOBJ previous_ = nullptr;
};

// Lets the parent paint what is behind the button, with or without visual styles.
void PaintBehind(HWND button, HDC dc, const base::Rect& area);
// The same by our own means, for a Windows without the library of the visual styles.
void PaintBehindUnthemed(HWND button, HDC dc, const base::Rect& area);

// The button's plate over what is behind it: the visual style's, or where it has none a flat one of our own, so that
// hover and press are seen on every bar.
void PaintPlate(HDC dc, const fw::Theme& theme, int part, ButtonState state, const base::Rect& area);

void FillFigure(HDC dc, std::span<const base::Rect> figure, HBRUSH brush);

// The colour of the ground on which content will stand: what is painted in the middle of the area.
[[nodiscard]] base::Colour GroundColour(HDC dc, const base::Rect& area);

// The index of GetSysColor and GetSysColorBrush behind a text colour.
[[nodiscard]] int SystemColourIndex(BarTextColour colour);

} // namespace korvane::controls
