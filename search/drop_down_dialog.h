#pragma once

#include <windows.h>

#include <commctrl.h>

#include <chrono>
#include <vector>

#include "base/geometry.h"
#include "framework/dialog.h"
#include "framework/image_list.h"
#include "res/ids.h"
#include "search/logic/history_rows.h"

namespace korvane::search {

// What the history drop-down asks of the bar. The bar must outlive it.
class HistoryDropDownHost {
public:
    // An entry goes into its box; the pop-up closes next.
    virtual void OnEntryPicked(Box box) = 0;
    // Takes an entry out of the history and gives the rows that are left.
    virtual std::vector<HistoryRow> RemoveEntry(Box box, const std::wstring& text) = 0;

    // The pop-up is gone, for whatever reason. Called once for every pop-up that was opened, and before any of the
    // others below.
    virtual void OnDropDownClosed(Box box) = 0;

    virtual void BrowseFile() = 0;
    virtual void BrowseFolder() = 0;
    virtual void ClearHistory(Box box) = 0;

protected:
    ~HistoryDropDownHost() = default;
};

// What a drop-down shows and where.
struct DropDownSetup {
    HWND owner = nullptr; // the bar
    HWND edit = nullptr;  // takes the text of a chosen history entry
    Box box = Box::kCommand;
    base::Rect region; // of the box with its buttons, in screen pixels
    std::vector<HistoryRow> rows;
    // An activation that is lost again so soon was not the user's doing: the system may still have been busy bringing
    // the bar to the front. It is taken back once.
    std::chrono::milliseconds openingMoment{500};
};

// The texts of the special rows, from the string table.
[[nodiscard]] HistoryRowTexts LoadHistoryRowTexts();

// The pop-up under a box in which its history is picked from. It belongs to itself: it frees itself when its window is
// gone, which it is as soon as something is chosen or it is no longer the active window.
class CDropDownDialog final : public fw::Dialog<CDropDownDialog> {
public:
    static constexpr UINT kTemplate = IDD_HISTORY_DROP_DOWN;
    static constexpr UINT kListId = 1000;
    // To itself, when what took the activation away has finished.
    static constexpr UINT kTakeActivationBack = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CDropDownDialog::OnInitDialog),
            fw::On<WM_ACTIVATE>(&CDropDownDialog::OnActivate),
            fw::On<kTakeActivationBack>(&CDropDownDialog::OnTakeActivationBack),
            fw::On<WM_ERASEBKGND>(&CDropDownDialog::OnEraseBackground),
            fw::OnCommand<IDOK>(&CDropDownDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CDropDownDialog::OnCancel),
            fw::OnNotify<kListId, NM_CLICK>(&CDropDownDialog::OnRowClicked),
            fw::OnNotify<kListId, LVN_KEYDOWN>(&CDropDownDialog::OnKeyDown),
            fw::OnNotify<kListId, NM_CUSTOMDRAW>(&CDropDownDialog::OnDrawRow),
        };
    }

    // Shows a new pop-up and gives its window, or null when there can be none; the host is then not told of a closing.
    static HWND Open(HistoryDropDownHost& host, DropDownSetup setup);

private:
    CDropDownDialog(HistoryDropDownHost& host, DropDownSetup setup);
    void OnFinalMessage() override;

    bool OnInitDialog(HWND focus);
    fw::Reply OnActivate(UINT activation, bool minimised);
    void OnTakeActivationBack(const fw::Message& message);
    LRESULT OnEraseBackground(HDC dc);
    void OnOk();
    fw::Reply OnCancel();
    void OnRowClicked(const NMITEMACTIVATE& click);
    void OnKeyDown(const NMLVKEYDOWN& key);
    LRESULT OnDrawRow(NMLVCUSTOMDRAW& draw);

    void MoveToBox();
    [[nodiscard]] bool CreateList();
    void AddColumn();
    // Replaces the rows of the list and selects one of them.
    void FillList(int selected);
    void SelectRow(int row);
    void RemoveRow(int row);
    [[nodiscard]] bool LostWhileOpening();
    [[nodiscard]] int SelectedRow() const;
    void Choose(int row);
    void Close();

    HistoryDropDownHost& host_;
    DropDownSetup setup_;
    HWND list_ = nullptr; // a child window
    fw::UniqueImageList rowHeight_;
    // What is left to be done when the pop-up is gone.
    HistoryAction pending_ = HistoryAction::kNone;
    bool closing_ = false;
    std::chrono::steady_clock::time_point opened_ = std::chrono::steady_clock::now();
    bool tookBack_ = false;
};

} // namespace korvane::search
