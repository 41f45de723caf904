// What a container asks of a control on its form. It has no window there: at run time it is
// invisible, at design time an icon.
#pragma once
#include "ClientSite.h"

namespace lumenote {

/// How the control behaves in containers; also in the registry.
inline constexpr DWORD kMiscStatus = OLEMISC_INVISIBLEATRUNTIME | OLEMISC_SETCLIENTSITEFIRST |
                                     OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                     OLEMISC_NOUIACTIVATE;

/// The size of the icon, in hundredths of millimetres (32 pixels).
inline constexpr SIZEL kIconExtent = {847, 847};

class ContainedControl : public IOleObject, public IOleControl, protected virtual ClientSite {
 public:
  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE Close(DWORD) override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
  HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* name) override;
  /// The icon keeps its size.
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL*) override { return E_FAIL; }
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** sinks) override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* status) override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* keys) override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(MSG*) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) override { return S_OK; }

 protected:
  void* Interface(REFIID id);

 private:
  ComPtr<IOleAdviseHolder> sinks_;  // made for the first sink
};

}  // namespace lumenote
