#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "about/help_opener.h"
#include "framework/dialog.h"
#include "launch/launch_item.h"
#include "res/ids.h"

namespace korvane::launch {

// Finds programs in folders of shortcuts and makes launch items of those that the user selects.
class CImportDialog final : public fw::Dialog<CImportDialog> {
public:
    static constexpr UINT kTemplate = IDD_IMPORT;

    static constexpr auto Messages() { return fw::MessageMap{}; }

    // `count` is the number of items that there are already. Icon and help outlive the dialog.
    CImportDialog(int count, HICON smallIcon, about::HelpOpener& help);

    // What was selected when the dialog was confirmed, in the order of its list; empty otherwise. For one call.
    [[nodiscard]] std::vector<CLaunchItem> TakeItems() { return std::move(items_); }

private:
    int count_;
    HICON smallIcon_;
    about::HelpOpener& help_;
    std::vector<CLaunchItem> items_;
};

} // namespace korvane::launch
