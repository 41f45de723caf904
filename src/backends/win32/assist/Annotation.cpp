#include "backends/win32/assist/Annotation.h"

#include "backends/win32/system/NativeText.h"

namespace lumenote {

namespace {

ComOwner<IAccPropServices> SystemsNotes() {
  void* found = nullptr;
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   &found);
  return ComOwner<IAccPropServices>(static_cast<IAccPropServices*>(found));
}

}  // namespace

Annotation::~Annotation() {
  if (notes_)
    notes_->ClearHwndProps(window_, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                           &PROPID_ACC_NAME, 1);
}

void Annotation::Name(const std::u16string& name) {
  if (!notes_) notes_ = SystemsNotes();
  if (notes_)
    notes_->SetHwndPropStr(window_, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                           Wide(name));
}

}  // namespace lumenote
