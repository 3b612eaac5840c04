#include "framework/drop_target.h"

#include <shellapi.h>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace fw {
namespace {

FORMATETC InMemory(CLIPFORMAT format) {
    FORMATETC wanted{};
    wanted.cfFormat = format;
    wanted.dwAspect = DVASPECT_CONTENT;
    wanted.lindex = -1;
    wanted.tymed = TYMED_HGLOBAL;
    return wanted;
}

bool Has(IDataObject& data, CLIPFORMAT format) {
    FORMATETC wanted = InMemory(format);
    return data.QueryGetData(&wanted) == S_OK;
}

// A copy of the data in one format, released with this object.
class Medium {
public:
    Medium(IDataObject& data, CLIPFORMAT format) {
        FORMATETC wanted = InMemory(format);
        got_ = SUCCEEDED(data.GetData(&wanted, &medium_));
    }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
    ~Medium() {
        if (got_) ::ReleaseStgMedium(&medium_);
    }
    [[nodiscard]] HGLOBAL Memory() const { return got_ && medium_.tymed == TYMED_HGLOBAL ? medium_.hGlobal : nullptr; }

private:
    STGMEDIUM medium_{};
    bool got_ = false;
};

// OLE's view of a handler. OLE may keep it longer than the window lives, so it lets go of the handler by itself.
class Target final : public IDropTarget {
public:
    explicit Target(DropHandler& handler) : handler_{&handler} {}
    virtual ~Target() = default;
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;

    void Forget() { handler_ = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) noexcept override {
        const bool known = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IDropTarget);
        *object = known ? static_cast<IDropTarget*>(this) : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD, POINTL at, DWORD* effect) noexcept override {
        data_.reset(data);
        if (data) data->AddRef();
        return Over(at, effect);
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD, POINTL at, DWORD* effect) noexcept override { return Over(at, effect); }
    HRESULT STDMETHODCALLTYPE DragLeave() noexcept override {
        data_.reset();
        if (handler_) handler_->OnDragLeave();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD, POINTL at, DWORD* effect) noexcept override {
        data_.reset();
        const bool taken = handler_ && data && Accepts(*data, at, *effect);
        *effect = taken ? EffectFrom(*effect) : DROPEFFECT_NONE;
        if (taken) {
            handler_->OnDrop(DragData{*data}, {at.x, at.y});
        } else if (handler_) {
            handler_->OnDragLeave();
        }
        return S_OK;
    }

private:
    // What is dropped stays where it was: the bar only reads it.
    static DWORD EffectFrom(DWORD allowed) {
        for (const DWORD effect : {DROPEFFECT_COPY, DROPEFFECT_LINK})
            if (allowed & effect) return effect;
        return DROPEFFECT_NONE;
    }
    bool Accepts(IDataObject& data, POINTL at, DWORD allowed) {
        return EffectFrom(allowed) != DROPEFFECT_NONE && handler_->OnDragOver(DragData{data}, {at.x, at.y});
    }
    HRESULT Over(POINTL at, DWORD* effect) {
        *effect = handler_ && data_ && Accepts(*data_, at, *effect) ? EffectFrom(*effect) : DROPEFFECT_NONE;
        return S_OK;
    }

    std::atomic<ULONG> references_{1};
    DropHandler* handler_;
    UniqueInterface<IDataObject> data_; // while something is dragged over the window
};

} // namespace

bool DragData::HasText() const {
    return Has(data_, CF_UNICODETEXT);
}

bool DragData::HasFiles() const {
    return Has(data_, CF_HDROP);
}

std::wstring DragData::Text() const {
    const Medium medium{data_, CF_UNICODETEXT};
    if (!medium.Memory()) return {};
    std::wstring text;
    if (const auto* const first = static_cast<const wchar_t*>(::GlobalLock(medium.Memory()))) {
        // A program may leave out the terminating zero.
        const auto* const end = first + ::GlobalSize(medium.Memory()) / sizeof(wchar_t);
        text.assign(first, std::find(first, end, L'\0'));
        ::GlobalUnlock(medium.Memory());
    }
    return text;
}

std::vector<std::wstring> DragData::Files() const {
    const Medium medium{data_, CF_HDROP};
    if (!medium.Memory()) return {};
    const auto drop = static_cast<HDROP>(medium.Memory());
    constexpr UINT kHowMany = 0xFFFFFFFF;
    std::vector<std::wstring> files;
    for (UINT i = 0; i < ::DragQueryFileW(drop, kHowMany, nullptr, 0); ++i) {
        std::wstring path(::DragQueryFileW(drop, i, nullptr, 0), L'\0');
        ::DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size()) + 1);
        if (!path.empty()) files.push_back(std::move(path));
    }
    return files;
}

bool DropTarget::Start(HWND window, DropHandler& handler) {
    if (target_) return true;
    if (FAILED(::OleInitialize(nullptr))) return false;
    target_.reset(new Target{handler});
    window_ = window;
    if (SUCCEEDED(::RegisterDragDrop(window, target_.get()))) return true;
    target_.reset();
    ::OleUninitialize();
    return false;
}

void DropTarget::Stop() {
    if (!target_) return;
    static_cast<Target&>(*target_).Forget();
    ::RevokeDragDrop(window_);
    target_.reset();
    ::OleUninitialize();
}

} // namespace fw
