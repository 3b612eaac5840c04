#pragma once

#include <string>

#include "search/logic/file_type_list.h"
#include "search/logic/grep_arguments.h"
#include "settings/logic/setting_keys.h"

namespace korvane::search {

// What the user sets for a search with a text editor, beside the text to search for.
struct EditorSearchForm {
    bool keep = false; // the rest for the next time
    FileTypeList fileTypes;
    std::wstring folder;
    GrepOptions options;
};

// The form as it is shown at first. A text longer than any command line could hold has not been kept by this program,
// and counts as missing.
[[nodiscard]] EditorSearchForm ReadForm(const settings::ProfileStore& store,
                                        const settings::EditorSearchSettings& settings);

// Keeps the form as far as the user wants that; what was kept earlier is left alone otherwise.
void KeepForm(settings::ProfileStore& store, const settings::EditorSearchSettings& settings,
              const EditorSearchForm& form);

} // namespace korvane::search
