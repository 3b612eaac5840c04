#include "app/logic/command_routes.h"

#include <gtest/gtest.h>

#include <string>

using namespace korvane::app;

namespace {

struct RouteCase {
    const char* name;
    unsigned command;
    std::optional<Route> expected;
};

class RouteOfCommand : public testing::TestWithParam<RouteCase> {};

} // namespace

TEST_P(RouteOfCommand, FollowsTheTable) {
    EXPECT_EQ(RouteOf(GetParam().command), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, RouteOfCommand,
    testing::Values(
        RouteCase{"TheMainMenuButtonIsNoCommand", 2000, std::nullopt},
        RouteCase{"CommandHistory", 2003, Route::kOpenHistory}, RouteCase{"SearchHistory", 2004, Route::kOpenHistory},
        RouteCase{"RunTyped", 2005, Route::kRunTyped}, RouteCase{"RunSearch", 2006, Route::kRunSearch},
        RouteCase{"MainMenuByKey", 2010, Route::kOpenMenuButton},
        RouteCase{"CommandHistoryByKey", 2011, Route::kPressHistoryButton},
        RouteCase{"SearchHistoryByKey", 2012, Route::kPressHistoryButton},
        RouteCase{"ChooserByKey", 2013, Route::kOpenMenuButton},
        RouteCase{"ControlPanelByKey", 4000, Route::kOpenMenuButton}, RouteCase{"FirstEntry", 4001, Route::kRunEntry},
        RouteCase{"LastEntry", 4027, Route::kRunEntry}, RouteCase{"TheOptions", 2009, Route::kOpenOptions},
        RouteCase{"TheLaunchSettings", 4063, Route::kOpenOptions},
        RouteCase{"TheSearchSettings", 5000, Route::kOpenOptions},
        RouteCase{"FirstSearchCommand", 5001, Route::kChooseSearch},
        RouteCase{"LastSearchCommand", 5102, Route::kChooseSearch},
        RouteCase{"BrowseForAFile", 2020, Route::kBrowseFile},
        RouteCase{"BrowseForAFolder", 2021, Route::kBrowseFolder},
        RouteCase{"BeyondTheSearchCommands", 5103, std::nullopt},
        RouteCase{"TheClipboardMonitor", 40004, Route::kToggleClipboardMonitor},
        RouteCase{"OnlineDocuments", 40005, Route::kOpenSupport}, RouteCase{"SupportMail", 40006, Route::kOpenSupport},
        RouteCase{"AuthorSite", 40007, Route::kOpenSupport}, RouteCase{"ScreenSaver", 40008, Route::kStartScreenSaver},
        RouteCase{"About", 57664, Route::kAbout}, RouteCase{"Exit", 57665, Route::kExit},
        RouteCase{"Help", 57666, Route::kHelp}, RouteCase{"BeyondTheHelp", 57667, std::nullopt}),
    [](const auto& tested) { return std::string{tested.param.name}; });

TEST(MenuButtonOf, KnowsTheThreeMenusOfTheBar) {
    EXPECT_EQ(MenuButtonOf(2010), 2000U);
    EXPECT_EQ(MenuButtonOf(2013), 2007U);
    EXPECT_EQ(MenuButtonOf(4000), 2008U);
}
