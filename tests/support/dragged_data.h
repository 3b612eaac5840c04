#pragma once

#include <windows.h>

#include <ole2.h>
#include <shlobj.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace korvane::test {

// What another program offers while it is dragged: a text, files, both or neither. Counts who holds it.
class DraggedData final : public IDataObject {
public:
    explicit DraggedData(std::optional<std::wstring> text, std::vector<std::wstring> files = {})
        : text_{std::move(text)}, files_{std::move(files)} {}
    virtual ~DraggedData() = default;
    DraggedData(const DraggedData&) = delete;
    DraggedData& operator=(const DraggedData&) = delete;

    [[nodiscard]] ULONG References() const { return references_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override { return --references_; }

    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* wanted) override {
        if (wanted->cfFormat == CF_UNICODETEXT && text_) return S_OK;
        return wanted->cfFormat == CF_HDROP && !files_.empty() ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* wanted, STGMEDIUM* medium) override {
        if (QueryGetData(wanted) != S_OK) return DV_E_FORMATETC;
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = wanted->cfFormat == CF_HDROP ? FilesInMemory() : InMemory(*text_);
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

private:
    static HGLOBAL InMemory(const std::wstring& text, std::size_t before = 0) {
        const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
        const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, before + bytes);
        std::memcpy(static_cast<char*>(::GlobalLock(memory)) + before, text.c_str(), bytes);
        ::GlobalUnlock(memory);
        return memory;
    }
    HGLOBAL FilesInMemory() const {
        std::wstring list;
        for (const std::wstring& file : files_) list += file + L'\0';
        const HGLOBAL memory = InMemory(list, sizeof(DROPFILES));
        auto* const header = static_cast<DROPFILES*>(::GlobalLock(memory));
        header->pFiles = sizeof(DROPFILES);
        header->fWide = TRUE;
        ::GlobalUnlock(memory);
        return memory;
    }

    std::optional<std::wstring> text_;
    std::vector<std::wstring> files_;
    ULONG references_ = 1;
};

} // namespace korvane::test
