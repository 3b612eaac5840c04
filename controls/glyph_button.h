#pragma once

#include <windows.h>

#include <string>

#include "controls/tool_tip_helper.h"
#include "framework/handle.h"

namespace korvane::controls {

// Pictures for small buttons, in the given colour and in the size for the display.
[[nodiscard]] fw::UniqueIcon DotsGlyph(COLORREF colour); // three dots: opens another dialog
[[nodiscard]] fw::UniqueIcon MenuGlyph(COLORREF colour); // an arrow down: opens a menu

// Makes a dialog's push button with the style BS_ICON show a glyph. Its text is not to be seen then; a screen reader
// says it. A dialog keeps one for each such button, tells it of new system colours, and detaches it when it is
// destroyed.
class GlyphButton {
public:
    using Glyph = fw::UniqueIcon (*)(COLORREF colour);

    explicit GlyphButton(Glyph glyph) : glyph_{glyph} {}

    // The button is the dialog's own; `tip` is its tooltip.
    void Attach(HWND button, const std::wstring& tip);
    // At WM_SYSCOLORCHANGE.
    void OnColoursChanged();
    // At WM_DESTROY.
    void Detach() { tip_.Destroy(); }

private:
    Glyph glyph_;
    HWND button_ = nullptr;
    fw::UniqueIcon icon_;
    ToolTip tip_;
};

} // namespace korvane::controls
