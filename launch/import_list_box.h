#pragma once

#include <windows.h>

#include <vector>

#include "framework/themed.h"
#include "framework/window.h"
#include "launch/importable_item.h"

namespace korvane::launch {

// The list of what can be imported: icon and name per row, any number of rows selected as far as there are places. A
// row that cannot be selected is grey, and however its selection is tried, it is refused.
class CImportListBox final : public fw::Window<CImportListBox>, public fw::Themed<CImportListBox> {
public:
    static constexpr fw::WindowClass kClass{.name = L"ImportListBox_WndClass", .base = L"LISTBOX"};
    // The names are kept as strings as well, for screen readers and for finding a row by its first letters.
    static constexpr DWORD kStyle =
        LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_EXTENDEDSEL | WS_VSCROLL;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&CImportListBox::OnCreate),
            fw::OnReflected<WM_MEASUREITEM>(&CImportListBox::OnMeasureItem),
            fw::OnReflected<WM_DRAWITEM>(&CImportListBox::OnDrawItem),
            fw::On<WM_KEYDOWN>(&CImportListBox::OnKeyDown),
            // Whatever can change the selection.
            fw::On<WM_CHAR>(&CImportListBox::OnInput),
            fw::On<WM_LBUTTONDOWN>(&CImportListBox::OnInput),
            fw::On<WM_LBUTTONUP>(&CImportListBox::OnInput),
            fw::On<WM_LBUTTONDBLCLK>(&CImportListBox::OnInput),
            fw::On<WM_MOUSEMOVE>(&CImportListBox::OnInput),
            fw::On<WM_TIMER>(&CImportListBox::OnInput),
            fw::On<LB_SETSEL>(&CImportListBox::OnInput),
            fw::On<LB_SELITEMRANGE>(&CImportListBox::OnInput),
            fw::On<LB_SELITEMRANGEEX>(&CImportListBox::OnInput),
            fw::Chain<fw::Themed<CImportListBox>>(),
        };
    }

    [[nodiscard]] const wchar_t* ThemeClasses() const;

    // How many rows may be selected at the same time.
    void SetPlaces(int places) { places_ = places; }
    void Clear();
    void Append(std::vector<ImportableItem> items);
    // Takes back what the list box selected and is not to be. The owner calls it before it looks at the selection from
    // LBN_SELCHANGE, which comes from the midst of the list box's own work.
    void RefuseSelection();

    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int SelectedCount() const;
    // True when there is a row that could be selected, had it a place.
    [[nodiscard]] bool AnySelectable() const;
    // From top to bottom.
    [[nodiscard]] std::vector<const ImportableItem*> Selected() const;

private:
    struct Row {
        ImportableItem item;
        bool selected = false; // when the selection was looked at last
    };

    LRESULT OnCreate(const fw::Message& message);
    void OnMeasureItem(MEASUREITEMSTRUCT& measure);
    void OnDrawItem(const DRAWITEMSTRUCT& draw);
    LRESULT OnKeyDown(const fw::Message& message);
    LRESULT OnInput(const fw::Message& message);

    // Asks the list box itself, without the map.
    LRESULT Ask(UINT id, WPARAM wparam = 0, LPARAM lparam = 0) { return Default({Handle(), id, wparam, lparam}); }
    void Deselect(int first, int last);
    void DrawRow(HDC dc, const RECT& rect, const ImportableItem& item, UINT state) const;

    int places_ = 0;
    std::vector<Row> rows_;
};

} // namespace korvane::launch
