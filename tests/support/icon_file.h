#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "framework/handle.h"

namespace korvane::test {

// Icons that a test can tell apart by their colour.

inline constexpr int kTestIconSidePx = 16;

inline void AppendNumber(std::string& bytes, std::uint32_t number, int size) {
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

// An icon file with one image of 16 by 16 pixels, all of them opaque and of one colour. Icon files have an alpha
// channel.
[[nodiscard]] inline std::string IconFile(COLORREF colour) {
    constexpr std::uint32_t kSide = kTestIconSidePx;
    constexpr std::uint32_t kPixelBytes = kSide * kSide * 4;
    constexpr std::uint32_t kMaskBytes = kSide * 4;
    constexpr std::uint32_t kHeaderBytes = 40;
    std::string bytes;
    const auto append = [&](std::initializer_list<std::pair<std::uint32_t, int>> numbers) {
        for (const auto& [number, size] : numbers) AppendNumber(bytes, number, size);
    };
    append({{0, 2}, {1, 2}, {1, 2}});
    append({{kSide, 1}, {kSide, 1}, {0, 2}, {1, 2}, {32, 2}, {kHeaderBytes + kPixelBytes + kMaskBytes, 4}, {22, 4}});
    append({{kHeaderBytes, 4}, {kSide, 4}, {2 * kSide, 4}, {1, 2}, {32, 2}, {0, 4}, {kPixelBytes + kMaskBytes, 4}});
    append({{0, 4}, {0, 4}, {0, 4}, {0, 4}});
    const std::uint32_t pixel = 0xFF000000U | GetRValue(colour) << 16U | GetGValue(colour) << 8U |
                                static_cast<std::uint32_t>(GetBValue(colour));
    for (std::uint32_t i = 0; i < kSide * kSide; ++i) AppendNumber(bytes, pixel, 4);
    bytes.append(kMaskBytes, '\0');
    return bytes;
}

// An icon whose pixels are 0xAARRGGBB, the colours not multiplied by alpha.
[[nodiscard]] inline fw::UniqueIcon AlphaIcon(std::uint32_t pixel) {
    constexpr int kSide = kTestIconSidePx;
    BITMAPV5HEADER header{};
    header.bV5Size = sizeof header;
    header.bV5Width = kSide;
    header.bV5Height = -kSide;
    header.bV5Planes = 1;
    header.bV5BitCount = 32;
    header.bV5Compression = BI_BITFIELDS;
    header.bV5RedMask = 0x00FF0000;
    header.bV5GreenMask = 0x0000FF00;
    header.bV5BlueMask = 0x000000FF;
    header.bV5AlphaMask = 0xFF000000;
    void* bits = nullptr;
    const fw::UniqueBitmap colours{
        ::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&header), DIB_RGB_COLORS, &bits, nullptr, 0)};
    for (int i = 0; i < kSide * kSide; ++i) static_cast<std::uint32_t*>(bits)[i] = pixel;
    const std::string nothingMasked(kSide * kSide / 8, '\0');
    const fw::UniqueBitmap mask{::CreateBitmap(kSide, kSide, 1, 1, nothingMasked.data())};
    ICONINFO info{TRUE, 0, 0, mask.Get(), colours.Get()};
    return fw::UniqueIcon{::CreateIconIndirect(&info)};
}

// An icon of the old kind, without an alpha channel: its left half has a colour, its right half is masked out.
[[nodiscard]] inline fw::UniqueIcon HalfMaskedIcon(COLORREF colour) {
    constexpr int kSide = kTestIconSidePx;
    const HDC screen = ::GetDC(nullptr);
    const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen)};
    const fw::UniqueBitmap colours{::CreateCompatibleBitmap(screen, kSide, kSide)};
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ previous = ::SelectObject(dc.Get(), colours.Get());
    const fw::UniqueBrush brush{::CreateSolidBrush(colour)};
    const RECT all{0, 0, kSide, kSide};
    const RECT left{0, 0, kSide / 2, kSide};
    ::FillRect(dc.Get(), &all, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::FillRect(dc.Get(), &left, brush.Get());
    ::SelectObject(dc.Get(), previous);

    std::string masked;
    for (int row = 0; row < kSide; ++row) masked += {'\x00', '\xFF'};
    const fw::UniqueBitmap mask{::CreateBitmap(kSide, kSide, 1, 1, masked.data())};
    ICONINFO info{TRUE, 0, 0, mask.Get(), colours.Get()};
    return fw::UniqueIcon{::CreateIconIndirect(&info)};
}

} // namespace korvane::test
