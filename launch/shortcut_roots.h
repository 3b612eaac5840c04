#pragma once

#include <chrono>
#include <mutex>
#include <set>
#include <string>

namespace korvane::launch {

// The shares and network drives that kept a scan waiting in vain, which it does not ask again. Any thread may use it.
class ShortcutRoots {
public:
    // False when the root is not to be asked. Otherwise it counts as being asked from now on. An empty root is a place
    // that always answers.
    [[nodiscard]] bool BeginAsking(const std::wstring& root);
    void EndAsking(const std::wstring& root, std::chrono::milliseconds took, bool gotIt);
    // What is being asked now has taken too long.
    void GiveUpAsking();

private:
    std::mutex mutex_;
    std::wstring asked_;
    std::set<std::wstring> avoided_;
};

} // namespace korvane::launch
