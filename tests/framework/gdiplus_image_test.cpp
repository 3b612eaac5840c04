#include "framework/gdiplus_image.h"

#include <gtest/gtest.h>

#include "framework/gdi.h"
#include "framework/handle.h"
#include "tests/framework/test_ids.h"

namespace fw {
namespace {

class PngImageTest : public testing::Test {
protected:
    GdiplusSession session;
};

TEST_F(PngImageTest, HasTheExtentOfItsResource) {
    const PngImage image = PngImage::FromResource(IDP_TEST_PICTURE);

    ASSERT_TRUE(image);
    EXPECT_EQ(image.Extent(), (korvane::base::Size{2, 3}));
}

TEST_F(PngImageTest, DrawsItsOpaquePixelsAndLeavesTheOthers) {
    const PngImage image = PngImage::FromResource(IDP_TEST_PICTURE);
    const WindowDc screen{nullptr};
    const UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
    const UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), 10, 10)};
    const SelectedObject selected{dc.Get(), bitmap.Get()};
    ::PatBlt(dc.Get(), 0, 0, 10, 10, WHITENESS);

    image.Draw(dc.Get(), {4, 4, 6, 7});

    EXPECT_EQ(::GetPixel(dc.Get(), 4, 5), static_cast<COLORREF>(RGB(255, 0, 0)));
    EXPECT_EQ(::GetPixel(dc.Get(), 5, 5), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(::GetPixel(dc.Get(), 3, 5), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(::GetPixel(dc.Get(), 4, 3), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(::GetPixel(dc.Get(), 4, 7), static_cast<COLORREF>(RGB(255, 255, 255)));
}

TEST_F(PngImageTest, BecomesADibSectionOfItsSize) {
    const UniqueBitmap bitmap = PngImage::FromResource(IDP_TEST_PICTURE).ToBitmap();

    DIBSECTION section{};
    ASSERT_EQ(::GetObjectW(bitmap.Get(), sizeof section, &section), static_cast<int>(sizeof section));
    EXPECT_EQ(section.dsBm.bmWidth, 2);
    EXPECT_EQ(section.dsBm.bmHeight, 3);
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    const SelectedObject selected{dc.Get(), bitmap.Get()};
    EXPECT_EQ(::GetPixel(dc.Get(), 0, 1), static_cast<COLORREF>(RGB(255, 0, 0)));
    EXPECT_EQ(::GetPixel(dc.Get(), 1, 1), static_cast<COLORREF>(RGB(0, 0, 0)));
}

TEST_F(PngImageTest, IsEmptyWithoutAResource) {
    const PngImage image = PngImage::FromResource(IDP_TEST_PICTURE + 1000);

    EXPECT_FALSE(image);
    EXPECT_EQ(image.Extent(), korvane::base::Size{});
    image.Draw(nullptr, {0, 0, 5, 5});
    EXPECT_FALSE(image.ToBitmap());
}

TEST_F(PngImageTest, IsEmptyWhenTheResourceIsDamaged) {
    EXPECT_FALSE(PngImage::FromResource(IDP_TEST_DAMAGED));
}

TEST_F(PngImageTest, HandsItsPictureOverWhenMoved) {
    PngImage first = PngImage::FromResource(IDP_TEST_PICTURE);
    const PngImage second = std::move(first);

    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
}

} // namespace
} // namespace fw
