#include "launch/import_dialog.h"

namespace korvane::launch {

CImportDialog::CImportDialog(int count, HICON smallIcon, about::HelpOpener& help)
    : count_{count}, smallIcon_{smallIcon}, help_{help} {}

} // namespace korvane::launch
