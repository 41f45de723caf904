// How the control looks on a form: an icon while the form is designed, nothing when it runs.
#pragma once
#include "ClientSite.h"

namespace lumenote {

class DesignView : public IViewObject2, protected virtual ClientSite {
 public:
  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG, void*, DVTARGETDEVICE*, HDC, HDC canvas,
                                 LPCRECTL bounds, LPCRECTL, BOOL(STDMETHODCALLTYPE*)(ULONG_PTR),
                                 ULONG_PTR) override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD, LONG, void*, DVTARGETDEVICE*, HDC,
                                        LOGPALETTE**) override {
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Freeze(DWORD, LONG, void*, DWORD*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD) override { return E_NOTIMPL; }
  /// The icon never changes, but the sink can be asked for again.
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG, DVTARGETDEVICE*, LPSIZEL size) override;

 protected:
  void* Interface(REFIID id);

 private:
  ComPtr<IAdviseSink> sink_;
  DWORD aspects_ = 0;
  DWORD flags_ = 0;
};

}  // namespace lumenote
