#include "ClientSite.h"

namespace lumenote {

bool ClientSite::Designing() const {
  ComPtr<IDispatch> ambient;
  if (!site_ || FAILED(site_->QueryInterface(IID_IDispatch, ambient.OutVoid()))) return false;
  DISPPARAMS none{};
  VARIANT running;
  VariantInit(&running);
  const HRESULT asked = ambient->Invoke(DISPID_AMBIENT_USERMODE, IID_NULL, LOCALE_USER_DEFAULT,
                                        DISPATCH_PROPERTYGET, &none, &running, nullptr, nullptr);
  const bool designing =
      SUCCEEDED(asked) && running.vt == VT_BOOL && running.boolVal == VARIANT_FALSE;
  VariantClear(&running);
  return designing;
}

}  // namespace lumenote
