#include "app/session_end.h"

#include <array>
#include <cstddef>
#include <optional>

#include "framework/centred_message_box.h"
#include "framework/handle.h"
#include "framework/windows_version.h"
#include "res/ids.h"
#include "tests/support/message_box_answer.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::app;
using korvane::test::MessageBoxAnswer;

namespace {

// The attributes of the shutdown privilege in this process's token; empty when the token has none.
std::optional<DWORD> ShutdownPrivilege() {
    HANDLE opened = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened)) return std::nullopt;
    const fw::UniqueKernelHandle token{opened};
    LUID wanted{};
    ::LookupPrivilegeValueW(nullptr, L"SeShutdownPrivilege", &wanted);

    alignas(TOKEN_PRIVILEGES) std::array<std::byte, 4096> buffer{};
    DWORD length = 0;
    if (!::GetTokenInformation(token.Get(), TokenPrivileges, buffer.data(), DWORD{buffer.size()}, &length))
        return std::nullopt;
    const auto& all = *reinterpret_cast<const TOKEN_PRIVILEGES*>(buffer.data());
    for (DWORD i = 0; i < all.PrivilegeCount; ++i) {
        const LUID_AND_ATTRIBUTES& one = all.Privileges[i];
        if (one.Luid.LowPart == wanted.LowPart && one.Luid.HighPart == wanted.HighPart) return one.Attributes;
    }
    return std::nullopt;
}

class SessionEndTest : public korvane::test::WindowTest {
protected:
    bool messageBoxOpen = false;
};

} // namespace

TEST_F(SessionEndTest, EnablesThePrivilegeAndLeavesItEnabled) {
    EXPECT_EQ((WinSessionHost{Host(), messageBoxOpen}.EnableShutdownPrivilege()), DWORD{ERROR_SUCCESS});

    const auto attributes = ShutdownPrivilege();
    ASSERT_TRUE(attributes.has_value());
    EXPECT_NE(*attributes & SE_PRIVILEGE_ENABLED, 0U);
}

TEST_F(SessionEndTest, AsksBeforeItRestarts) {
    const MessageBoxAnswer no{IDNO};

    EndWindowsSession(ID_RESTART, Host(), messageBoxOpen);

    EXPECT_EQ(no.Count(), 1);
    EXPECT_EQ(no.Caption(), L"Korvane");
    EXPECT_EQ(no.Text(), L"Windows を再起動します。よろしいですか？");
}

TEST_F(SessionEndTest, AsksBeforeItShutsDown) {
    const MessageBoxAnswer cancel{IDCANCEL};

    EndWindowsSession(ID_SHUT_DOWN, Host(), messageBoxOpen);

    EXPECT_EQ(cancel.Text(), L"Windows をシャットダウンします。よろしいですか？");
}

TEST_F(SessionEndTest, CallsTheEndOfASessionAsThisWindowsDoes) {
    const MessageBoxAnswer no{IDNO};

    EndWindowsSession(ID_SIGN_OUT, Host(), messageBoxOpen);

    EXPECT_EQ(no.Text(), fw::IsWindowsAtLeast(fw::kWindows8) ? L"Windows からサインアウトします。よろしいですか？"
                                                             : L"Windows からログオフします。よろしいですか？");
}

TEST_F(SessionEndTest, SaysBothNamesOfSigningOut) {
    WinSessionHost session{Host(), messageBoxOpen};
    const MessageBoxAnswer yes{IDYES};

    EXPECT_TRUE(session.Ask(IDS_SIGN_OUT_VERB));
    EXPECT_EQ(yes.Text(), L"Windows からサインアウトします。よろしいですか？");
    EXPECT_TRUE(session.Ask(IDS_LOG_OFF_VERB));
    EXPECT_EQ(yes.Text(), L"Windows からログオフします。よろしいですか？");
}

TEST_F(SessionEndTest, TakesNothingButYesForAYes) {
    WinSessionHost session{Host(), messageBoxOpen};
    {
        const MessageBoxAnswer no{IDNO};
        EXPECT_FALSE(session.Ask(IDS_RESTART_VERB));
    }
    const MessageBoxAnswer cancel{IDCANCEL};
    EXPECT_FALSE(session.Ask(IDS_RESTART_VERB));
}

TEST_F(SessionEndTest, LeavesTheBarsFlagSetAfterANo) {
    const MessageBoxAnswer no{IDNO};

    EndWindowsSession(ID_RESTART, Host(), messageBoxOpen);

    EXPECT_TRUE(messageBoxOpen);
}

TEST_F(SessionEndTest, ReportsAnErrorInTheSystemsWords) {
    WinSessionHost session{Host(), messageBoxOpen};
    const MessageBoxAnswer ok{IDOK};

    session.ShowError(ERROR_PRIVILEGE_NOT_HELD);

    EXPECT_EQ(ok.Caption(), L"Korvane");
    EXPECT_EQ(ok.Text(), fw::SystemErrorText(ERROR_PRIVILEGE_NOT_HELD));
}
