#include "framework/version_information.h"

#include <windows.h>

#include <cstddef>
#include <span>
#include <vector>

#include "base/format_text.h"
#include "base/text.h"
#include "framework/system_library.h"

namespace fw {
namespace {

struct Translation {
    WORD language;
    WORD codePage;
};

// The system's library that reads version information; loaded when the first file is asked for.
class VersionLibrary {
public:
    VersionLibrary()
        : library_{LoadSystemLibrary(L"version.dll")}, size_{FunctionOf<decltype(::GetFileVersionInfoSizeW)>(
                                                           library_.Get(), "GetFileVersionInfoSizeW")},
          read_{FunctionOf<decltype(::GetFileVersionInfoW)>(library_.Get(), "GetFileVersionInfoW")},
          query_{FunctionOf<decltype(::VerQueryValueW)>(library_.Get(), "VerQueryValueW")} {}

    // Empty when the file has none.
    [[nodiscard]] std::vector<std::byte> Read(const std::wstring& file) const {
        if (!size_ || !read_ || !query_) return {};
        DWORD ignored = 0;
        std::vector<std::byte> block(size_(file.c_str(), &ignored));
        const auto size = static_cast<DWORD>(block.size());
        if (size == 0 || !read_(file.c_str(), 0, size, block.data())) block.clear();
        return block;
    }

    template <class Unit>
    [[nodiscard]] std::span<const Unit> Query(const std::vector<std::byte>& block, const wchar_t* name,
                                              UINT unitsPerLength) const {
        void* data = nullptr;
        UINT length = 0;
        if (!query_ || !query_(block.data(), name, &data, &length) || !data) return {};
        return {static_cast<const Unit*>(data), length / unitsPerLength};
    }

private:
    UniqueLibrary library_;
    decltype(::GetFileVersionInfoSizeW)* size_;
    decltype(::GetFileVersionInfoW)* read_;
    decltype(::VerQueryValueW)* query_;
};

const VersionLibrary& Version() {
    static const VersionLibrary library;
    return library;
}

std::span<const Translation> TranslationsOf(const std::vector<std::byte>& block) {
    // The length is in bytes here.
    return Version().Query<Translation>(block, L"\\VarFileInfo\\Translation", sizeof(Translation));
}

std::wstring ValueIn(const std::vector<std::byte>& block, Translation translation, std::wstring_view value) {
    const std::wstring name = korvane::base::FormatText(
        L"\\StringFileInfo\\%04X%04X\\%s", unsigned{translation.language}, unsigned{translation.codePage}, value);
    // And here in characters, with the zero at the end, if there is one.
    const auto characters = Version().Query<wchar_t>(block, name.c_str(), 1);
    const std::wstring_view text{characters.data(), characters.size()};
    return std::wstring{korvane::base::Trimmed(text.substr(0, text.find(L'\0')))};
}

} // namespace

std::wstring VersionValue(const std::wstring& file, std::wstring_view name) {
    const std::vector<std::byte> block = Version().Read(file);
    if (block.empty()) return {};
    for (const Translation& translation : TranslationsOf(block))
        if (std::wstring text = ValueIn(block, translation, name); !text.empty()) return text;
    // Some files name no language, or a wrong one, for what is written in English.
    constexpr WORD kEnglish = 0x0409;
    constexpr WORD kUnicode = 1200;
    constexpr WORD kWestern = 1252;
    for (const WORD codePage : {kUnicode, kWestern})
        if (std::wstring text = ValueIn(block, {kEnglish, codePage}, name); !text.empty()) return text;
    return {};
}

std::wstring FileDescription(const std::wstring& file) {
    return VersionValue(file, L"FileDescription");
}

} // namespace fw
