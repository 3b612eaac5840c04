#include "search/logic/editor_search_form.h"

namespace korvane::search {
namespace {

// Characters; Windows takes no longer command line.
constexpr std::size_t kLongestText = 32767;

std::wstring ReadBounded(const settings::ProfileStore& store, const settings::TextSetting& setting) {
    auto text = store.Read(setting);
    if (text.size() > kLongestText) text.clear();
    return text;
}

} // namespace

EditorSearchForm ReadForm(const settings::ProfileStore& store, const settings::EditorSearchSettings& settings) {
    EditorSearchForm form;
    form.keep = store.Read(settings.saveSettings) == 1;
    if (!form.keep) return form;
    form.fileTypes = FileTypeList::Restore(ReadBounded(store, settings.extensionList));
    form.folder = ReadBounded(store, settings.searchFolder);
    if (const auto bytes = store.Read(settings.searchOption)) form.options = DecodeGrepOptions(*bytes);
    return form;
}

void KeepForm(settings::ProfileStore& store, const settings::EditorSearchSettings& settings,
              const EditorSearchForm& form) {
    store.Write(settings.saveSettings, form.keep ? 1 : 0);
    if (!form.keep) return;
    store.Write(settings.extensionList, form.fileTypes.Kept());
    store.Write(settings.searchFolder, form.folder);
    store.Write(settings.searchOption, EncodeGrepOptions(form.options));
}

} // namespace korvane::search
