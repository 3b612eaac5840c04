#pragma once

#include "controls/menu_bar_button.h"
#include "framework/gdiplus_image.h"

namespace korvane::controls {

// A button with an image, its window text and an arrow, which opens a pop-up of the bar's menu: the search commands
// where its control is the search command chooser, otherwise the control panel.
class CTextDropButton final : public MenuBarButton<CTextDropButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"TextDropButton_WndClass", .base = L"BUTTON"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::OnReflected<WM_COMMAND>(&CTextDropButton::OnClicked),
            fw::Chain<MenuBarButton<CTextDropButton>>(),
        };
    }

    explicit CTextDropButton(BarHost& host) : host_{host} {}

    // What the text must be readable on. Without a call it is the system default, for a button that stands on a field
    // of the window colour.
    void SetBarColour(base::Colour bar);

    // The picture goes before the icon.
    void SetImage(fw::PngImage image);
    void SetIcon(fw::UniqueIcon icon);

    // Sets the window text and redraws at once.
    void SetCaption(const std::wstring& text);

    // For the mix-ins.
    void OpenMenu();
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    fw::Reply OnClicked(const fw::Message& m);
    void RedrawIfCreated() const;
    void PaintText(HDC dc, const base::Rect& where, const Ink& ink) const;

    BarHost& host_;
    fw::PngImage image_;
    fw::UniqueIcon icon_;
    BarTextColour textColour_ = BarTextColour::kButtonText;
};

} // namespace korvane::controls
