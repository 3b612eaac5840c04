#pragma once

#include "controls/menu_bar_button.h"
#include "framework/gdiplus_image.h"

namespace korvane::controls {

// The button of the main menu: a picture for dark bars and one for light bars.
class CKorvaneButton final : public MenuBarButton<CKorvaneButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneButton_WndClass", .base = L"BUTTON"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::OnReflected<WM_COMMAND>(&CKorvaneButton::OnClicked),
            fw::Chain<MenuBarButton<CKorvaneButton>>(),
        };
    }

    explicit CKorvaneButton(BarHost& host) : host_{host} {}

    void SetBarColour(base::Colour bar);

    // Resources of the type "PNG" to be used in place of the usual ones, and the resolution that they are drawn for.
    // To be called before the window is created.
    void SetImages(UINT onDark, UINT onLight, int artDpi);

    // For the mix-ins.
    void OnCreated();
    void OpenMenu();
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    fw::Reply OnClicked(const fw::Message& m);
    bool LoadImages();

    BarHost& host_;
    MenuPictures pictures_ = MenuPicturesFor(fw::Scale().Dpi());
    fw::PngImage onDark_;
    fw::PngImage onLight_;
    base::Colour bar_ = kSystemDefaultColour;
};

} // namespace korvane::controls
