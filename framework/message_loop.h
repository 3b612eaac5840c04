#pragma once

#include <windows.h>

#include <utility>
#include <vector>

namespace fw {

// Sees every message before it is translated; true keeps it from going further.
class MessageFilter {
public:
    virtual bool PreTranslate(const MSG& message) = 0;

protected:
    ~MessageFilter() = default;
};

// The thread's message loop. Filters run newest first.
class MessageLoop {
public:
    // Keeps a filter in the loop for as long as it lives. The loop must outlive it.
    class Registration {
    public:
        Registration() = default;
        Registration(MessageLoop& loop, MessageFilter& filter) : loop_{&loop}, filter_{&filter} {
            loop.filters_.push_back(&filter);
        }
        Registration(Registration&& other) noexcept
            : loop_{std::exchange(other.loop_, nullptr)}, filter_{std::exchange(other.filter_, nullptr)} {}
        Registration& operator=(Registration&& other) noexcept {
            std::swap(loop_, other.loop_);
            std::swap(filter_, other.filter_);
            return *this;
        }
        ~Registration() { Reset(); }
        void Reset() {
            if (loop_) std::erase(loop_->filters_, filter_);
            loop_ = nullptr;
        }

    private:
        MessageLoop* loop_ = nullptr;
        MessageFilter* filter_ = nullptr;
    };

    [[nodiscard]] Registration Add(MessageFilter& filter) { return {*this, filter}; }

    // Until WM_QUIT; gives its exit code.
    int Run();
    // Runs a message through the filters and, if none takes it, through the window procedures.
    void Process(const MSG& message);

private:
    std::vector<MessageFilter*> filters_;
};

} // namespace fw
