#include "launch/shortcut_scan.h"

#include <windows.h>

#include <objbase.h>

#include <atomic>
#include <mutex>
#include <optional>
#include <utility>

#include "framework/thread.h"
#include "launch/shortcut.h"
#include "launch/shortcut_walk.h"

namespace korvane::launch {
namespace {

using Clock = std::chrono::steady_clock;

// Threads that a scan leaves behind at most; with so many it waits for the last.
constexpr unsigned kMostTurns = 8;

class ComApartment {
public:
    ComApartment() : initialised_{SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))} {}
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment() {
        if (initialised_) ::CoUninitialize();
    }

private:
    bool initialised_;
};

} // namespace

// What a scan and its threads share. One thread at a time has the turn to walk on; it can lose it while it reads a
// shortcut, and then nothing that it does counts any more.
class ShortcutScan::Progress {
public:
    Progress(const std::wstring& folder, bool subfolders, std::shared_ptr<ShortcutReader> reader)
        : reader_{std::move(reader)}, folder_{folder}, subfolders_{subfolders} {}

    // Of the thread that has the turn.
    bool ReadNext(unsigned turn) {
        // The first folder is opened here and not before: that alone can take long.
        if (!walk_) walk_.emplace(folder_, subfolders_);
        const std::optional<std::wstring> file = walk_->Next(stop_);
        if (!BeginReading(file)) return false;
        ImportableItem item = reader_->Read(*file, roots_);
        return EndReading(turn, std::move(item));
    }
    void End() {
        const std::lock_guard lock{mutex_};
        running_ = false;
    }

    // Of the scan.
    void Stop() {
        stop_ = true;
        End();
    }
    [[nodiscard]] bool Running() const {
        const std::lock_guard lock{mutex_};
        return running_;
    }
    [[nodiscard]] std::vector<ImportableItem> Take() {
        const std::lock_guard lock{mutex_};
        return std::exchange(found_, {});
    }
    // Takes the turn away from a thread that has been reading one shortcut for too long; gives the next turn.
    [[nodiscard]] std::optional<unsigned> TakeTurnAway(std::chrono::milliseconds patience) {
        const std::lock_guard lock{mutex_};
        if (!running_ || !reading_ || turn_ >= kMostTurns || Clock::now() - readingSince_ < patience)
            return std::nullopt;
        found_.push_back(UnresolvedItem(*std::exchange(reading_, std::nullopt)));
        roots_.GiveUpAsking();
        return ++turn_;
    }

private:
    bool BeginReading(const std::optional<std::wstring>& file) {
        const std::lock_guard lock{mutex_};
        if (!running_) return false;
        reading_ = file;
        readingSince_ = Clock::now();
        running_ = file.has_value();
        return running_;
    }
    bool EndReading(unsigned turn, ImportableItem item) {
        const std::lock_guard lock{mutex_};
        if (!running_ || turn != turn_) return false;
        reading_.reset();
        found_.push_back(std::move(item));
        return true;
    }

    const std::shared_ptr<ShortcutReader> reader_;
    const std::wstring folder_;
    const bool subfolders_;
    ShortcutRoots roots_;
    std::optional<ShortcutWalk> walk_; // belongs to the thread that has the turn
    std::atomic<bool> stop_ = false;

    mutable std::mutex mutex_; // guards what follows
    bool running_ = true;
    unsigned turn_ = 0;
    std::optional<std::wstring> reading_;
    Clock::time_point readingSince_;
    std::vector<ImportableItem> found_;
};

void ScanShortcuts(const std::wstring& folder, bool subfolders, ShortcutReader& reader,
                   const std::function<bool(ImportableItem)>& sink) {
    const std::atomic<bool> neverStop = false;
    ShortcutRoots roots;
    ShortcutWalk walk{folder, subfolders};
    while (const auto file = walk.Next(neverStop))
        if (!sink(reader.Read(*file, roots))) return;
}

ShortcutScan::ShortcutScan(std::shared_ptr<ShortcutReader> reader, std::chrono::milliseconds patience)
    : reader_{std::move(reader)}, patience_{patience} {}

ShortcutScan::~ShortcutScan() {
    Stop();
}

void ShortcutScan::Start(const std::wstring& folder, bool subfolders) {
    Stop();
    progress_ = std::make_shared<Progress>(folder, subfolders, reader_);
    StartThread(progress_, 0);
}

void ShortcutScan::Stop() {
    if (progress_) progress_->Stop();
}

bool ShortcutScan::Running() const {
    return progress_ && progress_->Running();
}

std::vector<ImportableItem> ShortcutScan::Take() {
    if (!progress_) return {};
    if (const auto turn = progress_->TakeTurnAway(patience_)) StartThread(progress_, *turn);
    return progress_->Take();
}

void ShortcutScan::StartThread(const std::shared_ptr<Progress>& progress, unsigned turn) {
    // Without a thread the scan is over before it began.
    if (!fw::StartThread([progress, turn] { Work(progress, turn); })) progress->End();
}

void ShortcutScan::Work(const std::shared_ptr<Progress>& progress, unsigned turn) {
    const ComApartment com;
    while (progress->ReadNext(turn)) {
    }
}

} // namespace korvane::launch
