// Makes controls for hosts.
#pragma once
#include "../support/Unknown.h"

namespace lumenote {

class ControlFactory : public IClassFactory {
 public:
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** out) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 protected:
  void* Interface(REFIID id);
};

class ClassFactory final : public Unknown<ControlFactory> {};

}  // namespace lumenote
