// Text, RTF, HTML and images on their way between programs.
#pragma once
#include <optional>
#include <vector>

#include "backends/win32/clipboard/SharedImages.h"
#include "backends/win32/system/ComObject.h"
#include "platform/Clipboard.h"
#include "view/acts/TextDrag.h"

namespace lumenote {

/// Offers an excerpt, the richest form first; each text is generated on request, the forms of a
/// picture at the first one.
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
  const std::vector<ImageForm>& Images();
  /// Those that are offered, the richest first.
  std::vector<CLIPFORMAT> Formats();
  HGLOBAL CopyOf(CLIPFORMAT format);

  TextExcerpt text_;
  std::optional<std::vector<ImageForm>> images_;  // of the picture that is dragged, once known
};

/// Whether `ReadTransfer` could return anything.
bool HasTransfer(IDataObject& data);
ClipboardContent ReadTransfer(IDataObject& data);

}  // namespace lumenote
