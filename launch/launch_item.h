#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "framework/handle.h"
#include "settings/logic/profile_store.h"

namespace korvane::launch {

// A program, document or folder that the user has put on a launch button or into the launch menu. It owns its icon and
// shares it with nobody: a copy extracts one of its own. Moving takes the icon along, so that a growing list does not
// go back to the files, which may lie on a computer that is slow to answer or is gone.
class CLaunchItem {
public:
    CLaunchItem() = default;
    CLaunchItem(const CLaunchItem& other) { Assign(other); }
    CLaunchItem& operator=(const CLaunchItem& other) {
        Assign(other);
        return *this;
    }
    CLaunchItem(CLaunchItem&&) noexcept = default;
    CLaunchItem& operator=(CLaunchItem&&) noexcept = default;
    ~CLaunchItem() = default;

    // Fills the item from the settings. False when there is none at this index or, with `withIcon`, when its icon
    // cannot be got. To start an item its icon does not matter: it is read without, and then has neither icon nor
    // index.
    [[nodiscard]] bool Load(const settings::ProfileStore& store, int index, bool withIcon);

    // Without an icon file the icon stays what it is, and the index with it.
    void Set(std::wstring path, std::wstring arguments, std::wstring workingFolder, std::wstring name,
             std::optional<std::wstring> iconFile = {}, int iconIndex = kNoIcon);
    // The icon alone; the one before is destroyed.
    void SetIcon(std::wstring file, int index);
    // Likewise, with the small icon that was got from there before, so that the file is not asked again.
    void SetIcon(std::wstring file, int index, fw::UniqueIcon icon);
    void Assign(const CLaunchItem& other);

    [[nodiscard]] std::pair<std::wstring, int> GetIconLocation() const { return {iconFile_, iconIndex_}; }
    // The line that stands for the item in the settings.
    [[nodiscard]] std::wstring Format() const;

    [[nodiscard]] const std::wstring& Path() const { return path_; }
    [[nodiscard]] const std::wstring& Arguments() const { return arguments_; }
    [[nodiscard]] const std::wstring& WorkingFolder() const { return workingFolder_; }
    [[nodiscard]] const std::wstring& Name() const { return name_; }
    // Null when there is none.
    [[nodiscard]] HICON Icon() const { return icon_.Get(); }

    static constexpr int kNoIcon = -1;

private:
    // Asks no file that cannot answer: for a file on a share that is gone, that takes seconds.
    void ExtractIcon();

    std::wstring path_;
    std::wstring arguments_;
    std::wstring workingFolder_;
    std::wstring iconFile_;
    std::wstring name_;
    fw::UniqueIcon icon_; // small
    int iconIndex_ = kNoIcon;
};

// The user's items. The list ends at the first that cannot be loaded with its icon, whatever stands behind it: it has
// no gaps, and every item in it has an icon.
[[nodiscard]] std::vector<CLaunchItem> LoadList(const settings::ProfileStore& store);

// The stored lines behind the list's last item: those that cannot be loaded now, and those that follow them. The items
// may be on a computer that is off. A line without a path stands for nothing and is left out.
[[nodiscard]] std::vector<std::wstring> ReadLinesFrom(const settings::ProfileStore& store, int listed);

// Replaces all that is stored by the items, in their order; a null pointer uses up its number, an item without a path,
// whose line would be read with all fields shifted, none. Lines that no item was made of follow them as they are, as
// far as there is room. An end of the process on the way costs no item that is to stay. False when something could not
// be written.
bool SaveList(settings::ProfileStore& store, std::span<const CLaunchItem* const> items,
              std::span<const std::wstring> unlisted = {});

} // namespace korvane::launch
