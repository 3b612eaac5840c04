#include "framework/centring.h"

#include <gmock/gmock.h>

#include <ostream>

#include "framework/gdi.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

using korvane::base::Point;
using korvane::base::Rect;
using korvane::base::Size;

constexpr Rect kArea{100, 50, 1100, 850};

struct CentringCase {
    const char* name;
    Size window;
    Rect centre;
    Rect workArea;
    Point origin;
};

class CentringRule : public testing::TestWithParam<CentringCase> {};

TEST_P(CentringRule, Holds) {
    const CentringCase& c = GetParam();

    const Point origin = CentredOrigin(c.window, c.centre, c.workArea);

    EXPECT_EQ(origin.x, c.origin.x);
    EXPECT_EQ(origin.y, c.origin.y);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, CentringRule, testing::Values(
    CentringCase{"InTheMiddle",              {200, 100},   {400, 300, 800, 600},    kArea, {500, 400}},
    CentringCase{"OnTheWorkAreaItself",      {200, 100},   kArea,                   kArea, {500, 400}},
    CentringCase{"OddRestTowardZero",        {201, 101},   {400, 300, 800, 600},    kArea, {499, 399}},
    CentringCase{"LargerThanTheOwner",       {401, 303},   {400, 300, 800, 600},    kArea, {400, 299}},
    CentringCase{"LargerByThree",            {403, 305},   {400, 300, 800, 600},    kArea, {399, 298}},
    CentringCase{"PastTheRightEdge",         {200, 100},   {1050, 300, 1090, 340},  kArea, {900, 270}},
    CentringCase{"JustAtTheRightEdge",       {200, 100},   {900, 300, 1100, 340},   kArea, {900, 270}},
    CentringCase{"PastTheLeftEdge",          {200, 100},   {110, 300, 150, 340},    kArea, {100, 270}},
    CentringCase{"PastTheTop",               {200, 100},   {500, 60, 700, 80},      kArea, {500, 50}},
    CentringCase{"PastTheBottom",            {200, 100},   {500, 830, 700, 850},    kArea, {500, 750}},
    CentringCase{"OwnerFarToTheLeft",        {200, 100},   {-9000, 300, -8000, 340}, kArea, {100, 270}},
    CentringCase{"OwnerFarToTheRight",       {200, 100},   {8000, 300, 9000, 340},  kArea, {900, 270}},
    CentringCase{"WiderThanTheWorkArea",     {1200, 100},  {400, 300, 800, 600},    kArea, {100, 400}},
    CentringCase{"HigherThanTheWorkArea",    {200, 900},   {400, 300, 800, 600},    kArea, {500, 50}},
    CentringCase{"AsLargeAsTheWorkArea",     {1000, 800},  {400, 300, 800, 600},    kArea, {100, 50}},
    CentringCase{"OnAMonitorToTheLeft",      {200, 100},   {-1900, 10, -1800, 50},  {-1920, 0, 0, 1080}, {-1920, 0}},
    CentringCase{"EmptyOwner",               {200, 100},   {500, 400, 500, 400},    kArea, {400, 350}}),
    [](const auto& tested) { return std::string{tested.param.name}; });
// clang-format on

TEST(CentredOrigin, NeverLeavesTheWorkAreaWhereItFits) {
    for (int width = 1; width <= 1000; width += 37)
        for (int left = -2000; left <= 2000; left += 53)
            for (int extent = 0; extent <= 700; extent += 171) {
                const Rect centre{left, left / 2, left + extent, left / 2 + extent};
                const Size size{width, 1 + width * 3 / 4};

                const Point at = CentredOrigin(size, centre, kArea);

                ASSERT_EQ(korvane::base::Intersection(Rect::At(at, size), kArea), (Rect::At(at, size)))
                    << width << ' ' << left << ' ' << extent;
            }
}

TEST(CentredOrigin, MovesNoFurtherFromTheMiddleThanItMust) {
    for (int left = -2000; left <= 2000; left += 7) {
        const int middle = left + (300 - 200) / 2;

        const Point at = CentredOrigin({200, 100}, {left, 200, left + 300, 300}, kArea);

        ASSERT_EQ(at.x, std::clamp(middle, kArea.left, kArea.right - 200)) << left;
        ASSERT_EQ(at.y, 200);
    }
}

class CentreWindowTest : public korvane::test::WindowTest {
protected:
    static HWND NewWindow(const Rect& at, DWORD style, HWND parent = nullptr) {
        return ::CreateWindowExW(0, L"STATIC", L"", style, at.left, at.top, at.Width(), at.Height(), parent, nullptr,
                                 nullptr, nullptr);
    }
    static Rect InParent(HWND window) {
        RECT r = ToWindows(WindowRect(window));
        ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&r), 2);
        return FromWindows(r);
    }
    static Rect WorkArea() {
        RECT r{};
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &r, 0);
        return FromWindows(r);
    }
    static Rect InTheMiddleOf(const Rect& outer, Size size) {
        return Rect::At(CentredOrigin(size, outer, WorkArea()), size);
    }
};

TEST_F(CentreWindowTest, CentresAChildInItsParent) {
    const HWND child = NewWindow({0, 0, 100, 50}, WS_CHILD, Host());

    CentreWindow(child);

    EXPECT_EQ(InParent(child), (Rect{350, 275, 450, 325}));
}

TEST_F(CentreWindowTest, CentresAChildOnItsSiblingInItsParentsCoordinates) {
    const HWND sibling = NewWindow({500, 300, 700, 400}, WS_CHILD, Host());
    const HWND child = NewWindow({0, 0, 100, 50}, WS_CHILD, Host());

    CentreWindow(child, sibling);

    EXPECT_EQ(InParent(child), (Rect{550, 325, 650, 375}));
}

TEST_F(CentreWindowTest, KeepsAChildWithinItsParent) {
    const HWND sibling = NewWindow({760, 580, 800, 600}, WS_CHILD, Host());
    const HWND child = NewWindow({0, 0, 100, 50}, WS_CHILD, Host());

    CentreWindow(child, sibling);

    EXPECT_EQ(InParent(child), (Rect{700, 550, 800, 600}));
}

TEST_F(CentreWindowTest, CentresAPopUpOnItsVisibleOwner) {
    const HWND owner = NewWindow({200, 150, 600, 450}, WS_POPUP | WS_VISIBLE);
    const HWND popUp = NewWindow({0, 0, 100, 50}, WS_POPUP, owner);

    CentreWindow(popUp);

    EXPECT_EQ(WindowRect(popUp), (Rect{350, 275, 450, 325}));
    ::DestroyWindow(owner);
}

TEST_F(CentreWindowTest, CentresAPopUpOnAnotherWindowThanItsOwner) {
    const HWND owner = NewWindow({200, 150, 600, 450}, WS_POPUP | WS_VISIBLE);
    const HWND other = NewWindow({400, 300, 600, 400}, WS_POPUP | WS_VISIBLE);
    const HWND popUp = NewWindow({0, 0, 100, 50}, WS_POPUP, owner);

    CentreWindow(popUp, other);

    EXPECT_EQ(WindowRect(popUp), (Rect{450, 325, 550, 375}));
    ::DestroyWindow(owner);
    ::DestroyWindow(other);
}

TEST_F(CentreWindowTest, CentresOnTheWorkAreaWhenTheOwnerIsHidden) {
    const HWND popUp = NewWindow({0, 0, 100, 50}, WS_POPUP, Host());

    CentreWindow(popUp);

    EXPECT_EQ(WindowRect(popUp), InTheMiddleOf(WorkArea(), {100, 50}));
}

TEST_F(CentreWindowTest, CentresOnTheWorkAreaWhenTheOwnerIsMinimised) {
    const HWND owner = NewWindow({200, 150, 600, 450}, WS_POPUP | WS_VISIBLE | WS_MINIMIZE);
    const HWND popUp = NewWindow({0, 0, 100, 50}, WS_POPUP, owner);

    CentreWindow(popUp);

    EXPECT_EQ(WindowRect(popUp), InTheMiddleOf(WorkArea(), {100, 50}));
    ::DestroyWindow(owner);
}

TEST_F(CentreWindowTest, CentresOnTheWorkAreaWithoutAnOwner) {
    const HWND popUp = NewWindow({0, 0, 101, 51}, WS_POPUP);

    CentreWindow(popUp);

    EXPECT_EQ(WindowRect(popUp), InTheMiddleOf(WorkArea(), {101, 51}));
    ::DestroyWindow(popUp);
}

TEST_F(CentreWindowTest, CentresOnItsOwnMonitorWhenToldTo) {
    const HWND owner = NewWindow({200, 150, 400, 250}, WS_POPUP | WS_VISIBLE);
    const HWND popUp = NewWindow({0, 0, 100, 50}, WS_POPUP, owner);

    CentreWindow(popUp, nullptr, CentreOn::kCurrentMonitor);

    EXPECT_EQ(WindowRect(popUp), InTheMiddleOf(WorkArea(), {100, 50}));
    ::DestroyWindow(owner);
}

} // namespace
} // namespace fw
