#include "framework/gdiplus_image.h"

#include <algorithm>
#include <utility>

#include <objidl.h>

#include "framework/handle.h"

// The GDI+ headers want min and max, which NOMINMAX takes away, and warn under -Wshadow and -Wpedantic.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wpedantic"
namespace Gdiplus {
using std::max; // NOLINT(misc-unused-using-decls): for the headers below
using std::min; // NOLINT(misc-unused-using-decls)
} // namespace Gdiplus
#include <gdiplus.h>
#pragma GCC diagnostic pop

namespace fw {

GdiplusSession::GdiplusSession() {
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
}

GdiplusSession::~GdiplusSession() {
    if (token_) Gdiplus::GdiplusShutdown(token_);
}

PngImage::PngImage() = default;
PngImage::PngImage(PngImage&&) noexcept = default;
PngImage& PngImage::operator=(PngImage&&) noexcept = default;
PngImage::~PngImage() = default;

void PngImage::Release::operator()(Gdiplus::Bitmap* bitmap) const {
    delete bitmap;
}

PngImage PngImage::FromResource(UINT id) {
    PngImage image;
    const HMODULE module = ::GetModuleHandleW(nullptr);
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(id), L"PNG");
    if (!resource) return image;
    const void* const data = ::LockResource(::LoadResource(module, resource));
    const DWORD size = ::SizeofResource(module, resource);

    // The stream owns the memory block; GDI+ keeps the stream for as long as the picture lives.
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, size);
    if (!block) return image;
    std::copy_n(static_cast<const BYTE*>(data), size, static_cast<BYTE*>(::GlobalLock(block)));
    ::GlobalUnlock(block);
    IStream* stream = nullptr;
    if (FAILED(::CreateStreamOnHGlobal(block, TRUE, &stream))) {
        ::GlobalFree(block);
        return image;
    }
    image.bitmap_.reset(Gdiplus::Bitmap::FromStream(stream));
    stream->Release();
    if (image.bitmap_ && image.bitmap_->GetLastStatus() != Gdiplus::Ok) image.bitmap_.reset();
    return image;
}

korvane::base::Size PngImage::Extent() const {
    if (!bitmap_) return {};
    return {static_cast<int>(bitmap_->GetWidth()), static_cast<int>(bitmap_->GetHeight())};
}

void PngImage::Draw(HDC dc, const korvane::base::Rect& target) const {
    if (!bitmap_) return;
    Gdiplus::Graphics graphics{dc};
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    graphics.DrawImage(bitmap_.get(), target.left, target.top, target.Width(), target.Height());
}

UniqueBitmap PngImage::ToBitmap() const {
    HBITMAP bitmap = nullptr;
    if (bitmap_) bitmap_->GetHBITMAP(Gdiplus::Color{}, &bitmap);
    return UniqueBitmap{bitmap};
}

} // namespace fw
