#include "framework/string_table.h"

namespace fw {

std::wstring LoadText(UINT id) {
    // With a length of 0 the function gives a pointer to the text inside the resource, which has no terminating zero.
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(::GetModuleHandleW(nullptr), id, reinterpret_cast<LPWSTR>(&text), 0);
    return length > 0 ? std::wstring{text, static_cast<std::size_t>(length)} : std::wstring{};
}

} // namespace fw
