#include "controls/korvane_button.h"

#include "framework/pixel_bitmap.h"
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
    // The picture for light bars has no shadow, so it is also the one to be had in a colour of the system.
    const fw::PngImage& image = IsLightBar(bar_) || highContrast_ ? onLight_ : onDark_;
    const base::Size size = DrawnSize(image.Extent(), pictures_.artDpi, fw::Scale().Dpi());
    const base::Rect at = Pushed(base::Centred(area, size), state, fw::Scale());
    if (!highContrast_) return image.Draw(dc, at);
    fw::DrawSilhouette(dc, at, fw::ToWindows(SystemColour(TextColourInHighContrast(state))), [&](HDC one) {
        image.Draw(one, base::Rect::At({0, 0}, size));
        return true;
    });
}

const wchar_t* CKorvaneButton::ThemeClasses() const {
    return BarButtonTheme(fw::IsWindowsAtLeast(fw::kWindows7));
}

} // namespace korvane::controls
