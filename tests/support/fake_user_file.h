#pragma once

#include <string>
#include <utility>

#include "search/logic/command_saving.h"
#include "tests/support/fake_store.h"

namespace korvane::test {

// Stands for the file that the store's sections lie in.
class FakeUserFile final : public search::UserCommandFile {
public:
    explicit FakeUserFile(FakeStore& store) : store_{store} {}

    unsigned long recreateError = 0;
    unsigned long deleteError = 0;
    std::wstring log;

    [[nodiscard]] unsigned long Recreate() override {
        log += L"recreate;";
        if (recreateError != 0) return recreateError;
        before_ = std::exchange(store_.sections, {});
        return 0;
    }
    void Restore() override {
        log += L"restore;";
        store_.sections = before_;
    }
    [[nodiscard]] unsigned long Delete() override {
        log += L"delete;";
        if (deleteError == 0) store_.sections.clear();
        return deleteError;
    }

private:
    FakeStore& store_;
    decltype(FakeStore::sections) before_;
};

} // namespace korvane::test
