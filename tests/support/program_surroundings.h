#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the program finds around it: the registry, its data folder, the Windows version and the programs that open
// addresses and documents.
namespace korvane::test {

inline constexpr wchar_t kSettings[] = L"Settings";
inline constexpr wchar_t kPlacement[] = L"Settings\\WindowPlacement";
inline constexpr wchar_t kRecentCommands[] = L"Settings\\RecentCommandList";
inline constexpr wchar_t kRecentSearches[] = L"Settings\\RecentSearchList";

// Every trace of the program in the registry is removed, and Windows is its default version again.
void ForgetAllSettings();

void WriteSetting(const wchar_t* section, const wchar_t* name, DWORD value);
void WriteSetting(const wchar_t* section, const wchar_t* name, std::wstring_view text);
void WriteSetting(const wchar_t* section, const wchar_t* name, DWORD type, const void* bytes, DWORD length);
[[nodiscard]] std::optional<DWORD> ReadNumber(const wchar_t* section, const wchar_t* name);
[[nodiscard]] std::optional<std::wstring> ReadText(const wchar_t* section, const wchar_t* name);
[[nodiscard]] std::optional<RECT> ReadRect(const wchar_t* section, const wchar_t* name);

// The Windows that programs named korvane.exe are to find from now on: "vista", "win7", "win8", "win10".
void PretendWindowsIs(std::wstring_view version);

// The folder of Korvane.dat and UserCommand.dat, without a backslash at the end.
[[nodiscard]] std::wstring DataFolder();
// Writes a file of the data folder as UTF-16LE with a byte order mark.
void WriteDataFile(const wchar_t* name, std::wstring_view text);
void RemoveDataFiles();

// The program that stands for browser, mail program and editor, and tells what it was started with.
namespace recorder {

// Makes it what opens http, https and mailto addresses, .txt files and folders, and empties its log.
void Install();
// The folder of rec.exe.
[[nodiscard]] std::wstring Folder();
// The command lines so far, oldest first, once there are at least `count`; what there is at the deadline otherwise.
[[nodiscard]] std::vector<std::wstring> WaitForCommandLines(std::size_t count);
// The command line that opening a target through one of its registrations gives.
[[nodiscard]] std::wstring CommandLineFor(std::wstring_view registration, std::wstring_view target);

} // namespace recorder
} // namespace korvane::test
