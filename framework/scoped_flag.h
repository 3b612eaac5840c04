#pragma once

namespace fw {

// Sets a flag for the length of a scope and clears it at the end, whatever it was before.
class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag) : flag_{flag} { flag_ = true; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;
    ~ScopedFlag() { flag_ = false; }

private:
    bool& flag_;
};

} // namespace fw
