#include "framework/gdi.h"

#include <gtest/gtest.h>

#include "framework/dpi.h"
#include "framework/handle.h"

namespace fw {
namespace {

TEST(SelectedObject, PutsTheOldObjectBack) {
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    const UniquePen pen{::CreatePen(PS_SOLID, 1, RGB(1, 2, 3))};
    const HGDIOBJ before = ::GetCurrentObject(dc.Get(), OBJ_PEN);
    {
        const SelectedObject selected{dc.Get(), pen.Get()};
        EXPECT_EQ(::GetCurrentObject(dc.Get(), OBJ_PEN), pen.Get());
    }

    EXPECT_EQ(::GetCurrentObject(dc.Get(), OBJ_PEN), before);
}

TEST(SavedDc, RestoresWhatWasSet) {
    const UniqueMemoryDc dc{::CreateCompatibleDC(nullptr)};
    ::SetTextColor(dc.Get(), RGB(1, 2, 3));
    {
        const SavedDc saved{dc.Get()};
        ::SetTextColor(dc.Get(), RGB(9, 9, 9));
    }

    EXPECT_EQ(::GetTextColor(dc.Get()), static_cast<COLORREF>(RGB(1, 2, 3)));
}

TEST(WindowsGeometry, KeepsItsEdges) {
    const korvane::base::Rect rect{-1, 2, 30, 40};

    EXPECT_EQ(FromWindows(ToWindows(rect)), rect);
    EXPECT_EQ(ToWindows(rect).left, -1);
    EXPECT_EQ(ToWindows(rect).bottom, 40);
}

TEST(WindowsColour, IsTheSameNumber) {
    EXPECT_EQ(ToWindows(korvane::base::Colour::Rgb(159, 22, 106)), static_cast<COLORREF>(RGB(159, 22, 106)));
}

TEST(Scale, IsThatOfTheScreen) {
    const WindowDc screen{nullptr};

    EXPECT_EQ(Scale().Dpi(), ::GetDeviceCaps(screen.Get(), LOGPIXELSX));
}

} // namespace
} // namespace fw
