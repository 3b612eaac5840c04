#include "launch/option_dialog.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "about/logic/help_topics.h"
#include "base/colour.h"
#include "controls/logic/content_layout.h"
#include "framework/centred_message_box.h"
#include "framework/centring.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/icons.h"
#include "framework/monitors.h"
#include "framework/pixel_bitmap.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "launch/logic/options_fit.h"

namespace korvane::launch {
namespace {

// Of the strip with the tree.
struct StripColours {
    base::Colour ground;
    base::Colour text;
    base::Colour selectedGround;
    base::Colour selectedText;
};

StripColours StripColoursNow() {
    constexpr base::Colour kWhite = base::Colour::Rgb(255, 255, 255);
    constexpr base::Colour kGrey = base::Colour::Rgb(96, 96, 96);
    if (!fw::HighContrast()) return {kGrey, kWhite, base::kThemeColour, kWhite};
    const auto system = [](int index) { return base::Colour{::GetSysColor(index)}; };
    return {system(COLOR_WINDOW), system(COLOR_WINDOWTEXT), system(COLOR_HIGHLIGHT), system(COLOR_HIGHLIGHTTEXT)};
}

// How much higher than usual a row of the tree is, at 96 dpi.
constexpr int kExtraRowHeight = 7;

// Among the images of the tree. The first is that of the dialog itself.
constexpr int kPageImage = 1;

constexpr INT_PTR kFailed = -1;

// TVS_EX_DOUBLEBUFFER of Windows Vista, which older headers do not name.
constexpr LPARAM kDoubleBuffered = 0x0004;

std::wstring_view TopicOf(OptionPage page) {
    switch (page) {
    case OptionPage::kCommands:
        return about::help_topic::kSearchOptions;
    case OptionPage::kLaunch:
        return about::help_topic::kLaunchOptions;
    default:
        return about::help_topic::kMainOptions;
    }
}

} // namespace

COptionDialog::COptionDialog(OptionPage startPage, const OptionServices& services)
    : startPage_{startPage}, help_{services.help}, smallIcon_{fw::LoadResourceIcon(IDI_SETTINGS,
                                                                                   ::GetSystemMetrics(SM_CXSMICON))},
      mainPage_{services.stores.settings, services.histories}, commandPage_{services.stores, services.userCommands,
                                                                            services.help},
      launchPage_{services.stores.settings, smallIcon_.Get(), services.help} {}

bool COptionDialog::OnInitDialog(HWND) {
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.Get()));
    const controls::MenuPictures pictures = controls::MenuPicturesFor(fw::Scale().Dpi());
    logo_ = fw::PngImage::FromResource(pictures.onDark);
    plainLogo_ = fw::PngImage::FromResource(pictures.onLight);
    logoSize_ = controls::DrawnSize(logo_.Extent(), pictures.artDpi, fw::Scale().Dpi());

    RECT tree{};
    ::GetWindowRect(Control(IDC_OPTION_TREE), &tree);
    RECT logo{};
    ::GetWindowRect(Control(IDC_LOGO_PLACE), &logo);
    for (RECT* const rect : {&tree, &logo}) ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(rect), 2);
    stripEnd_ = tree.right;
    logoPlace_ = {logo.left, logo.top};

    if (!CreatePages()) {
        fw::ShowMessageById(::GetParent(Handle()), IDS_DIALOG_FAILED, MB_ICONEXCLAMATION);
        ::EndDialog(Handle(), kFailed);
        return true;
    }
    FillTree();
    GoTo(startPage_);
    fullSize_ = fw::WindowRect(Handle()).Extent();
    FitInto(fw::WorkAreaOf(Handle()).Extent());
    fw::CentreWindow(Handle(), nullptr, fw::CentreOn::kCurrentMonitor);
    ::SetFocus(Control(IDC_OPTION_TREE));
    return false;
}

bool COptionDialog::CreatePages() {
    if (!mainPage_.Create(Handle()) || !commandPage_.Create(Handle()) || !launchPage_.Create(Handle())) return false;
    const HWND placeholder = Control(IDC_PAGE_PLACE);
    RECT place{};
    ::GetWindowRect(placeholder, &place);
    ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&place), 2);
    pagePlace_ = fw::FromWindows(place);
    // Behind the placeholder also in the tab order: after the tree and before the buttons.
    for (const OptionPage page : kOptionPages)
        ::SetWindowPos(PageWindow(page), placeholder, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    return true;
}

void COptionDialog::FitInto(base::Size area) {
    const base::Size bars{::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)};
    const OptionsFit fit = FitOptions(fullSize_, pagePlace_.Extent(), area, bars);
    if (fit.scrolled) {
        if (!ShowThroughView(base::Rect::At(pagePlace_.TopLeft(), fit.page))) return;
    } else if (view_.Handle()) {
        ShowWhole();
    }
    const base::Size stretched{fit.window.width - fullSize_.width, fit.window.height - fullSize_.height};
    if (stretched == stretched_) return;
    Stretch({stretched.width - stretched_.width, stretched.height - stretched_.height});
    stretched_ = stretched;
    ::SetWindowPos(Handle(), nullptr, 0, 0, fit.window.width, fit.window.height,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ::InvalidateRect(Handle(), nullptr, TRUE);
}

bool COptionDialog::ShowThroughView(const base::Rect& place) {
    if (!view_.Handle()) {
        if (!view_.Open(Handle(), Control(IDC_PAGE_PLACE))) return false;
        for (const OptionPage page : kOptionPages) ::SetParent(PageWindow(page), view_.Handle());
    }
    view_.Show(place, pagePlace_.Extent());
    return true;
}

void COptionDialog::ShowWhole() {
    for (const OptionPage page : kOptionPages) {
        ::SetParent(PageWindow(page), Handle());
        ::SetWindowPos(PageWindow(page), Control(IDC_PAGE_PLACE), pagePlace_.left, pagePlace_.top, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE);
    }
    ::DestroyWindow(view_.Handle());
}

void COptionDialog::Stretch(base::Size by) {
    const auto placeOf = [this](HWND control) {
        RECT r = fw::ToWindows(fw::WindowRect(control));
        ::MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&r), 2);
        return fw::FromWindows(r);
    };
    for (const int id : {IDC_OPTIONS_OK, IDCANCEL, IDC_DIALOG_HELP}) {
        const base::Rect place = placeOf(Control(id)).Offset(by.width, by.height);
        ::SetWindowPos(Control(id), nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    const HWND tree = Control(IDC_OPTION_TREE);
    const base::Size extent = placeOf(tree).Extent();
    ::SetWindowPos(tree, nullptr, 0, 0, extent.width, std::max(extent.height + by.height, 0),
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    logoPlace_.y += by.height;
}

void COptionDialog::FillTree() {
    const HWND tree = Control(IDC_OPTION_TREE);
    treeImages_ = fw::MakeImageList({IDI_SETTINGS, IDI_OPTION_PAGE}, ::GetSystemMetrics(SM_CXSMICON));
    ColourStrip();
    ::SendMessageW(tree, TVM_SETEXTENDEDSTYLE, static_cast<WPARAM>(kDoubleBuffered), kDoubleBuffered);
    for (const OptionPage page : kOptionPages) {
        std::wstring name = fw::LoadText(OptionPageName(page));
        TVINSERTSTRUCTW insertion{};
        insertion.hParent = TVI_ROOT;
        insertion.hInsertAfter = TVI_LAST;
        insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
        insertion.item.pszText = name.data();
        insertion.item.iImage = insertion.item.iSelectedImage = kPageImage;
        insertion.item.lParam = static_cast<LPARAM>(page);
        ::SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion));
    }
    TreeView_SetItemHeight(tree, TreeView_GetItemHeight(tree) + fw::Scale()(kExtraRowHeight));
}

void COptionDialog::ColourStrip() {
    const HWND tree = Control(IDC_OPTION_TREE);
    const StripColours colours = StripColoursNow();
    TreeView_SetBkColor(tree, fw::ToWindows(colours.ground));
    TreeView_SetTextColor(tree, fw::ToWindows(colours.text));
    // The same picture before every name tells nothing, and it is made for the dark strip.
    TreeView_SetImageList(tree, fw::HighContrast() ? nullptr : treeImages_.Get(), TVSIL_NORMAL);
}

fw::Reply COptionDialog::OnDestroy() {
    closing_ = true;
    // The tree never owns its images.
    TreeView_SetImageList(Control(IDC_OPTION_TREE), nullptr, TVSIL_NORMAL);
    return fw::kPassOn;
}

void COptionDialog::GoTo(OptionPage page) {
    const HWND tree = Control(IDC_OPTION_TREE);
    HTREEITEM item = TreeView_GetRoot(tree);
    for (int i = 0; item && i < static_cast<int>(page); ++i) item = TreeView_GetNextSibling(tree, item);
    if (item) TreeView_SelectItem(tree, item);
}

HWND COptionDialog::PageWindow(OptionPage page) const {
    switch (page) {
    case OptionPage::kCommands:
        return commandPage_.Handle();
    case OptionPage::kLaunch:
        return launchPage_.Handle();
    default:
        return mainPage_.Handle();
    }
}

OptionPage COptionDialog::CurrentPage() const {
    const HWND tree = Control(IDC_OPTION_TREE);
    TVITEMW item{};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = TreeView_GetSelection(tree);
    if (!item.hItem || !::SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
        return OptionPage::kMain;
    return static_cast<OptionPage>(item.lParam);
}

bool COptionDialog::Acceptable(OptionPage page) const {
    return ::SendMessageW(PageWindow(page), controls::kValidatePage, 0, 0) == 0;
}

LRESULT COptionDialog::OnPageChanging(NMTREEVIEWW& change) {
    if (closing_ || !change.itemOld.hItem) return FALSE;
    return !Acceptable(static_cast<OptionPage>(change.itemOld.lParam));
}

void COptionDialog::OnPageChanged(NMTREEVIEWW& change) {
    // The tree is emptied when it is destroyed.
    if (closing_ || !change.itemNew.hItem) return;
    const auto shown = static_cast<OptionPage>(change.itemNew.lParam);
    ::ShowWindow(PageWindow(shown), SW_SHOWNA);
    for (const OptionPage page : kOptionPages)
        if (page != shown) ::ShowWindow(PageWindow(page), SW_HIDE);
    // When it was not the tree that was used, the focus may be on the page that has gone.
    const HWND focus = ::GetFocus();
    if (focus && ::IsChild(Handle(), focus) && !::IsWindowVisible(focus)) ::SetFocus(Control(IDC_OPTION_TREE));
    const std::wstring name = fw::LoadText(OptionPageName(shown));
    ::SetWindowTextW(Handle(), fw::FormatResource(IDS_OPTIONS_CAPTION, std::wstring_view{name}).c_str());
}

// A selected row is as well to be seen without the focus as with it; the tree's own colours for that would be white on
// light grey.
LRESULT COptionDialog::OnDrawTree(NMTVCUSTOMDRAW& drawing) {
    switch (drawing.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT: {
        const StripColours colours = StripColoursNow();
        const bool selected = (drawing.nmcd.uItemState & CDIS_SELECTED) != 0;
        drawing.clrText = fw::ToWindows(selected ? colours.selectedText : colours.text);
        drawing.clrTextBk = fw::ToWindows(selected ? colours.selectedGround : colours.ground);
        return CDRF_DODEFAULT;
    }
    default:
        return CDRF_DODEFAULT;
    }
}

bool COptionDialog::OnEraseBackground(HDC dc) {
    const base::Rect client = fw::ClientRect(Handle());
    const RECT all = fw::ToWindows(client);
    ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_WINDOW));
    const RECT strip{0, 0, stripEnd_, client.bottom};
    const StripColours colours = StripColoursNow();
    const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(colours.ground))};
    ::FillRect(dc, &strip, brush.Get());
    const base::Rect logo = base::Rect::At(logoPlace_, logoSize_);
    if (!fw::HighContrast()) {
        logo_.Draw(dc, logo);
        return true;
    }
    fw::DrawSilhouette(dc, logo, fw::ToWindows(colours.text), [this](HDC one) {
        plainLogo_.Draw(one, base::Rect::At({0, 0}, logoSize_));
        return true;
    });
    return true;
}

HBRUSH COptionDialog::OnStaticColour(const fw::Message& message) {
    const auto dc = reinterpret_cast<HDC>(message.wparam);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkMode(dc, TRANSPARENT);
    return ::GetSysColorBrush(COLOR_WINDOW);
}

fw::Reply COptionDialog::OnDisplayChange(UINT, SIZE) {
    // The screen may have become smaller, or the dialog's own may be gone.
    FitInto(fw::WorkAreaOf(Handle()).Extent());
    const base::Rect window = fw::WindowRect(Handle());
    const auto holdsAll = [&](const base::Rect& area) { return base::Intersection(area, window) == window; };
    if (!std::ranges::any_of(fw::WorkAreas(), holdsAll))
        fw::CentreWindow(Handle(), nullptr, fw::CentreOn::kCurrentMonitor);
    return fw::kPassOn;
}

// Only top-level windows are told of new colours.
fw::Reply COptionDialog::OnSystemChange(const fw::Message& message) {
    ColourStrip();
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    for (const OptionPage page : kOptionPages)
        ::SendMessageW(PageWindow(page), message.id, message.wparam, message.lparam);
    return fw::kPassOn;
}

void COptionDialog::OnOk() {
    if (!Acceptable(CurrentPage())) return;
    Save();
    EndConfirmed();
}

void COptionDialog::Save() {
    // That a setting could not be written is not told; what is stored goes on to serve.
    static_cast<void>(mainPage_.Save());
    static_cast<void>(commandPage_.Save());
    static_cast<void>(launchPage_.Save());
}

void COptionDialog::OnCancel() {
    ::EndDialog(Handle(), IDCANCEL);
}

void COptionDialog::OnHelp() {
    help_.OpenHelp(TopicOf(CurrentPage()), Handle());
}

LRESULT COptionDialog::OnHelpKey(const fw::Message&) {
    OnHelp();
    return TRUE;
}

} // namespace korvane::launch
