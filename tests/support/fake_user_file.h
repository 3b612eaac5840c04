#pragma once

#include <optional>
#include <string>

#include "search/logic/user_commands.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

namespace korvane::test {

// Stands for the file that the store's sections lie in.
class FakeUserFile final : public search::UserCommandFile {
public:
    explicit FakeUserFile(FakeStore& store) : store_{store} {}

    // What the file is like; empty for whatever the store suggests.
    std::optional<search::FileCondition> condition;
    unsigned long copyError = 0;
    unsigned long writeError = 0;
    unsigned long deleteError = 0;
    // The changes, each followed by a semicolon.
    std::wstring log;

    [[nodiscard]] search::UserCommandReading Read() const override {
        auto commands = search::SearchCommandTable{store_}.ReadAll();
        const auto usual = commands.empty() ? search::FileCondition::kNone : search::FileCondition::kGood;
        return {condition.value_or(usual), std::move(commands)};
    }
    [[nodiscard]] unsigned long KeepCopy() override {
        log += L"copy;";
        return copyError;
    }
    [[nodiscard]] unsigned long Write(std::span<const search::SearchCommand> commands) override {
        log += L"write;";
        if (writeError != 0) return writeError;
        store_.sections.clear();
        int number = 0;
        for (const auto& command : commands) {
            auto& section = store_.sections[settings::section::SearchCommand(++number)];
            section[L"CommandName"] = command.name;
            section[L"CommandLine"] = command.line;
            section[L"Comment"] = command.comment;
        }
        return 0;
    }
    [[nodiscard]] unsigned long Delete() override {
        log += L"delete;";
        if (deleteError == 0) store_.sections.clear();
        return deleteError;
    }

private:
    FakeStore& store_;
};

} // namespace korvane::test
