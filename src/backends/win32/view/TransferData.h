// Text, RTF, HTML and images on their way between programs.
#pragma once
#include "backends/win32/system/ComObject.h"
#include "platform/Clipboard.h"
#include "view/acts/TextDrag.h"

namespace lumenote {

/// Offers an excerpt, the richest form first; each is generated on request.
class TransferData final : public ComObject<IDataObject> {
 public:
  explicit TransferData(TextExcerpt text) : text_(std::move(text)) {}

  HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
  HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
  HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override;
  HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) override;
  HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }
  HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
  HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override {
    return OLE_E_ADVISENOTSUPPORTED;
  }

 private:
  TextExcerpt text_;
};

/// Whether `ReadTransfer` could return anything.
bool HasTransfer(IDataObject& data);
ClipboardContent ReadTransfer(IDataObject& data);

}  // namespace lumenote
