#include "controls/up_down_button.h"

namespace korvane::controls {

void CUpDownButton::SetArrowColour(base::Colour arrow) {
    arrow_.Reset(::CreateSolidBrush(fw::ToWindows(arrow)));
    if (Handle()) Redraw();
}

void CUpDownButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StepButtonState(facts);
    PaintGround(dc, area, state);
    const base::Rect box = base::Centred(area, SideArrowSize(fw::Scale()));
    FillFigure(dc, SideArrow(Pushed(box, state, fw::Scale()), direction_), arrow_.Get());
}

const wchar_t* CUpDownButton::ThemeClasses() const {
    return StepButtonTheme(fw::IsWindowsAtLeast(fw::kWindows8));
}

} // namespace korvane::controls
