#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>

namespace korvane::about {

// Has the shell carry out a verb on a file or an address; gives its result, which is an error when it is 32 or less.
using ShellOpener = std::function<INT_PTR(const wchar_t* verb, const std::wstring& file)>;

[[nodiscard]] INT_PTR OpenWithShell(const wchar_t* verb, const std::wstring& file);

// Tells the user over `owner` what to mind about answers, then opens a new mail to the maker's support.
[[nodiscard]] INT_PTR SendSupportMail(HWND owner, std::wstring_view versionText,
                                      const ShellOpener& open = &OpenWithShell);

[[nodiscard]] INT_PTR OpenOnlineDocuments(const ShellOpener& open = &OpenWithShell);
[[nodiscard]] INT_PTR OpenAuthorSite(const ShellOpener& open = &OpenWithShell);

// Windows' own program that shows what the computer is made of.
[[nodiscard]] INT_PTR ShowSystemInformation(const ShellOpener& open = &OpenWithShell);

// Shows the system's text for a result of the shell that is an error.
void ReportFailure(HWND owner, INT_PTR shellResult);

} // namespace korvane::about
