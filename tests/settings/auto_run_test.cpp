#include "settings/auto_run.h"

#include <gmock/gmock.h>

#include "tests/support/registry_test.h"

namespace korvane::settings {
namespace {

class AutoRunTest : public test::RegistryTest {
protected:
    [[nodiscard]] std::wstring Stored() const { return store.ReadText(L"Run", L"Korvane AutoRun", L"(none)"); }

    AutoRun autoRun{key.Root(), key.Path()};
    RegistryStore store{key.Root(), key.Path()};
};

TEST_F(AutoRunTest, IsNotSetForAFreshUser) {
    EXPECT_FALSE(autoRun.IsSet());
    EXPECT_FALSE(key.Exists());
}

TEST_F(AutoRunTest, WritesThePathAsItStands) {
    ASSERT_TRUE(autoRun.Set(L"C:\\Program Files\\Korvane\\Korvane.exe"));

    EXPECT_EQ(Stored(), L"C:\\Program Files\\Korvane\\Korvane.exe");
    EXPECT_TRUE(autoRun.IsSet());
}

TEST_F(AutoRunTest, IsSetByAnyText) {
    ASSERT_TRUE(store.WriteText(L"Run", L"Korvane AutoRun", L"x"));

    EXPECT_TRUE(autoRun.IsSet());
}

TEST_F(AutoRunTest, DeletesTheValueAndNothingElse) {
    ASSERT_TRUE(store.WriteText(L"Run", L"Other", L"kept"));
    ASSERT_TRUE(autoRun.Set(L"C:\\k.exe"));

    EXPECT_TRUE(autoRun.Clear());

    EXPECT_EQ(Stored(), L"(none)");
    EXPECT_EQ(store.ReadText(L"Run", L"Other"), L"kept");
}

TEST_F(AutoRunTest, LeavesAnEmptyValueAlone) {
    ASSERT_TRUE(store.WriteText(L"Run", L"Korvane AutoRun", L""));

    EXPECT_FALSE(autoRun.IsSet());
    EXPECT_TRUE(autoRun.Clear());

    EXPECT_EQ(Stored(), L"");
}

TEST_F(AutoRunTest, ClearsNothingWhereNothingIs) {
    EXPECT_TRUE(autoRun.Clear());
    EXPECT_FALSE(key.Exists());
}

TEST_F(AutoRunTest, RefusesAnEmptyPath) {
    EXPECT_FALSE(autoRun.Set(L""));
    EXPECT_FALSE(key.Exists());
}

} // namespace
} // namespace korvane::settings
