#include "controls/glyph_button.h"

#include <array>
#include <utility>

#include "controls/glyph_icon.h"
#include "controls/logic/glyph.h"
#include "framework/dpi.h"

namespace korvane::controls {

fw::UniqueIcon DotsGlyph(COLORREF colour) {
    const int dot = fw::Scale()(2);
    const int step = 2 * dot;
    std::array<base::Rect, 3> dots{};
    for (int i = 0; i < 3; ++i) dots[static_cast<std::size_t>(i)] = {i * step, 0, i * step + dot, dot};
    return GlyphIcon(dots, {2 * step + dot, dot}, colour);
}

fw::UniqueIcon MenuGlyph(COLORREF colour) {
    const base::Size size = DownArrowSize(fw::Scale());
    return GlyphIcon(DownArrow({0, 0, size.width, size.height}), size, colour);
}

void GlyphButton::Attach(HWND button, const std::wstring& tip) {
    button_ = button;
    OnColoursChanged();
    tip_.Create(button, tip);
}

void GlyphButton::OnColoursChanged() {
    // The old one goes when the button has the new one.
    auto icon = glyph_(::GetSysColor(COLOR_BTNTEXT));
    ::SendMessageW(button_, BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon.Get()));
    icon_ = std::move(icon);
}

} // namespace korvane::controls
