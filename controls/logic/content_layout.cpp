#include "controls/logic/content_layout.h"

#include <array>

namespace korvane::controls {
namespace {

// Resources of the type "PNG".
constexpr std::array kMenuPictures{
    MenuPictures{201, 202, 96},
    MenuPictures{203, 204, 120},
    MenuPictures{205, 206, 144},
    MenuPictures{207, 208, 192},
};

} // namespace

MenuPictures MenuPicturesFor(int dpi) {
    MenuPictures best = kMenuPictures.front();
    for (const MenuPictures& pictures : kMenuPictures)
        if (pictures.artDpi <= dpi) best = pictures;
    return best;
}

} // namespace korvane::controls
