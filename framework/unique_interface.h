#pragma once

#include <windows.h>

#include <unknwn.h>

#include <memory>

namespace fw {

struct ReleaseInterface {
    void operator()(IUnknown* object) const { object->Release(); }
};

// Owns one reference to a COM object.
template <class T>
using UniqueInterface = std::unique_ptr<T, ReleaseInterface>;

} // namespace fw
