#include "search/path_pickers.h"

#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <memory>

namespace korvane::search {
namespace {

// Characters; as much as a path can have, the terminating zero included.
constexpr std::size_t kLongestPath = 32768;

struct BrowserSetup {
    const std::wstring& title;
    const std::wstring& start;
};

int CALLBACK OnBrowserMessage(HWND browser, UINT message, LPARAM, LPARAM data) noexcept {
    // The browser takes neither title nor folder from its caller, but can be given both as soon as it is there.
    if (message != BFFM_INITIALIZED) return 0;
    const auto& setup = *reinterpret_cast<const BrowserSetup*>(data);
    ::SetWindowTextW(browser, setup.title.c_str());
    if (!setup.start.empty())
        ::SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(setup.start.c_str()));
    return 0;
}

struct FreeTaskMemory {
    void operator()(void* memory) const { ::CoTaskMemFree(memory); }
};

} // namespace

std::optional<std::wstring> PickFile(HWND owner, std::wstring_view filter, const FilePicker& picker) {
    // The dialog wants zeros where the text has bars, and two of them at the end.
    std::wstring zeroFilter{filter};
    std::replace(zeroFilter.begin(), zeroFilter.end(), L'|', L'\0');
    zeroFilter.append(2, L'\0');
    std::wstring path(kLongestPath, L'\0');

    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = zeroFilter.c_str();
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    if (!picker.title.empty()) request.lpstrTitle = picker.title.c_str();
    if (!picker.startFolder.empty()) request.lpstrInitialDir = picker.startFolder.c_str();
    request.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR;
    if (!::GetOpenFileNameW(&request)) return std::nullopt;
    path.resize(path.find(L'\0'));
    return path;
}

std::optional<std::wstring> PickFolder(HWND owner, const std::wstring& title, const std::wstring& prompt,
                                       const std::wstring& start) {
    const BrowserSetup setup{title, start};
    std::array<wchar_t, MAX_PATH> displayName{};
    BROWSEINFOW request{};
    request.hwndOwner = owner;
    request.pszDisplayName = displayName.data();
    request.lpszTitle = prompt.c_str();
    request.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    request.lpfn = &OnBrowserMessage;
    request.lParam = reinterpret_cast<LPARAM>(&setup);
    const std::unique_ptr<ITEMIDLIST, FreeTaskMemory> item{::SHBrowseForFolderW(&request)};
    if (!item) return std::nullopt;

    std::array<wchar_t, MAX_PATH> path{};
    if (!::SHGetPathFromIDListW(item.get(), path.data())) return std::nullopt;
    return std::wstring{path.data()};
}

} // namespace korvane::search
