#include "controls/logic/theme_classes.h"

#include <gtest/gtest.h>

#include <string_view>

#include "controls/logic/tool_record.h"

namespace korvane::controls {
namespace {

using Text = std::wstring_view;

TEST(ThemeClasses, OfABarButtonAreTheTrayClocksSinceWindows7) {
    EXPECT_EQ(Text{BarButtonTheme(true)}, L"TRAYNOTIFY::CLOCK");
    EXPECT_EQ(Text{BarButtonTheme(false)}, L"TOOLBAR");
}

TEST(ThemeClasses, OfAStepButtonAreTheTaskbarsSinceWindows8) {
    EXPECT_EQ(Text{StepButtonTheme(true)}, L"TASKBAR::TOOLBAR");
    EXPECT_EQ(Text{StepButtonTheme(false)}, L"TOOLBAR");
}

TEST(ThemeClasses, OfTheOthersAreTheSameOnEveryVersion) {
    EXPECT_EQ(Text{kDropDownButtonTheme}, L"TOOLBAR");
    EXPECT_EQ(Text{kExitButtonTheme}, L"WINDOW");
    EXPECT_EQ(Text{kDialogButtonTheme}, L"BUTTON");
    EXPECT_EQ(kPlatePart, 1);
    EXPECT_EQ(kSmallClosePart, 19);
}

TEST(ToolRecord, LosesItsLastPointerBeforeVista) {
    EXPECT_EQ(ToolRecordSize(true, 48, 4), 48U);
    EXPECT_EQ(ToolRecordSize(false, 48, 4), 44U);
}

} // namespace
} // namespace korvane::controls
