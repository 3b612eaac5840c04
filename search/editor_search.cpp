#include "search/editor_search.h"

#include "res/ids.h"
#include "search/edit_search_dialog.h"

namespace korvane::search {

SearchOutcome RunEditorSearch(HWND owner, SearchTool editor, std::wstring& text, settings::ProfileStore& settings,
                              about::HelpOpener& help, ProcessStarter& starter) {
    INT_PTR result = IDCANCEL;
    const auto ask = [&](SearchTool asked, const std::wstring& searchText) -> std::optional<EditorSearchAnswer> {
        CEditSearchDialog dialog{asked, searchText, settings, help};
        result = dialog.ShowModal(owner);
        if (result != IDOK) return std::nullopt;
        return dialog.Answer();
    };
    SearchOutcome outcome = RunEditorSearch(editor, text, settings, ask, starter);
    // Windows answers 0 or -1, by what was in the way of the dialog.
    if (result != IDOK && result != IDCANCEL) return Refusal{IDS_DIALOG_FAILED, {}, false};
    return outcome;
}

} // namespace korvane::search
