#pragma once

#include <array>
#include <string>

#include "controls/drop_down_button.h"
#include "controls/exit_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "controls/time_bar_button.h"
#include "controls/tool_button.h"
#include "res/ids.h"
#include "tests/controls/bar_button_test.h"
#include "tests/support/fake_clock.h"

namespace korvane::controls {

// One button of each kind, as the bar has them.
class AllBarButtons : public BarButtonTest {
protected:
    void SetUp() override {
        BarButtonTest::SetUp();
        bar.TakeRoughFont();
        Put(mainMenu, {4, 0, 124, 32}, ID_MAIN_MENU, L"メニュー");
        Put(tool, {130, 0, 166, 32}, ID_OPTIONS, L"オプション");
        Put(dropDown, {170, 6, 185, 26}, ID_COMMAND_HISTORY, L"履歴");
        Put(textDrop, {190, 0, 320, 32}, ID_CONTROL_PANEL, L"コントロール パネル");
        Put(clock, {330, 0, 430, 32}, ID_CLOCK);
        Put(exit, {440, 7, 458, 25}, ID_EXIT, L"終了");
        Send(textDrop.Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(bar.BarFont()), FALSE);
        tool.SetIcon(MakeIcon(kRed), fw::ImageKind::kDrawing);
        clock.SetFormat(kTimeAndDate);
    }

    struct Member {
        std::string name;
        fw::WindowObject* button;
        UINT id;
        bool opensMenu; // of the bar, or a drop-down of the parent
    };
    [[nodiscard]] std::array<Member, 6> Members() {
        return {Member{"main menu", &mainMenu, ID_MAIN_MENU, true},
                Member{"tool", &tool, ID_OPTIONS, false},
                Member{"drop-down", &dropDown, ID_COMMAND_HISTORY, false},
                Member{"text drop", &textDrop, ID_CONTROL_PANEL, true},
                Member{"clock", &clock, ID_CLOCK, false},
                Member{"exit", &exit, ID_EXIT, false}};
    }
    void TellBarColour(base::Colour colour) {
        host.ground = colour.value;
        mainMenu.SetBarColour(colour);
        textDrop.SetBarColour(colour);
        clock.SetBarColour(colour);
    }
    void TakeThemesAway() {
        for (const Member& member : Members()) TakeThemeAway(*member.button);
    }
    template <class Action>
    void ForEach(const Action& action) {
        action(mainMenu);
        action(tool);
        action(dropDown);
        action(textDrop);
        action(clock);
        action(exit);
    }

    test::FakeClock time;
    CKorvaneButton mainMenu{bar};
    CToolButton tool;
    CDropDownButton dropDown;
    CTextDropButton textDrop{bar};
    CTimeBarButton clock{bar, {time, &fw::LoadText, ClockStyle::kTrayBarFont}};
    CExitButton exit;
};

} // namespace korvane::controls
