// Ending Windows for real would end the tests; here the program that does it is another one, on a desktop of its own.
#include <array>

#include "tests/program/program_test.h"

namespace korvane::test {
namespace {

using testing::EndsWith;

class EndingTheSession : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        std::array<wchar_t, MAX_PATH> system{};
        ::GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
        const std::wstring leaver = std::wstring{system.data()} + L"\\wineboot.exe";
        // The file is shared with the other desktops, so it is taken away first and not written over.
        ASSERT_TRUE(WaitUntil([&] {
            ::DeleteFileW(leaver.c_str());
            return ::CopyFileW((recorder::Folder() + L"\\rec.exe").c_str(), leaver.c_str(), TRUE) != 0;
        }));
        HKEY overrides = nullptr;
        ASSERT_EQ(::RegCreateKeyW(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", &overrides), ERROR_SUCCESS);
        const fw::UniqueKey key{overrides};
        constexpr std::wstring_view kNative = L"native";
        ASSERT_EQ(::RegSetValueExW(overrides, L"wineboot.exe", 0, REG_SZ, reinterpret_cast<const BYTE*>(kNative.data()),
                                   static_cast<DWORD>((kNative.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }

    // The command line with which Windows' own program is started after "Yes".
    static std::wstring AskedAfterYes(int command) {
        const Program program;
        const HWND bar = program.WaitForBar();
        if (!bar) return L"(no bar)";
        Command(bar, command);
        const MessageBoxView box = program.WaitForBox();
        if (!box || !recorder::WaitForCommandLines(0).empty()) return L"(no question before)";
        if (!box.Press(IDYES)) return L"(no answer)";
        const auto lines = recorder::WaitForCommandLines(1);
        EXPECT_TRUE(WaitUntilIdle(bar));
        EXPECT_FALSE(program.ShowsBox());
        return lines.size() == 1 ? lines.front() : L"(nothing was started)";
    }
};

// Wine asks for signing out and for shutting down in the same words. None of them forces a program to end.
TEST_F(EndingTheSession, SignsOutAfterYes) {
    EXPECT_THAT(AskedAfterYes(4100), EndsWith(L"wineboot.exe --end-session --shutdown"));
}

TEST_F(EndingTheSession, ShutsDownAfterYes) {
    EXPECT_THAT(AskedAfterYes(4101), EndsWith(L"wineboot.exe --end-session --shutdown"));
}

TEST_F(EndingTheSession, RestartsAfterYes) {
    EXPECT_THAT(AskedAfterYes(4102), EndsWith(L"wineboot.exe --end-session"));
}

} // namespace
} // namespace korvane::test
