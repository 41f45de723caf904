// What hosts ask about the object: its class, and where it describes errors.
#pragma once
#include "../support/Ole.h"

namespace lumenote {

class ClassDescription : public IProvideClassInfo, public ISupportErrorInfo {
 public:
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** description) override;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;

 protected:
  void* Interface(REFIID id);
};

}  // namespace lumenote
