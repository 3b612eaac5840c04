#include "app/logic/menu_texts.h"

#include <gmock/gmock.h>

using namespace korvane::app;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(MenuTextChanges, VistaLogsOffAndHasASecurityCenter) {
    EXPECT_THAT(MenuTextChanges(false, false),
                ElementsAre(MenuTextChange{4100, IDS_LOG_OFF_ITEM}, MenuTextChange{4001, IDS_SECURITY_CENTER_ITEM}));
}

TEST(MenuTextChanges, Windows7LogsOff) {
    EXPECT_THAT(MenuTextChanges(true, false), ElementsAre(MenuTextChange{4100, IDS_LOG_OFF_ITEM}));
}

TEST(MenuTextChanges, Windows8AndLaterKeepTheResourcesTexts) {
    EXPECT_THAT(MenuTextChanges(true, true), IsEmpty());
}
