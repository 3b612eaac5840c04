#include "launch/edit_stored_item.h"

#include <string>
#include <vector>

#include "launch/add_menu_dialog.h"
#include "launch/launch_item.h"

namespace korvane::launch {

EditOutcome EditStoredItem(HWND owner, settings::ProfileStore& store, int index, HICON smallIcon,
                           about::HelpOpener& help) {
    const auto at = static_cast<std::size_t>(index);
    std::vector<CLaunchItem> items = LoadList(store);
    if (at >= items.size()) return EditOutcome::kNotListed;
    CAddMenuDialog editor{smallIcon, help, items[at]};
    // How it was closed is not told by its result.
    static_cast<void>(editor.ShowModal(owner));
    if (!editor.Confirmed()) return EditOutcome::kCancelled;
    items[at].Assign(editor.Item());
    std::vector<const CLaunchItem*> saved;
    saved.reserve(items.size());
    for (const CLaunchItem& item : items) saved.push_back(&item);
    return SaveList(store, saved, ReadLinesFrom(store, static_cast<int>(items.size()))) ? EditOutcome::kSaved
                                                                                        : EditOutcome::kCancelled;
}

} // namespace korvane::launch
