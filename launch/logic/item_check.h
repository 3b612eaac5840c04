#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvane::launch {

enum class PathKind : std::uint8_t { kNothing, kFile, kFolder };

// What the check asks of the file system. The editor's is the real one; tests have their own.
class FileLookup {
public:
    // The full path of a file that is named without a folder; empty when it is not on the search path.
    [[nodiscard]] virtual std::wstring OnSearchPath(const std::wstring& name) const = 0;
    [[nodiscard]] virtual PathKind KindOf(const std::wstring& path) const = 0;

protected:
    ~FileLookup() = default;
};

// An item as it stands in the editor.
struct ItemFields {
    std::wstring program;
    std::wstring name;
    std::wstring arguments;
    std::wstring workingFolder;
    bool hasIcon = false;
    friend bool operator==(const ItemFields&, const ItemFields&) = default;
};

// What keeps an item from being accepted: a message to show, and the field that it is about.
struct ItemProblem {
    enum class Field : std::uint8_t { kIcon, kProgram, kName, kWorkingFolder };

    unsigned text; // of the string table; takes `argument` where it has one
    std::wstring argument;
    Field field;
    // The user may say that it is meant so; the others must be put right.
    bool mayBeAccepted = false;
    friend bool operator==(const ItemProblem&, const ItemProblem&) = default;
};

struct ItemCheck {
    std::optional<ItemProblem> problem; // the first; empty when the item is accepted
    ItemFields accepted;                // as it is to be stored: a program on the search path has its folder
};

// Whether an item may be stored. `anyFile` says that the user wants a program that is none.
[[nodiscard]] ItemCheck CheckItem(const ItemFields& fields, const FileLookup& files, bool anyFile = false);

} // namespace korvane::launch
