#pragma once

#include <chrono>

#include "framework/handle.h"

namespace fw {

// A mutex that all processes of a session know by its name. It belongs to the thread that takes it, and is given back
// when this object dies or its process ends, however that happens.
class NamedMutex {
public:
    // A name that begins with "Local\" is one of this session only.
    explicit NamedMutex(const wchar_t* name);
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;
    ~NamedMutex();

    // False when it cannot be had at all: another user's process may have it and share it with nobody, or the name may
    // stand for something else.
    [[nodiscard]] bool Exists() const { return static_cast<bool>(mutex_); }
    // Takes it, waiting so long for others to give it back. Meanwhile messages that other threads send are answered.
    [[nodiscard]] bool Take(std::chrono::milliseconds patience);

private:
    UniqueKernelHandle mutex_;
    bool taken_ = false;
};

} // namespace fw
