#pragma once

#include <windows.h>

#include <optional>

#include "about/help_opener.h"
#include "framework/dialog.h"
#include "launch/launch_item.h"
#include "res/ids.h"

namespace korvane::launch {

// Edits one launch item, or makes a new one.
class CAddMenuDialog final : public fw::Dialog<CAddMenuDialog> {
public:
    static constexpr UINT kTemplate = IDD_ADD_LAUNCH_ITEM;

    static constexpr auto Messages() { return fw::MessageMap{}; }

    // Without an item to edit a new one is made. Icon and help outlive the dialog.
    CAddMenuDialog(HICON smallIcon, about::HelpOpener& help, std::optional<CLaunchItem> edited = {});

    // True once the item has passed all checks. The dialog's result would not tell: it is IDOK too when the program is
    // told to quit while the dialog is open.
    [[nodiscard]] bool Confirmed() const { return confirmed_; }
    [[nodiscard]] const CLaunchItem& Item() const { return item_; }

private:
    HICON smallIcon_;
    about::HelpOpener& help_;
    bool editing_;
    CLaunchItem item_;
    bool confirmed_ = false;
};

} // namespace korvane::launch
