// The about box and the support commands, from outside.
#include <windows.h>

#include <array>

#include "tests/program/program_test.h"
#include "tests/support/moved_system_file.h"
#include "tests/support/stand_in_program.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

constexpr int kOnlineDocuments = 40005;
constexpr int kSendMail = 40006;
constexpr int kAuthorSite = 40007;
constexpr int kAbout = 57664;
constexpr int kSystemInformation = 1002;
constexpr int kLicensedTo = 1003;
constexpr int kVersion = 1004;
constexpr int kSite = 1005;
constexpr wchar_t kWindowsKey[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

void SetWindowsValue(const wchar_t* name, const std::wstring& text) {
    ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, kWindowsKey, name, REG_SZ, text.c_str(),
                      static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// One value of Windows' own, replaced and put back.
class WindowsValue {
public:
    WindowsValue(const wchar_t* name, const std::wstring& text) : name_{name} {
        std::array<wchar_t, 256> before{};
        DWORD size = sizeof before;
        had_ = ::RegGetValueW(HKEY_LOCAL_MACHINE, kWindowsKey, name, RRF_RT_REG_SZ, nullptr, before.data(), &size) ==
               ERROR_SUCCESS;
        before_ = before.data();
        SetWindowsValue(name, text);
    }
    WindowsValue(const WindowsValue&) = delete;
    WindowsValue& operator=(const WindowsValue&) = delete;
    ~WindowsValue() {
        if (had_)
            SetWindowsValue(name_, before_);
        else
            ::RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, kWindowsKey, name_);
    }

private:
    const wchar_t* name_;
    bool had_ = false;
    std::wstring before_;
};

// A protocol that no program opens any more, until the test is over.
class WithoutHandler {
public:
    explicit WithoutHandler(const std::wstring& protocol) : key_{L"Software\\Classes\\" + protocol} {
        ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, key_.c_str());
    }
    WithoutHandler(const WithoutHandler&) = delete;
    WithoutHandler& operator=(const WithoutHandler&) = delete;
    ~WithoutHandler() { recorder::Install(); }

private:
    std::wstring key_;
};

class About : public ProgramTest {
protected:
    static HWND WaitForAboutBox(const Program& program) {
        return WaitUntil([&]() -> HWND {
            for (const HWND window : WindowsOf(program.Id(), L"#32770"))
                if (::GetDlgItem(window, kVersion) != nullptr && ::IsWindowEnabled(window)) return window;
            return nullptr;
        });
    }
    static void Press(HWND dialog, int button) {
        ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    }
    static std::wstring Text(HWND dialog, int control) { return TextOf(::GetDlgItem(dialog, control)); }
    // What the program is to say about itself on this Windows.
    static std::wstring VersionText(const std::wstring& product) {
        OSVERSIONINFOW version{};
        version.dwOSVersionInfoSize = sizeof version;
        ::GetVersionExW(&version);
        return L"Korvane 32 Version 1.0.0\nfor " + product + L" [" + std::to_wstring(version.dwMajorVersion) + L"." +
               std::to_wstring(version.dwMinorVersion) + L"." + std::to_wstring(version.dwBuildNumber) + L"]";
    }
};

TEST_F(About, TellsTheVersionAndTheLicensee) {
    const WindowsValue product{L"ProductName", L"Windows 試験版"};
    const WindowsValue owner{L"RegisteredOwner", L"山田 太郎"};
    const WindowsValue organization{L"RegisteredOrganization", L"山田 & 商会"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kAbout);

    const HWND box = WaitForAboutBox(program);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(box), L"Korvane のバージョン情報");
    EXPECT_EQ(Text(box, kVersion),
              VersionText(L"Windows 試験版") + L"\n\nCopyright (C) 2026 Dunmere Software. All rights reserved.");
    EXPECT_EQ(Text(box, kLicensedTo), L"山田 太郎\n山田 & 商会");
    EXPECT_FALSE(::IsWindowEnabled(bar));
    Press(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box) && ::IsWindowEnabled(bar); }));
}

TEST_F(About, IsClosedByEscape) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(bar && ClickIntoFocus(Control(bar, kSearchBox)));
    Command(bar, kAbout);
    const HWND box = WaitForAboutBox(program);
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == box; }));

    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
}

TEST_F(About, SaysWhyTheSystemInformationDoesNotOpen) {
    const MovedSystemFile missing{L"msinfo32.exe"};
    ASSERT_TRUE(missing.Moved());
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kAbout);
    const HWND box = WaitForAboutBox(program);
    ASSERT_NE(box, nullptr);

    Press(box, kSystemInformation);

    const MessageBoxView error = program.WaitForBox();
    ASSERT_TRUE(error);
    EXPECT_EQ(error.Caption(), L"Korvane");
    EXPECT_EQ(error.Text(), TextOfError(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(::GetWindow(error.Handle(), GW_OWNER), box);
    EXPECT_TRUE(error.Press(IDOK));
}

TEST_F(About, OpensTheSystemInformation) {
    const StandInProgram standIn{L"msinfo32.exe"};
    ASSERT_TRUE(standIn.Installed());
    const Program program{{.searchPath = StandInProgram::Folder()}};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kAbout);
    const HWND box = WaitForAboutBox(program);
    ASSERT_NE(box, nullptr);

    Press(box, kSystemInformation);

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(HasSubstr(L"msinfo32.exe")));
    EXPECT_TRUE(::IsWindow(box));
}

TEST_F(About, LeadsToTheMakersSite) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_TRUE(bar && ClickIntoFocus(Control(bar, kSearchBox)));
    Command(bar, kAbout);
    const HWND box = WaitForAboutBox(program);
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == box; }));

    Click(::GetDlgItem(box, kSite));

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(L"https", L"https://korvane.example/")));
}

class Support : public About {};

TEST_F(Support, OpensTheOnlineDocuments) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kOnlineDocuments);

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(L"https", L"https://korvane.example/docs/")));
}

TEST_F(Support, OpensTheAuthorsSite) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kAuthorSite);

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(L"https", L"https://korvane.example/")));
}

TEST_F(Support, OpensAMailAfterANote) {
    const WindowsValue product{L"ProductName", L"Windows Test"};
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kSendMail);

    const MessageBoxView note = program.WaitForBox();
    ASSERT_TRUE(note);
    EXPECT_EQ(note.Caption(), L"メールをご送信いただく方へ");
    EXPECT_EQ(note.Text(),
              L"お送りいただいたメールには順次ご返信していますが、ご利用のメール サービスの設定により、返信が "
              L"[迷惑メール] フォルダに振り分けられることがあります。\n\n返信が届かないときは [迷惑メール] "
              L"フォルダもご確認ください。");
    EXPECT_EQ(note.Icon(), BoxIcon::kInformation);
    EXPECT_THAT(note.Buttons(), ElementsAre(IDOK));
    EXPECT_TRUE(note.Press(IDOK));
    std::wstring version = VersionText(L"Windows Test");
    version.replace(version.find(L'\n'), 1, L"%0d%0a");
    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(
                    L"mailto", L"mailto:support@korvane.example?subject=[Korvane] --please modify subject--&body="
                               L"%0d%0aplease don't remove system info-----------------%0d%0a" +
                                   version + L"%0d%0a------------------------------------------------%0d%0a")));
}

struct Opening {
    const char* name;
    int command;
    const wchar_t* protocol;
    bool note;
};

class FailingSupport : public Support, public testing::WithParamInterface<Opening> {};

TEST_P(FailingSupport, IsReportedInTheSystemsWords) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    const WithoutHandler none{GetParam().protocol};

    Command(bar, GetParam().command);

    MessageBoxView note;
    if (GetParam().note) {
        note = program.WaitForBox();
        ASSERT_TRUE(note && note.Press(IDOK));
    }
    const MessageBoxView error = program.WaitForBox(note);
    ASSERT_TRUE(error);
    EXPECT_EQ(error.Caption(), L"Korvane");
    constexpr DWORD kNoAssociation = 31; // SE_ERR_NOASSOC, which is shown as a system error of that number
    EXPECT_EQ(error.Text(), TextOfError(kNoAssociation));
    EXPECT_EQ(error.Icon(), BoxIcon::kWarning);
    EXPECT_TRUE(error.Press(IDOK));
}

INSTANTIATE_TEST_SUITE_P(Table, FailingSupport,
                         testing::Values(Opening{"OnlineDocuments", kOnlineDocuments, L"https", false},
                                         Opening{"Mail", kSendMail, L"mailto", true},
                                         Opening{"AuthorSite", kAuthorSite, L"https", false}),
                         [](const auto& tested) { return std::string{tested.param.name}; });

} // namespace
} // namespace korvane::test
