#include "framework/handle.h"

#include <gmock/gmock.h>

#include <type_traits>
#include <vector>

namespace fw {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<int> g_released;

void Release(int handle) {
    g_released.push_back(handle);
}

using Owner = UniqueHandle<int, &Release>;

class UniqueHandleTest : public testing::Test {
protected:
    void SetUp() override { g_released.clear(); }
};

TEST_F(UniqueHandleTest, ReleasesOnceAtTheEndOfItsScope) {
    { const Owner owner{5}; }

    EXPECT_THAT(g_released, ElementsAre(5));
}

TEST_F(UniqueHandleTest, HasNothingToReleaseWhenEmpty) {
    { const Owner owner; }
    { const Owner owner{0}; }

    EXPECT_THAT(g_released, IsEmpty());
    EXPECT_FALSE(Owner{});
}

TEST_F(UniqueHandleTest, HandsOverWhenMoved) {
    Owner first{5};
    {
        const Owner second{std::move(first)};
        EXPECT_EQ(second.Get(), 5);
        EXPECT_THAT(g_released, IsEmpty());
    }

    EXPECT_THAT(g_released, ElementsAre(5));
    EXPECT_FALSE(first);
}

TEST_F(UniqueHandleTest, ReleasesWhatItHeldWhenAnotherIsMovedIn) {
    Owner first{5};
    Owner second{6};

    second = std::move(first);

    EXPECT_THAT(g_released, ElementsAre(6));
    EXPECT_EQ(second.Get(), 5);
    EXPECT_FALSE(first);
}

TEST_F(UniqueHandleTest, KeepsItsHandleWhenMovedIntoItself) {
    Owner owner{5};
    Owner& same = owner;

    owner = std::move(same);

    EXPECT_THAT(g_released, IsEmpty());
    EXPECT_EQ(owner.Get(), 5);
}

TEST_F(UniqueHandleTest, ReleasesTheOldHandleWhenReset) {
    Owner owner{5};

    owner.Reset(6);

    EXPECT_THAT(g_released, ElementsAre(5));
    EXPECT_EQ(owner.Get(), 6);

    owner.Reset();

    EXPECT_THAT(g_released, ElementsAre(5, 6));
    EXPECT_FALSE(owner);
}

TEST_F(UniqueHandleTest, KeepsTheHandleThatItIsResetTo) {
    Owner owner{5};

    owner.Reset(5);

    EXPECT_THAT(g_released, IsEmpty());
    EXPECT_EQ(owner.Get(), 5);
}

TEST_F(UniqueHandleTest, LetsGoOfADetachedHandle) {
    {
        Owner owner{5};
        EXPECT_EQ(owner.Detach(), 5);
        EXPECT_FALSE(owner);
    }

    EXPECT_THAT(g_released, IsEmpty());
}

TEST_F(UniqueHandleTest, CannotBeCopied) {
    EXPECT_FALSE(std::is_copy_constructible_v<Owner>);
    EXPECT_FALSE(std::is_copy_assignable_v<Owner>);
}

TEST_F(UniqueHandleTest, DeletesTheWindowsObjectItself) {
    const HMENU menu = ::CreatePopupMenu();
    { const UniqueMenu owner{menu}; }

    EXPECT_FALSE(::IsMenu(menu));
}

} // namespace
} // namespace fw
