#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "about/help_opener.h"
#include "controls/glyph_button.h"
#include "framework/dialog.h"
#include "framework/image_list.h"
#include "launch/launch_item.h"
#include "launch/logic/item_check.h"
#include "res/ids.h"

namespace korvane::launch {

// Edits one launch item, or makes a new one.
class CAddMenuDialog final : public fw::Dialog<CAddMenuDialog> {
public:
    static constexpr UINT kTemplate = IDD_ADD_LAUNCH_ITEM;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CAddMenuDialog::OnInitDialog),
            fw::On<WM_DESTROY>(&CAddMenuDialog::OnDestroy),
            fw::On<WM_SYSCOLORCHANGE>(&CAddMenuDialog::OnColoursChanged),
            fw::On<WM_HELP>(&CAddMenuDialog::OnHelpKey),
            fw::OnCommand<IDOK>(&CAddMenuDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&CAddMenuDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&CAddMenuDialog::OnHelp),
            fw::OnCommand<IDC_BROWSE_PROGRAM>(&CAddMenuDialog::OnBrowseProgram),
            fw::OnCommand<IDC_BROWSE_WORKING_FOLDER>(&CAddMenuDialog::OnBrowseFolder),
            fw::OnCommand<IDC_CHANGE_ICON>(&CAddMenuDialog::OnChangeIcon),
            fw::OnControl<IDC_PROGRAM, IDC_PROGRAM, EN_CHANGE>(&CAddMenuDialog::UpdateButtons),
            fw::OnControl<IDC_ITEM_NAME, IDC_ITEM_NAME, EN_CHANGE>(&CAddMenuDialog::UpdateButtons),
        };
    }

    // Without an item to edit a new one is made. Icon and help outlive the dialog.
    CAddMenuDialog(HICON smallIcon, about::HelpOpener& help, std::optional<CLaunchItem> edited = {});

    [[nodiscard]] const CLaunchItem& Item() const { return item_; }

    // Takes what the user picked as the program: with its icon and, unless the name is to be kept, its name.
    void UseProgram(const std::wstring& program);
    // Takes an icon that the user chose.
    void UseIcon(const std::wstring& file, int index);

private:
    bool OnInitDialog(HWND firstControl);
    fw::Reply OnDestroy();
    fw::Reply OnColoursChanged(const fw::Message& message);
    LRESULT OnHelpKey(const fw::Message& message);
    void OnOk();
    void OnCancel();
    void OnHelp();
    void OnBrowseProgram();
    void OnBrowseFolder();
    void OnChangeIcon();
    void UpdateButtons();

    [[nodiscard]] std::wstring TextOf(int id) const;
    void SetText(int id, const std::wstring& text);
    void PrepareIconButton();
    // The item's icon, or a picture that stands for none.
    void ShowIcon();
    [[nodiscard]] ItemFields Fields() const;
    // False when the user does not want the item to be taken as it is.
    [[nodiscard]] bool Ask(const ItemProblem& problem);

    HICON smallIcon_;
    about::HelpOpener& help_;
    bool editing_;
    CLaunchItem item_;
    fw::UniqueImageList shownIcon_; // one image, on the button
    controls::GlyphButton browseProgram_{&controls::DotsGlyph};
    controls::GlyphButton browseFolder_{&controls::DotsGlyph};
};

} // namespace korvane::launch
