#pragma once

#include <windows.h>

#include "controls/list_item_look.h"
#include "framework/themed.h"
#include "framework/window.h"
#include "framework/windows_version.h"
#include "launch/launch_item.h"

namespace korvane::launch {

// The list of launch items in the options. A row's data is a pointer to its item, which is somebody else's; its text is
// the item's name, for screen readers. The dialog reflects WM_DRAWITEM.
class CLaunchMenuListBox final : public fw::Window<CLaunchMenuListBox>, public fw::Themed<CLaunchMenuListBox> {
public:
    static constexpr fw::WindowClass kClass{.name = L"LaunchMenuListBox_WndClass", .base = L"LISTBOX"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&CLaunchMenuListBox::OnCreate),
            fw::OnReflected<WM_DRAWITEM>(&CLaunchMenuListBox::OnDrawItem),
            fw::Chain<fw::Themed<CLaunchMenuListBox>>(),
        };
    }

    // Makes room in each row for two lines of text of the given height in pixels.
    void SetLineHeight(int lineHeightPx);
    [[nodiscard]] int RowHeight() const;

    [[nodiscard]] int Count() const;
    // The selected row, or -1.
    [[nodiscard]] int Selected() const;
    void Select(int row);
    // Null when there is no such row or nothing in it.
    [[nodiscard]] CLaunchItem* ItemAt(int row) const;
    // False when there is no memory for another row.
    bool Insert(int row, CLaunchItem* item);
    void Remove(int row);
    // Takes the row away and puts the item into another place, or into the same with its text brought up to date. What
    // is in view stays.
    void Move(int from, int to, CLaunchItem* item);

    // For the mix-in.
    [[nodiscard]] const wchar_t* ThemeClasses() const { return controls::kListTheme; }

private:
    LRESULT OnCreate(const fw::Message& message);
    LRESULT OnDrawItem(const DRAWITEMSTRUCT& item);
    void DrawRow(HDC dc, int row, const base::Rect& place, bool selected) const;

    int lineHeightPx_ = 0;
    const bool windows8_ = fw::IsWindowsAtLeast(fw::kWindows8);
};

} // namespace korvane::launch
