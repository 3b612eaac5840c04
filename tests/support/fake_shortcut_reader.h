#pragma once

#include <windows.h>

#include <atomic>
#include <set>
#include <string>

#include "framework/handle.h"
#include "launch/shortcut.h"
#include "launch/shortcut_reader.h"
#include "tests/support/solid_icon.h"

namespace korvane::test {

// Answers from a shortcut's name alone. Names that begin with "grey" have no icon and cannot be selected; those in
// `hanging` get no answer before Release.
class FakeShortcutReader final : public launch::ShortcutReader {
public:
    std::set<std::wstring> hanging;
    bool givesIcons = true; // which costs time with thousands of shortcuts
    std::atomic<int> reads = 0;

    [[nodiscard]] launch::ImportableItem Read(const std::wstring& file, launch::ShortcutRoots&) override {
        launch::ImportableItem item = launch::UnresolvedItem(file);
        ++reads;
        if (hanging.contains(item.name)) ::WaitForSingleObject(released_.Get(), INFINITE);
        if (item.name.starts_with(L"grey")) return item;
        item.path = L"C:\\" + item.name + L".exe";
        item.arguments = L"/" + item.name;
        item.workingFolder = L"C:\\" + item.name;
        item.iconFile = L"C:\\" + item.name + L".ico";
        item.iconIndex = 3;
        if (givesIcons) item.icon = SolidIcon(RGB(200, 60, 20));
        item.selectable = true;
        return item;
    }
    void Release() { ::SetEvent(released_.Get()); }

private:
    fw::UniqueKernelHandle released_{::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

} // namespace korvane::test
