#include "app/bar_drop.h"

#include <gtest/gtest.h>

#include "app/logic/bar_layout.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "res/ids.h"
#include "tests/support/dragged_data.h"
#include "tests/support/fake_bar_host.h"
#include "tests/support/window_test.h"

using namespace korvane;
using korvane::test::DraggedData;

namespace {

struct BarDropTest : test::WindowTest {
    test::FakeBarHost host;
    app::BarControls controls{host};
    app::BarKeyboard keyboard{controls};
    std::wstring started;
    int draggedOver = 0;
    app::BarDrop drop{controls, keyboard, [this](UINT command, const std::wstring& arguments) {
                          started += std::to_wstring(command) + L" " + arguments + L";";
                      }};

    void SetUp() override {
        WindowTest::SetUp();
        ::MoveWindow(Host(), 0, 0, 1280, 32, FALSE);
        ASSERT_TRUE(controls.Create(Host(), host.BarFont(), app::LayOutBar(1280, {.scale = fw::Scale()})));
        keyboard.Begin(Host());
        drop.Start(Host(), [this] { ++draggedOver; });
        ASSERT_NE(drop.Interface(), nullptr);
    }
    static POINTL MiddleOf(HWND window) {
        const base::Rect place = fw::WindowRect(window);
        return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    }
    DWORD DropOn(HWND window, DraggedData* data) {
        DWORD effect = DROPEFFECT_COPY;
        drop.Interface()->DragEnter(data, MK_LBUTTON, MiddleOf(window), &effect);
        const DWORD offered = effect;
        effect = DROPEFFECT_COPY;
        drop.Interface()->Drop(data, 0, MiddleOf(window), &effect);
        EXPECT_EQ(offered, effect);
        return effect;
    }
};

} // namespace

TEST_F(BarDropTest, PutsTextIntoTheBoxOnOneLine) {
    DraggedData data{L"東京\r\n天気\r\n"};

    EXPECT_EQ(DropOn(controls.searchBox.Handle(), &data), DWORD{DROPEFFECT_COPY});

    EXPECT_EQ(controls.searchBox.Text(), L"東京 天気");
    EXPECT_EQ(keyboard.Home(), search::Box::kSearch);
}

TEST_F(BarDropTest, KeepsTheTextThatIsInTheBox) {
    controls.commandBox.SetText(L"notepad ");
    DraggedData data{L"readme.txt"};

    DropOn(controls.commandBox.Handle(), &data);

    // Dropped behind the end of the text.
    EXPECT_EQ(controls.commandBox.Text(), L"notepad readme.txt");
    EXPECT_EQ(keyboard.Home(), search::Box::kCommand);
}

TEST_F(BarDropTest, CanBeUndone) {
    controls.searchBox.SetText(L"typed");
    DraggedData data{L" more"};
    DropOn(controls.searchBox.Handle(), &data);

    ::SendMessageW(controls.searchBox.Handle(), EM_UNDO, 0, 0);

    EXPECT_EQ(controls.searchBox.Text(), L"typed");
}

TEST_F(BarDropTest, PutsFilesIntoTheCommandBoxAsQuotedPaths) {
    controls.commandBox.SetText(L"notepad");
    DraggedData data{std::nullopt, {L"C:\\a b.txt", L"C:\\c.txt"}};

    DropOn(controls.commandBox.Handle(), &data);

    EXPECT_EQ(controls.commandBox.Text(), L"notepad \"C:\\a b.txt\" \"C:\\c.txt\"");
}

TEST_F(BarDropTest, StartsALaunchButtonsProgramWithTheFiles) {
    DraggedData data{std::nullopt, {L"C:\\a b.txt", L"C:\\c.txt"}};

    DropOn(controls.launchButtons[1].Handle(), &data);

    EXPECT_EQ(started, L"4026 \"C:\\a b.txt\" \"C:\\c.txt\";");
}

TEST_F(BarDropTest, RefusesWhatHasNoUseThereAndChangesNothing) {
    DraggedData text{L"text"};
    DraggedData files{std::nullopt, {L"C:\\a.txt"}};

    EXPECT_EQ(DropOn(controls.launchButtons[0].Handle(), &text), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(DropOn(controls.searchBox.Handle(), &files), DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(DropOn(controls.options.Handle(), &files), DWORD{DROPEFFECT_NONE});

    EXPECT_EQ(started, L"");
    EXPECT_EQ(controls.searchBox.Text(), L"");
}

TEST_F(BarDropTest, RefusesEverythingWhileADialogOfTheBarIsOpen) {
    ::EnableWindow(Host(), FALSE);
    DraggedData data{L"text", {L"C:\\a.txt"}};

    EXPECT_EQ(DropOn(controls.commandBox.Handle(), &data), DWORD{DROPEFFECT_NONE});

    EXPECT_EQ(controls.commandBox.Text(), L"");
}

TEST_F(BarDropTest, TellsOfEveryDragOverTheBar) {
    DraggedData data{std::nullopt};

    DropOn(controls.clock.Handle(), &data);

    EXPECT_GT(draggedOver, 0);
}
