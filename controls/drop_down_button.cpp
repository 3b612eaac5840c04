#include "controls/drop_down_button.h"

namespace korvane::controls {

void CDropDownButton::OpenMenu() {
    const HWND window = Handle();
    const auto click = MAKEWPARAM(::GetDlgCtrlID(window), BN_CLICKED);
    ::SendMessageW(::GetParent(window), WM_COMMAND, click, reinterpret_cast<LPARAM>(window));
}

void CDropDownButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    PaintGround(dc, area, state);
    const Ink ink = InkOn(dc, area, state, BarTextColour::kButtonText);
    const base::Rect box = base::Centred(area, DownArrowSize(fw::Scale()));
    FillInked(dc, DownArrow(Pushed(box, state, fw::Scale())), ink);
}

} // namespace korvane::controls
