#include "controls/korvane_button.h"

#include "res/ids.h"

namespace korvane::controls {

void CKorvaneButton::SetBarColour(base::Colour bar) {
    bar_ = bar;
    if (Handle()) Redraw();
}

void CKorvaneButton::SetImages(UINT onDark, UINT onLight, int artDpi) {
    pictures_ = {onDark, onLight, artDpi};
}

void CKorvaneButton::OnCreated() {
    if (LoadImages()) return;
    // Without pictures for this resolution the ordinary ones are enlarged.
    pictures_ = MenuPicturesFor(base::DpiScale::kDesignDpi);
    LoadImages();
}

bool CKorvaneButton::LoadImages() {
    onDark_ = fw::PngImage::FromResource(pictures_.onDark);
    onLight_ = fw::PngImage::FromResource(pictures_.onLight);
    return onDark_ && onLight_;
}

void CKorvaneButton::OpenMenu() {
    TrackPopupOf(host_, POPUP_MAIN);
}

// A click that did not come from a press, as the dialog manager sends for Enter, opens the menu like any other.
fw::Reply CKorvaneButton::OnClicked(const fw::Message& m) {
    if (HIWORD(m.wparam) != BN_CLICKED || MenuShown()) return fw::kPassOn;
    OpenSoon();
    return LRESULT{0};
}

void CKorvaneButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = StateOf(facts);
    PaintGround(dc, area, state);
    const fw::PngImage& image = IsLightBar(bar_) ? onLight_ : onDark_;
    const base::Size size = DrawnSize(image.Extent(), pictures_.artDpi, fw::Scale().Dpi());
    image.Draw(dc, Pushed(base::Centred(area, size), state, fw::Scale()));
}

const wchar_t* CKorvaneButton::ThemeClasses() const {
    return BarButtonTheme(fw::IsWindowsAtLeast(fw::kWindows7));
}

} // namespace korvane::controls
