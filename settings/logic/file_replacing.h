#pragma once

#include <string>
#include <string_view>

namespace korvane::settings {

// What the replacing of a file asks of the system. Errors are Windows error codes, 0 for success.
class FileOperations {
public:
    virtual ~FileOperations() = default;

    // Both make a file or empty the one that is there, and give it content that has reached the disk when they return.
    // One that fails may leave part of the content behind.
    [[nodiscard]] virtual unsigned long WriteNew(const std::wstring& path, std::string_view bytes) = 0;
    [[nodiscard]] virtual unsigned long CopyNew(const std::wstring& from, const std::wstring& to) = 0;

    [[nodiscard]] virtual bool Exists(const std::wstring& path) const = 0;
    // Puts a file in the place of another one that is there, with the other one's rights.
    [[nodiscard]] virtual unsigned long Replace(const std::wstring& target, const std::wstring& with) = 0;
    // Gives a file another name, also that of one that is there.
    [[nodiscard]] virtual unsigned long MoveOver(const std::wstring& from, const std::wstring& to) = 0;
    // That there is no such file is success.
    [[nodiscard]] virtual unsigned long Delete(const std::wstring& path) = 0;
};

// Give a file new content. At any moment, whenever the process ends, it holds either the whole old or the whole new
// content: the new one is first written beside it, under its name with ".tmp" behind. When they fail the file is what
// it was.
[[nodiscard]] unsigned long ReplaceContent(FileOperations& files, const std::wstring& path, std::string_view bytes);
[[nodiscard]] unsigned long ReplaceByCopy(FileOperations& files, const std::wstring& path,
                                          const std::wstring& original);

} // namespace korvane::settings
