#include "DesignView.h"

#include "ContainedControl.h"
#include "Resources.h"
#include "backends/win32/toolkit/Window.h"

namespace lumenote {

namespace {

/// Fills `bounds` with the control's icon.
void DrawDesignIcon(HDC canvas, const RECTL& bounds) {
  const int width = bounds.right - bounds.left;
  const int height = bounds.bottom - bounds.top;
  const HANDLE icon = LoadImageW(OwnModule(), MAKEINTRESOURCEW(LUMENOTE_ICON), IMAGE_ICON, width,
                                 height, LR_DEFAULTCOLOR);
  if (!icon) return;
  DrawIconEx(canvas, bounds.left, bounds.top, static_cast<HICON>(icon), width, height, 0, nullptr,
             DI_NORMAL);
  DestroyIcon(static_cast<HICON>(icon));
}

}  // namespace

void* DesignView::Interface(REFIID id) {
  const bool own = IsEqualIID(id, IID_IViewObject2) || IsEqualIID(id, IID_IViewObject);
  return own ? static_cast<IViewObject2*>(this) : nullptr;
}

HRESULT DesignView::Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC canvas,
                         LPCRECTL bounds, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                         ULONG_PTR) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!bounds) return E_INVALIDARG;
  if (Designing()) DrawDesignIcon(canvas, *bounds);
  return S_OK;
}

HRESULT DesignView::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  aspects_ = aspects;
  flags_ = flags;
  sink_ = ComPtr<IAdviseSink>(sink);
  return S_OK;
}

HRESULT DesignView::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects) *aspects = aspects_;
  if (flags) *flags = flags_;
  return sink ? sink_.CopyTo(sink) : S_OK;
}

HRESULT DesignView::GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!size) return E_POINTER;
  *size = kIconExtent;
  return S_OK;
}

}  // namespace lumenote
