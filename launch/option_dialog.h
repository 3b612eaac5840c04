#pragma once

#include <windows.h>

#include <commctrl.h>

#include "about/help_opener.h"
#include "controls/opt_main_page.h"
#include "controls/option_page.h"
#include "framework/dialog.h"
#include "framework/gdiplus_image.h"
#include "framework/handle.h"
#include "framework/image_list.h"
#include "launch/logic/option_pages.h"
#include "launch/opt_extra_page.h"
#include "launch/page_view.h"
#include "res/ids.h"
#include "search/opt_command_page.h"

namespace korvane::launch {

// What the options work on. All of it outlives the dialog.
struct OptionServices {
    search::SearchStores stores;
    search::UserCommandFile& userCommands;
    controls::HistoryKeeper& histories;
    about::HelpOpener& help;
};

// The options: a tree of pages on a dark strip, and the page chosen in it. All pages are saved together.
class COptionDialog final : public fw::Dialog<COptionDialog> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&COptionDialog::OnInitDialog),
            fw::On<WM_DESTROY>(&COptionDialog::OnDestroy),
            fw::On<WM_ERASEBKGND>(&COptionDialog::OnEraseBackground),
            fw::On<WM_CTLCOLORSTATIC>(&COptionDialog::OnStaticColour),
            fw::On<WM_CTLCOLORBTN>(&COptionDialog::OnStaticColour),
            fw::On<WM_DISPLAYCHANGE>(&COptionDialog::OnDisplayChange),
            fw::On<WM_SYSCOLORCHANGE>(&COptionDialog::OnSystemChange),
            fw::On<WM_DWMCOLORIZATIONCOLORCHANGED>(&COptionDialog::OnSystemChange),
            fw::On<WM_SETTINGCHANGE>(&COptionDialog::OnSystemChange),
            fw::On<WM_HELP>(&COptionDialog::OnHelpKey),
            fw::OnNotify<IDC_OPTION_TREE, TVN_SELCHANGINGW>(&COptionDialog::OnPageChanging),
            fw::OnNotify<IDC_OPTION_TREE, TVN_SELCHANGEDW>(&COptionDialog::OnPageChanged),
            fw::OnNotify<IDC_OPTION_TREE, NM_CUSTOMDRAW>(&COptionDialog::OnDrawTree),
            fw::OnCommand<IDC_OPTIONS_OK>(&COptionDialog::OnOk),
            fw::OnCommand<IDCANCEL>(&COptionDialog::OnCancel),
            fw::OnCommand<IDC_DIALOG_HELP>(&COptionDialog::OnHelp),
        };
    }

    COptionDialog(OptionPage startPage, const OptionServices& services);

    // Shows another page, unless the one on view holds input that it cannot leave.
    void GoTo(OptionPage page);
    // Makes the dialog small enough for an area of that size, or as large as it is meant: then its pages are seen
    // through a view that scrolls, and all that stands around them stays in reach.
    void FitInto(base::Size area);

private:
    bool OnInitDialog(HWND firstControl);
    fw::Reply OnDestroy();
    bool OnEraseBackground(HDC dc);
    HBRUSH OnStaticColour(const fw::Message& message);
    fw::Reply OnDisplayChange(UINT bitsPerPixel, SIZE screen);
    fw::Reply OnSystemChange(const fw::Message& message);
    LRESULT OnHelpKey(const fw::Message& message);
    LRESULT OnPageChanging(NMTREEVIEWW& change);
    void OnPageChanged(NMTREEVIEWW& change);
    LRESULT OnDrawTree(NMTVCUSTOMDRAW& drawing);
    void OnOk();
    void OnCancel();
    void OnHelp();

    bool CreatePages();
    void FillTree();
    // The view's place is in the dialog.
    bool ShowThroughView(const base::Rect& place);
    void ShowWhole();
    // Moves and sizes what stands around the pages by how much wider and higher the dialog has become.
    void Stretch(base::Size by);
    void ColourStrip();
    [[nodiscard]] HWND PageWindow(OptionPage page) const;
    // The page of the selected tree item; the first when none is selected.
    [[nodiscard]] OptionPage CurrentPage() const;
    // True when the page's input is acceptable.
    [[nodiscard]] bool Acceptable(OptionPage page) const;
    void Save();

    OptionPage startPage_;
    about::HelpOpener& help_;
    fw::UniqueIcon smallIcon_;
    controls::COptMainPage mainPage_;
    search::COptCommandPage commandPage_;
    COptExtraPage launchPage_;

    base::Size fullSize_;
    base::Rect pagePlace_;
    base::Size stretched_; // how much wider and higher than the full size it is
    PageView view_;

    fw::UniqueImageList treeImages_;
    fw::PngImage logo_;
    fw::PngImage plainLogo_; // without a shadow
    base::Size logoSize_;
    base::Point logoPlace_;
    int stripEnd_ = 0; // the right edge of the tree
    bool closing_ = false;
};

} // namespace korvane::launch
