#pragma once

#include <cstdint>
#include <optional>

#include "base/colour.h"
#include "controls/app_image_btn.h"
#include "controls/local_clock.h"
#include "controls/logic/main_options.h"
#include "controls/number_edit.h"
#include "controls/option_page.h"
#include "controls/sample_time_bar.h"
#include "framework/dialog.h"
#include "framework/handle.h"
#include "framework/image_list.h"
#include "framework/late_bound.h"
#include "res/ids.h"
#include "settings/auto_run.h"
#include "settings/logic/profile_store.h"

namespace korvane::controls {

// The options' page for the bar itself. A child window hears nothing of new colours: the dialog around it passes on
// WM_SYSCOLORCHANGE and WM_DWMCOLORIZATIONCOLORCHANGED.
class COptMainPage final : public fw::Dialog<COptMainPage> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS_MAIN;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&COptMainPage::OnInitDialog),
            fw::On<kValidatePage>(&COptMainPage::OnValidate),
            fw::On<WM_SHOWWINDOW>(&COptMainPage::OnShow),
            fw::On<WM_DRAWITEM>(&COptMainPage::OnDrawItem),
            fw::On<WM_CTLCOLORDLG>(&COptMainPage::OnColourOfGround),
            fw::On<WM_CTLCOLORBTN>(&COptMainPage::OnColourOfGround),
            fw::On<WM_CTLCOLORSTATIC>(&COptMainPage::OnColourOfStatic),
            fw::On<WM_SYSCOLORCHANGE>(&COptMainPage::OnColoursChanged),
            fw::On<WM_DWMCOLORIZATIONCOLORCHANGED>(&COptMainPage::OnSystemColourChanged),
            fw::OnCommand<IDC_AUTO_HIDE>(&COptMainPage::EnableDependents),
            fw::OnCommand<IDC_SAVE_HISTORIES>(&COptMainPage::EnableDependents),
            fw::OnCommand<IDC_SHOW_CLOCK>(&COptMainPage::EnableDependents),
            fw::OnCommand<IDC_PICK_COLOUR>(&COptMainPage::OnPickColour),
            fw::OnCommand<IDC_CLEAR_HISTORIES>(&COptMainPage::OnClearHistories),
            fw::OnControl<IDC_BAR_COLOUR, IDC_BAR_COLOUR, CBN_SELCHANGE>(&COptMainPage::ShowColour),
            fw::OnControl<IDC_CLOCK_FORMAT, IDC_CLOCK_FORMAT, CBN_SELCHANGE>(&COptMainPage::ShowFormat),
            fw::OnControl<IDC_HISTORY_LENGTH, IDC_HISTORY_LENGTH, EN_KILLFOCUS>(&COptMainPage::CorrectHistoryLength),
            fw::OnNotify<IDC_HISTORY_LENGTH_SPIN, UDN_DELTAPOS>(&COptMainPage::OnHistoryLengthStep),
        };
    }

    // The desktop window manager's colour as 0xAARRGGBB, if there is one.
    using SystemColour = std::optional<std::uint32_t> (*)();

    // All outlive the page.
    COptMainPage(settings::ProfileStore& store, HistoryKeeper& histories,
                 settings::AutoRun autoRun = settings::AutoRun{}, const LocalClock& clock = SystemLocalClock(),
                 SystemColour systemColour = &fw::ColorizationColour);

    // Writes every setting of the page. False when one of them could not be written.
    bool Save();

private:
    bool OnInitDialog(HWND firstControl);
    bool OnValidate(const fw::Message& message);
    fw::Reply OnShow(bool visible);
    fw::Reply OnDrawItem(const fw::Message& message);
    HBRUSH OnColourOfGround(const fw::Message& message);
    fw::Reply OnColourOfStatic(const fw::Message& message);
    fw::Reply OnColoursChanged(const fw::Message& message);
    fw::Reply OnSystemColourChanged();
    void OnPickColour();
    void OnClearHistories();
    LRESULT OnHistoryLengthStep(NMUPDOWN& step);

    void ReplaceControls();
    void FillLists();
    void Load();
    void EnableDependents();
    void ShowColour();
    void ShowFormat();
    void CorrectHistoryLength();

    [[nodiscard]] base::Colour SystemColourNow() const;
    [[nodiscard]] bool Checked(int id) const;
    void Check(int id, bool checked);
    [[nodiscard]] int Row(int id) const;
    void SelectRow(int id, int row);
    void Enable(int id, bool enabled);
    void FocusOn(HWND control);
    void ShowBox(const OptionBox& box);
    bool SaveBox(const OptionBox& box);
    bool SaveAutoRun();

    settings::ProfileStore& store_;
    HistoryKeeper& histories_;
    settings::AutoRun autoRun_;
    SystemColour systemColour_;
    base::Colour userColour_;
    fw::UniqueBrush swatch_;
    fw::UniqueImageList colourImages_;
    fw::UniqueImageList clearImages_;
    CAppImageBtn pickColour_;
    CAppImageBtn clearHistories_;
    NumberEdit historyLength_;
    CSampleTimeBar sample_;
};

} // namespace korvane::controls
