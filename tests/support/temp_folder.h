#pragma once

#include <windows.h>

#include <array>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "base/format_text.h"

namespace korvane::test {

// A new empty folder below the user's temporary folder, deleted with all that is in it.
class TempFolder {
public:
    TempFolder() {
        std::array<wchar_t, MAX_PATH + 1> temp{};
        ::GetTempPathW(static_cast<DWORD>(temp.size()), temp.data());
        static std::atomic<unsigned> count{0};
        path_ = base::FormatText(L"%sKorvaneTest-%u-%u", std::wstring_view{temp.data()},
                                 static_cast<unsigned>(::GetCurrentProcessId()), count++);
        // What an earlier process of the same number left behind would make a test's result depend on history.
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
        if (!std::filesystem::create_directories(path_)) throw std::runtime_error{"no temporary folder"};
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    // Without a backslash at the end.
    [[nodiscard]] const std::wstring& Path() const { return path_; }
    [[nodiscard]] std::wstring File(std::wstring_view name) const {
        return std::wstring{path_}.append(L"\\").append(name);
    }

    // Whole files, byte by byte.
    void Write(std::wstring_view name, std::string_view bytes) const {
        std::ofstream{std::filesystem::path{File(name)}, std::ios::binary} << bytes;
    }
    [[nodiscard]] std::string Read(std::wstring_view name) const {
        std::ifstream file{std::filesystem::path{File(name)}, std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    [[nodiscard]] bool Has(std::wstring_view name) const {
        std::error_code ignored;
        return std::filesystem::exists(File(name), ignored);
    }

private:
    std::wstring path_;
};

} // namespace korvane::test
