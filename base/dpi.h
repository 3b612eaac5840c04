#pragma once

namespace korvane::base {

// Turns a design figure, which is meant at 96 dots per inch, into pixels of the screen. The one place where figures are
// scaled: at 96 dpi every figure comes back unchanged.
class DpiScale {
public:
    static constexpr int kDesignDpi = 96;

    constexpr DpiScale() = default;
    constexpr explicit DpiScale(int dpi) : dpi_{dpi > 0 ? dpi : kDesignDpi} {}

    // Rounds to nearest, halves away from zero, as MulDiv does.
    [[nodiscard]] constexpr int operator()(int designPx) const {
        const int product = designPx * dpi_;
        const int half = kDesignDpi / 2;
        return (product >= 0 ? product + half : product - half) / kDesignDpi;
    }
    [[nodiscard]] constexpr int Dpi() const { return dpi_; }

private:
    int dpi_ = kDesignDpi;
};

} // namespace korvane::base
