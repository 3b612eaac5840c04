#include "framework/named_mutex.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "base/format_text.h"

using namespace std::chrono_literals;

namespace fw {
namespace {

class NamedMutexTest : public testing::Test {
protected:
    // A name that no other test process has.
    std::wstring name =
        korvane::base::FormatText(L"Local\\KorvaneTest.%u", static_cast<unsigned>(::GetCurrentProcessId()));

    // Whether another thread can take it.
    bool IsFree() {
        bool taken = false;
        std::thread{[&] { taken = NamedMutex{name.c_str()}.Take(0ms); }}.join();
        return taken;
    }
};

TEST_F(NamedMutexTest, IsTakenByOneAtATime) {
    NamedMutex mine{name.c_str()};

    EXPECT_TRUE(mine.Take(0ms));

    EXPECT_FALSE(IsFree());
}

TEST_F(NamedMutexTest, IsGivenBackAtTheEnd) {
    {
        NamedMutex mine{name.c_str()};
        EXPECT_TRUE(mine.Take(0ms));
    }

    EXPECT_TRUE(IsFree());
}

TEST_F(NamedMutexTest, StaysTakenHoweverOftenItIsTaken) {
    NamedMutex mine{name.c_str()};

    EXPECT_TRUE(mine.Take(0ms));
    EXPECT_TRUE(mine.Take(0ms));
    EXPECT_FALSE(IsFree());
}

TEST_F(NamedMutexTest, IsTakenFromOneThatDiedWithIt) {
    NamedMutex mine{name.c_str()};
    std::thread{[&] {
        const HANDLE other = ::OpenMutexW(SYNCHRONIZE, FALSE, name.c_str());
        EXPECT_EQ(::WaitForSingleObject(other, 0), WAIT_OBJECT_0);
        // The handle goes, and the thread with the mutex still in its hands.
        ::CloseHandle(other);
    }}.join();

    EXPECT_TRUE(mine.Take(0ms));
}

TEST_F(NamedMutexTest, IsWaitedFor) {
    NamedMutex mine{name.c_str()};
    const HANDLE held = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    const HANDLE letGo = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::thread holder{[&] {
        NamedMutex theirs{name.c_str()};
        EXPECT_TRUE(theirs.Take(0ms));
        ::SetEvent(held);
        ::WaitForSingleObject(letGo, INFINITE);
    }};
    ::WaitForSingleObject(held, INFINITE);

    EXPECT_FALSE(mine.Take(0ms));
    EXPECT_FALSE(mine.Take(20ms));
    ::SetEvent(letGo);
    EXPECT_TRUE(mine.Take(10s));

    holder.join();
    ::CloseHandle(held);
    ::CloseHandle(letGo);
}

// A program that waits must not keep others waiting: a message that is sent to all windows has to come back.
TEST_F(NamedMutexTest, AnswersSentMessagesMeanwhile) {
    NamedMutex mine{name.c_str()};
    const HWND window = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ASSERT_NE(window, nullptr);
    const HANDLE held = ::CreateEventW(nullptr, TRUE, FALSE, nullptr);
    bool answered = false;
    std::thread holder{[&] {
        NamedMutex theirs{name.c_str()};
        EXPECT_TRUE(theirs.Take(0ms));
        ::SetEvent(held);
        DWORD_PTR answer = 0;
        answered = ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 10'000, &answer) != 0;
    }};
    ::WaitForSingleObject(held, INFINITE);

    EXPECT_TRUE(mine.Take(10s));

    holder.join();
    EXPECT_TRUE(answered);
    ::DestroyWindow(window);
    ::CloseHandle(held);
}

TEST_F(NamedMutexTest, DoesNotExistUnderTheNameOfSomethingElse) {
    const HANDLE event = ::CreateEventW(nullptr, TRUE, FALSE, name.c_str());
    NamedMutex mine{name.c_str()};

    EXPECT_FALSE(mine.Exists());
    EXPECT_FALSE(mine.Take(0ms));

    ::CloseHandle(event);
}

} // namespace
} // namespace fw
