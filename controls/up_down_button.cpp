#include "controls/up_down_button.h"

#include "controls/logic/contrast.h"

namespace korvane::controls {

// Enter is the pop-up's, which it closes.
LRESULT CUpDownButton::OnDialogCode(const fw::Message&) {
    return DLGC_BUTTON;
}

void CUpDownButton::SetArrowColour(base::Colour arrow) {
    arrow_ = arrow;
    if (Handle()) Redraw();
}

void CUpDownButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StepButtonState(facts);
    PaintGround(dc, area, state);
    const base::Rect box = base::Centred(area, SideArrowSize(fw::Scale()));
    FillFigure(dc, SideArrow(Pushed(box, state, fw::Scale()), direction_), ArrowOn(GroundColour(dc, area), state));
}

base::Colour CUpDownButton::ArrowOn(base::Colour ground, ButtonState state) const {
    if (highContrast_) return SystemColour(TextColourInHighContrast(state));
    // A plate of the visual style may have just the arrow's colour.
    return Vanishes(arrow_, ground) ? ReadableOn(ground) : arrow_;
}

const wchar_t* CUpDownButton::ThemeClasses() const {
    return StepButtonTheme(fw::IsWindowsAtLeast(fw::kWindows8));
}

} // namespace korvane::controls
