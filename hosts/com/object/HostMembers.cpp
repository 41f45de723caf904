#include "HostMembers.h"

#include "../support/Module.h"
#include "lumenote/Win32Platform.h"

namespace lumenote {

HostMembers::HostMembers()
    : control_(std::make_unique<CoBxRtf>(std::make_shared<Win32Platform>())),
      description_(DescriptionOf(kInterfaceId)) {}

void HostMembers::Retire() {
  const auto going = std::move(control_);  // what its end calls finds none
}

void* HostMembers::Interface(REFIID id) {
  const bool own = IsEqualIID(id, IID_IDispatch) || IsEqualIID(id, kInterfaceId);
  return own ? static_cast<ICoBxRtf*>(this) : nullptr;
}

HRESULT HostMembers::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = description_ ? 1 : 0;
  return S_OK;
}

HRESULT HostMembers::GetTypeInfo(UINT index, LCID, ITypeInfo** description) {
  if (index != 0) return DISP_E_BADINDEX;
  return description_ ? description_.CopyTo(description) : TYPE_E_CANTLOADLIBRARY;
}

HRESULT HostMembers::GetIDsOfNames(REFIID, OLECHAR** names, UINT count, LCID, DISPID* ids) {
  return description_ ? description_->GetIDsOfNames(names, count, ids) : TYPE_E_CANTLOADLIBRARY;
}

HRESULT HostMembers::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments,
                            VARIANT* result, EXCEPINFO* error, UINT* wrong) {
  if (!description_) return TYPE_E_CANTLOADLIBRARY;
  return description_->Invoke(static_cast<ICoBxRtf*>(this), id, flags, arguments, result, error,
                              wrong);
}

}  // namespace lumenote
