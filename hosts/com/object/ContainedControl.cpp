#include "ContainedControl.h"

#include "../typelib/Identity.h"

namespace lumenote {

void* ContainedControl::Interface(REFIID id) {
  if (IsEqualIID(id, IID_IOleObject)) return static_cast<IOleObject*>(this);
  if (IsEqualIID(id, IID_IOleControl)) return static_cast<IOleControl*>(this);
  return nullptr;
}

HRESULT ContainedControl::SetClientSite(IOleClientSite* site) {
  Site(site);
  return S_OK;
}

HRESULT ContainedControl::GetClientSite(IOleClientSite** site) { return Site().CopyTo(site); }

HRESULT ContainedControl::Close(DWORD) {
  if (sinks_) sinks_->SendOnClose();
  return S_OK;
}

// The standard verbs are negative; there is no window that they could show or hide.
HRESULT ContainedControl::DoVerb(LONG verb, LPMSG, IOleClientSite*, LONG, HWND, LPCRECT) {
  if (verb > OLEIVERB_PRIMARY) return OLEOBJ_S_INVALIDVERB;
  return verb >= OLEIVERB_DISCARDUNDOSTATE ? S_OK : E_NOTIMPL;
}

HRESULT ContainedControl::EnumVerbs(IEnumOLEVERB** verbs) {
  return OleRegEnumVerbs(kClassId, verbs);
}

HRESULT ContainedControl::GetUserClassID(CLSID* id) {
  if (!id) return E_POINTER;
  *id = kClassId;
  return S_OK;
}

HRESULT ContainedControl::GetUserType(DWORD form, LPOLESTR* name) {
  return OleRegGetUserType(kClassId, form, name);
}

HRESULT ContainedControl::GetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!size) return E_POINTER;
  *size = kIconExtent;
  return S_OK;
}

HRESULT ContainedControl::Advise(IAdviseSink* sink, DWORD* connection) {
  if (!sinks_ && FAILED(CreateOleAdviseHolder(sinks_.Out()))) return E_OUTOFMEMORY;
  return sinks_->Advise(sink, connection);
}

HRESULT ContainedControl::Unadvise(DWORD connection) {
  return sinks_ ? sinks_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT ContainedControl::EnumAdvise(IEnumSTATDATA** sinks) {
  if (!sinks) return E_POINTER;
  *sinks = nullptr;
  return sinks_ ? sinks_->EnumAdvise(sinks) : S_OK;
}

HRESULT ContainedControl::GetMiscStatus(DWORD, DWORD* status) {
  if (!status) return E_POINTER;
  *status = kMiscStatus;
  return S_OK;
}

HRESULT ContainedControl::GetControlInfo(CONTROLINFO* keys) {
  if (!keys) return E_POINTER;
  *keys = {sizeof *keys, nullptr, 0, 0};
  return S_OK;
}

}  // namespace lumenote
