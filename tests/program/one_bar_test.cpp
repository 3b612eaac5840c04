// Several copies of the program, started at the same moment or while another one is in trouble.
#include <algorithm>
#include <memory>
#include <thread>

#include "framework/handle.h"
#include "tests/program/program_test.h"
#include "tests/support/pump.h"

namespace korvane::test {
namespace {

using testing::SizeIs;

constexpr wchar_t kBarClass[] = L"Korvane_WndClass";
// By which the copies of a session agree on who makes the bar.
constexpr wchar_t kClaim[] = L"Local\\Korvane.Bar";

class Copies : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        // The last program's end may still be on its way.
        ASSERT_TRUE(WaitUntil([] { return AllWindows(kBarClass).empty(); }));
    }
    void Start(int count) {
        for (int i = 0; i < count; ++i) copies.push_back(std::make_unique<Program>());
    }
    [[nodiscard]] int Running() const {
        return static_cast<int>(
            std::count_if(copies.begin(), copies.end(), [](const auto& copy) { return copy->Running(); }));
    }
    // One of them has the bar, and all others ended because of it.
    void ExpectOneBar() const {
        ASSERT_TRUE(WaitUntil([&] { return Running() <= 1; }, kDeadline * 2));
        const Program* owner = nullptr;
        for (const auto& copy : copies) {
            if (copy->Running()) {
                owner = copy.get();
            } else {
                EXPECT_EQ(copy->WaitForExit(), 2U);
            }
        }
        ASSERT_NE(owner, nullptr);
        EXPECT_NE(owner->WaitForBar(), nullptr);
        EXPECT_THAT(AllWindows(kBarClass), SizeIs(1));
    }

    std::vector<std::unique_ptr<Program>> copies;
};

TEST_F(Copies, EightAtOnceGiveOneBar) {
    Start(8);

    ExpectOneBar();
}

TEST_F(Copies, WaitForTheBarThatAnotherIsAboutToMake) {
    const fw::UniqueKernelHandle claim{::CreateMutexW(nullptr, TRUE, kClaim)};
    ASSERT_NE(claim.Get(), nullptr);
    Start(1);
    // A copy that waits for nothing would have its bar by now.
    ASSERT_FALSE(
        WaitUntil([&] { return !copies[0]->Running() || !AllWindows(kBarClass).empty(); }, std::chrono::seconds{3}));

    WNDCLASSW barClass{};
    barClass.lpfnWndProc = &::DefWindowProcW;
    barClass.lpszClassName = kBarClass;
    ASSERT_NE(::RegisterClassW(&barClass), 0);
    const HWND bar = ::CreateWindowExW(0, kBarClass, L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_MINIMIZE, 0, 0, 300,
                                       100, nullptr, nullptr, nullptr, nullptr);

    EXPECT_TRUE(WaitUntil([&] {
        PumpMessages();
        return !copies[0]->Running();
    }));
    EXPECT_EQ(copies[0]->WaitForExit(), 2U);
    EXPECT_TRUE(WaitUntil([&] {
        PumpMessages();
        return !::IsIconic(bar);
    }));

    ::DestroyWindow(bar);
    ::UnregisterClassW(kBarClass, nullptr);
}

TEST_F(Copies, MakeTheBarWhenTheOneThatWasToMakeItDies) {
    const fw::UniqueKernelHandle end{::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    const fw::UniqueKernelHandle claimed{::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    // A mutex is abandoned by its thread as it is by its process.
    std::thread owner{[&] {
        const fw::UniqueKernelHandle claim{::CreateMutexW(nullptr, TRUE, kClaim)};
        ::SetEvent(claimed.Get());
        ::WaitForSingleObject(end.Get(), INFINITE);
    }};
    ::WaitForSingleObject(claimed.Get(), INFINITE);
    Start(3);
    EXPECT_FALSE(WaitUntil([&] { return !AllWindows(kBarClass).empty(); }, std::chrono::seconds{1}));

    ::SetEvent(end.Get());
    owner.join();

    ExpectOneBar();
}

TEST_F(Copies, MakeOneBarInPlaceOfACopyThatNeverGetsOne) {
    const fw::UniqueKernelHandle claim{::CreateMutexW(nullptr, TRUE, kClaim)};
    ASSERT_NE(claim.Get(), nullptr);

    Start(3);
    ExpectOneBar();

    // One that comes later finds that bar, whoever holds the claim.
    Start(1);
    EXPECT_EQ(copies.back()->WaitForExit(), 2U);
    ExpectOneBar();
}

} // namespace
} // namespace korvane::test
