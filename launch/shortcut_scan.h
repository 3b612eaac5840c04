#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "launch/importable_item.h"
#include "launch/shortcut_reader.h"

namespace korvane::launch {

// Gives every shortcut of a folder to `sink`, in the order in which they are met, until `sink` answers false. COM must
// be initialised on this thread.
void ScanShortcuts(const std::wstring& folder, bool subfolders, ShortcutReader& reader,
                   const std::function<bool(ImportableItem)>& sink);

// Such a scan on a thread of its own. It is never waited for: a thread that hangs on a computer that does not answer is
// left to itself with what it needs, and what it may yet find goes with it.
class ShortcutScan {
public:
    // A shortcut that takes longer than `patience` is listed by its name alone.
    explicit ShortcutScan(std::shared_ptr<ShortcutReader> reader,
                          std::chrono::milliseconds patience = std::chrono::seconds{5});
    ShortcutScan(const ShortcutScan&) = delete;
    ShortcutScan& operator=(const ShortcutScan&) = delete;
    ~ShortcutScan();

    // Ends the scan that was running; what it found and was not taken is dropped.
    void Start(const std::wstring& folder, bool subfolders);
    // Finds nothing more. What was found can still be taken.
    void Stop();
    [[nodiscard]] bool Running() const;
    // What was found since the last call. To be called now and then, for it also gives up a shortcut that takes too
    // long.
    [[nodiscard]] std::vector<ImportableItem> Take();

private:
    class Progress;

    static void Work(const std::shared_ptr<Progress>& progress, unsigned turn);
    static void StartThread(const std::shared_ptr<Progress>& progress, unsigned turn);

    std::shared_ptr<ShortcutReader> reader_;
    std::chrono::milliseconds patience_;
    std::shared_ptr<Progress> progress_;
};

} // namespace korvane::launch
