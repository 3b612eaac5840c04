#include "app/notification_icon.h"

#include <string>

#include "tests/support/solid_icon.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::app;
using korvane::test::SolidIcon;

namespace {

class NotificationIconTest : public korvane::test::WindowTest {
protected:
    // A notification area that writes down what it is told and holds at most one icon.
    BOOL Tell(DWORD message, NOTIFYICONDATAW* data) {
        last = *data;
        log += message == NIM_ADD      ? "add "
               : message == NIM_DELETE ? "delete "
               : message == NIM_MODIFY ? "modify "
                                       : "? ";
        if (busy) {
            if (takesLate && message == NIM_ADD) held = true;
            ::SetLastError(ERROR_TIMEOUT);
            return FALSE;
        }
        if (message == NIM_ADD && (held || !there)) return FALSE;
        if (message != NIM_ADD && !held) return FALSE;
        held = message != NIM_DELETE;
        return TRUE;
    }
    // Ending a timer is how it can be asked for. One that runs is started again, and never runs out in a test.
    [[nodiscard]] bool TimerRuns() {
        if (!::KillTimer(Host(), kTimer)) return false;
        ::SetTimer(Host(), kTimer, USER_TIMER_MAXIMUM, nullptr);
        return true;
    }
    [[nodiscard]] NotificationIcon::Shell Area() {
        return [this](DWORD message, NOTIFYICONDATAW* data) { return Tell(message, data); };
    }

    static constexpr UINT_PTR kTimer = 6;

    bool there = true;
    bool busy = false;
    bool takesLate = false; // what it is told while it is busy
    bool held = false;
    std::string log;
    NOTIFYICONDATAW last{};
    fw::UniqueIcon picture = SolidIcon(RGB(1, 2, 3));
};

} // namespace

TEST_F(NotificationIconTest, IsAddedWithMessagePictureAndName) {
    NotificationIcon icon{kTimer, Area()};

    EXPECT_TRUE(icon.Add(Host(), picture.Get()));

    EXPECT_EQ(log, "add ");
    EXPECT_EQ(last.cbSize, sizeof last);
    EXPECT_EQ(last.hWnd, Host());
    EXPECT_EQ(last.uID, 1U);
    EXPECT_EQ(last.uFlags, UINT{NIF_MESSAGE | NIF_ICON | NIF_TIP});
    EXPECT_EQ(last.uCallbackMessage, 0x8002U);
    EXPECT_EQ(last.hIcon, picture.Get());
    EXPECT_STREQ(last.szTip, L"Korvane");
}

TEST_F(NotificationIconTest, IsRemovedOnce) {
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    icon.Remove();
    icon.Remove();

    EXPECT_EQ(log, "add delete ");
    EXPECT_EQ(last.hWnd, Host());
    EXPECT_EQ(last.uID, 1U);
}

TEST_F(NotificationIconTest, GoesWithItsOwner) {
    {
        NotificationIcon icon{kTimer, Area()};
        icon.Add(Host(), picture.Get());
    }

    EXPECT_EQ(log, "add delete ");
    EXPECT_FALSE(held);
}

TEST_F(NotificationIconTest, TellsTheShellNothingUnlessItWasAdded) {
    {
        NotificationIcon icon{kTimer, Area()};
        icon.OnAreaCreated();
        icon.Remove();
    }

    EXPECT_EQ(log, "");
}

TEST_F(NotificationIconTest, TakesTheOldOneAwayWhenItIsAddedAgain) {
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    EXPECT_TRUE(icon.Add(Host(), picture.Get()));

    EXPECT_EQ(log, "add delete add ");
}

TEST_F(NotificationIconTest, ComesBackAfterTheShellWasStartedAgain) {
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());
    held = false;

    icon.OnAreaCreated();

    EXPECT_TRUE(held);
    EXPECT_EQ(log, "add add ");
}

TEST_F(NotificationIconTest, IsRenewedWhereItIsStillInPlace) {
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    icon.OnAreaCreated();

    EXPECT_EQ(log, "add add modify ");
    EXPECT_TRUE(held);
}

TEST_F(NotificationIconTest, AppearsWithTheNotificationAreaWhenThatComesLater) {
    there = false;
    NotificationIcon icon{kTimer, Area()};
    EXPECT_FALSE(icon.Add(Host(), picture.Get()));

    there = true;
    icon.OnAreaCreated();

    EXPECT_TRUE(held);
}

TEST_F(NotificationIconTest, IsAddedLaterWhenTheShellIsBusy) {
    busy = true;
    NotificationIcon icon{kTimer, Area()};
    EXPECT_FALSE(icon.Add(Host(), picture.Get()));
    EXPECT_TRUE(TimerRuns());

    busy = false;
    EXPECT_TRUE(icon.OnTimer(kTimer));

    EXPECT_TRUE(held);
    EXPECT_EQ(log, "add add ");
    EXPECT_FALSE(TimerRuns()) << "once it is there";
}

TEST_F(NotificationIconTest, AsksABusyShellAgainAndAgain) {
    busy = true;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    icon.OnTimer(kTimer);
    EXPECT_TRUE(TimerRuns());

    EXPECT_EQ(log, "add add ");
}

TEST_F(NotificationIconTest, LeavesABusyShellAloneAtLast) {
    busy = true;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    int attempts = 1;
    for (; TimerRuns() && attempts < 100; ++attempts) icon.OnTimer(kTimer);

    EXPECT_EQ(attempts, 8);
    EXPECT_FALSE(held);
}

TEST_F(NotificationIconTest, AsksAgainFromTheBeginningWhenTheShellHasStartedAgain) {
    busy = true;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());
    while (TimerRuns()) icon.OnTimer(kTimer);

    icon.OnAreaCreated();

    EXPECT_TRUE(TimerRuns());
}

TEST_F(NotificationIconTest, FindsThatALateShellHasTakenItAllTheSame) {
    busy = true;
    takesLate = true;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    busy = false;
    icon.OnTimer(kTimer);

    EXPECT_EQ(log, "add add modify ");
    EXPECT_FALSE(TimerRuns());
}

TEST_F(NotificationIconTest, NeedsNoTimerWhereTheShellTakesItAtOnceOrIsNotThere) {
    {
        NotificationIcon icon{kTimer, Area()};
        icon.Add(Host(), picture.Get());
        EXPECT_FALSE(TimerRuns());
    }
    there = false;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());
    EXPECT_FALSE(TimerRuns()) << "which reports itself when it comes";
}

TEST_F(NotificationIconTest, IsNotAddedAnyMoreOnceItIsRemoved) {
    busy = true;
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());

    icon.Remove();
    EXPECT_FALSE(TimerRuns());
    busy = false;
    icon.OnTimer(kTimer);

    EXPECT_EQ(log, "add delete ");
}

TEST_F(NotificationIconTest, LeavesForeignTimersAlone) {
    NotificationIcon icon{kTimer, Area()};

    EXPECT_FALSE(icon.OnTimer(kTimer + 1));
}

TEST_F(NotificationIconTest, DoesNotComeBackOnceItIsRemoved) {
    NotificationIcon icon{kTimer, Area()};
    icon.Add(Host(), picture.Get());
    icon.Remove();

    icon.OnAreaCreated();

    EXPECT_FALSE(held);
}

TEST_F(NotificationIconTest, IsTakenByTheRealShell) {
    NotificationIcon icon{kTimer};

    EXPECT_TRUE(icon.Add(Host(), picture.Get()));
    EXPECT_TRUE(icon.Add(Host(), picture.Get()));
    icon.Remove();

    NOTIFYICONDATAW gone{};
    gone.cbSize = sizeof gone;
    gone.hWnd = Host();
    gone.uID = 1;
    EXPECT_FALSE(::Shell_NotifyIconW(NIM_DELETE, &gone));
}

TEST_F(NotificationIconTest, KnowsTheShellsMessageByItsName) {
    EXPECT_EQ(NotificationIcon::AreaCreatedMessage(), ::RegisterWindowMessageW(L"TaskbarCreated"));
    EXPECT_GE(NotificationIcon::AreaCreatedMessage(), 0xC000U);
}
