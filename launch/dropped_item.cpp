#include "launch/dropped_item.h"

namespace korvane::launch {

CLaunchItem ItemFromFile(const std::wstring& path) {
    CLaunchItem item;
    item.Set(path, {}, {}, path, path, 0);
    return item;
}

} // namespace korvane::launch
