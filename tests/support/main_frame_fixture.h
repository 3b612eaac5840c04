#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "app/main_frame.h"
#include "framework/gdi.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/registry_test.h"
#include "tests/support/temp_folder.h"

namespace korvane::test {

using app::CMainFrame;

// A frame in this process, with a registry key and a data folder of the test's own. It is never shown.
class MainFrameTest : public RegistryTest {
protected:
    MainFrameTest() : settings{key.Root(), key.Path()} {
        for (int number = 1; number <= 26; ++number) AddCommand(L"Korvane.dat", number, L"標準");
    }

    // A closed bar ends the message loop; the next test has one of its own.
    ~MainFrameTest() override {
        MSG quit{};
        while (::PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }

    void AddCommand(std::wstring_view file, int number, std::wstring_view kind) {
        settings::IniFileStore commands{folder.Path() + L"\\" + std::wstring{file}};
        const std::wstring section = settings::section::SearchCommand(number);
        commands.WriteText(section, L"CommandName", base::FormatText(L"%s %d", kind, number));
        commands.WriteText(section, L"CommandLine", L"https://search.invalid/?q=<%Search%>");
    }

    [[nodiscard]] app::FramePlaces Places() const {
        return {key.Path(), [this] { return settings::DataFolder{folder.Path() + L"\\", ERROR_SUCCESS}; }};
    }

    CMainFrame& Bar() {
        if (!frame_) {
            frame_ = std::make_unique<CMainFrame>(loop, help, Places());
            EXPECT_TRUE(frame_->CreateFrame());
        }
        return *frame_;
    }
    HWND Child(int id) { return ::GetDlgItem(Bar().Handle(), id); }
    LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return ::SendMessageW(Bar().Handle(), message, wparam, lparam);
    }
    void SetClientWidth(int width) {
        const base::Rect window = fw::WindowRect(Bar().Handle());
        const base::Rect client = fw::ClientRect(Bar().Handle());
        ::SetWindowPos(Bar().Handle(), nullptr, 0, 0, window.Width() + width - client.Width(), window.Height(),
                       SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    std::string PlaceOf(int id) {
        RECT r{};
        ::GetWindowRect(Child(id), &r);
        ::MapWindowPoints(nullptr, Bar().Handle(), reinterpret_cast<POINT*>(&r), 2);
        return std::to_string(r.left) + "," + std::to_string(r.top) + "-" + std::to_string(r.right) + "," +
               std::to_string(r.bottom);
    }
    // The texts of the search menu, "-" for a separator, "*" before the one with the radio mark.
    std::wstring SearchMenu() {
        const HMENU menu = Bar().Popup(POPUP_SEARCH);
        std::wstring all;
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            wchar_t text[100]{};
            MENUITEMINFOW item{};
            item.cbSize = sizeof item;
            item.fMask = MIIM_STRING | MIIM_FTYPE | MIIM_STATE;
            item.dwTypeData = text;
            item.cch = 100;
            ::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &item);
            if (!all.empty()) all += L"|";
            if (item.fState & MFS_CHECKED) all += L"*";
            all += item.fType & MFT_SEPARATOR ? L"-" : text;
        }
        return all;
    }
    // The colour that the frame erases a point of its client area with.
    COLORREF ErasedColourAt(int x, int y) {
        const base::Rect client = fw::ClientRect(Bar().Handle());
        const fw::WindowDc screen{nullptr};
        const fw::UniqueMemoryDc dc{::CreateCompatibleDC(screen.Get())};
        const fw::UniqueBitmap bitmap{::CreateCompatibleBitmap(screen.Get(), client.Width(), client.Height())};
        const fw::SelectedObject selected{dc.Get(), bitmap.Get()};
        Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.Get()));
        return ::GetPixel(dc.Get(), x, y);
    }

    TempFolder folder;
    settings::RegistryStore settings;
    fw::MessageLoop loop;
    about::HelpSession help;

private:
    std::unique_ptr<CMainFrame> frame_;
};

} // namespace korvane::test
