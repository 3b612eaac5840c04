#include "search/editor_search.h"

#include <gtest/gtest.h>

#include <string>

#include "res/ids.h"
#include "tests/support/fake_help.h"
#include "tests/support/fake_process_starter.h"
#include "tests/support/fake_store.h"
#include "tests/support/temp_folder.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::search;

namespace {

// Fills in the dialog of this thread as soon as it is there, and ends it with a button.
class DialogAnswer {
public:
    // In place of a button: the program is told to end.
    static constexpr int kQuit = -1;

    DialogAnswer(std::wstring text, std::wstring folder, int button)
        : text_{std::move(text)}, folder_{std::move(folder)}, button_{button} {
        current_ = this;
        hook_ = ::SetWindowsHookExW(WH_CALLWNDPROCRET, &OnMessage, nullptr, ::GetCurrentThreadId());
    }
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;
    ~DialogAnswer() {
        ::UnhookWindowsHookEx(hook_);
        current_ = nullptr;
    }

    int count = 0;
    HWND owner = nullptr;

private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM wparam, LPARAM lparam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lparam);
        if (code == HC_ACTION && message.message == WM_INITDIALOG && ::GetDlgItem(message.hwnd, IDC_SEARCH_TEXT)) {
            ++current_->count;
            current_->owner = ::GetWindow(message.hwnd, GW_OWNER);
            ::SetDlgItemTextW(message.hwnd, IDC_SEARCH_TEXT, current_->text_.c_str());
            ::SetDlgItemTextW(message.hwnd, IDC_SEARCH_FOLDER, current_->folder_.c_str());
            if (current_->button_ == kQuit)
                ::PostQuitMessage(7);
            else
                ::PostMessageW(message.hwnd, WM_COMMAND, static_cast<WPARAM>(current_->button_), 0);
        }
        return ::CallNextHookEx(nullptr, code, wparam, lparam);
    }

    static inline DialogAnswer* current_ = nullptr;
    HHOOK hook_ = nullptr;
    std::wstring text_;
    std::wstring folder_;
    int button_;
};

class EditorSearchTest : public test::WindowTest {
protected:
    test::TempFolder folder;
    test::FakeStore settings;
    test::FakeHelp help;
    test::FakeProcessStarter starter;
    std::wstring text = L"abc";

    void Install() { settings.WriteText(L"Settings", L"EmEditorPath", L"C:\\E\\EmEditor.exe"); }
    SearchOutcome Run() { return RunEditorSearch(Host(), SearchTool::kEmEditor, text, settings, help, starter); }
};

} // namespace

TEST_F(EditorSearchTest, StartsTheEditorWithWhatTheDialogWasTold) {
    Install();
    DialogAnswer dialog{L"changed", folder.Path(), IDOK};

    EXPECT_EQ(Run(), SearchOutcome{SearchStarted{}});

    EXPECT_EQ(starter.log, L"start \"C:\\E\\EmEditor.exe\" /fi \"changed\" /cp 1048576 \"" + folder.Path() +
                               L"\\*.cpp;*.cxx;*.c;*.h;*.inl;*.rc\"\n");
    EXPECT_EQ(text, L"changed");
    EXPECT_EQ(dialog.owner, Host());
}

TEST_F(EditorSearchTest, StartsNothingWhenTheDialogIsCancelled) {
    Install();
    DialogAnswer dialog{L"changed", folder.Path(), IDCANCEL};

    const auto outcome = Run();

    ASSERT_TRUE(std::holds_alternative<Refusal>(outcome));
    EXPECT_TRUE(std::get<Refusal>(outcome).silent);
    EXPECT_EQ(dialog.count, 1);
    EXPECT_EQ(text, L"abc");
    EXPECT_EQ(starter.log, L"");
}

TEST_F(EditorSearchTest, StartsNothingWhenTheProgramEndsMeanwhile) {
    Install();
    DialogAnswer dialog{L"changed", folder.Path(), DialogAnswer::kQuit};

    const auto outcome = Run();

    ASSERT_TRUE(std::holds_alternative<Refusal>(outcome));
    EXPECT_TRUE(std::get<Refusal>(outcome).silent);
    EXPECT_EQ(dialog.count, 1);
    EXPECT_EQ(starter.log, L"");
    EXPECT_EQ(settings.log, L"Settings.EmEditorPath=C:\\E\\EmEditor.exe\n");
    EXPECT_EQ(Pump(), 7);
}

TEST_F(EditorSearchTest, ShowsNoDialogForAnEditorThatIsNotThere) {
    DialogAnswer dialog{L"", L"", IDCANCEL};

    EXPECT_EQ(Run(), (SearchOutcome{Refusal{IDS_TOOL_NOT_FOUND, L"EmEditor.exe", false}}));

    EXPECT_EQ(dialog.count, 0);
}

TEST_F(EditorSearchTest, SaysThatTheDialogCannotBeShown) {
    Install();
    // No dialog can be owned by a window that is gone.
    const HWND gone =
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    ::DestroyWindow(gone);

    EXPECT_EQ(RunEditorSearch(gone, SearchTool::kEmEditor, text, settings, help, starter),
              (SearchOutcome{Refusal{IDS_DIALOG_FAILED, L"", false}}));
    EXPECT_EQ(starter.log, L"");
}
