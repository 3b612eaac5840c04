#include "tests/support/help_recorder.h"

#include <gtest/gtest.h>

#include "tests/support/program_driver.h"
#include "tests/support/wait.h"

namespace korvane::test {
namespace {

constexpr wchar_t kOverrides[] = L"Software\\Wine\\AppDefaults\\korvane.exe\\DllOverrides";

} // namespace

HelpRecorder::HelpRecorder() {
    ForgetLog(kHelpLog);
    EXPECT_TRUE(control_.Moved());
    EXPECT_TRUE(::CopyFileW((OwnFolder() + KORVANE_HELP_RECORDER).c_str(), control_.Path().c_str(), TRUE));
    HKEY key = nullptr;
    EXPECT_EQ(::RegCreateKeyExW(HKEY_CURRENT_USER, kOverrides, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    const fw::UniqueKey owner{key};
    // Wine takes its own control unless it is told not to.
    constexpr std::wstring_view kNative = L"native";
    for (const wchar_t* name : {L"hhctrl.ocx", L"*hhctrl.ocx"})
        ::RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(kNative.data()),
                         static_cast<DWORD>((kNative.size() + 1) * sizeof(wchar_t)));
}

HelpRecorder::~HelpRecorder() {
    ::SetEnvironmentVariableW(kHelpAnswersNothing, nullptr);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kOverrides);
}

void HelpRecorder::AnswerNothing() {
    ::SetEnvironmentVariableW(kHelpAnswersNothing, L"1");
}

std::vector<std::wstring> HelpRecorder::WaitForCalls(std::size_t count) {
    std::vector<std::wstring> calls;
    WaitUntil([&] {
        calls = LoggedLines(kHelpLog);
        return calls.size() >= count;
    });
    return calls;
}

} // namespace korvane::test
