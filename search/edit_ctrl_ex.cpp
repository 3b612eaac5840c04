#include "search/edit_ctrl_ex.h"

namespace korvane::search {

void CEditCtrlEx::Tell(UINT code) const {
    ::SendMessageW(::GetParent(Handle()), WM_COMMAND, MAKEWPARAM(static_cast<UINT>(::GetDlgCtrlID(Handle())), code),
                   reinterpret_cast<LPARAM>(Handle()));
}

fw::Reply CEditCtrlEx::OnMouseMove(const fw::Message&) {
    if (mouseInside_) return fw::kPassOn;
    // Without word of the mouse's leaving nothing could ever take its coming back.
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, Handle(), 0};
    if (!::TrackMouseEvent(&track)) return fw::kPassOn;
    mouseInside_ = true;
    Tell(kMouseEntered);
    return fw::kPassOn;
}

fw::Reply CEditCtrlEx::OnMouseLeave() {
    if (mouseInside_) {
        mouseInside_ = false;
        Tell(kMouseLeft);
    }
    return fw::kPassOn;
}

} // namespace korvane::search
