#include "search/editor_search.h"

#include "res/ids.h"
#include "search/edit_search_dialog.h"

namespace korvane::search {

SearchOutcome RunEditorSearch(HWND owner, SearchTool editor, std::wstring& text, settings::ProfileStore& settings,
                              about::HelpOpener& help, ProcessStarter& starter) {
    bool opened = true;
    const auto ask = [&](SearchTool asked, const std::wstring& searchText) {
        CEditSearchDialog dialog{asked, searchText, settings, help};
        // Its result tells neither whether it was there nor whether the user has ended it.
        static_cast<void>(dialog.ShowModal(owner));
        opened = dialog.WasOpened();
        return dialog.Answer();
    };
    SearchOutcome outcome = RunEditorSearch(editor, text, settings, ask, starter);
    if (!opened) return Refusal{IDS_DIALOG_FAILED, {}, false};
    return outcome;
}

} // namespace korvane::search
