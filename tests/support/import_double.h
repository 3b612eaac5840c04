#pragma once

#include <windows.h>

#include <memory>

// Where the linker keeps the address of an imported function; every call of this program goes through it. `bytes` is
// what the function takes from the stack, which is part of its name in a 32-bit program.
#ifdef _WIN64
#define KORVANE_IMPORT_NAME(function, bytes) "__imp_" #function
#else
#define KORVANE_IMPORT_NAME(function, bytes) "__imp__" #function "@" #bytes
#endif

namespace korvane::test {

// Puts another function in the place of one that this program imports, for as long as it lives. Windows itself goes on
// calling the real one.
class ImportDouble {
public:
    ImportDouble(void*& import, void* replacement) : import_{&import}, real_{import} { Write(replacement); }
    ImportDouble(const ImportDouble&) = delete;
    ImportDouble& operator=(const ImportDouble&) = delete;
    ~ImportDouble() { Write(real_); }

    [[nodiscard]] void* Real() const { return real_; }

private:
    void Write(void* function) const {
        DWORD before = 0;
        ::VirtualProtect(import_, sizeof function, PAGE_READWRITE, &before);
        *import_ = function;
        ::VirtualProtect(import_, sizeof function, before, &before);
    }

    void** import_;
    void* real_;
};

} // namespace korvane::test
