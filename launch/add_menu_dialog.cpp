#include "launch/add_menu_dialog.h"

#include <utility>

namespace korvane::launch {

CAddMenuDialog::CAddMenuDialog(HICON smallIcon, about::HelpOpener& help, std::optional<CLaunchItem> edited)
    : smallIcon_{smallIcon}, help_{help}, editing_{edited.has_value()} {
    if (edited) item_ = *std::move(edited);
}

} // namespace korvane::launch
