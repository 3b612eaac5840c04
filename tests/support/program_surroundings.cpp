#include "tests/support/program_surroundings.h"

#include <shlobj.h>

#include <array>

#include "framework/handle.h"
#include "tests/support/line_log.h"
#include "tests/support/program_driver.h"

namespace korvane::test {
namespace {

constexpr wchar_t kVendorKey[] = L"Software\\Dunmere Software";
constexpr wchar_t kProductKey[] = L"Software\\Dunmere Software\\Korvane";
constexpr wchar_t kVersionKey[] = L"Software\\Wine\\AppDefaults\\korvane.exe";
constexpr wchar_t kRunKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t kRecorderLog[] = L"korvane_recorder.txt";
constexpr wchar_t kClasses[] = L"Software\\Classes\\";

void SetValue(HKEY root, const std::wstring& path, const wchar_t* name, DWORD type, const void* bytes, DWORD length) {
    HKEY key = nullptr;
    if (::RegCreateKeyExW(root, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) != ERROR_SUCCESS)
        return;
    const fw::UniqueKey owner{key};
    ::RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(bytes), length);
}

void SetText(HKEY root, const std::wstring& path, const wchar_t* name, std::wstring_view text) {
    const std::wstring terminated{text};
    SetValue(root, path, name, REG_SZ, terminated.c_str(),
             static_cast<DWORD>((terminated.size() + 1) * sizeof(wchar_t)));
}

std::optional<std::vector<BYTE>> ReadValue(const wchar_t* section, const wchar_t* name, DWORD type) {
    const std::wstring path = std::wstring{kProductKey} + L'\\' + section;
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return {};
    const fw::UniqueKey owner{key};
    DWORD found = 0;
    DWORD length = 0;
    if (::RegQueryValueExW(key, name, nullptr, &found, nullptr, &length) != ERROR_SUCCESS || found != type) return {};
    std::vector<BYTE> bytes(length);
    ::RegQueryValueExW(key, name, nullptr, &found, bytes.data(), &length);
    return bytes;
}

} // namespace

void ForgetAllSettings() {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kVendorKey);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kVersionKey);
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kRunKey, L"Korvane AutoRun");
}

void WriteSetting(const wchar_t* section, const wchar_t* name, DWORD type, const void* bytes, DWORD length) {
    SetValue(HKEY_CURRENT_USER, std::wstring{kProductKey} + L'\\' + section, name, type, bytes, length);
}

void WriteSetting(const wchar_t* section, const wchar_t* name, DWORD value) {
    WriteSetting(section, name, REG_DWORD, &value, sizeof value);
}

void WriteSetting(const wchar_t* section, const wchar_t* name, std::wstring_view text) {
    SetText(HKEY_CURRENT_USER, std::wstring{kProductKey} + L'\\' + section, name, text);
}

std::optional<DWORD> ReadNumber(const wchar_t* section, const wchar_t* name) {
    const auto bytes = ReadValue(section, name, REG_DWORD);
    if (!bytes || bytes->size() != sizeof(DWORD)) return {};
    DWORD value = 0;
    ::CopyMemory(&value, bytes->data(), sizeof value);
    return value;
}

std::optional<std::wstring> ReadText(const wchar_t* section, const wchar_t* name) {
    const auto bytes = ReadValue(section, name, REG_SZ);
    if (!bytes) return {};
    const std::wstring text(reinterpret_cast<const wchar_t*>(bytes->data()), bytes->size() / sizeof(wchar_t));
    return text.substr(0, text.find(L'\0'));
}

std::optional<RECT> ReadRect(const wchar_t* section, const wchar_t* name) {
    const auto bytes = ReadValue(section, name, REG_BINARY);
    if (!bytes || bytes->size() != sizeof(RECT)) return {};
    RECT rect{};
    ::CopyMemory(&rect, bytes->data(), sizeof rect);
    return rect;
}

void PretendWindowsIs(std::wstring_view version) {
    SetText(HKEY_CURRENT_USER, kVersionKey, L"Version", version);
}

std::wstring DataFolder() {
    std::array<wchar_t, MAX_PATH> path{};
    ::SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, path.data());
    return std::wstring{path.data()} + L"\\Dunmere Software\\Korvane";
}

void WriteDataFile(const wchar_t* name, std::wstring_view text) {
    const std::wstring folder = DataFolder();
    ::SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
    const HANDLE file =
        ::CreateFileW((folder + L'\\' + name).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return;
    const fw::UniqueKernelHandle owner{file};
    const std::wstring content = L'\xFEFF' + std::wstring{text};
    DWORD written = 0;
    ::WriteFile(file, content.data(), static_cast<DWORD>(content.size() * sizeof(wchar_t)), &written, nullptr);
}

void RemoveDataFiles() {
    for (const wchar_t* name : {L"Korvane.dat", L"UserCommand.dat"})
        ::DeleteFileW((DataFolder() + L'\\' + name).c_str());
}

namespace recorder {

std::wstring Folder() {
    std::array<wchar_t, 1024> path{};
    ::GetFullPathNameW((OwnFolder() + KORVANE_RECORDER_FOLDER).c_str(), static_cast<DWORD>(path.size()), path.data(),
                       nullptr);
    return path.data();
}

std::wstring CommandLineFor(std::wstring_view registration, std::wstring_view target) {
    return L"\"" + Folder() + L"\\rec.exe\" " + std::wstring{registration} + L" \"" + std::wstring{target} + L"\"";
}

void Install() {
    ForgetLog(kRecorderLog);
    const std::wstring classes{kClasses};
    const auto open = [&](const wchar_t* name) {
        SetText(HKEY_LOCAL_MACHINE, classes + name + L"\\shell\\open\\command", nullptr, CommandLineFor(name, L"%1"));
    };
    for (const wchar_t* protocol : {L"http", L"https", L"mailto"}) {
        SetText(HKEY_LOCAL_MACHINE, classes + protocol, L"URL Protocol", L"");
        open(protocol);
    }
    SetText(HKEY_LOCAL_MACHINE, classes + L".txt", nullptr, L"KorvaneTestText");
    open(L"KorvaneTestText");
    open(L"Directory");
    open(L"Folder");
    // With the DDE entry that Wine has for folders the shell reports a failure although it started the program.
    ::RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + L"Folder\\shell\\open\\ddeexec").c_str());
}

std::vector<std::wstring> WaitForCommandLines(std::size_t count) {
    std::vector<std::wstring> lines;
    WaitUntil([&] {
        lines = LoggedLines(kRecorderLog);
        return lines.size() >= count;
    });
    return lines;
}

} // namespace recorder
} // namespace korvane::test
