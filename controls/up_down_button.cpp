#include "controls/up_down_button.h"

#include <utility>

namespace korvane::controls {
namespace {

// How far the focus rectangle stands inside the button, at 96 dpi.
constexpr int kFocusInset = 3;

} // namespace

void CUpDownButton::SetArrowColour(base::Colour arrow) {
    arrow_ = arrow;
    if (Handle()) Redraw();
}

void CUpDownButton::SetFocusShown(bool shown) {
    if (std::exchange(focusShown_, shown) != shown && Handle()) Redraw();
}

void CUpDownButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StepButtonState(facts);
    PaintGround(dc, area, state);
    const base::Rect box = base::Centred(area, SideArrowSize(fw::Scale()));
    // A plate of the visual style may have just the arrow's colour.
    const base::Colour ground = GroundColour(dc, area);
    const fw::UniqueBrush brush{
        ::CreateSolidBrush(fw::ToWindows(Vanishes(arrow_, ground) ? ReadableOn(ground) : arrow_))};
    FillFigure(dc, SideArrow(Pushed(box, state, fw::Scale()), direction_), brush.Get());
    if (!facts.focused || !focusShown_) return;
    const RECT focus = fw::ToWindows(area.Inset(fw::Scale()(kFocusInset)));
    ::SetTextColor(dc, fw::ToWindows(ReadableOn(ground)));
    ::SetBkColor(dc, fw::ToWindows(ground));
    ::DrawFocusRect(dc, &focus);
}

const wchar_t* CUpDownButton::ThemeClasses() const {
    return StepButtonTheme(fw::IsWindowsAtLeast(fw::kWindows8));
}

} // namespace korvane::controls
