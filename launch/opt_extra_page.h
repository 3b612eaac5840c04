#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "about/help_opener.h"
#include "controls/option_page.h"
#include "framework/dialog.h"
#include "launch/launch_item.h"
#include "launch/launch_menu_list_box.h"
#include "res/ids.h"
#include "settings/logic/profile_store.h"

namespace korvane::launch {

// The options' page for the launch buttons and the launch menu.
class COptExtraPage final : public fw::Dialog<COptExtraPage> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS_LAUNCH;
    // To itself, for files that were dropped: whoever dropped them does not wait for their icons.
    static constexpr UINT kTakeDroppedFiles = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&COptExtraPage::OnInitDialog),
            fw::On<controls::kValidatePage>(&COptExtraPage::OnValidate),
            fw::On<WM_DRAWITEM>(&COptExtraPage::OnDrawItem),
            fw::On<WM_CTLCOLORDLG>(&COptExtraPage::OnColour),
            fw::On<WM_CTLCOLORSTATIC>(&COptExtraPage::OnColour),
            fw::On<WM_CTLCOLORBTN>(&COptExtraPage::OnColour),
            fw::On<WM_VKEYTOITEM>(&COptExtraPage::OnListKey),
            fw::On<WM_DROPFILES>(&COptExtraPage::OnDropFiles),
            fw::On<kTakeDroppedFiles>(&COptExtraPage::OnTakeDroppedFiles),
            fw::OnControl<IDC_LAUNCH_LIST, IDC_LAUNCH_LIST, LBN_SELCHANGE>(&COptExtraPage::UpdateButtons),
            fw::OnControl<IDC_LAUNCH_LIST, IDC_LAUNCH_LIST, LBN_DBLCLK>(&COptExtraPage::OnEdit),
            fw::OnCommand<IDC_MOVE_UP>(&COptExtraPage::OnMoveUp),
            fw::OnCommand<IDC_MOVE_DOWN>(&COptExtraPage::OnMoveDown),
            fw::OnCommand<IDC_ADD>(&COptExtraPage::OnAdd),
            fw::OnCommand<IDC_EDIT>(&COptExtraPage::OnEdit),
            fw::OnCommand<IDC_DELETE>(&COptExtraPage::OnDelete),
            fw::OnCommand<IDC_IMPORT>(&COptExtraPage::OnImport),
        };
    }

    // `smallIcon` is that of the page's dialogs. All outlive the page.
    COptExtraPage(settings::ProfileStore& store, HICON smallIcon, about::HelpOpener& help);

    // Replaces the stored items by those of the list. False when they could not be written.
    bool Save();

private:
    bool OnInitDialog(HWND firstControl);
    bool OnValidate(const fw::Message& message);
    fw::Reply OnDrawItem(const fw::Message& message);
    HBRUSH OnColour(const fw::Message& message);
    int OnListKey(const fw::Message& message);
    void OnDropFiles(const fw::Message& message);
    void OnTakeDroppedFiles(const fw::Message& message);
    void OnMoveUp();
    void OnMoveDown();
    void OnAdd();
    void OnEdit();
    void OnDelete();
    void OnImport();

    [[nodiscard]] HWND DialogOwner() const;
    void SizeList();
    void FillList();
    // At the end of the list when there is still room. The page owns the item, whatever becomes of its row.
    void Append(CLaunchItem item);
    void InsertAt(int row, CLaunchItem item);
    // Null for a row that there is not.
    [[nodiscard]] std::shared_ptr<CLaunchItem> ItemAt(int row) const;
    // Where an item stands now; -1 when it is in the list no more.
    [[nodiscard]] int RowOf(const CLaunchItem& item) const;
    void MoveSelectedTo(int row);
    void Select(int row);
    // After items were appended.
    void SelectLast();
    void UpdateButtons();
    void UpdateCount();
    void FocusList();

    settings::ProfileStore& store_;
    HICON smallIcon_;
    about::HelpOpener& help_;
    CLaunchMenuListBox list_;
    // In no order; the list's rows point to them. Whoever opens a dialog about an item holds on to it: the item may be
    // taken out of the list meanwhile.
    std::vector<std::shared_ptr<CLaunchItem>> items_;
    std::vector<std::wstring> unlisted_;
    std::vector<std::wstring> droppedFiles_;
};

} // namespace korvane::launch
