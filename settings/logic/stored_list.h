#pragma once

#include <span>
#include <string>
#include <vector>

#include "settings/logic/profile_store.h"

namespace korvane::settings {

// Storing a list of lines, one value each, so that it may be interrupted: the process can be ended, or the power fail,
// between any two writes.

struct LineWrite {
    int number = 0; // from 1
    std::wstring line;

    friend bool operator==(const LineWrite&, const LineWrite&) = default;
};

// The writes that make the stored lines into the wanted ones, in an order in which no line that stays in the list is
// ever missing from it. Lines that only change places may be written once more behind the end on the way; all that
// stands behind the wanted lines is to be deleted afterwards. An empty line stands for no value: a stored one is free
// to be written, a wanted one is left out.
[[nodiscard]] std::vector<LineWrite> PlanListWrites(std::vector<std::wstring> stored,
                                                    std::span<const std::wstring> wanted);

// Makes the stored list, and all of its section, what the lines say; without a line there is no section. Only the first
// `most` values count as the list that is stored now. False when something could not be written: then nothing is
// deleted.
bool StoreList(ProfileStore& store, const NumberedSetting& list, std::span<const std::wstring> lines, std::size_t most);

} // namespace korvane::settings
