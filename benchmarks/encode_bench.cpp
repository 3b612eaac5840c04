// How long a search text takes to be written into an address, for every placeholder of text, at 1 MB and at half of it:
// twice the text is to take twice the time.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "search/code_pages.h"
#include "search/logic/placeholder_expansion.h"

namespace {

using namespace korvane::search;

constexpr std::size_t kMegabyte = 1024 * 1024;
constexpr int kRuns = 11;
constexpr UINT kShiftJis = 932;

double MedianMs(const SearchTextEncoder& encoder, const std::wstring& text, std::wstring_view placeholder) {
    LARGE_INTEGER frequency{};
    ::QueryPerformanceFrequency(&frequency);
    const std::wstring line = L"https://search.invalid/?q=" + std::wstring{placeholder};
    std::vector<double> times;
    for (int run = 0; run < kRuns; ++run) {
        LARGE_INTEGER before{};
        LARGE_INTEGER after{};
        ::QueryPerformanceCounter(&before);
        const Expansion expansion = Expand(line, text, L"name", [&](std::wstring_view search, TextEncoding wanted) {
            return encoder.Encode(search, wanted);
        });
        ::QueryPerformanceCounter(&after);
        if (!std::holds_alternative<Launch>(expansion)) std::printf("not expanded\n");
        times.push_back(static_cast<double>(after.QuadPart - before.QuadPart) * 1000 /
                        static_cast<double>(frequency.QuadPart));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main() {
    // Two bytes a character: a megabyte of UTF-16 is half a million of them, Japanese and ASCII mixed.
    const std::wstring_view sample = L"東京 天気 weather ｱｲｳ";
    std::wstring text;
    while (text.size() * sizeof(wchar_t) < kMegabyte) text += sample;
    text.resize(kMegabyte / sizeof(wchar_t));
    const std::wstring half = text.substr(0, text.size() / 2);

    const SearchTextEncoder encoder = WindowsTextEncoder(kShiftJis);
    // The first five placeholders stand for text.
    constexpr std::size_t kTextPlaceholders = 5;
    for (std::size_t i = 0; i < kTextPlaceholders; ++i) {
        const double whole = MedianMs(encoder, text, kPlaceholders[i]);
        const double halved = MedianMs(encoder, half, kPlaceholders[i]);
        std::printf("%-18ls 1 MB %7.2f ms   0.5 MB %7.2f ms\n", std::wstring{kPlaceholders[i]}.c_str(), whole, halved);
    }
    return 0;
}
