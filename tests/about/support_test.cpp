#include "about/support.h"

#include <gtest/gtest.h>

#include "framework/centred_message_box.h"
#include "framework/windows_program.h"
#include "tests/about/recording_opener.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/window_test.h"

namespace korvane::about {
namespace {

class SupportTest : public test::WindowTest {
protected:
    test::RecordingOpener shell;
};

TEST_F(SupportTest, OpensTheMakersPages) {
    EXPECT_EQ(OpenOnlineDocuments(shell.AsOpener()), 33);
    EXPECT_EQ(OpenAuthorSite(shell.AsOpener()), 33);

    EXPECT_EQ(shell.log, L"open https://korvane.example/docs/\nopen https://korvane.example/\n");
}

TEST_F(SupportTest, OpensTheSystemInformation) {
    shell.answer = 5;

    EXPECT_EQ(ShowSystemInformation(shell.AsOpener()), 5);

    EXPECT_EQ(shell.log, L"open " + fw::WindowsProgram(L"msinfo32.exe") + L"\n");
    EXPECT_TRUE(shell.log.ends_with(L"\\msinfo32.exe\n")) << "by its full path";
}

TEST_F(SupportTest, TellsWhatToMindBeforeItOpensTheMail) {
    const test::MessageBoxAnswer answer{IDOK};
    int shown = 0;

    const INT_PTR result = SendSupportMail(Host(), L"Korvane 32", [&](const wchar_t* verb, const std::wstring& file) {
        shown = answer.Count();
        return shell.AsOpener()(verb, file);
    });

    EXPECT_EQ(result, 33);
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(answer.Caption(), L"メールをご送信いただく方へ");
    EXPECT_NE(answer.Text().find(L"[迷惑メール]"), std::wstring::npos);
    EXPECT_EQ(shell.log, L"open mailto:support@korvane.example?subject=[Korvane] --please modify subject--&body="
                         L"%0d%0aplease don't remove system info-----------------%0d%0aKorvane 32"
                         L"%0d%0a------------------------------------------------%0d%0a\n");
}

class ShellFailure : public SupportTest, public testing::WithParamInterface<int> {};

TEST_P(ShellFailure, IsReportedInTheSystemsWords) {
    const test::MessageBoxAnswer answer{IDOK};

    ReportFailure(Host(), GetParam());

    EXPECT_EQ(answer.Count(), 1);
    EXPECT_EQ(answer.Caption(), L"Korvane");
    constexpr DWORD kNoMemory = 8; // which the shell calls 0
    EXPECT_EQ(answer.Text(), fw::SystemErrorText(GetParam() != 0 ? static_cast<DWORD>(GetParam()) : kNoMemory));
    EXPECT_NE(answer.Text(), L"");
}

INSTANTIATE_TEST_SUITE_P(Results, ShellFailure, testing::Values(0, 2, 5, 31, 32));

TEST_F(SupportTest, SaysNothingWhenTheShellSucceeded) {
    const test::MessageBoxAnswer answer{IDOK};

    ReportFailure(Host(), 33);
    ReportFailure(Host(), 42);

    EXPECT_EQ(answer.Count(), 0);
}

} // namespace
} // namespace korvane::about
