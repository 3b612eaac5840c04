#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "about/help_opener.h"
#include "controls/glyph_button.h"
#include "framework/dialog.h"
#include "framework/handle.h"
#include "launch/select_icon_list_box.h"
#include "res/ids.h"

namespace korvane::launch {

// Lets the user choose one of the icons of a file, and the file as well.
class CSelectIconDialog final : public fw::Dialog<CSelectIconDialog> {
public:
    static constexpr UINT kTemplate = IDD_SELECT_ICON;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CSelectIconDialog::OnInitDialog),
            fw::On<WM_DESTROY>(&CSelectIconDialog::OnDestroy),
            fw::On<WM_SYSCOLORCHANGE>(&CSelectIconDialog::OnColoursChanged),
            fw::On<WM_DRAWITEM>(&CSelectIconDialog::OnDrawItem),
            fw::On<WM_HELP>(&CSelectIconDialog::OnHelpKey),
            fw::OnCommand<IDOK>(&CSelectIconDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CSelectIconDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&CSelectIconDialog::OnHelp),
            fw::OnCommand<IDC_BROWSE_ICON_FILE>(&CSelectIconDialog::OnBrowse),
            fw::OnControl<IDC_ICON_FILE, IDC_ICON_FILE, EN_KILLFOCUS>(&CSelectIconDialog::OnFileLeft),
            fw::OnControl<CSelectIconListBox::kId, CSelectIconListBox::kId, LBN_SELCHANGE>(
                &CSelectIconDialog::OnIconSelected),
            fw::OnControl<CSelectIconListBox::kId, CSelectIconListBox::kId, LBN_DBLCLK>(
                &CSelectIconDialog::OnIconDoubleClicked),
        };
    }

    // Begins with this icon. Icon and help outlive the dialog.
    CSelectIconDialog(std::wstring iconFile, int iconIndex, HICON smallIcon, about::HelpOpener& help);

    [[nodiscard]] const std::wstring& IconFile() const { return iconFile_; }
    // -1 when none was selected.
    [[nodiscard]] int IconIndex() const { return iconIndex_; }

    // What the user picked as the icon file.
    void UseFile(const std::wstring& file);

private:
    bool OnInitDialog(HWND firstControl);
    fw::Reply OnDestroy();
    fw::Reply OnColoursChanged(const fw::Message& message);
    fw::Reply OnDrawItem(const fw::Message& message);
    LRESULT OnHelpKey(const fw::Message& message);
    void OnOk();
    void OnCancel();
    void OnHelp();
    void OnBrowse();
    void OnFileLeft();
    void OnIconSelected();
    void OnIconDoubleClicked();

    [[nodiscard]] std::wstring TypedFile() const;
    // Fills the list with the icons of the typed file, unless they are there already.
    void ShowIcons();
    void Choose();

    std::wstring iconFile_; // whose icons are listed
    int iconIndex_;         // what is selected, or was in the file before
    HICON smallIcon_;
    about::HelpOpener& help_;
    bool closing_ = false; // the field that still has the focus is left then
    // The list borrows them.
    std::vector<fw::UniqueIcon> icons_;
    CSelectIconListBox list_;
    controls::GlyphButton browse_{&controls::DotsGlyph};
};

} // namespace korvane::launch
