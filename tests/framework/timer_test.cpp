#include "framework/timer.h"

#include <gtest/gtest.h>

#include "framework/scoped_flag.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

using std::chrono::hours;
constexpr UINT_PTR kTimer = 5;

class TimerTest : public korvane::test::WindowTest {
protected:
    // Windows kills only a timer that runs; so asking is killing it.
    [[nodiscard]] bool WasRunning(UINT_PTR id) const { return ::KillTimer(Host(), id) != 0; }
};

TEST_F(TimerTest, RunsUntilItIsStopped) {
    Timer timer;
    EXPECT_FALSE(timer.Running());

    ASSERT_TRUE(timer.Start(Host(), kTimer, hours{1}));
    EXPECT_TRUE(timer.Running());
    timer.Stop();

    EXPECT_FALSE(timer.Running());
    EXPECT_FALSE(WasRunning(kTimer));
}

TEST_F(TimerTest, IsAWindowsTimerOfItsIdentifier) {
    Timer timer;
    ASSERT_TRUE(timer.Start(Host(), kTimer, hours{1}));

    EXPECT_TRUE(WasRunning(kTimer));
}

TEST_F(TimerTest, StopsWithItsOwner) {
    {
        Timer timer;
        ASSERT_TRUE(timer.Start(Host(), kTimer, hours{1}));
    }

    EXPECT_FALSE(WasRunning(kTimer));
}

TEST_F(TimerTest, GivesUpItsOldIdentifierWhenItStartsAnew) {
    Timer timer;
    ASSERT_TRUE(timer.Start(Host(), kTimer, hours{1}));
    ASSERT_TRUE(timer.Start(Host(), kTimer + 1, hours{1}));

    EXPECT_FALSE(WasRunning(kTimer));
    EXPECT_TRUE(WasRunning(kTimer + 1));
}

TEST_F(TimerTest, DoesNotRunForAWindowThatIsGone) {
    const HWND gone = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 1, 1, Host(), nullptr, nullptr, nullptr);
    ::DestroyWindow(gone);
    Timer timer;

    EXPECT_FALSE(timer.Start(gone, kTimer, hours{1}));
    EXPECT_FALSE(timer.Running());
}

TEST(ScopedFlag, IsSetForTheLengthOfItsScope) {
    bool flag = false;
    {
        const ScopedFlag scope{flag};
        EXPECT_TRUE(flag);
    }

    EXPECT_FALSE(flag);
}

TEST(ScopedFlag, IsClearedEvenWhereItWasSetBefore) {
    bool flag = true;
    { const ScopedFlag scope{flag}; }

    EXPECT_FALSE(flag);
}

} // namespace
} // namespace fw
