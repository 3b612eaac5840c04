#include "settings/logic/registry_view.h"

#include <gmock/gmock.h>

namespace korvane::settings {
namespace {

using testing::ElementsAre;

TEST(RegistryView, OfThe64BitEditionIsItsOwnFirstAndThenThatOf32BitPrograms) {
    EXPECT_THAT(ViewsOfInstalledPrograms(8), ElementsAre(RegistryView::kOwn, RegistryView::k32Bit));
}

TEST(RegistryView, OfThe32BitEditionIsTheOnlyOne) {
    EXPECT_THAT(ViewsOfInstalledPrograms(4), ElementsAre(RegistryView::kOwn));
}

} // namespace
} // namespace korvane::settings
