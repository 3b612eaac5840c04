#pragma once

#include <string>

namespace korvane::about {

// Makes the program's own folder the current one and puts the old one back. HTML Help looks for a help file named
// without a path in the current folder, which a shortcut may have set to another than the program's.
class OwnFolderScope {
public:
    OwnFolderScope();
    OwnFolderScope(const OwnFolderScope&) = delete;
    OwnFolderScope& operator=(const OwnFolderScope&) = delete;
    ~OwnFolderScope();

private:
    std::wstring previous_; // empty when it was not changed
};

} // namespace korvane::about
