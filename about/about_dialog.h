#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "about/banner.h"
#include "about/support.h"
#include "about/windows_values.h"
#include "framework/dialog.h"
#include "framework/handle.h"
#include "res/ids.h"

namespace korvane::about {

// What the about box is told. The defaults are the program's; tests have their own.
struct AboutBoxContent {
    std::wstring versionText;
    HICON smallIcon = nullptr; // borrowed, of the bar
    Licensee licensee = ReadLicensee();
    std::function<fw::UniqueBitmap()> loadBanner = [] { return LoadBanner(); };
    ShellOpener open = &OpenWithShell;
};

// The about box: on a coloured band the banner, the version and the maker's address, below it the licensee.
class CAboutDialog final : public fw::Dialog<CAboutDialog> {
public:
    static constexpr UINT kTemplate = IDD_ABOUT;
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITDIALOG>(&CAboutDialog::OnInitDialog),
            fw::On<WM_ERASEBKGND>(&CAboutDialog::OnEraseBackground),
            fw::On<WM_CTLCOLORSTATIC>(&CAboutDialog::OnStaticColour),
            fw::On<WM_CTLCOLORBTN>(&CAboutDialog::OnButtonColour),
            fw::On<WM_SETCURSOR>(&CAboutDialog::OnSetCursor),
            fw::OnCommand<IDC_SYSTEM_INFORMATION>(&CAboutDialog::OnSystemInformation),
            fw::OnCommand<IDC_SITE>(&CAboutDialog::OnSite),
            fw::OnCommand<IDOK, IDCANCEL>(&CAboutDialog::OnClose),
        };
    }

    // The box's result when it could not be set up. The user has been told then.
    static constexpr INT_PTR kFailed = 3;

    explicit CAboutDialog(AboutBoxContent content) : content_{std::move(content)} {}

private:
    bool OnInitDialog(HWND firstControl);
    bool OnEraseBackground(HDC dc);
    HBRUSH OnStaticColour(const fw::Message& message);
    HBRUSH OnButtonColour(const fw::Message& message);
    fw::Reply OnSetCursor(const fw::Message& message);
    void OnSystemInformation();
    void OnSite();
    void OnClose(UINT button);

    void ShowLicensee();
    void ShowSite();

    AboutBoxContent content_;
    fw::UniqueBitmap banner_;
    fw::UniqueBrush bandBrush_;
    fw::UniqueFont linkFont_;
    LONG bandEnd_ = 0; // in the client area
};

} // namespace korvane::about
