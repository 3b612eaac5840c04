#include "controls/opt_main_page.h"

#include <array>
#include <initializer_list>
#include <string>
#include <utility>

#include "controls/colour_dialog.h"
#include "framework/centred_message_box.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/placeholder.h"
#include "framework/program_path.h"
#include "framework/string_table.h"
#include "framework/window_text.h"
#include "settings/logic/bar_colour.h"

namespace korvane::controls {
namespace {

namespace keys = settings::keys;

// At 96 dpi.
constexpr int kImageSize = 16;

// The three bytes of a colour; a damaged setting may hold more, which Windows would take for another kind of colour.
constexpr std::uint32_t kColourBytes = 0x00FFFFFF;

void AddRow(HWND list, const std::wstring& text) {
    ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

int ShowOptionsMessage(HWND page, UINT textId, UINT flags) {
    const HWND options = ::GetAncestor(page, GA_ROOT);
    return fw::ShowMessage(options, fw::LoadText(textId), fw::WindowText(options), flags);
}

} // namespace

COptMainPage::COptMainPage(settings::ProfileStore& store, HistoryKeeper& histories, settings::AutoRun autoRun,
                           const LocalClock& clock, SystemColour systemColour)
    : store_{store}, histories_{histories}, autoRun_{std::move(autoRun)}, systemColour_{systemColour}, sample_{clock} {}

bool COptMainPage::OnInitDialog(HWND) {
    ReplaceControls();
    ::SendMessageW(Control(IDC_HISTORY_LENGTH), EM_SETLIMITTEXT, kHistoryLengthDigits, 0);
    const HWND arrows = Control(IDC_HISTORY_LENGTH_SPIN);
    ::SendMessageW(arrows, UDM_SETBUDDY, reinterpret_cast<WPARAM>(Control(IDC_HISTORY_LENGTH)), 0);
    ::SendMessageW(arrows, UDM_SETRANGE, 0, MAKELPARAM(kLongestHistory, 0));
    FillLists();
    Load();
    if (histories_.HistoriesEmpty()) Enable(IDC_CLEAR_HISTORIES, false);
    return false;
}

void COptMainPage::ReplaceControls() {
    const int size = fw::Scale()(kImageSize);
    colourImages_ = fw::MakeImageList({IDI_COLOUR, IDI_COLOUR_DISABLED}, size);
    clearImages_ = fw::MakeImageList({IDI_CLEAR_HISTORIES, IDI_CLEAR_HISTORIES_DISABLED}, size);
    pickColour_.SetImages(colourImages_.Get());
    clearHistories_.SetImages(clearImages_.Get());
    pickColour_.SetTip(fw::LoadText(IDS_PICK_COLOUR));
    clearHistories_.SetTip(fw::LoadText(IDS_CLEAR_HISTORIES_TIP));
    // What cannot be had leaves the template's control, which does its duty with less comfort.
    (void)pickColour_.Replace(Handle(), IDC_PICK_COLOUR);
    (void)clearHistories_.Replace(Handle(), IDC_CLEAR_HISTORIES);
    (void)fw::TakePlace(historyLength_, Handle(), IDC_HISTORY_LENGTH);
    (void)sample_.Replace(Handle(), IDC_CLOCK_SAMPLE);
}

void COptMainPage::FillLists() {
    for (const int text : kEdgeTexts) AddRow(Control(IDC_BAR_EDGE), fw::LoadText(static_cast<UINT>(text)));
    for (const int text : kColourTexts) AddRow(Control(IDC_BAR_COLOUR), fw::LoadText(static_cast<UINT>(text)));
    for (const std::wstring& text : DelayTexts()) AddRow(Control(IDC_HIDE_DELAY), text);
    for (const int text : kFormatTexts) AddRow(Control(IDC_CLOCK_FORMAT), fw::LoadText(static_cast<UINT>(text)));
}

void COptMainPage::Load() {
    SelectRow(IDC_BAR_EDGE, EdgeRow(store_.Read(keys::DesktopBarEdge)));
    SelectRow(IDC_BAR_COLOUR, ColourRow(store_.Read(keys::DefaultBarColor)));
    userColour_ = {store_.Read(keys::UserBarColor, SystemColourNow()).value & kColourBytes};
    ShowColour();
    Check(IDC_AUTO_RUN, autoRun_.IsSet());
    for (const OptionBox& box : kOptionBoxes) ShowBox(box);
    ::SetWindowTextW(Control(IDC_HISTORY_LENGTH), HistoryLengthText(store_.Read(keys::SaveListItemNum)).c_str());
    SelectRow(IDC_HIDE_DELAY, DelayRow(store_.Read(keys::DesktopBarAutoHideSecond)));
    ShowBox(kShowClockBox);
    SelectRow(IDC_CLOCK_FORMAT, FormatRow(store_.Read(keys::TimeBarClockFormat)));
    ShowFormat();
    ShowBox(kTaskNamesBox);
    EnableDependents();
}

bool COptMainPage::Save() {
    // A page that was never opened has nothing to save.
    if (!Handle()) return true;
    bool saved = store_.Write(keys::DesktopBarEdge, Row(IDC_BAR_EDGE));
    saved &= store_.Write(keys::DefaultBarColor, Row(IDC_BAR_COLOUR));
    saved &= store_.Write(keys::UserBarColor, userColour_);
    saved &= SaveAutoRun();
    for (const OptionBox& box : kOptionBoxes) saved &= SaveBox(box);
    const auto length = HistoryLengthOf(fw::WindowText(Control(IDC_HISTORY_LENGTH)));
    saved &= store_.Write(keys::SaveListItemNum, length.value_or(kNoHistoryLength));
    saved &= store_.Write(keys::DesktopBarAutoHideSecond, Row(IDC_HIDE_DELAY));
    saved &= SaveBox(kShowClockBox);
    saved &= store_.Write(keys::TimeBarClockFormat, Row(IDC_CLOCK_FORMAT));
    saved &= SaveBox(kTaskNamesBox);
    return saved;
}

bool COptMainPage::SaveAutoRun() {
    if (!Checked(IDC_AUTO_RUN)) return autoRun_.Clear();
    const auto program = fw::ProgramPath();
    return program && autoRun_.Set(*program);
}

bool COptMainPage::OnValidate(const fw::Message&) {
    if (!Checked(IDC_SAVE_HISTORIES) || HistoryLengthOf(fw::WindowText(Control(IDC_HISTORY_LENGTH)))) return false;
    ShowOptionsMessage(Handle(), IDS_NO_HISTORY_LENGTH, MB_ICONEXCLAMATION);
    FocusOn(Control(IDC_HISTORY_LENGTH));
    // A tree that was clicked takes the focus to itself after it has asked.
    ::PostMessageW(::GetAncestor(Handle(), GA_ROOT), WM_NEXTDLGCTL,
                   reinterpret_cast<WPARAM>(Control(IDC_HISTORY_LENGTH)), TRUE);
    return true;
}

fw::Reply COptMainPage::OnShow(bool visible) {
    // A window hears only of its own hiding, not of its parent's.
    sample_.Run(visible);
    return fw::kPassOn;
}

fw::Reply COptMainPage::OnDrawItem(const fw::Message& message) {
    return Reflect(message);
}

HBRUSH COptMainPage::OnColourOfGround(const fw::Message& message) {
    auto* const dc = reinterpret_cast<HDC>(message.wparam);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    ::SetBkMode(dc, TRANSPARENT);
    return ::GetSysColorBrush(COLOR_WINDOW);
}

fw::Reply COptMainPage::OnColourOfStatic(const fw::Message& message) {
    auto* const control = reinterpret_cast<HWND>(message.lparam);
    if (swatch_ && control == Control(IDC_COLOUR_SWATCH)) return reinterpret_cast<LRESULT>(swatch_.Get());
    // A field or list that is greyed asks as a static control does, but is to look grey.
    constexpr LRESULT kFieldOrList = DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS;
    if ((::SendMessageW(control, WM_GETDLGCODE, 0, 0) & kFieldOrList) != 0) return fw::kPassOn;
    return reinterpret_cast<LRESULT>(OnColourOfGround(message));
}

fw::Reply COptMainPage::OnColoursChanged(const fw::Message& message) {
    // The arrows are drawn in colours that they remember.
    ::SendMessageW(Control(IDC_HISTORY_LENGTH_SPIN), message.id, message.wparam, message.lparam);
    ::RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    return fw::kPassOn;
}

fw::Reply COptMainPage::OnSystemColourChanged() {
    ShowColour();
    return fw::kPassOn;
}

void COptMainPage::OnPickColour() {
    CAppColorDlg dialog{userColour_};
    if (!dialog.ShowModal(::GetAncestor(Handle(), GA_ROOT))) return;
    userColour_ = dialog.Colour();
    ShowColour();
}

void COptMainPage::OnClearHistories() {
    if (ShowOptionsMessage(Handle(), IDS_CLEAR_HISTORIES, MB_YESNOCANCEL | MB_ICONQUESTION) != IDYES) return;
    histories_.ClearHistories();
    // The button that was pressed has the focus, and a disabled one would leave the keyboard without effect.
    const HWND button = Control(IDC_CLEAR_HISTORIES);
    FocusOn(::GetNextDlgTabItem(Handle(), button, FALSE));
    ::EnableWindow(button, FALSE);
}

LRESULT COptMainPage::OnHistoryLengthStep(NMUPDOWN& step) {
    step.iDelta = HistoryLengthStep(step.iPos, step.iDelta);
    // The arrows give the focus to their number by themselves only when that is the system's own control.
    if (::GetFocus() != Control(IDC_HISTORY_LENGTH)) FocusOn(Control(IDC_HISTORY_LENGTH));
    return 0;
}

void COptMainPage::EnableDependents() {
    for (const DependentControls& dependent : kDependentControls) {
        const bool enabled = Checked(dependent.box);
        for (int id = dependent.first; id <= dependent.last; ++id) Enable(id, enabled);
    }
}

void COptMainPage::ShowColour() {
    const int row = Row(IDC_BAR_COLOUR);
    swatch_.Reset(::CreateSolidBrush(fw::ToWindows(settings::BarColour(row, SystemColourNow(), userColour_))));
    ::InvalidateRect(Control(IDC_COLOUR_SWATCH), nullptr, TRUE);
    Enable(IDC_PICK_COLOUR, row == settings::kUserColour);
}

void COptMainPage::ShowFormat() {
    sample_.SetFormat(ClockFormatOf(Row(IDC_CLOCK_FORMAT)));
}

void COptMainPage::CorrectHistoryLength() {
    const HWND field = Control(IDC_HISTORY_LENGTH);
    const std::wstring typed = fw::WindowText(field);
    const auto length = HistoryLengthOf(typed);
    if (!length) return;
    const std::wstring correct = HistoryLengthText(*length);
    if (correct != typed) ::SetWindowTextW(field, correct.c_str());
}

base::Colour COptMainPage::SystemColourNow() const {
    return base::Colour::FromArgb(systemColour_().value_or(0));
}

bool COptMainPage::Checked(int id) const {
    return ::IsDlgButtonChecked(Handle(), id) == BST_CHECKED;
}

void COptMainPage::Check(int id, bool checked) {
    ::CheckDlgButton(Handle(), id, checked ? BST_CHECKED : BST_UNCHECKED);
}

int COptMainPage::Row(int id) const {
    return static_cast<int>(::SendMessageW(Control(id), CB_GETCURSEL, 0, 0));
}

void COptMainPage::SelectRow(int id, int row) {
    ::SendMessageW(Control(id), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
}

void COptMainPage::Enable(int id, bool enabled) {
    ::EnableWindow(Control(id), enabled);
}

void COptMainPage::FocusOn(HWND control) {
    // The dialog around the page knows which button is the default one.
    ::SendMessageW(::GetAncestor(Handle(), GA_ROOT), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void COptMainPage::ShowBox(const OptionBox& box) {
    Check(box.id, store_.Read(box.setting) != 0);
}

bool COptMainPage::SaveBox(const OptionBox& box) {
    return store_.Write(box.setting, Checked(box.id) ? 1 : 0);
}

} // namespace korvane::controls
