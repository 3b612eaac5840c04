// The program is ended at each single write of a save, and nothing that the user entered is lost.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/program/options_driver.h"
#include "tests/support/write_counter.h"

namespace korvane::test {
namespace {

using testing::Contains;
using testing::IsSupersetOf;

using Lines = std::vector<std::wstring>;

constexpr wchar_t kLaunchItems[] = L"Settings\\LaunchMenuItem";

// Controls of the options' pages.
constexpr int kUserRadio = 1027;
constexpr int kUserList = 1029;
constexpr int kUp = 1030;
constexpr int kDown = 1031;
constexpr int kLaunchList = 1057;

std::wstring NameOf(const wchar_t* list, int number) {
    return list + std::wstring{number < 10 ? L"0" : L""} + std::to_wstring(number);
}

void WriteLines(const wchar_t* section, const wchar_t* list, const Lines& lines) {
    int number = 0;
    for (const auto& line : lines) WriteSetting(section, NameOf(list, ++number).c_str(), line);
}

// As the program reads them: up to the first that is missing.
Lines ReadLines(const wchar_t* section, const wchar_t* list) {
    Lines lines;
    for (int number = 1;; ++number) {
        const auto line = ReadText(section, NameOf(list, number).c_str());
        if (!line || line->empty()) return lines;
        lines.push_back(*line);
    }
}

std::string UserFile() {
    std::ifstream file{std::filesystem::path{DataFolder() + L"\\UserCommand.dat"}, std::ios::binary};
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// One start takes a second or two, so the writes of a save are dealt out to several tests.
constexpr int kParts = 4;

class EndedWhileSaving : public OptionsTest, public testing::WithParamInterface<int> {
protected:
    // What the save goes over; called before each start.
    virtual void WriteOldState() = 0;
    // Makes the changes that are to be saved.
    virtual void Change(const Program& program) = 0;
    // Sets off the save and, if it is not ended, waits until it is done.
    virtual void Save(const Program& program, bool toTheEnd) = 0;
    virtual void ExpectNothingLost() = 0;

    void Run(long endAt) {
        WriteOldState();
        const Program program;
        bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr);
        Change(program);
        if (HasFatalFailure()) return;
        ASSERT_TRUE(counter.Begin(bar, endAt));
        Save(program, endAt == 0);
        if (endAt == 0) return;
        ASSERT_EQ(program.WaitForExit(), kEndedByCounter) << endAt;
    }
    // Ends the program at every write that belongs to this part of the test.
    void EndAtEachWrite() {
        Run(0);
        if (HasFatalFailure()) return;
        const auto names = counter.Names();
        ASSERT_THAT(names, Contains("RegSetValueExW"));
        ASSERT_EQ(names.size(), static_cast<std::size_t>(counter.Count()));
        ASSERT_GE(names.size(), std::size_t{kParts});
        ExpectNothingLost();
        for (std::size_t n = 1; n <= names.size(); ++n) {
            if (static_cast<int>(n % kParts) != GetParam()) continue;
            SCOPED_TRACE("ended at write " + std::to_string(n) + ", " + names[n - 1]);
            Run(static_cast<long>(n));
            if (HasFatalFailure()) return;
            ExpectNothingLost();
        }
    }

    WriteCounter counter;
};

class EndedWhileClosing : public EndedWhileSaving {
protected:
    const Lines commands{L"c1", L"c2", L"c3", L"c4", L"c5"};
    const Lines searches{L"s1", L"s2", L"s3", L"s4", L"s5"};

    void WriteOldState() override {
        ForgetAllSettings();
        CloseWithoutQuestion();
        WriteSetting(kPlacement, L"SaveWindowPlacement", 1);
        // Five of each are saved, so that two of these are to be deleted.
        Lines more = commands;
        more.insert(more.end(), {L"c6", L"c7"});
        WriteLines(kRecentCommands, L"ListItem", more);
        WriteLines(kRecentSearches, L"ListItem", searches);
        recorder::Install();
    }
    // An old search is made again and becomes the newest, so that lines change places.
    void Change(const Program&) override {
        ::SendMessageW(Control(bar, kSearchBox), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"s4"));
        Command(bar, kSearch);
        ASSERT_FALSE(recorder::WaitForCommandLines(1).empty());
        ASSERT_TRUE(WaitUntilIdle(bar));
    }
    void Save(const Program& program, bool toTheEnd) override {
        Close(bar);
        if (toTheEnd) {
            ASSERT_EQ(program.WaitForExit(), 0U);
            ASSERT_EQ(ReadLines(kRecentSearches, L"ListItem"), (Lines{L"s4", L"s1", L"s2", L"s3", L"s5"}));
            ASSERT_EQ(ReadLines(kRecentCommands, L"ListItem"), commands);
        }
    }
    void ExpectNothingLost() override {
        EXPECT_THAT(ReadLines(kRecentCommands, L"ListItem"), IsSupersetOf(commands));
        const Lines found = ReadLines(kRecentSearches, L"ListItem");
        EXPECT_THAT(found, IsSupersetOf(searches));
        for (const auto& line : found) EXPECT_THAT(searches, Contains(line));
    }
};

TEST_P(EndedWhileClosing, LosesNothingAtAnyWrite) {
    EndAtEachWrite();
}

INSTANTIATE_TEST_SUITE_P(Part, EndedWhileClosing, testing::Range(0, kParts));

class EndedWhileOptionsAreSaved : public EndedWhileSaving {
protected:
    const Lines items{L"a.exe, , ,shell32.dll,1,a", L"b.exe, , ,shell32.dll,2,b", L"c.exe, , ,shell32.dll,3,c",
                      L"d.exe, , ,shell32.dll,4,d", L"e.exe, , ,shell32.dll,5,e"};
    std::string oldFile;
    std::string newFile;

    void WriteOldState() override {
        ForgetAllSettings();
        CloseWithoutQuestion();
        WriteLines(kLaunchItems, L"LaunchMenu", items);
        WriteSetting(kSettings, L"UserSearchCommand", L"1,2,3");
        std::wstring file = L";header\r\n\r\n";
        for (const wchar_t* const number : {L"01", L"02", L"03"})
            file.append(L"[SearchCommand_")
                .append(number)
                .append(L"]\r\nCommandName=命令")
                .append(number)
                .append(L"\r\nCommandLine=http://own.example/<%Search%>\r\nComment=\r\n\r\n");
        WriteDataFile(L"UserCommand.dat", file);
        oldFile = UserFile();
    }
    // The page that holds a control, whether it is on view or not.
    static HWND PageWith(HWND options, int control) {
        for (HWND child = ::GetWindow(options, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            if (::GetDlgItem(child, control)) return child;
        return nullptr;
    }
    // The order of the user's commands and of the launch items.
    void Change(const Program& program) override {
        Command(bar, kCommandOptions);
        options = WaitUntil([&]() -> HWND {
            for (const HWND window : WindowsOf(program.Id(), L"#32770"))
                if (::GetDlgItem(window, kOptionsTree)) return window;
            return nullptr;
        });
        ASSERT_NE(options, nullptr);
        ASSERT_TRUE(WaitUntilIdle(options));
        const HWND commands = PageWith(options, kUserList);
        ::SendMessageW(commands, WM_COMMAND, kUserRadio, 0);
        ::SendMessageW(::GetDlgItem(commands, kUserList), WM_KEYDOWN, VK_DOWN, 0);
        ::SendMessageW(commands, WM_COMMAND, kUp, 0);
        ::SendMessageW(PageWith(options, kLaunchList), WM_COMMAND, kDown, 0);
        ASSERT_TRUE(WaitUntilIdle(options));
    }
    void Save(const Program&, bool toTheEnd) override {
        ::PostMessageW(options, WM_COMMAND, kOptionsOk, 0);
        if (!toTheEnd) return;
        ASSERT_TRUE(WaitUntilGone(options) && WaitUntilIdle(bar));
        newFile = UserFile();
        ASSERT_NE(newFile, oldFile);
        ASSERT_EQ(ReadLines(kLaunchItems, L"LaunchMenu"), (Lines{items[1], items[0], items[2], items[3], items[4]}));
        const auto names = counter.Names();
        ASSERT_THAT(names, IsSupersetOf({"WriteFile", "FlushFileBuffers", "ReplaceFileW", "RegDeleteValueW"}));
    }
    void ExpectNothingLost() override {
        EXPECT_THAT(UserFile(), testing::AnyOf(oldFile, newFile));
        const Lines found = ReadLines(kLaunchItems, L"LaunchMenu");
        EXPECT_THAT(found, IsSupersetOf(items));
        for (const auto& line : found) EXPECT_THAT(items, Contains(line));
        EXPECT_EQ(ReadText(kSettings, L"UserSearchCommand"), L"1,2,3");
        EXPECT_THAT(ReadText(kSettings, L"SearchCommandOrder").value_or(L"1,2"), L"1,2");
        EXPECT_THAT(ReadText(kSettings, L"DefaultSearchCommand").value_or(L"1"), L"1");
    }

    HWND options = nullptr;
};

TEST_P(EndedWhileOptionsAreSaved, LosesNothingAtAnyWrite) {
    EndAtEachWrite();
}

INSTANTIATE_TEST_SUITE_P(Part, EndedWhileOptionsAreSaved, testing::Range(0, kParts));

class UserCommandsOnTheBadDay : public OptionsTest {
protected:
    static void WriteBytes(const std::string& bytes) {
        WriteDataFile(L"UserCommand.dat", L"");
        std::ofstream{std::filesystem::path{DataFolder() + L"\\UserCommand.dat"}, std::ios::binary} << bytes;
    }
    static bool HasCopy() {
        return ::GetFileAttributesW((DataFolder() + L"\\UserCommand.bak").c_str()) != INVALID_FILE_ATTRIBUTES;
    }
};

TEST_F(UserCommandsOnTheBadDay, AreToldOfAndTheirFileLeftAloneWhenItCannotBeRead) {
    const std::string damage = "\x8F\x01 random \x93 bytes";
    WriteBytes(damage);
    const Program program;
    bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kCommandOptions);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(WindowsOf(program.Id(), L"#32770").size(), 2U) << "the box stands over the options";
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(),
              L"ユーザー定義コマンドのファイル 'UserCommand.dat' の全部または一部を読み込むことができませんでした。\n\n"
              L"ファイルは変更していません。ユーザー定義コマンドを変更して [OK] を押すと、現在のファイルのコピーを "
              L"'UserCommand.bak' に残してから保存します。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK));
    const HWND options = WaitForDialogWith(program, kOptionsTree);
    ASSERT_NE(options, nullptr);
    ASSERT_TRUE(Confirm(options));

    EXPECT_EQ(UserFile(), damage);
    EXPECT_FALSE(HasCopy());
}

} // namespace
} // namespace korvane::test
