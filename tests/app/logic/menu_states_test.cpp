#include "app/logic/menu_states.h"

#include <gtest/gtest.h>

#include <string>

#include "res/ids.h"

using namespace korvane::app;

namespace {

// "on" or "off" for the check mark, then "grey" for an item that cannot be chosen.
std::string StateOf(unsigned command, const MenuSituation& now) {
    for (const MenuItemState& item : MenuStates(now))
        if (item.command == command) return std::string{item.checked ? "on" : "off"} + (item.enabled ? "" : " grey");
    return "no such item";
}

} // namespace

TEST(MenuStates, CoverTheFiveItemsThatHaveOne) {
    std::string commands;
    for (const MenuItemState& item : MenuStates({})) commands += std::to_string(item.command) + " ";

    EXPECT_EQ(commands, "40001 40002 40003 40004 40008 ");
}

TEST(MenuStates, DesktopBarModeIsCheckedWhileDocked) {
    EXPECT_EQ(StateOf(ID_DESKTOP_BAR_MODE, {.desktopBarMode = true}), "on");
    EXPECT_EQ(StateOf(ID_DESKTOP_BAR_MODE, {.desktopBarMode = false}), "off");
}

TEST(MenuStates, AlwaysOnTopIsForTheFloatingBarOnly) {
    EXPECT_EQ(StateOf(ID_TOPMOST, {.topmost = true}), "on");
    EXPECT_EQ(StateOf(ID_TOPMOST, {.topmost = false}), "off");
    EXPECT_EQ(StateOf(ID_TOPMOST, {.desktopBarMode = true, .topmost = true}), "off grey");
    EXPECT_EQ(StateOf(ID_TOPMOST, {.desktopBarMode = true, .topmost = false}), "off grey");
}

TEST(MenuStates, AutoHideIsForTheDockedBarOnly) {
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = true, .autoHide = true}), "on");
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = true, .autoHide = false}), "off");
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = false, .autoHide = true}), "off grey");
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = false, .autoHide = false}), "off grey");
}

TEST(MenuStates, AutoHideCannotBeSwitchedOnWhereAnotherBarHides) {
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = true, .otherAutoHideBarOnEdge = true}), "off grey");
}

TEST(MenuStates, AutoHideCanAlwaysBeSwitchedOff) {
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.desktopBarMode = true, .autoHide = true, .otherAutoHideBarOnEdge = true}), "on");
}

TEST(MenuStates, AnotherBarDoesNotMatterToTheFloatingOne) {
    EXPECT_EQ(StateOf(ID_AUTO_HIDE, {.otherAutoHideBarOnEdge = false}), "off grey");
    EXPECT_EQ(StateOf(ID_TOPMOST, {.otherAutoHideBarOnEdge = true}), "off");
}

TEST(MenuStates, ClipboardMonitoringIsCheckedWhileItIsOn) {
    EXPECT_EQ(StateOf(ID_MONITOR_CLIPBOARD, {.clipboardMonitored = true}), "on");
    EXPECT_EQ(StateOf(ID_MONITOR_CLIPBOARD, {.desktopBarMode = true, .clipboardMonitored = false}), "off");
}

TEST(MenuStates, TheScreenSaverCanBeChosenOnlyWhereThereIsOne) {
    EXPECT_EQ(StateOf(ID_SCREEN_SAVER, {.screenSaverThere = true}), "off");
    EXPECT_EQ(StateOf(ID_SCREEN_SAVER, {.screenSaverThere = false}), "off grey");
}
