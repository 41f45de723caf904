// The functions that the system calls in the DLL.
#include <cwchar>

#include "../support/ComPtr.h"
#include "../support/Errors.h"
#include "../typelib/Identity.h"
#include "ClassFactory.h"
#include "Registration.h"

using namespace lumenote;

STDAPI DllGetClassObject(REFCLSID asked, REFIID id, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (!IsEqualCLSID(asked, kClassId)) return CLASS_E_CLASSNOTAVAILABLE;
  return Guarded(
      [&] { return ComPtr<ClassFactory>::Owning(new ClassFactory)->QueryInterface(id, out); });
}

STDAPI DllCanUnloadNow() { return CodeInUse::Count() == 0 ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return Register(); }

STDAPI DllUnregisterServer() { return Unregister(); }

// `regsvr32 /n /i:user` concerns the current user alone, whatever is allowed.
STDAPI DllInstall(BOOL install, PCWSTR scope) {
  const bool user = scope && _wcsicmp(scope, L"user") == 0;
  if (install) return user ? RegisterForUser() : Register();
  return user ? UnregisterForUser() : Unregister();
}
