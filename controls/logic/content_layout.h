#pragma once

#include "base/dpi.h"
#include "base/geometry.h"
#include "controls/logic/button_state.h"
#include "controls/logic/glyph.h"

namespace korvane::controls {

// Icons of the buttons, at 96 dpi.
inline constexpr int kIconPx = 16;

// Content moves one design pixel right and down while its button is pressed, so that it looks pushed in.
[[nodiscard]] constexpr base::Rect Pushed(const base::Rect& content, ButtonState state, const base::DpiScale& scale) {
    if (state != ButtonState::kPressed) return content;
    return content.Offset(scale(1), scale(1));
}

// Where the parts of a text drop button go.
struct TextDropLayout {
    base::Rect image;
    base::Rect text;
    base::Rect arrow;
};

[[nodiscard]] constexpr TextDropLayout LayOutTextDrop(const base::Rect& item, ButtonState state,
                                                      const base::DpiScale& scale) {
    const int icon = scale(kIconPx);
    const base::Size arrow = DownArrowSize(scale);
    const base::Rect image =
        base::Rect::At({item.left + scale(4), item.top + (item.Height() - icon) / 2}, {icon, icon});
    // The icon and the arrow keep 40 pixels for themselves, whatever is left is the text's.
    const int textLeft = item.left + scale(24);
    const base::Rect text{textLeft, item.top, textLeft + item.Width() - scale(40), item.bottom};
    const base::Rect tip =
        base::Rect::At({item.right - scale(12), item.top + (item.Height() - arrow.height) / 2}, arrow);
    return {Pushed(image, state, scale), Pushed(text, state, scale), Pushed(tip, state, scale)};
}

// The pictures of the main menu button in the resolution that suits the screen.
struct MenuPictures {
    unsigned onDark;
    unsigned onLight;
    int artDpi; // the resolution for which the pictures were drawn
};

// The finest pictures that are not drawn for a higher resolution than the screen's.
[[nodiscard]] MenuPictures MenuPicturesFor(int dpi);

// The size on the screen of a picture drawn for `artDpi`; its own size where the two resolutions are the same.
[[nodiscard]] constexpr base::Size DrawnSize(base::Size picture, int artDpi, int dpi) {
    return {(picture.width * dpi + artDpi / 2) / artDpi, (picture.height * dpi + artDpi / 2) / artDpi};
}

} // namespace korvane::controls
