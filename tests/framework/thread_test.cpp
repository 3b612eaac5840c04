#include "framework/thread.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <atomic>
#include <memory>

#include "tests/support/wait.h"

using namespace korvane;

namespace {

TEST(ThreadTest, RunsItsWorkOnAThreadOfItsOwn) {
    const auto ranOn = std::make_shared<std::atomic<DWORD>>(0);

    ASSERT_TRUE(fw::StartThread([ranOn] { *ranOn = ::GetCurrentThreadId(); }));

    ASSERT_TRUE(test::WaitUntil([&] { return *ranOn != 0; }));
    EXPECT_NE(*ranOn, ::GetCurrentThreadId());
}

TEST(ThreadTest, LetsGoOfTheWorkWhenItIsDone) {
    const auto held = std::make_shared<int>(1);

    ASSERT_TRUE(fw::StartThread([held] {}));

    EXPECT_TRUE(test::WaitUntil([&] { return held.use_count() == 1; }));
}

TEST(ThreadTest, RunsEachOfManyThreadsThatEndAtOnce) {
    const auto runs = std::make_shared<std::atomic<int>>(0);
    constexpr int kAtOnce = 20;
    for (int started = 0; started < 100 * kAtOnce;) {
        for (int i = 0; i < kAtOnce; ++i, ++started) ASSERT_TRUE(fw::StartThread([runs] { ++*runs; }));
        ASSERT_TRUE(test::WaitUntil([&] { return *runs == started; })) << *runs << " of " << started;
    }
}

TEST(ThreadTest, LeavesNoHandleBehind) {
    const auto handles = [] {
        DWORD count = 0;
        ::GetProcessHandleCount(::GetCurrentProcess(), &count);
        return count;
    };
    const auto runs = std::make_shared<std::atomic<int>>(0);
    const auto runSome = [&](int target) {
        while (*runs < target) {
            const int next = *runs + 1;
            ASSERT_TRUE(fw::StartThread([runs] { ++*runs; }));
            ASSERT_TRUE(test::WaitUntil([&] { return *runs == next; }));
        }
    };
    runSome(5);
    const DWORD before = handles();

    runSome(55);

    // The last ones may still be on their way out.
    EXPECT_TRUE(test::WaitUntil([&] { return handles() <= before; })) << before << ", now " << handles();
}

} // namespace
