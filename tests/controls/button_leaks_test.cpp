#include <array>

#include "controls/app_image_btn.h"
#include "controls/drop_down_button.h"
#include "controls/exit_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "controls/time_bar_button.h"
#include "controls/tool_button.h"
#include "controls/up_down_button.h"
#include "framework/icons.h"
#include "res/ids.h"
#include "tests/controls/bar_button_test.h"
#include "tests/support/gdi_objects.h"

namespace korvane::controls {
namespace {

class ButtonLeaks : public BarButtonTest {
protected:
    template <class Button>
    void DrawAll(Button& button, UINT id) {
        Put(button, {0, 0, 100, 32}, id, L"名前");
        (void)Paint(button, kStates[life_ % kStates.size()]);
        Send(button.Handle(), WM_THEMECHANGED);
    }
    // The life of one bar, painted in one state after the other. Half of the windows go before their objects.
    void OneLife() {
        ++life_;
        CKorvaneButton mainMenu{bar};
        CToolButton tool;
        tool.SetIcon(fw::LoadResourceIcon(IDI_RUN, 16));
        CDropDownButton dropDown;
        CTextDropButton textDrop{bar};
        textDrop.SetIcon(fw::LoadResourceIcon(IDI_SEARCH, 16));
        CUpDownButton step{Direction::kLeft, kDarkBar};
        CTimeBarButton clock{bar};
        clock.SetFormat(kTimeAndDate);
        CExitButton exit;
        CAppImageBtn image;
        DrawAll(mainMenu, 1);
        DrawAll(tool, 2);
        DrawAll(dropDown, 3);
        DrawAll(textDrop, 4);
        DrawAll(step, 5);
        DrawAll(clock, 6);
        DrawAll(exit, 7);
        DrawAll(image, 8);
        mainMenu.SetMenuShown(true);
        mainMenu.SetMenuShown(false);
        if (life_ % 8 < 4) return;
        for (fw::WindowObject* button : std::initializer_list<fw::WindowObject*>{&mainMenu, &tool, &dropDown, &textDrop,
                                                                                 &step, &clock, &exit, &image})
            ::DestroyWindow(button->Handle());
    }
    static constexpr int kButtons = 8;
    static constexpr std::array<UINT, 4> kStates{0, ODS_SELECTED, ODS_DISABLED, ODS_FOCUS};
    std::size_t life_ = 0;

    static int WindowCount() {
        int count = 0;
        ::EnumThreadWindows(::GetCurrentThreadId(), &CountOne, reinterpret_cast<LPARAM>(&count));
        return count;
    }
    static BOOL CALLBACK CountOne(HWND, LPARAM counter) {
        ++*reinterpret_cast<int*>(counter);
        return TRUE;
    }
};

TEST_F(ButtonLeaks, NoGdiObjectOrWindowStaysBehindOfAThousandButtons) {
    // What Windows keeps for the first use of its own libraries is not ours.
    for (int life = 0; life < 8; ++life) OneLife();
    const int gdiBefore = test::GdiObjectCount();
    const int windowsBefore = WindowCount();
    ASSERT_GT(gdiBefore, 0);

    for (int life = 0; life < 1000 / kButtons; ++life) OneLife();

    EXPECT_EQ(test::GdiObjectCount(), gdiBefore);
    EXPECT_EQ(WindowCount(), windowsBefore);
}

TEST_F(ButtonLeaks, TheCountNoticesOneObject) {
    const int before = test::GdiObjectCount();

    const fw::UniqueBrush brush{::CreateSolidBrush(RGB(9, 8, 7))};

    EXPECT_EQ(test::GdiObjectCount(), before + 1);
}

} // namespace
} // namespace korvane::controls
