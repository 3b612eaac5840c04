#include "framework/file_description.h"

#include <windows.h>

#include <cstddef>
#include <span>
#include <vector>

#include "base/format_text.h"
#include "base/text.h"

namespace fw {
namespace {

struct Translation {
    WORD language;
    WORD codePage;
};

std::vector<std::byte> VersionInformation(const std::wstring& file) {
    DWORD ignored = 0;
    std::vector<std::byte> block(::GetFileVersionInfoSizeW(file.c_str(), &ignored));
    const auto size = static_cast<DWORD>(block.size());
    if (size == 0 || !::GetFileVersionInfoW(file.c_str(), 0, size, block.data())) block.clear();
    return block;
}

std::span<const Translation> TranslationsOf(const std::vector<std::byte>& block) {
    void* data = nullptr;
    UINT bytes = 0;
    if (!::VerQueryValueW(block.data(), L"\\VarFileInfo\\Translation", &data, &bytes) || !data) return {};
    return {static_cast<const Translation*>(data), bytes / sizeof(Translation)};
}

std::wstring DescriptionIn(const std::vector<std::byte>& block, Translation translation) {
    const std::wstring name = korvane::base::FormatText(L"\\StringFileInfo\\%04X%04X\\FileDescription",
                                                        unsigned{translation.language}, unsigned{translation.codePage});
    void* data = nullptr;
    UINT length = 0; // in characters, with the zero at the end, if there is one
    if (!::VerQueryValueW(block.data(), name.c_str(), &data, &length) || !data) return {};
    const std::wstring_view text{static_cast<const wchar_t*>(data), length};
    return std::wstring{korvane::base::Trimmed(text.substr(0, text.find(L'\0')))};
}

} // namespace

std::wstring FileDescription(const std::wstring& file) {
    const std::vector<std::byte> block = VersionInformation(file);
    if (block.empty()) return {};
    for (const Translation& translation : TranslationsOf(block))
        if (std::wstring text = DescriptionIn(block, translation); !text.empty()) return text;
    // Some files name no language, or a wrong one, for what is written in English.
    constexpr WORD kEnglish = 0x0409;
    constexpr WORD kUnicode = 1200;
    constexpr WORD kWestern = 1252;
    for (const WORD codePage : {kUnicode, kWestern})
        if (std::wstring text = DescriptionIn(block, {kEnglish, codePage}); !text.empty()) return text;
    return {};
}

} // namespace fw
