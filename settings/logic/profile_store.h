#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "base/format_text.h"

namespace korvane::settings {

// A row of the table of settings: where a value stands, and what it reads as when it is not there. The row's type
// decides what Read returns.
struct IntSetting {
    std::wstring_view section;
    std::wstring_view name;
    int fallback;
};
struct TextSetting {
    std::wstring_view section;
    std::wstring_view name;
    std::wstring_view fallback;
};
struct BinarySetting {
    std::wstring_view section;
    std::wstring_view name;
    std::size_t size; // bytes; a value of any other length reads as missing
};
// Stored as an integer in the layout of Windows' COLORREF. What it falls back to is known only while the program runs.
struct ColourSetting {
    std::wstring_view section;
    std::wstring_view name;
};
// Texts of one list, one value each; the name is a format for the number, which starts at 1.
struct NumberedSetting {
    std::wstring_view section;
    std::wstring_view name;

    [[nodiscard]] std::wstring NameOf(int number) const { return base::FormatText(name, number); }
};

// Typed reads and writes of named values in named sections. Reads never fail: what is missing, of another type or
// damaged gives the fallback. Reads create nothing, writes create the section that is missing. Nothing is cached.
// Writes say whether they succeeded; deleting what is not there succeeds. A text ends at its first zero character, and
// an empty section or name stands for no value at all.
class ProfileStore {
public:
    virtual ~ProfileStore() = default;

    [[nodiscard]] virtual int ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const = 0;
    [[nodiscard]] virtual std::wstring ReadText(std::wstring_view section, std::wstring_view name,
                                                std::wstring_view fallback = {}) const = 0;
    // Empty when there is no such value, or none of at least one byte.
    [[nodiscard]] virtual std::optional<std::vector<std::byte>> ReadBinary(std::wstring_view section,
                                                                           std::wstring_view name) const = 0;
    // Every value that a section has, in no order.
    [[nodiscard]] virtual std::vector<std::wstring> ValueNames(std::wstring_view section) const = 0;

    virtual bool WriteInt(std::wstring_view section, std::wstring_view name, int value) = 0;
    virtual bool WriteText(std::wstring_view section, std::wstring_view name, std::wstring_view text) = 0;
    virtual bool WriteBinary(std::wstring_view section, std::wstring_view name, std::span<const std::byte> bytes) = 0;
    virtual bool DeleteValue(std::wstring_view section, std::wstring_view name) = 0;
    virtual bool DeleteSection(std::wstring_view section) = 0;

    [[nodiscard]] int Read(const IntSetting& setting) const {
        return ReadInt(setting.section, setting.name, setting.fallback);
    }
    [[nodiscard]] std::wstring Read(const TextSetting& setting) const {
        return ReadText(setting.section, setting.name, setting.fallback);
    }
    [[nodiscard]] std::optional<std::vector<std::byte>> Read(const BinarySetting& setting) const {
        auto bytes = ReadBinary(setting.section, setting.name);
        if (bytes && bytes->size() != setting.size) bytes.reset();
        return bytes;
    }
    [[nodiscard]] base::Colour Read(const ColourSetting& setting, base::Colour fallback) const {
        return {static_cast<std::uint32_t>(ReadInt(setting.section, setting.name, static_cast<int>(fallback.value)))};
    }
    [[nodiscard]] std::wstring Read(const NumberedSetting& setting, int number) const {
        return ReadText(setting.section, setting.NameOf(number));
    }
    bool Write(const IntSetting& setting, int value) { return WriteInt(setting.section, setting.name, value); }
    // An empty text is written as no value at all. Only where a missing value would read as something else is the empty
    // text itself written.
    bool Write(const TextSetting& setting, std::wstring_view text) {
        return text.empty() && setting.fallback.empty() ? DeleteValue(setting.section, setting.name)
                                                        : WriteText(setting.section, setting.name, text);
    }
    bool Write(const BinarySetting& setting, std::span<const std::byte> bytes) {
        return WriteBinary(setting.section, setting.name, bytes);
    }
    bool Write(const ColourSetting& setting, base::Colour colour) {
        return WriteInt(setting.section, setting.name, static_cast<int>(colour.value));
    }
    bool Write(const NumberedSetting& setting, int number, std::wstring_view text) {
        return WriteText(setting.section, setting.NameOf(number), text);
    }
};

} // namespace korvane::settings
