#pragma once

#include <windows.h>

#include "base/geometry.h"
#include "controls/list_item_look.h"
#include "framework/themed.h"
#include "framework/window.h"
#include "framework/windows_version.h"
#include "res/ids.h"

namespace korvane::launch {

// A list of icons in columns; each row's data is one icon, which is borrowed. It draws itself when its parent reflects
// the draw messages.
class CSelectIconListBox final : public fw::Window<CSelectIconListBox>, public fw::Themed<CSelectIconListBox> {
public:
    static constexpr fw::WindowClass kClass{.name = L"SelectIconListBox_WndClass", .base = L"LISTBOX"};
    // It stands in the place of another control, so the dialog's template does not know it.
    static constexpr int kId = IDC_ICON_LIST;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::OnReflected<WM_DRAWITEM>(&CSelectIconListBox::OnDrawItem),
            fw::Chain<fw::Themed<CSelectIconListBox>>(),
        };
    }

    explicit CSelectIconListBox(bool windows8 = fw::IsWindowsAtLeast(fw::kWindows8)) : windows8_{windows8} {}

    // Takes the place of a control of the dialog. False when Windows had no list to give.
    [[nodiscard]] bool TakePlaceOf(HWND dialog, int id);

    void Clear();
    // Announces so many icons, which makes adding them quick; nothing is drawn until EndAdding.
    void BeginAdding(std::size_t count);
    // A null icon keeps its row, which stays empty: the rows are counted as the icons of their file are.
    void Add(HICON icon);
    void EndAdding();

    [[nodiscard]] int Count() const;
    // -1 when there is none.
    [[nodiscard]] int Selected() const;
    // No row is selected when there is no such row.
    void Select(int row);

    // For the mix-in.
    [[nodiscard]] const wchar_t* ThemeClasses() const { return controls::kListTheme; }

private:
    bool OnDrawItem(const DRAWITEMSTRUCT& item);
    void Paint(HDC dc, const base::Rect& row, HICON icon, UINT state) const;

    bool windows8_;
};

} // namespace korvane::launch
