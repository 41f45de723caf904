#include "ClassDescription.h"

#include "../support/Errors.h"
#include "../support/Module.h"
#include "../typelib/Identity.h"

namespace lumenote {

void* ClassDescription::Interface(REFIID id) {
  if (IsEqualIID(id, IID_IProvideClassInfo)) return static_cast<IProvideClassInfo*>(this);
  if (IsEqualIID(id, IID_ISupportErrorInfo)) return static_cast<ISupportErrorInfo*>(this);
  return nullptr;
}

HRESULT ClassDescription::GetClassInfo(ITypeInfo** description) {
  return Guarded([&] { return DescriptionOf(kClassId).CopyTo(description); });
}

HRESULT ClassDescription::InterfaceSupportsErrorInfo(REFIID id) {
  return IsEqualIID(id, kInterfaceId) ? S_OK : S_FALSE;
}

}  // namespace lumenote
