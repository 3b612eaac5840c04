#include "app/logic/docking.h"

#include <gmock/gmock.h>

#include "settings/logic/setting_keys.h"
#include "tests/support/dock_doubles.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::app;
using base::Rect;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
namespace keys = settings::keys;

namespace {

class DockingTest : public testing::Test {
protected:
    void Begin(bool docked, DockingOptions options = {}) { docking.Begin(options, docked, kFloating); }
    // Docked with settings as they are, and shown.
    void Dock(DockingOptions options = {}) {
        Begin(true, options);
        docking.ApplyMode(ShowAtEnd::kYes);
        desk.TakeLog();
    }
    void DockHidden(DockingOptions options = {}) {
        settings.Write(keys::DesktopBarAutoHide, 1);
        Dock(options);
    }
    [[nodiscard]] int Written(const settings::IntSetting& key) const { return settings.Read(key); }

    static constexpr Rect kFloating{100, 100, 1124, 160};

    test::DeskDouble desk;
    test::ShellDouble shell{desk};
    test::WindowDouble window{desk};
    test::FakeStore settings;
    Docking docking{shell, window, settings};
};

} // namespace

TEST_F(DockingTest, DocksAtTheTopAndReservesTheBarsHeight) {
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(desk.TakeLog(), "hide window; dock window; register; query top 0,0-1280,32; reserve top 0,0-1280,32; "
                              "move 0,0-1280,32; topmost; show window; ");
    EXPECT_EQ(desk.WorkArea(), (Rect{0, 32, 1280, 760}));
}

TEST_F(DockingTest, DocksAtTheBottomBesideTheTaskBar) {
    settings.Write(keys::DesktopBarEdge, 1);
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kNo);

    EXPECT_EQ(window.place, (Rect{0, 728, 1280, 760}));
    EXPECT_FALSE(window.visible);
}

TEST_F(DockingTest, KeepsItsHeightWhereTheShellMovesIt) {
    desk.otherBar = Rect{0, 0, 1280, 20};
    desk.taskBar.reset();
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(window.place, (Rect{0, 20, 1280, 52}));
}

TEST_F(DockingTest, StandsAtTheEdgeEvenWhenTheShellRefusesIt) {
    shell.refusesRegistration = true;
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(desk.WorkArea(), (Rect{0, 0, 1280, 760}));
}

TEST_F(DockingTest, ARefusedBarDoesNotHideAndKeepsItsSetting) {
    shell.refusesRegistration = true;
    settings.Write(keys::DesktopBarAutoHide, 1);
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_FALSE(docking.AutoHide());
    EXPECT_EQ(window.place.Height(), 32);
    EXPECT_TRUE(window.controlsShown);
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 1);
}

TEST_F(DockingTest, FloatsAtTheRememberedRectangle) {
    Dock();

    docking.ToggleMode();

    EXPECT_EQ(desk.TakeLog(),
              "hide window; not topmost; unregister; move 100,100-1124,160; float window; show window; ");
    EXPECT_FALSE(docking.Docked());
    EXPECT_EQ(desk.WorkArea(), (Rect{0, 0, 1280, 760}));
}

TEST_F(DockingTest, FloatsWithinReachWhereTheMonitorIsGone) {
    Dock();
    window.reachable = Rect{0, 0, 1024, 60};

    docking.ToggleMode();

    EXPECT_EQ(window.place, (Rect{0, 0, 1024, 60}));
}

TEST_F(DockingTest, FloatsAtTheRememberedRectangleAgainWhenTheMonitorIsBack) {
    Dock();
    window.reachable = Rect{0, 0, 1024, 60};
    docking.ToggleMode();

    window.reachable.reset();
    docking.ToggleMode();
    docking.ToggleMode();

    EXPECT_EQ(window.place, kFloating);
}

TEST_F(DockingTest, DocksOnTheMonitorWhereItFloats) {
    desk.secondScreen = Rect{1280, 0, 2560, 800};
    Begin(false);
    window.place = {1400, 100, 2424, 160};

    docking.ToggleMode();

    EXPECT_EQ(window.place, (Rect{1280, 0, 2560, 32}));
}

TEST_F(DockingTest, DocksAgainOnTheMonitorWhereItWasDocked) {
    desk.secondScreen = Rect{1280, 0, 2560, 800};
    window.place = {1400, 100, 2424, 160};
    Dock();
    ASSERT_EQ(window.place, (Rect{1280, 0, 2560, 32}));

    docking.DockAgain();

    EXPECT_EQ(window.place, (Rect{1280, 0, 2560, 32})) << "although it floats on the first";
}

TEST_F(DockingTest, AHidingBarDocksAgainOnTheMonitorWhereItWasDocked) {
    desk.secondScreen = Rect{1280, 0, 2560, 800};
    window.place = {1400, 100, 2424, 160};
    DockHidden();

    docking.DockAgain();

    EXPECT_EQ(window.place, (Rect{1280, 0, 2560, 1}));
    EXPECT_EQ(desk.strip, (Rect{1280, 0, 2560, 1}));
}

TEST_F(DockingTest, FloatsOnTopWhenTheSettingSaysSo) {
    settings.Write(keys::TopMostWindow, 1);
    Begin(false);

    docking.ApplyMode(ShowAtEnd::kNo);

    EXPECT_THAT(desk.TakeLog(), HasSubstr("float window on top"));
}

TEST_F(DockingTest, AFloatingBarSaysNothingToTheShell) {
    Begin(false);

    docking.ApplyMode(ShowAtEnd::kYes);
    docking.OnPlaceChanged();
    docking.OnActivated(true);
    docking.Leave();

    EXPECT_THAT(desk.log, testing::Not(HasSubstr("register")));
    EXPECT_THAT(desk.log, testing::Not(HasSubstr("place changed")));
    EXPECT_THAT(desk.log, testing::Not(HasSubstr("activated")));
}

TEST_F(DockingTest, RemembersWhereTheFloatingWindowWasMoved) {
    Begin(false);
    docking.ApplyMode(ShowAtEnd::kYes);

    docking.OnFloatingRect({5, 6, 1029, 66});
    docking.ToggleMode();
    docking.OnFloatingRect({0, 0, 1280, 32});
    docking.ToggleMode();

    EXPECT_EQ(window.place, (Rect{5, 6, 1029, 66}));
}

TEST_F(DockingTest, TellsTheShellOfItsPlaceAndActivationWhileDocked) {
    Dock();

    docking.OnPlaceChanged();
    docking.OnActivated(true);
    docking.OnActivated(false);

    EXPECT_EQ(desk.TakeLog(), "place changed top; activated; deactivated; ");
}

// Auto-hide.

TEST_F(DockingTest, AnAutoHiddenBarReservesOnlyItsStrip) {
    settings.Write(keys::DesktopBarAutoHide, 1);
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(desk.TakeLog(), "hide window; dock window; register; query top 0,0-1280,32; reserve top 0,0-1280,32; "
                              "move 0,0-1280,32; topmost; hide at top; query top 0,0-1280,1; reserve top 0,0-1280,1; "
                              "move 0,0-1280,1; move 0,0-1280,1; topmost; show window; ");
    EXPECT_TRUE(docking.Hidden());
    EXPECT_FALSE(window.controlsShown);
    EXPECT_EQ(desk.WorkArea().top, 1);
    EXPECT_EQ(window.order, ZOrder::kTopmost);
}

TEST_F(DockingTest, TheStripIsTwoPixelsAtTheTaskBarsEdge) {
    settings.Write(keys::DesktopBarEdge, 1);
    DockHidden();

    EXPECT_EQ(window.place, (Rect{0, 758, 1280, 760}));
}

TEST_F(DockingTest, RegistersAfreshBeforeHidingOnOlderWindows) {
    settings.Write(keys::DesktopBarAutoHide, 1);
    Begin(true, {.windows8OrLater = false});

    docking.ApplyMode(ShowAtEnd::kNo);

    EXPECT_THAT(desk.TakeLog(), HasSubstr("topmost; unregister; register; hide at top; "));
    EXPECT_EQ(shell.HidesAt(), Edge::kTop);
}

TEST_F(DockingTest, GetsItsStripBackWhenHidingIsRefusedOnOlderWindows) {
    Dock({.windows8OrLater = false});
    shell.refusesAutoHide = true;

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kRefused);

    EXPECT_EQ(desk.strip, (Rect{0, 0, 1280, 32}));
}

TEST_F(DockingTest, TogglingHidesTheBarAndWritesTheSetting) {
    Dock();

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kDone);

    EXPECT_TRUE(docking.AutoHide());
    EXPECT_TRUE(docking.Hidden());
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 1);
    EXPECT_EQ(desk.strip, (Rect{0, 0, 1280, 1})) << "no gap where the whole bar was";
}

TEST_F(DockingTest, TogglingBackShowsTheWholeBarAndReservesItAgain) {
    DockHidden();

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kDone);

    EXPECT_FALSE(docking.AutoHide());
    EXPECT_FALSE(docking.Hidden());
    EXPECT_TRUE(window.controlsShown);
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
    EXPECT_EQ(desk.strip, (Rect{0, 0, 1280, 32}));
    EXPECT_EQ(window.order, ZOrder::kNotTopmost);
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 0);
    EXPECT_EQ(shell.HidesAt(), std::nullopt);
}

TEST_F(DockingTest, StaysDockedAndVisibleWhenAnotherBarHidesAtTheEdge) {
    Dock();
    shell.othersHideAt = {Edge::kTop};

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kEdgeTaken);

    EXPECT_FALSE(docking.AutoHide());
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 0);
}

TEST_F(DockingTest, ABarThatHidesAtTheOtherEdgeIsNoObstacle) {
    Dock();
    shell.othersHideAt = {Edge::kBottom};

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kDone);
}

TEST_F(DockingTest, ARefusedToggleLeavesAutoHideAsItWas) {
    Dock();
    shell.refusesAutoHide = true;

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kRefused);

    EXPECT_FALSE(docking.AutoHide());
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 0);
}

TEST_F(DockingTest, ARefusedToggleBackLeavesTheBarHiding) {
    DockHidden();
    shell.refusesAutoHide = true;

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kRefused);

    EXPECT_TRUE(docking.AutoHide());
    EXPECT_TRUE(docking.Hidden());
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 1);
}

TEST_F(DockingTest, AnOccupiedEdgeAtTheStartTurnsHidingOffForThisTimeOnly) {
    shell.othersHideAt = {Edge::kTop};
    DockHidden();

    EXPECT_FALSE(docking.AutoHide());
    EXPECT_EQ(window.place.Height(), 32);
    EXPECT_EQ(Written(keys::DesktopBarAutoHide), 1);
}

TEST_F(DockingTest, AFloatingBarHasNoAutoHideToToggle) {
    Begin(false);
    docking.ApplyMode(ShowAtEnd::kYes);
    desk.TakeLog();

    EXPECT_EQ(docking.ToggleAutoHide(), AutoHideResult::kDone);

    EXPECT_EQ(desk.TakeLog(), "");
    EXPECT_FALSE(settings.Has(L"Settings", L"DesktopBarAutoHide"));
}

TEST_F(DockingTest, EveryToggleTellsTheMenus) {
    Dock();
    const int before = window.changes;

    docking.ToggleAutoHide();
    docking.ToggleAutoHide();
    docking.ToggleMode();

    EXPECT_EQ(window.changes, before + 3);
}

// Sliding.

TEST_F(DockingTest, TouchingTheStripShowsTheBarAfterAMoment) {
    DockHidden();

    docking.OnHitTest();

    EXPECT_EQ(window.timers[DockTimer::kShowCheck], milliseconds{100});

    window.cursorInside = true;
    docking.OnTimer(DockTimer::kShowCheck);

    EXPECT_FALSE(docking.Hidden());
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
    EXPECT_EQ(window.order, ZOrder::kNotTopmost);
    EXPECT_TRUE(window.controlsShown);
    EXPECT_FALSE(window.timers.contains(DockTimer::kShowCheck));
    EXPECT_EQ(window.timers[DockTimer::kHideCheck], milliseconds{500});
}

TEST_F(DockingTest, AMouseThatOnlyPassesDoesNotShowTheBar) {
    DockHidden();
    docking.OnHitTest();

    docking.OnTimer(DockTimer::kShowCheck);

    EXPECT_TRUE(docking.Hidden());
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, TheStripIsDeafUnderAFullScreenProgram) {
    DockHidden();
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    window.cursorInside = true;

    docking.OnTimer(DockTimer::kShowCheck);

    EXPECT_TRUE(docking.Hidden());
}

TEST_F(DockingTest, NoTimerRunsWhileTheBarIsHiddenAndUntouched) {
    DockHidden();

    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, OnlyAHiddenBarListensToTouches) {
    Dock();

    docking.OnHitTest();

    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, HidesWhenTheCursorHasLeft) {
    DockHidden();
    docking.ShowOnDemand();

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 1}));
    EXPECT_EQ(window.order, ZOrder::kTopmost);
    EXPECT_FALSE(window.controlsShown);
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, WaitsAsLongAsTheSettingSaysBeforeItHides) {
    settings.Write(keys::DesktopBarAutoHideSecond, 3);
    DockHidden();

    docking.ShowOnDemand();

    EXPECT_EQ(window.timers[DockTimer::kHideCheck], milliseconds{2000});
}

TEST_F(DockingTest, StaysOutWhileTheCursorIsOnIt) {
    DockHidden();
    docking.ShowOnDemand();
    window.cursorInside = true;

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_FALSE(docking.Hidden());
    EXPECT_TRUE(window.timers.contains(DockTimer::kHideCheck)) << "it hides at the first tick after it is let go";
}

TEST_F(DockingTest, StaysOutWhileAMenuOrABoxOfItIsOpen) {
    DockHidden();
    docking.ShowOnDemand();
    window.inUse = true;

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_FALSE(docking.Hidden());
    EXPECT_TRUE(window.timers.contains(DockTimer::kHideCheck));
}

// Typing.

TEST_F(DockingTest, StaysOutWhileTheUserTypes) {
    DockHidden();
    docking.ShowOnDemand();
    window.hasKeyboard = true;
    docking.OnTyping();

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_FALSE(docking.Hidden());
    EXPECT_TRUE(window.timers.contains(DockTimer::kHideCheck)) << "it hides at the first tick after the typing";
}

TEST_F(DockingTest, HidesOnceTheTypingHasEnded) {
    DockHidden();
    docking.ShowOnDemand();
    window.hasKeyboard = true;
    docking.OnTyping();

    docking.OnTypingEnded();
    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
}

TEST_F(DockingTest, HidesWhenWhatIsTypedGoesElsewhere) {
    DockHidden();
    docking.ShowOnDemand();
    docking.OnTyping();

    window.hasKeyboard = false;
    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
}

TEST_F(DockingTest, ABarThatOnlyTheMouseBroughtOutGoesWithTheMouse) {
    DockHidden();
    window.hasKeyboard = true;
    docking.OnBroughtToFront();
    docking.OnHitTest();
    window.cursorInside = true;
    docking.OnTimer(DockTimer::kShowCheck);
    ASSERT_FALSE(docking.Hidden());

    window.cursorInside = false;
    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
}

TEST_F(DockingTest, ABarThatIsOutIsTypedIntoFromTheMomentItComesToTheFront) {
    DockHidden();
    docking.ShowOnDemand();
    window.hasKeyboard = true;

    docking.OnBroughtToFront();
    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_FALSE(docking.Hidden());
}

TEST_F(DockingTest, WhatWasTypedBeforeItHidDoesNotKeepItOutTheNextTime) {
    Dock();
    window.hasKeyboard = true;
    docking.OnTyping();
    docking.ToggleAutoHide();
    docking.ShowOnDemand();

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
}

TEST_F(DockingTest, DockingAgainDoesNotHideTheBarUnderTheHandsOfTheUser) {
    DockHidden();
    docking.ShowOnDemand();
    window.hasKeyboard = true;
    docking.OnTyping();

    docking.DockAgain();

    EXPECT_FALSE(docking.Hidden());
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
    EXPECT_TRUE(window.visible);
    docking.OnTimer(DockTimer::kHideCheck);
    EXPECT_FALSE(docking.Hidden());
}

TEST_F(DockingTest, DockingAgainHidesABarThatNobodyTypesInto) {
    DockHidden();
    docking.ShowOnDemand();
    window.hasKeyboard = true;

    docking.DockAgain();

    EXPECT_TRUE(docking.Hidden());
    EXPECT_TRUE(window.visible);
}

TEST_F(DockingTest, TheHideCheckEndsWhenThereIsNothingToHide) {
    Dock();
    window.timers[DockTimer::kHideCheck] = milliseconds{500};

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(window.timers.empty());
    EXPECT_FALSE(docking.Hidden());
}

TEST_F(DockingTest, IsShownOnDemandOnlyWhenItIsHidden) {
    DockHidden();

    EXPECT_TRUE(docking.ShowOnDemand());
    EXPECT_FALSE(docking.ShowOnDemand());
}

TEST_F(DockingTest, SlidesOutOfTheTopInTwentySteps) {
    DockHidden();
    window.slideTops.clear();

    docking.ShowOnDemand();

    EXPECT_THAT(window.slideTops, ElementsAre(-31, -30, -28, -27, -25, -24, -22, -21, -19, -18, -16, -14, -13, -11, -10,
                                              -8, -7, -5, -4, -2));
}

TEST_F(DockingTest, SlidesIntoTheBottomInTwentySteps) {
    settings.Write(keys::DesktopBarEdge, 1);
    desk.taskBar.reset();
    DockHidden();
    docking.ShowOnDemand();
    window.slideTops.clear();

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_THAT(window.slideTops, ElementsAre(768, 769, 771, 772, 774, 775, 777, 778, 780, 781, 783, 785, 786, 788, 789,
                                              791, 792, 794, 795, 797));
    EXPECT_EQ(window.place, (Rect{0, 799, 1280, 800}));
}

TEST_F(DockingTest, DoesNotSlideWhereNobodySeesIt) {
    settings.Write(keys::DesktopBarAutoHide, 1);
    Begin(true);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_THAT(window.slideTops, ElementsAre());
}

// What the shell reports.

TEST_F(DockingTest, DocksAgainWhenTheTaskBarsStateChanges) {
    Dock();

    docking.OnShellEvent(ShellEvent::kStateChange, false);

    EXPECT_EQ(
        desk.TakeLog(),
        "hide window; not topmost; unregister; move 100,100-1124,160; float window; wait 500; hide window; dock "
        "window; register; query top 0,0-1280,32; reserve top 0,0-1280,32; move 0,0-1280,32; topmost; show window; ");
    EXPECT_TRUE(docking.Docked());
}

TEST_F(DockingTest, FollowsATaskBarThatCameToItsEdge) {
    Dock();
    desk.taskBar = Rect{0, 0, 1280, 40};

    docking.OnShellEvent(ShellEvent::kPositionChanged, false);

    EXPECT_EQ(window.place, (Rect{0, 40, 1280, 72}));
}

TEST_F(DockingTest, TwoMovesWithinTwoSecondsDockAgainOnce) {
    Dock();

    docking.OnShellEvent(ShellEvent::kPositionChanged, false);
    desk.TakeLog();
    docking.OnShellEvent(ShellEvent::kPositionChanged, false);

    EXPECT_EQ(desk.TakeLog(), "");
    EXPECT_EQ(window.timers[DockTimer::kRepositioning], milliseconds{2000});
}

TEST_F(DockingTest, AMoveAfterTwoSecondsDocksAgain) {
    Dock();
    docking.OnShellEvent(ShellEvent::kPositionChanged, false);
    docking.OnTimer(DockTimer::kRepositioning);
    desk.TakeLog();

    docking.OnShellEvent(ShellEvent::kPositionChanged, false);

    EXPECT_THAT(desk.TakeLog(), HasSubstr("register"));
}

TEST_F(DockingTest, AShellThatCallsBackWhileItIsCalledDoesNotNestTheDocking) {
    int calls = 0;
    Begin(true);
    shell.onReserve = [&] {
        ++calls;
        docking.OnShellEvent(ShellEvent::kPositionChanged, false);
        docking.OnShellEvent(ShellEvent::kStateChange, false);
    };

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(calls, 1);
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
}

TEST_F(DockingTest, AScreenThatChangesWhileDockingIsAnsweredAfterwards) {
    Begin(true);
    shell.onReserve = [&] {
        shell.onReserve = nullptr;
        desk.screen = {0, 0, 1600, 900};
        desk.taskBar.reset();
        docking.DockAgain();
    };
    docking.ApplyMode(ShowAtEnd::kYes);
    ASSERT_TRUE(window.timers.contains(DockTimer::kDockAgain));

    docking.OnTimer(DockTimer::kDockAgain);

    EXPECT_EQ(window.place, (Rect{0, 0, 1600, 32}));
    EXPECT_FALSE(window.timers.contains(DockTimer::kDockAgain));
}

TEST_F(DockingTest, GoesBelowAFullScreenProgramAndComesBackBehindItsNeighbour) {
    Dock();
    window.above = 77;
    window.windows = {77};

    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(desk.TakeLog(), "bottom; behind 77; ");
}

TEST_F(DockingTest, ComesBackToTheTopWhenNothingStoodAboveIt) {
    Dock();

    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(desk.TakeLog(), "bottom; topmost; ");
}

TEST_F(DockingTest, ComesBackToTheTopWhenItsNeighbourIsGone) {
    Dock();
    window.above = 77;

    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(desk.TakeLog(), "bottom; topmost; ");
}

TEST_F(DockingTest, ABarThatHadSlidOutDoesNotComeBackTopmost) {
    DockHidden();
    docking.ShowOnDemand();
    desk.TakeLog();

    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(desk.TakeLog(), "bottom; top; ");
}

TEST_F(DockingTest, ASecondReportOfTheSameFullScreenProgramChangesNothing) {
    Dock();
    window.above = 77;
    window.windows = {77};
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    window.above = 88;

    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);
    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(desk.TakeLog(), "bottom; behind 77; ");
}

TEST_F(DockingTest, ABarThatWasOutHidesBelowAFullScreenProgram) {
    DockHidden();
    docking.ShowOnDemand();
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);

    docking.OnTimer(DockTimer::kHideCheck);

    EXPECT_TRUE(docking.Hidden());
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 1}));
    EXPECT_EQ(window.order, ZOrder::kBottom);
}

TEST_F(DockingTest, ABarThatHidBelowAFullScreenProgramIsAStripAboveAllWhenItCloses) {
    DockHidden();
    docking.ShowOnDemand();
    window.above = 77;
    window.windows = {77};
    window.plainWindows = {77};
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);
    docking.OnTimer(DockTimer::kHideCheck);

    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(window.order, ZOrder::kTopmost);
}

TEST_F(DockingTest, ABarThatStayedOutBelowAFullScreenProgramIsNotTopmostWhenItCloses) {
    DockHidden();
    docking.ShowOnDemand();
    window.above = 77;
    window.windows = {77};
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);

    docking.OnShellEvent(ShellEvent::kFullScreenApp, false);

    EXPECT_EQ(window.order, ZOrder::kNotTopmost);
    EXPECT_EQ(window.place, (Rect{0, 0, 1280, 32}));
}

TEST_F(DockingTest, HearsOfAFullScreenProgramAlsoWhileItDocks) {
    Begin(true);
    shell.onReserve = [&] { docking.OnShellEvent(ShellEvent::kFullScreenApp, true); };

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(window.order, ZOrder::kBottom);
}

TEST_F(DockingTest, StaysBelowAFullScreenProgramThatChangesTheScreen) {
    Dock();
    docking.OnShellEvent(ShellEvent::kFullScreenApp, true);

    docking.DockAgain();

    EXPECT_EQ(window.order, ZOrder::kBottom);
}

TEST_F(DockingTest, ArrangedWindowsDoNotConcernIt) {
    Dock();

    docking.OnShellEvent(ShellEvent::kWindowArrange, true);

    EXPECT_EQ(desk.TakeLog(), "");
}

TEST_F(DockingTest, NoReportOfTheShellReachesAFloatingBar) {
    Begin(false);
    docking.ApplyMode(ShowAtEnd::kYes);
    desk.TakeLog();

    for (const auto event : {ShellEvent::kStateChange, ShellEvent::kPositionChanged, ShellEvent::kFullScreenApp})
        docking.OnShellEvent(event, true);
    docking.OnShellRestarted();

    EXPECT_EQ(desk.TakeLog(), "");
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, ANewShellIsMetOnceHoweverOftenItReportsItsStart) {
    DockHidden();
    shell.Restart();

    docking.OnShellRestarted();
    docking.OnShellRestarted();
    docking.OnShellRestarted();
    EXPECT_EQ(desk.TakeLog(), "");
    docking.OnTimer(DockTimer::kDockAgain);

    EXPECT_TRUE(shell.Registered());
    EXPECT_EQ(shell.HidesAt(), Edge::kTop);
    EXPECT_EQ(desk.strip, (Rect{0, 0, 1280, 1}));
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, MovesToTheOtherEdgeWhenTheSettingChanges) {
    DockHidden();
    settings.Write(keys::DesktopBarEdge, 1);
    settings.Write(keys::DesktopBarAutoHide, 0);

    docking.ApplyMode(ShowAtEnd::kYes);

    EXPECT_EQ(window.place, (Rect{0, 728, 1280, 760}));
    EXPECT_EQ(desk.strip, (Rect{0, 728, 1280, 760}));
    EXPECT_EQ(shell.HidesAt(), std::nullopt);
    EXPECT_TRUE(window.controlsShown);
}

// Leaving.

TEST_F(DockingTest, StopsHidingBeforeItLeavesTheShell) {
    DockHidden();

    docking.Leave();

    EXPECT_EQ(desk.TakeLog(), "stop hiding at top; unregister; ");
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, LeavingTwiceIsHarmless) {
    Dock();

    docking.Leave();
    docking.Leave();

    EXPECT_EQ(desk.TakeLog(), "unregister; ");
}

TEST_F(DockingTest, DoesNotComeBackOnceItHasLeft) {
    Dock();
    docking.Leave();
    desk.TakeLog();

    docking.DockAgain();
    docking.OnShellRestarted();
    docking.OnPlaceChanged();

    EXPECT_EQ(desk.TakeLog(), "");
    EXPECT_TRUE(window.timers.empty());
}

TEST_F(DockingTest, StillCountsAsDockedWhenItHasLeft) {
    Dock();

    docking.Leave();

    EXPECT_TRUE(docking.Docked()) << "the mode is saved after it";
}
