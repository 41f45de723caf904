#include "Errors.h"

#include "../typelib/Identity.h"
#include "Bstr.h"
#include "ComPtr.h"

namespace lumenote {

namespace {

std::u16string SourceOf(const RuntimeError& error) {
  const std::wstring_view name = kProgId;
  const std::u16string source(name.begin(), name.end());
  return error.Member().empty() ? source : source + u"." + error.Member();
}

void Publish(const RuntimeError& error) {
  ComPtr<ICreateErrorInfo> made;
  if (FAILED(CreateErrorInfo(made.Out()))) return;
  made->SetGUID(kInterfaceId);
  made->SetSource(Bstr(SourceOf(error)).Get());
  made->SetDescription(Bstr(error.Description()).Get());
  ComPtr<IErrorInfo> info;
  if (SUCCEEDED(made->QueryInterface(IID_IErrorInfo, info.OutVoid()))) SetErrorInfo(0, info.Get());
}

}  // namespace

HRESULT Report(const RuntimeError& error) {
  try {
    Publish(error);
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, error.Number());
}

}  // namespace lumenote
