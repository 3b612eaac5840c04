#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "about/help_opener.h"
#include "framework/dialog.h"
#include "framework/timer.h"
#include "launch/import_list_box.h"
#include "launch/launch_item.h"
#include "launch/shortcut_reader.h"
#include "launch/shortcut_scan.h"
#include "res/ids.h"

namespace korvane::launch {

// Finds programs in folders of shortcuts and makes launch items of those that the user selects.
class CImportDialog final : public fw::Dialog<CImportDialog> {
public:
    static constexpr UINT kTemplate = IDD_IMPORT;
    // Posted to itself: the list of sources has been closed.
    static constexpr UINT kSourceListClosed = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CImportDialog::OnInitDialog),
            fw::On<WM_DESTROY>(&CImportDialog::OnDestroy),
            fw::On<WM_TIMER>(&CImportDialog::OnTimer),
            fw::On<WM_HELP>(&CImportDialog::OnHelpKey),
            fw::On<WM_DRAWITEM>(&CImportDialog::OnOwnerDraw),
            fw::On<WM_MEASUREITEM>(&CImportDialog::OnOwnerDraw),
            fw::On<kSourceListClosed>(&CImportDialog::OnSourceListClosed),
            fw::OnControl<IDC_IMPORT_SOURCE, IDC_IMPORT_SOURCE, CBN_SELCHANGE>(&CImportDialog::OnSourceSelected),
            fw::OnControl<IDC_IMPORT_SOURCE, IDC_IMPORT_SOURCE, CBN_CLOSEUP>(&CImportDialog::OnSourceCloseUp),
            fw::OnControl<IDC_IMPORT_LIST, IDC_IMPORT_LIST, LBN_SELCHANGE>(&CImportDialog::OnSelectionChanged),
            fw::OnCommand<IDC_IMPORT_STOP>(&CImportDialog::OnStop),
            fw::OnCommand<IDOK>(&CImportDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CImportDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&CImportDialog::OnHelp),
        };
    }

    // `count` is the number of items that there are already. Icon and help outlive the dialog.
    CImportDialog(int count, HICON smallIcon, about::HelpOpener& help);
    // With something else than the shell to read the shortcuts.
    CImportDialog(int count, HICON smallIcon, about::HelpOpener& help, std::shared_ptr<ShortcutReader> reader);

    // What was selected when the dialog was confirmed, in the order of its list; empty otherwise. For one call.
    [[nodiscard]] std::vector<CLaunchItem> TakeItems() { return std::move(items_); }

private:
    bool OnInitDialog(HWND firstControl);
    fw::Reply OnDestroy();
    void OnTimer(UINT_PTR id);
    fw::Reply OnOwnerDraw(const fw::Message& message);
    LRESULT OnHelpKey(const fw::Message& message);
    void OnSourceListClosed(const fw::Message& message);
    void OnSourceSelected();
    void OnSourceCloseUp();
    void OnSelectionChanged();
    void OnStop();
    void OnOk();
    void OnCancel();
    void OnHelp();

    void FillSources();
    void AddSource(const std::wstring& text);
    void SelectSource(int source);
    void ChangeSource();
    void AskForFolder();
    [[nodiscard]] std::optional<std::wstring> FolderOf(int source) const;
    void Scan(int source, const std::wstring& folder);
    // Puts what has been found into the list, and ends the waiting when that was all.
    void Collect();
    void ShowScanning(bool scanning);
    void EnableOk();
    void ShowCounts();
    void SetText(int id, const std::wstring& text);

    int count_;
    HICON smallIcon_;
    about::HelpOpener& help_;
    int source_ = -1;
    bool asking_ = false; // for a folder
    std::vector<std::wstring> foldersAskedFor_;
    ShortcutScan scan_;
    fw::Timer timer_;
    CImportListBox list_;
    std::vector<CLaunchItem> items_;
};

} // namespace korvane::launch
