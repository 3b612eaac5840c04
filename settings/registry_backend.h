#pragma once

#include <windows.h>

#include "settings/logic/profile_store.h"
#include "settings/logic/registry_view.h"

namespace korvane::settings {

// How a store sees the registry.
struct RegistryAccess {
    RegistryView view = RegistryView::kOwn;
    bool expandTexts = false; // puts in what the variables of an expandable text stand for
};

// A profile store in the registry: each section is a subkey below the base key, and its text may name several levels.
// Reads need no more than read access, so that a store over HKEY_LOCAL_MACHINE serves to look at other programs'
// values; their text may then be an expandable one, which comes back unexpanded unless the access says otherwise.
class RegistryStore final : public ProfileStore {
public:
    // `root` is a predefined key or one that the caller keeps open for longer than the store lives. `baseKey` has no
    // backslash at either end; empty, the sections stand below the root itself. Nothing is opened here.
    RegistryStore(HKEY root, std::wstring_view baseKey, RegistryAccess access = {})
        : root_{root}, baseKey_{baseKey}, access_{access} {}

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
    // Takes away the section's own subkey and fails when there are sections below it.
    bool DeleteSection(std::wstring_view section) override;

private:
    struct RawValue {
        DWORD type;
        std::vector<std::byte> data;
    };

    [[nodiscard]] std::wstring PathOf(std::wstring_view section) const;
    [[nodiscard]] std::optional<RawValue> Query(std::wstring_view section, std::wstring_view name) const;
    bool Set(std::wstring_view section, std::wstring_view name, DWORD type, std::span<const std::byte> data);

    [[nodiscard]] REGSAM Rights(REGSAM rights) const;

    HKEY root_;
    std::wstring baseKey_;
    RegistryAccess access_;
};

} // namespace korvane::settings
