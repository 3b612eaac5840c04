#include "controls/logic/contrast.h"

#include <algorithm>
#include <cmath>

namespace korvane::controls {
namespace {

constexpr base::Colour kBlack = base::Colour::Rgb(0, 0, 0);
constexpr base::Colour kWhite = base::Colour::Rgb(255, 255, 255);

// How much light a byte of a colour in sRGB stands for, 0 to 1.
double Linear(int byte) {
    const double part = byte / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(base::Colour colour) {
    return 0.2126 * Linear(colour.Red()) + 0.7152 * Linear(colour.Green()) + 0.0722 * Linear(colour.Blue());
}

// So many sixteenths of the way.
base::Colour Toward(base::Colour from, base::Colour to, int sixteenths) {
    const auto part = [sixteenths](int a, int b) { return static_cast<unsigned>(a + (b - a) * sixteenths / 16); };
    return base::Colour::Rgb(part(from.Red(), to.Red()), part(from.Green(), to.Green()), part(from.Blue(), to.Blue()));
}

} // namespace

double Contrast(base::Colour a, base::Colour b) {
    // What the screen reflects of the room counts for black too.
    constexpr double kGlare = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + kGlare) / (darker + kGlare);
}

base::Colour ReadableOn(base::Colour ground) {
    return Contrast(kWhite, ground) > Contrast(kBlack, ground) ? kWhite : kBlack;
}

std::optional<base::Colour> OutlineOf(base::Colour ink, base::Colour ground, double needed) {
    if (Contrast(ink, ground) >= needed) return std::nullopt;
    // A line that is a pixel wide, and that smoothing thins, has to do more than a surface.
    const double wanted = needed * 1.5;
    const base::Colour farthest = ReadableOn(ink);
    base::Colour outline = ground;
    for (int sixteenths = 1; sixteenths <= 16 && Contrast(ink, outline) < wanted; ++sixteenths)
        outline = Toward(ground, farthest, sixteenths);
    return outline;
}

} // namespace korvane::controls
