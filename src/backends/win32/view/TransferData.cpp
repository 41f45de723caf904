#include "backends/win32/view/TransferData.h"

#include <algorithm>
#include <new>
#include <vector>

#include "backends/win32/clipboard/HtmlFormat.h"
#include "backends/win32/clipboard/OfferedData.h"
#include "backends/win32/system/SharedMemory.h"

// After the system's own header.
#include <shlobj.h>

namespace lumenote {

namespace {

FORMATETC FormatOf(CLIPFORMAT format) {
  return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

/// What a drag offers in memory.
class Offered final : public OfferedData {
 public:
  explicit Offered(IDataObject& data) : data_(data) {}

  std::vector<UINT> Formats() const override {
    std::vector<UINT> formats;
    IEnumFORMATETC* made = nullptr;
    if (data_.EnumFormatEtc(DATADIR_GET, &made) != S_OK) return formats;
    const ComOwner<IEnumFORMATETC> all(made);
    for (FORMATETC format = {}; all->Next(1, &format, nullptr) == S_OK;) {
      if (format.tymed & TYMED_HGLOBAL) formats.push_back(format.cfFormat);
      CoTaskMemFree(format.ptd);
    }
    return formats;
  }
  OfferedMemory In(UINT format) const override {
    FORMATETC wanted = FormatOf(static_cast<CLIPFORMAT>(format));
    STGMEDIUM medium = {};
    if (FAILED(data_.GetData(&wanted, &medium))) return {};
    return {medium.hGlobal, [medium](HGLOBAL) mutable { ReleaseStgMedium(&medium); }};
  }

 private:
  IDataObject& data_;
};

}  // namespace

// Without the memory for them, the text is offered alone.
const std::vector<ImageForm>& TransferData::Images() {
  if (images_) return *images_;
  images_.emplace();
  try {
    if (const std::vector<std::string> files = text_.Images(); !files.empty())
      images_ = FormsOf(files.front());
  } catch (const std::bad_alloc&) {
  }
  return *images_;
}

std::vector<CLIPFORMAT> TransferData::Formats() {
  std::vector<CLIPFORMAT> formats = {static_cast<CLIPFORMAT>(RtfFormat()),
                                     static_cast<CLIPFORMAT>(HtmlFormat())};
  for (const ImageForm& image : Images()) formats.push_back(static_cast<CLIPFORMAT>(image.format));
  formats.push_back(CF_UNICODETEXT);
  return formats;
}

HGLOBAL TransferData::CopyOf(CLIPFORMAT format) {
  if (format == CF_UNICODETEXT) return SharedCopy(text_.Text());
  if (format == RtfFormat()) return SharedCopy(text_.Rtf());
  if (format == HtmlFormat()) return SharedCopy(WithHtmlHeader(text_.Html()));
  const auto image = std::ranges::find(Images(), UINT{format}, &ImageForm::format);
  return image == Images().end() ? nullptr : SharedBytes(image->bytes);
}

HRESULT TransferData::QueryGetData(FORMATETC* format) {
  const bool inMemory = (format->tymed & TYMED_HGLOBAL) && format->dwAspect == DVASPECT_CONTENT;
  return inMemory && std::ranges::count(Formats(), format->cfFormat) > 0 ? S_OK : DV_E_FORMATETC;
}

HRESULT TransferData::GetData(FORMATETC* format, STGMEDIUM* medium) {
  if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
  *medium = {};
  try {
    medium->tymed = TYMED_HGLOBAL;
    medium->hGlobal = CopyOf(format->cfFormat);
  } catch (const std::bad_alloc&) {
  }
  return medium->hGlobal ? S_OK : E_OUTOFMEMORY;
}

HRESULT TransferData::GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) {
  out->ptd = nullptr;
  return DATA_S_SAMEFORMATETC;
}

HRESULT TransferData::EnumFormatEtc(DWORD direction, IEnumFORMATETC** out) {
  if (direction != DATADIR_GET) return E_NOTIMPL;
  std::vector<FORMATETC> formats;
  for (const CLIPFORMAT format : Formats()) formats.push_back(FormatOf(format));
  return SHCreateStdEnumFmtEtc(static_cast<UINT>(formats.size()), formats.data(), out);
}

bool HasTransfer(IDataObject& data) {
  return std::ranges::any_of(ReadableFormats(), [&](UINT format) {
    FORMATETC wanted = FormatOf(static_cast<CLIPFORMAT>(format));
    return data.QueryGetData(&wanted) == S_OK;
  });
}

ClipboardContent ReadTransfer(IDataObject& data) { return ReadOffered(Offered(data)); }

}  // namespace lumenote
