#include "base/format_text.h"

#include <algorithm>
#include <cstddef>

namespace korvane::base {
namespace {

constexpr std::size_t kWidestField = 64;

struct Conversion {
    bool zeroFilled = false;
    std::size_t width = 0;
    wchar_t kind = 0;
    std::size_t length = 0; // characters of the format that it takes, the percent sign included
};

Conversion ParseConversion(std::wstring_view text) {
    Conversion found;
    std::size_t at = 1;
    if (at < text.size() && text[at] == L'0') {
        found.zeroFilled = true;
        ++at;
    }
    while (at < text.size() && text[at] >= L'0' && text[at] <= L'9') {
        found.width = std::min(found.width * 10 + static_cast<std::size_t>(text[at] - L'0'), kWidestField);
        ++at;
    }
    if (at < text.size()) {
        found.kind = text[at];
        found.length = at + 1;
    }
    return found;
}

std::wstring Digits(unsigned value, unsigned base) {
    std::wstring digits;
    do {
        digits.insert(digits.begin(), L"0123456789ABCDEF"[value % base]);
        value /= base;
    } while (value != 0);
    return digits;
}

std::wstring Padded(std::wstring text, const Conversion& conversion) {
    if (text.size() >= conversion.width) return text;
    const std::size_t missing = conversion.width - text.size();
    // A zero goes behind the sign, a blank before it.
    const std::size_t at = conversion.zeroFilled && !text.empty() && text.front() == L'-' ? 1 : 0;
    text.insert(at, missing, conversion.zeroFilled ? L'0' : L' ');
    return text;
}

// The argument as text; false when the conversion does not take an argument of that type.
bool Convert(const Conversion& conversion, const FormatArgument& argument, std::wstring& result) {
    const auto* const number = std::get_if<int>(&argument);
    const auto* const natural = std::get_if<unsigned>(&argument);
    switch (conversion.kind) {
    case L's':
        if (const auto* const text = std::get_if<std::wstring_view>(&argument)) {
            result = *text;
            return true;
        }
        return false;
    case L'c':
        if (const auto* const character = std::get_if<wchar_t>(&argument)) {
            result.assign(1, *character);
            return true;
        }
        return false;
    case L'd':
    case L'u':
    case L'X': {
        if (!number && !natural) return false;
        const bool negative = number && *number < 0 && conversion.kind == L'd';
        const unsigned bits = natural ? *natural : static_cast<unsigned>(*number);
        result = Digits(negative ? 0U - bits : bits, conversion.kind == L'X' ? 16 : 10);
        if (negative) result.insert(result.begin(), L'-');
        result = Padded(std::move(result), conversion);
        return true;
    }
    default:
        return false;
    }
}

} // namespace

std::wstring FormatArguments(std::wstring_view format, std::initializer_list<FormatArgument> arguments) {
    std::wstring filled;
    const auto* next = arguments.begin();
    std::size_t at = 0;
    while (at < format.size()) {
        if (format[at] != L'%') {
            filled += format[at++];
            continue;
        }
        if (at + 1 < format.size() && format[at + 1] == L'%') {
            filled += L'%';
            at += 2;
            continue;
        }
        const Conversion conversion = ParseConversion(format.substr(at));
        std::wstring text;
        if (next != arguments.end() && Convert(conversion, *next, text)) {
            filled += text;
            ++next;
            at += conversion.length;
        } else {
            filled += format[at++];
        }
    }
    return filled;
}

} // namespace korvane::base
