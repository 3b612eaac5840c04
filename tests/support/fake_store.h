#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>

#include "settings/logic/profile_store.h"

namespace korvane::test {

// A profile store in memory. Names know no upper and lower case in the real stores; tests spell them as the program
// does. It writes a log of its changes, one line each.
class FakeStore final : public settings::ProfileStore {
public:
    using Value = std::variant<int, std::wstring, std::vector<std::byte>>;

    std::map<std::wstring, std::map<std::wstring, Value>> sections;
    std::wstring log;
    // How many writes still succeed; a negative number stands for all.
    int writesThatSucceed = -1;

    [[nodiscard]] int ReadInt(std::wstring_view section, std::wstring_view name, int fallback) const override {
        const auto* const value = Find<int>(section, name);
        return value ? *value : fallback;
    }
    [[nodiscard]] std::wstring ReadText(std::wstring_view section, std::wstring_view name,
                                        std::wstring_view fallback = {}) const override {
        const auto* const value = Find<std::wstring>(section, name);
        return value ? *value : std::wstring{fallback};
    }
    [[nodiscard]] std::optional<std::vector<std::byte>> ReadBinary(std::wstring_view section,
                                                                   std::wstring_view name) const override {
        const auto* const value = Find<std::vector<std::byte>>(section, name);
        return value && !value->empty() ? std::optional{*value} : std::nullopt;
    }

    [[nodiscard]] std::vector<std::wstring> ValueNames(std::wstring_view section) const override {
        std::vector<std::wstring> names;
        if (const auto at = sections.find(std::wstring{section}); at != sections.end())
            for (const auto& [name, value] : at->second) names.push_back(name);
        return names;
    }

    bool WriteInt(std::wstring_view section, std::wstring_view name, int value) override {
        return Put(section, name, value, std::to_wstring(value));
    }
    bool WriteText(std::wstring_view section, std::wstring_view name, std::wstring_view text) override {
        return Put(section, name, std::wstring{text}, text);
    }
    bool WriteBinary(std::wstring_view section, std::wstring_view name, std::span<const std::byte> bytes) override {
        return Put(section, name, std::vector<std::byte>{bytes.begin(), bytes.end()}, L"(bytes)");
    }
    bool DeleteValue(std::wstring_view section, std::wstring_view name) override {
        if (!MayWrite()) return false;
        log.append(L"delete ").append(section).append(L".").append(name).append(L"\n");
        if (const auto at = sections.find(std::wstring{section}); at != sections.end())
            at->second.erase(std::wstring{name});
        return true;
    }
    bool DeleteSection(std::wstring_view section) override {
        if (!MayWrite()) return false;
        log.append(L"delete ").append(section).append(L"\n");
        sections.erase(std::wstring{section});
        return true;
    }

    [[nodiscard]] bool Has(std::wstring_view section, std::wstring_view name) const {
        const auto at = sections.find(std::wstring{section});
        return at != sections.end() && at->second.contains(std::wstring{name});
    }

private:
    template <class Type>
    [[nodiscard]] const Type* Find(std::wstring_view section, std::wstring_view name) const {
        const auto at = sections.find(std::wstring{section});
        if (at == sections.end()) return nullptr;
        const auto value = at->second.find(std::wstring{name});
        return value == at->second.end() ? nullptr : std::get_if<Type>(&value->second);
    }
    bool MayWrite() {
        if (writesThatSucceed == 0) return false;
        if (writesThatSucceed > 0) --writesThatSucceed;
        return true;
    }
    bool Put(std::wstring_view section, std::wstring_view name, Value value, std::wstring_view shown) {
        if (!MayWrite()) return false;
        log.append(section).append(L".").append(name).append(L"=").append(shown).append(L"\n");
        sections[std::wstring{section}][std::wstring{name}] = std::move(value);
        return true;
    }
};

} // namespace korvane::test
