#pragma once

#include <windows.h>

#include <array>
#include <vector>

#include "app/logic/bar_layout.h"
#include "base/colour.h"
#include "controls/bar_host.h"
#include "controls/drop_down_button.h"
#include "controls/exit_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "controls/time_bar_button.h"
#include "controls/tool_button.h"
#include "framework/image_list.h"
#include "search/edit_ex.h"
#include "settings/logic/profile_store.h"

namespace korvane::app {

// Every child window of the bar, with the icons that they show. Made with the frame and gone with it.
class BarControls {
public:
    explicit BarControls(controls::BarHost& host);

    // Creates the children in their order, with the places of the layout; false when Windows refused one. What depends
    // on settings is applied afterwards.
    [[nodiscard]] bool Create(HWND frame, HFONT barFont, const BarLayout& layout);
    void Place(const BarLayout& layout);
    // Everything that the keyboard can be on, as the eye meets it.
    [[nodiscard]] std::vector<HWND> InReadingOrder() const;
    void ShowClock(bool shown);
    void ShowExit(bool shown);
    // Shows or hides the controls that would show in a hidden bar's strip.
    void ShowWithBar(bool shown, bool clockToo);
    void SetColour(base::Colour barColour);
    // Reads the three launch buttons' entries again and shows their names and icons.
    void ReloadLaunchButtons(const settings::ProfileStore& settings);

    // Does the same to every button, in the order in which the eye meets them.
    template <class Action>
    void ForEachButton(const Action& action) {
        action(mainMenu);
        action(commandHistory);
        action(runTyped);
        action(searchChooser);
        action(searchHistory);
        action(runSearch);
        action(controlPanel);
        for (controls::CToolButton& button : launchButtons) action(button);
        action(options);
        action(help);
        action(clock);
        action(exit);
    }

    controls::CKorvaneButton mainMenu;
    search::CEditEx commandBox;
    search::CEditEx searchBox;
    controls::CDropDownButton commandHistory;
    controls::CDropDownButton searchHistory;
    controls::CTextDropButton searchChooser;
    controls::CToolButton runTyped;
    controls::CToolButton runSearch;
    controls::CTextDropButton controlPanel;
    std::array<controls::CToolButton, 3> launchButtons;
    controls::CToolButton options;
    controls::CToolButton help;
    controls::CTimeBarButton clock;
    controls::CExitButton exit;

private:
    [[nodiscard]] bool CreateBoxes(HWND frame, HFONT barFont, const BarLayout& layout);

    fw::UniqueImageList toolImages_;
    fw::UniqueImageList disabledToolImages_;
};

} // namespace korvane::app
