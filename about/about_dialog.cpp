#include "about/about_dialog.h"

#include <string_view>

#include "about/logic/addresses.h"
#include "base/colour.h"
#include "framework/centred_message_box.h"
#include "framework/centring.h"
#include "framework/gdi.h"
#include "framework/string_table.h"

namespace korvane::about {
namespace {

HFONT FontOf(HWND control) {
    return reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0));
}

base::Rect RectInParent(HWND control) {
    RECT rect{};
    ::GetWindowRect(control, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return fw::FromWindows(rect);
}

fw::UniqueFont Underlined(HFONT font) {
    LOGFONTW description{};
    ::GetObjectW(font, sizeof description, &description);
    description.lfUnderline = TRUE;
    return fw::UniqueFont{::CreateFontIndirectW(&description)};
}

// A line shortened so that it fits into a width, with dots where it was cut. A static does so by itself only when it
// has a single line.
std::wstring Fitting(HDC dc, std::wstring line, int widthPx) {
    // Room for the dots, which may be more characters than they replace.
    constexpr std::size_t kRoom = 4;
    line.resize(line.size() + kRoom);
    RECT rect{0, 0, widthPx, 0};
    ::DrawTextW(dc, line.data(), static_cast<int>(line.size() - kRoom), &rect,
                DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING | DT_CALCRECT);
    return line.substr(0, line.find(L'\0'));
}

} // namespace

bool CAboutDialog::OnInitDialog(HWND) {
    banner_ = content_.loadBanner();
    if (!banner_) {
        fw::ShowMessageById(::GetParent(Handle()), IDS_DIALOG_FAILED, MB_ICONEXCLAMATION);
        ::EndDialog(Handle(), kFailed);
        return true;
    }
    bandBrush_.Reset(::CreateSolidBrush(fw::ToWindows(base::kThemeColour)));
    bandEnd_ = RectInParent(Control(IDC_BAND_END)).top;
    ::SetWindowTextW(Control(IDC_VERSION), (content_.versionText + L"\n\n" + fw::LoadText(IDS_RIGHTS)).c_str());
    ShowLicensee();
    ShowSite();
    ::SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(content_.smallIcon));
    fw::CentreWindow(Handle(), nullptr, fw::CentreOn::kCurrentMonitor);
    return true;
}

void CAboutDialog::ShowLicensee() {
    const HWND control = Control(IDC_LICENSED_TO);
    const fw::WindowDc dc{control};
    const fw::SelectedObject font{dc.Get(), FontOf(control)};
    const int widthPx = fw::ClientRect(control).Width();
    const std::wstring lines = Fitting(dc.Get(), content_.licensee.owner, widthPx) + L"\n" +
                               Fitting(dc.Get(), content_.licensee.organization, widthPx);
    ::SetWindowTextW(control, lines.c_str());
}

void CAboutDialog::ShowSite() {
    const HWND control = Control(IDC_SITE);
    const std::wstring_view address = address::kAuthorSite;
    linkFont_ = Underlined(FontOf(control));
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(linkFont_.Get()), FALSE);
    ::SetWindowTextW(control, address.data());

    // No wider than its text, so that only the text is a link.
    SIZE text{};
    {
        const fw::WindowDc dc{control};
        const fw::SelectedObject font{dc.Get(), linkFont_.Get()};
        ::GetTextExtentPoint32W(dc.Get(), address.data(), static_cast<int>(address.size()), &text);
    }
    const base::Rect room = RectInParent(control);
    if (text.cx >= room.Width()) return;
    ::SetWindowPos(control, nullptr, room.left + (room.Width() - text.cx) / 2, room.top, text.cx, room.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE);
}

bool CAboutDialog::OnEraseBackground(HDC dc) {
    const RECT client = fw::ToWindows(fw::ClientRect(Handle()));
    ::FillRect(dc, &client, bandBrush_.Get());
    const RECT below{client.left, bandEnd_, client.right, client.bottom};
    ::FillRect(dc, &below, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));

    BITMAP banner{};
    ::GetObjectW(banner_.Get(), sizeof banner, &banner);
    const fw::UniqueMemoryDc memory{::CreateCompatibleDC(dc)};
    const fw::SelectedObject selected{memory.Get(), banner_.Get()};
    ::BitBlt(dc, (client.right - banner.bmWidth) / 2, 0, banner.bmWidth, banner.bmHeight, memory.Get(), 0, 0, SRCCOPY);
    return true;
}

HBRUSH CAboutDialog::OnStaticColour(const fw::Message& message) {
    const auto dc = reinterpret_cast<HDC>(message.wparam);
    const auto control = reinterpret_cast<HWND>(message.lparam);
    ::SetBkMode(dc, TRANSPARENT);
    if (control == Control(IDC_VERSION) || control == Control(IDC_SITE)) ::SetTextColor(dc, RGB(255, 255, 255));
    return static_cast<HBRUSH>(::GetStockObject(HOLLOW_BRUSH));
}

// Buttons fill what their shape leaves free with this; they stand on the white part.
HBRUSH CAboutDialog::OnButtonColour(const fw::Message&) {
    return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
}

fw::Reply CAboutDialog::OnSetCursor(const fw::Message& message) {
    if (reinterpret_cast<HWND>(message.wparam) != Control(IDC_SITE)) return fw::kPassOn;
    ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
    return LRESULT{TRUE};
}

void CAboutDialog::OnSystemInformation() {
    ReportFailure(Handle(), ShowSystemInformation(content_.open));
}

void CAboutDialog::OnSite() {
    ReportFailure(Handle(), OpenAuthorSite(content_.open));
}

void CAboutDialog::OnClose(UINT button) {
    ::EndDialog(Handle(), static_cast<INT_PTR>(button));
}

} // namespace korvane::about
