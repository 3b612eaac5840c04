#include "controls/colour_dialog.h"

#include <commdlg.h>

#include <array>

#include "framework/centring.h"
#include "framework/gdi.h"
#include "framework/string_table.h"
#include "res/ids.h"

namespace korvane::controls {
namespace {

std::array<COLORREF, 16>& CustomColours() {
    static std::array<COLORREF, 16> colours = [] {
        std::array<COLORREF, 16> white{};
        white.fill(RGB(255, 255, 255));
        return white;
    }();
    return colours;
}

UINT_PTR CALLBACK OnMessage(HWND dialog, UINT id, WPARAM, LPARAM) noexcept {
    if (id != WM_INITDIALOG) return FALSE;
    ::SetWindowTextW(dialog, fw::LoadText(IDS_PICK_COLOUR).c_str());
    fw::CentreWindow(dialog);
    return TRUE;
}

} // namespace

bool CAppColorDlg::ShowModal(HWND owner) {
    CHOOSECOLORW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.rgbResult = fw::ToWindows(colour_);
    request.lpCustColors = CustomColours().data();
    request.lpfnHook = &OnMessage;
    request.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ENABLEHOOK;
    if (!::ChooseColorW(&request)) return false;
    colour_ = {request.rgbResult};
    return true;
}

} // namespace korvane::controls
