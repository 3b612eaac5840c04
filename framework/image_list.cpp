#include "framework/image_list.h"

#include "framework/icons.h"

namespace fw {

UniqueImageList MakeImageList(std::initializer_list<UINT> iconIds, int sizePx) {
    const int count = static_cast<int>(iconIds.size());
    UniqueImageList list{::ImageList_Create(sizePx, sizePx, ILC_COLOR32 | ILC_MASK, count, 0)};
    ::ImageList_SetImageCount(list.Get(), static_cast<UINT>(count));
    int at = 0;
    for (const UINT id : iconIds) {
        if (const UniqueIcon icon = LoadResourceIcon(id, sizePx)) ::ImageList_ReplaceIcon(list.Get(), at, icon.Get());
        ++at;
    }
    return list;
}

} // namespace fw
