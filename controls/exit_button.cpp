#include "controls/exit_button.h"

#include "controls/logic/contrast.h"

namespace korvane::controls {

void CExitButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    // The keyboard's place is told by the frame alone: a cross that lights up says that it is about to be pressed.
    const ButtonState state = StateByMouse(facts);
    PaintGround(dc, area, state, kSmallClosePart);
    // The visual style draws plate and cross in one.
    if (!CurrentTheme() || highContrast_) PaintCross(dc, area, state);
}

void CExitButton::PaintCross(HDC dc, const base::Rect& area, ButtonState state) const {
    const base::Colour ink =
        highContrast_ ? SystemColour(TextColourInHighContrast(state)) : ReadableOn(GroundColour(dc, area));
    const int side = fw::Scale()(8);
    const base::Rect box = Pushed(base::Centred(area, {side, side}), state, fw::Scale());
    FillFigure(dc, Cross(box, fw::Scale()), ink);
}

} // namespace korvane::controls
