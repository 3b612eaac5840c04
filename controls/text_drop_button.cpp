#include "controls/text_drop_button.h"

#include <string>
#include <utility>

#include "framework/gdi.h"
#include "framework/window_text.h"
#include "res/ids.h"

namespace korvane::controls {

void CTextDropButton::SetBarColour(base::Colour bar) {
    textColour_ = TextColourOn(bar);
    RedrawIfCreated();
}

void CTextDropButton::SetImage(fw::PngImage image) {
    image_ = std::move(image);
    RedrawIfCreated();
}

void CTextDropButton::SetIcon(fw::UniqueIcon icon) {
    icon_ = std::move(icon);
    RedrawIfCreated();
}

void CTextDropButton::SetCaption(const std::wstring& text) {
    ::SetWindowTextW(Handle(), text.c_str());
    RedrawIfCreated();
}

void CTextDropButton::RedrawIfCreated() const {
    if (Handle()) Redraw();
}

void CTextDropButton::OpenMenu() {
    TrackPopupOf(host_, ::GetDlgCtrlID(Handle()) == ID_SEARCH_CHOOSER ? POPUP_SEARCH : POPUP_CONTROL_PANEL);
}

// A click that did not come from a press, as the dialog manager sends for Enter, opens the menu like any other.
fw::Reply CTextDropButton::OnClicked(const fw::Message& m) {
    if (HIWORD(m.wparam) != BN_CLICKED || MenuShown()) return fw::kPassOn;
    OpenSoon();
    return LRESULT{0};
}

void CTextDropButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    PaintGround(dc, area, state);
    const Ink ink = InkOn(dc, area, state, textColour_);
    const TextDropLayout layout = LayOutTextDrop(area, state, fw::Scale());
    if (image_) {
        image_.Draw(dc, layout.image);
    } else if (icon_) {
        const base::Rect& at = layout.image;
        ::DrawIconEx(dc, at.left, at.top, icon_.Get(), at.Width(), at.Height(), 0, nullptr, DI_NORMAL);
    }
    PaintText(dc, layout.text, ink);
    FillInked(dc, DownArrow(layout.arrow), ink);
}

void CTextDropButton::PaintText(HDC dc, const base::Rect& where, const Ink& ink) const {
    const std::wstring text = fw::WindowText(Handle());
    const auto own = reinterpret_cast<HFONT>(::SendMessageW(Handle(), WM_GETFONT, 0, 0));
    const fw::SelectedObject font{dc, own ? own : host_.BarFont()};
    // A command's name may hold an ampersand; it is no mnemonic here.
    DrawInked(dc, text, where, DT_SINGLELINE | DT_VCENTER | DT_WORD_ELLIPSIS | DT_NOPREFIX, ink);
}

const wchar_t* CTextDropButton::ThemeClasses() const {
    return BarButtonTheme(fw::IsWindowsAtLeast(fw::kWindows7));
}

} // namespace korvane::controls
