#pragma once

#include "settings/logic/profile_store.h"

namespace korvane::settings {

// What becomes of a text that is longer than 4,095 characters when it is read.
enum class LongTexts { kCut, kWhole };

// A profile store in a file of INI syntax, read and written by Windows' private-profile functions. The syntax sets the
// limits: blanks and one pair of quotation marks around a text are lost, and whatever is longer than 4,095 characters
// is read only up to there, which for a binary value means 2,047 bytes. Whoever writes back what was read takes the
// texts whole. A file that this store creates is written in
// the system's code page; one that begins with a byte order mark is UTF-16 and stays so.
class IniFileStore final : public ProfileStore {
public:
    // Nothing is opened or created here. A file without its full path would be looked for in the Windows folder, so a
    // relative one is completed from the current folder.
    explicit IniFileStore(std::wstring_view path, LongTexts longTexts = LongTexts::kCut);

    // Full path; empty when none could be formed, and then every operation fails.
    [[nodiscard]] const std::wstring& Path() const { return path_; }

    // A text that is no number reads as 0, as GetPrivateProfileInt has it.
    [[nodiscard]] int ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const override;
    [[nodiscard]] std::wstring ReadText(std::wstring_view section, std::wstring_view name,
                                        std::wstring_view fallback = {}) const override;
    [[nodiscard]] std::optional<std::vector<std::byte>> ReadBinary(std::wstring_view section,
                                                                   std::wstring_view name) const override;
    [[nodiscard]] std::vector<std::wstring> ValueNames(std::wstring_view section) const override;

    bool WriteInt(std::wstring_view section, std::wstring_view name, int value) override;
    bool WriteText(std::wstring_view section, std::wstring_view name, std::wstring_view text) override;
    bool WriteBinary(std::wstring_view section, std::wstring_view name, std::span<const std::byte> bytes) override;
    bool DeleteValue(std::wstring_view section, std::wstring_view name) override;
    bool DeleteSection(std::wstring_view section) override;

private:
    [[nodiscard]] bool FileExists() const;

    std::wstring path_;
    LongTexts longTexts_;
};

} // namespace korvane::settings
