#include "launch/shortcut_roots.h"

namespace korvane::launch {
namespace {

// A computer that is there says quickly that it has no such file.
constexpr auto kLongWait = std::chrono::seconds{2};

} // namespace

bool ShortcutRoots::BeginAsking(const std::wstring& root) {
    const std::lock_guard lock{mutex_};
    if (avoided_.contains(root)) return false;
    asked_ = root;
    return true;
}

void ShortcutRoots::EndAsking(const std::wstring& root, std::chrono::milliseconds took, bool gotIt) {
    const std::lock_guard lock{mutex_};
    if (asked_ == root) asked_.clear();
    if (!root.empty() && !gotIt && took >= kLongWait) avoided_.insert(root);
}

void ShortcutRoots::GiveUpAsking() {
    const std::lock_guard lock{mutex_};
    if (!asked_.empty()) avoided_.insert(asked_);
    asked_.clear();
}

} // namespace korvane::launch
