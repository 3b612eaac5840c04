#pragma once

#include <windows.h>

#include <optional>
#include <span>
#include <string>

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

// In high contrast: nothing, or the system's highlight under the mouse, the keyboard and a press.
void PaintHighContrastPlate(HDC dc, ButtonState state, const base::Rect& area);
// Around what the keyboard is on; to be seen on every ground.
void PaintFocusFrame(HDC dc, const base::Rect& area, bool highContrast);

void FillFigure(HDC dc, std::span<const base::Rect> figure, HBRUSH brush);
void FillFigure(HDC dc, std::span<const base::Rect> figure, base::Colour colour);

// The colour of the ground on which content will stand: what is painted in the middle of the area.
[[nodiscard]] base::Colour GroundColour(HDC dc, const base::Rect& area);

// The system's colour behind a text colour.
[[nodiscard]] base::Colour SystemColour(BarTextColour colour);

// A colour to draw with and, where it would hardly be told from the ground, another around it, as a shadow lies under
// the picture of the main menu.
struct Ink {
    base::Colour colour;
    std::optional<base::Colour> outline;
};

// The ink of what stands on the bar in the colour that goes with it. The system default is for fields of the system's
// own colour and needs nothing around it.
[[nodiscard]] Ink BarInk(HDC dc, const base::Rect& area, BarTextColour colour);

// As DrawTextW, in the device context's font. The background stays.
void DrawInked(HDC dc, const std::wstring& text, const base::Rect& area, UINT format, const Ink& ink);
void FillInked(HDC dc, std::span<const base::Rect> figure, const Ink& ink);

} // namespace korvane::controls
