#include "launch/launch_item.h"

#include <tuple>

#include "base/text.h"
#include "framework/icons.h"
#include "launch/logic/launch_limits.h"
#include "launch/logic/launch_line.h"
#include "launch/search_path.h"
#include "launch/stored_line.h"
#include "settings/logic/setting_keys.h"
#include "settings/logic/stored_list.h"

namespace korvane::launch {

bool CLaunchItem::Load(const settings::ProfileStore& store, int index, bool withIcon) {
    icon_.Reset();
    iconIndex_ = kNoIcon;
    const StoredLine line = ReadStoredLine(store, index);
    if (line.text.empty()) return false;

    std::wstring iconIndexText;
    std::tie(path_, arguments_, workingFolder_, iconFile_, iconIndexText, name_) =
        std::tuple_cat(SplitLaunchLine(line.text));
    if (!withIcon) return true;

    if (iconFile_.empty()) return false;
    iconIndex_ = base::LeadingInteger(iconIndexText);
    ExtractIcon();
    if (!icon_) return false;
    if (line.builtIn) {
        path_ = WithFolderFound(std::move(path_));
        iconFile_ = WithFolderFound(std::move(iconFile_));
    }
    return true;
}

void CLaunchItem::Set(std::wstring path, std::wstring arguments, std::wstring workingFolder, std::wstring name,
                      std::optional<std::wstring> iconFile, int iconIndex) {
    path_ = std::move(path);
    arguments_ = std::move(arguments);
    workingFolder_ = std::move(workingFolder);
    name_ = std::move(name);
    if (iconFile) SetIcon(*std::move(iconFile), iconIndex);
}

void CLaunchItem::SetIcon(std::wstring file, int index) {
    iconFile_ = std::move(file);
    iconIndex_ = index;
    ExtractIcon();
}

void CLaunchItem::SetIcon(std::wstring file, int index, fw::UniqueIcon icon) {
    iconFile_ = std::move(file);
    iconIndex_ = index;
    icon_ = std::move(icon);
}

void CLaunchItem::Assign(const CLaunchItem& other) {
    if (this == &other) return;
    path_ = other.path_;
    arguments_ = other.arguments_;
    workingFolder_ = other.workingFolder_;
    iconFile_ = other.iconFile_;
    name_ = other.name_;
    iconIndex_ = other.iconIndex_;
    ExtractIcon();
}

std::wstring CLaunchItem::Format() const {
    return FormatLaunchLine({.path = path_,
                             .arguments = arguments_,
                             .workingFolder = workingFolder_,
                             .iconFile = iconFile_,
                             .iconIndex = iconIndex_,
                             .name = name_});
}

void CLaunchItem::ExtractIcon() {
    icon_.Reset();
    if (!iconFile_.empty() && iconIndex_ != kNoIcon) icon_ = fw::ExtractSmallIcon(iconFile_, iconIndex_);
}

std::vector<CLaunchItem> LoadList(const settings::ProfileStore& store) {
    std::vector<CLaunchItem> items;
    for (int index = 0; index < MaxLaunchItems; ++index) {
        CLaunchItem item;
        if (!item.Load(store, index, true)) break;
        items.push_back(std::move(item));
    }
    return items;
}

std::vector<std::wstring> ReadLinesFrom(const settings::ProfileStore& store, int listed) {
    std::vector<std::wstring> lines;
    for (int index = listed; index < MaxLaunchItems; ++index) {
        StoredLine line = ReadStoredLine(store, index);
        // What stands behind a number that is missing was never in the list.
        if (line.text.empty()) break;
        if (!line.builtIn && HasPath(line.text)) lines.push_back(std::move(line.text));
    }
    return lines;
}

bool SaveList(settings::ProfileStore& store, std::span<const CLaunchItem* const> items,
              std::span<const std::wstring> unlisted) {
    std::vector<std::wstring> lines;
    for (const CLaunchItem* const item : items) {
        if (!item) {
            lines.emplace_back();
        } else if (!base::Trimmed(item->Path()).empty()) {
            lines.push_back(item->Format());
        }
    }
    lines.insert(lines.end(), unlisted.begin(), unlisted.end());
    if (lines.size() > std::size_t{MaxLaunchItems}) lines.resize(MaxLaunchItems);
    return settings::StoreList(store, settings::keys::LaunchMenuItem, lines, MaxLaunchItems);
}

} // namespace korvane::launch
