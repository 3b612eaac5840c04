#include "about/support.h"

#include <shellapi.h>

#include "about/logic/addresses.h"
#include "about/logic/mail_link.h"
#include "base/shell_result.h"
#include "framework/centred_message_box.h"
#include "framework/windows_program.h"
#include "res/ids.h"

namespace korvane::about {
namespace {

constexpr const wchar_t* kOpen = L"open";

} // namespace

INT_PTR OpenWithShell(const wchar_t* verb, const std::wstring& file) {
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(nullptr, verb, file.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
}

INT_PTR SendSupportMail(HWND owner, std::wstring_view versionText, const ShellOpener& open) {
    fw::ShowMessageById(owner, IDS_MAIL_NOTE, IDS_MAIL_NOTE_CAPTION, MB_ICONINFORMATION);
    return open(kOpen, SupportMailLink(versionText));
}

INT_PTR OpenOnlineDocuments(const ShellOpener& open) {
    return open(kOpen, address::kOnlineDocuments);
}

INT_PTR OpenAuthorSite(const ShellOpener& open) {
    return open(kOpen, address::kAuthorSite);
}

INT_PTR ShowSystemInformation(const ShellOpener& open) {
    return open(kOpen, fw::WindowsProgram(L"msinfo32.exe"));
}

void ReportFailure(HWND owner, INT_PTR shellResult) {
    if (const DWORD error = base::ErrorOfShell(static_cast<int>(shellResult))) fw::ShowProductSystemError(owner, error);
}

} // namespace korvane::about
