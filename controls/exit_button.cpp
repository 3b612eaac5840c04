#include "controls/exit_button.h"

namespace korvane::controls {

void CExitButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    PaintGround(dc, area, state, kSmallClosePart);
    // The visual style draws plate and cross in one.
    if (!CurrentTheme()) PaintCross(dc, area, state);
}

void CExitButton::PaintCross(HDC dc, const base::Rect& area, ButtonState state) {
    const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(ReadableOn(GroundColour(dc, area))))};
    const int side = fw::Scale()(8);
    const base::Rect box = Pushed(base::Centred(area, {side, side}), state, fw::Scale());
    FillFigure(dc, Cross(box, fw::Scale()), brush.Get());
}

} // namespace korvane::controls
